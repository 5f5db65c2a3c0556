// Texts of the library's own string table, and the hook for translated texts.
#pragma once

// The text with the number `id`, at most 255 characters, as a temporary text.
// An id that the table does not hold gives "?:<id>".
const char* sResourceText(int id);

// The same text in the console's code page, as a temporary text.
const char* sResourceTextOem(int id);

// The translation of an English key text for the user. There is no
// translation table, so the key itself is the text; null gives "".
const char* sKvrPoGetText(const char* text);
