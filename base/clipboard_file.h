// Saving the clipboard's text to a file.
#pragma once

// Appends the clipboard's text, without a terminator, to the file `path`.
// Does nothing when the clipboard holds no text or the file cannot be opened.
void vClipboardCopyToFile(const char* path);
