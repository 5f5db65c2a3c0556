// The import flag word as a person writes it on the command line.
#pragma once

#include <cstdint>

// Reads `text` as an import flag word: decimal digits, or "0x" followed by
// hexadecimal digits, for a value from 0 to 4294967295. Anything else (a
// sign, blanks, other characters, a larger value, an empty or null text)
// gives false and leaves `flags` alone.
bool boParseImportFlags(const char* text, uint32_t* flags);
