// Plain text helpers: bounded copies, blank trimming, heap string fields and
// comparison without regard to case.
//
// Every size counts the terminator. A copy into a buffer that is too small is
// cut silently; nothing here writes outside the size it is given.
#pragma once

#include <cstddef>

// Copies at most size - 1 bytes of `source` and always terminates (size > 0).
// A null source gives the empty text. Returns `target`.
char* sCopy(char* target, const char* source, size_t size);

// Appends `source` so that the whole text holds at most size - 1 bytes. With
// no room left the text stays as it is. Returns `target`.
char* sAppend(char* target, const char* source, size_t size);

// Writes `source` into the first `width` bytes of `target` without a
// terminator and fills the rest of them with blanks (fixed-width columns).
char* sPadTo(char* target, const char* source, size_t width);

// Removes trailing blanks. Returns `text`.
char* sTrimRight(char* text);

// Removes trailing blanks and terminators from a field of `length` bytes and
// terminates it; `text` must have room for length + 1 bytes.
char* sTrimRightN(char* text, size_t length);

// Copies a fixed-width field of `length` bytes (stopping early at a
// terminator), terminates it at `length` and trims trailing blanks. `target`
// has room for length + 1 bytes.
char* sFieldCopy(char* target, const char* source, size_t length);

// `text`, or the empty text for null.
inline const char* sOrEmpty(const char* text) { return text ? text : ""; }

// Heap string fields: a char* member that owns a malloc'ed block or is null.
//
// Sets the field to a copy of `value`. A null or empty value frees the field
// and leaves it null. The old block is reused when the new text is not
// longer. Returns the field's new text; null when memory ran out, and then
// the field is left as it was.
char* sHeapSet(char** field, const char* value);
// Appends `value` to the field, reallocating it; a null value leaves the
// field as it is. Returns the field's text; null when memory ran out.
char* sHeapAppend(char** field, const char* value);
// Frees the field and nulls it.
void vHeapFree(char** field);

// Compares ignoring case, as names and file names are compared: below, equal
// or above zero. Null counts as the empty text.
int iCompareNoCase(const char* a, const char* b);
// The same on the first `n` bytes of both texts.
int iCompareNoCaseN(const char* a, const char* b, size_t n);

// The first place where `part` stands in `text`, ignoring case, or null. An
// empty part is found at the start of the text.
const char* sFindNoCase(const char* text, const char* part);
