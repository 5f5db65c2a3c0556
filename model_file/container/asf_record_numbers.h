// The numbers of geometry records: read with the model file's number reader,
// printed with its number printer.
#pragma once

#include <cstddef>

// Room for the text of one printed number and its terminator.
inline constexpr size_t kAsfNumberTextSize = 24;

// Reads a decimal number at `*cursor`, blanks and tabs in front passed over,
// and moves the cursor behind it. A number starts with an optional sign and
// a digit; anything else gives false and leaves the cursor where it was. A
// point with no digit behind it ends the number ("12." reads 12).
bool boAsfScanNumber(const char** cursor, double* value);

// The same for an integer: an optional sign and digits.
bool boAsfScanInteger(const char** cursor, long* value);

// Reads up to `count` numbers in a row from `text`; returns how many were
// read. The numbers not read are left as they were.
int iAsfScanNumbers(const char* text, double* values, int count);

// The integer at the start of `text`, 0 when there is none (as atol).
long lAsfReadLong(const char* text);

// Whether a record line is a point: it starts with "-" or a digit.
inline bool boAsfIsPointLine(const char* line) {
  return line[0] == '-' || (line[0] >= '0' && line[0] <= '9');
}

// Prints `value` with the number printer at `out`, which has room for
// kAsfNumberTextSize bytes, and returns the end of the text.
char* pAsfPrintNumber(char* out, double value, int decimals);
char* pAsfPrintInteger(char* out, long value);
