// What the log says when the design cannot be opened.
#pragma once

#include <cstdint>
#include <cstdio>

// The text of an open error code, in English. A code gives its own text and
// every text after it in the order -1, -2, -3, -4, -5, -9, run together
// without a separator: -5 gives "File already openFile access denied", -1
// all six. That is how the log has always read, and it is kept so. -6, -7,
// -8 and every code outside -9..-1 give the empty text. A temporary text.
const char* sVipsOpenErrorText(int32_t code);

// Writes the line for an open error to the log: the English text when
// `describe` is set, else the Norwegian line with the code.
void vVipsLogOpenError(std::FILE* log, int32_t code, bool describe);
