// The system's wording for an error code.
#pragma once

#include <cstddef>

// Fills `buffer` with the system's message for `code`, without trailing
// carriage returns, line feeds or blanks, and returns true. When the system
// has no message, `buffer` is left empty and the result is false.
bool boSystemErrorText(int code, char* buffer, size_t size);
