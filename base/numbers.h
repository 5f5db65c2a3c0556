// Numbers: the model file's number reader and printer, formatting for
// people, and the comparisons that the geometry uses everywhere.
//
// lParseInteger, dParseNumber, sPrintNumber and sPrintInteger run for every
// number of a model file. They are fast paths with deliberate limits, and
// what they give for odd input is part of the file format: files written and
// read by earlier versions must keep reading the same.
#pragma once

#include <cstddef>
#include <cstdint>

// The model's mark for "no value".
inline constexpr double kNullNumber = -99999.0;
inline constexpr int kNullInteger = -99999;

// A real counts as given when it lies above this.
inline constexpr double kPresentAbove = -99998.0;
inline bool boIsPresent(double value) { return value > kPresentAbove; }

// An unset bounding box: minima at kExtentEmptyMin, maxima at kExtentEmptyMax.
inline constexpr double kExtentEmptyMin = 99999999.9;
inline constexpr double kExtentEmptyMax = -99999999.9;

// Reads an integer: blanks, a sign, decimal digits. The end goes to `outEnd`
// when it is given. More than 9 digits are read by the C library, within the
// range of a 32-bit long. With no digit at all the first byte counts as one:
// "x" gives 72 and "" gives -48, the end standing one byte further (behind
// the terminator for ""). A caller therefore tests for the end of the text
// first and takes 0 there.
long lParseInteger(const char* text, const char** outEnd);

// Reads a decimal number: an integer part by lParseInteger, then a point and
// the fraction's digits, which are scaled by a table and not rounded
// correctly, so the last bit may differ from strtod's. No exponent is read
// ("1e5" gives 1 and an end at the 'e'). "3." gives -1.8 under the integer
// rule for the terminator.
double dParseNumber(const char* text, const char** outEnd);

// Reads a number that may use a comma as its decimal sign (at most 127
// bytes of it).
double dParseNumberComma(const char* text);

// Whether the text is a plain decimal: blanks in front, at most one sign in
// front, digits and at most one point. The empty text counts; a lone sign or
// point does not.
bool boIsNumberText(const char* text);

// Prints a coordinate the way the model file holds it: at most `decimals`
// places (above 9 means 8; exactly 9 prints the integer part alone), rounded
// with a half step just below one half, closing zeros and a bare point
// dropped. The integer part is 32 bits wide. The sign is written first, so
// -0.0001 with 3 decimals prints "-0". `outEnd`, when given, gets the end of
// the text. Returns `buffer`; 24 bytes always suffice.
char* sPrintNumber(char* buffer, size_t size, double value, int decimals, char** outEnd);

// Writes the decimal digits of `value` at `out`, without a terminator, and
// returns the end. The caller gives room for 20 digits.
char* pWriteDigits(char* out, uint64_t value);

// "00" to "99" one after the other: the two digits of n stand at 2 * n.
extern const char kDigitPairs[201];

// Prints an integer with a sign when it is negative. Returns `buffer`;
// 24 bytes always suffice.
char* sPrintInteger(char* buffer, size_t size, long value, char** outEnd);

// Cuts closing zeros behind a point, and the point when nothing is left
// behind it: "1.500" gives "1.5", "2.000" gives "2", "100" stays. The first
// byte is never cut. Returns `text`.
char* sTrimZeros(char* text);

// Prints with `decimals` places in the "C" locale and uses `point` as the
// decimal sign. With `width` 0 closing zeros are trimmed (decimals above 0);
// with a width the number is right-aligned in it and not trimmed.
// Returns `buffer`.
char* sFormatNumber(double value, int width, int decimals, char point, char* buffer,
                    size_t size);
// The same with the user's decimal sign.
char* sFormatNumberLocal(double value, int width, int decimals, char* buffer, size_t size);

// Equality of numbers: a difference below 1e-5.
inline bool boEqual(double a, double b) {
  double difference = a - b;
  return difference < 1e-5 && difference > -1e-5;
}

// Whether `a` lies within plus and minus 1.7e-300.
inline bool boIsTiny(double a) { return a >= -1.7e-300 && a <= 1.7e-300; }

// `a` rounded to a multiple of `step`, halves away from zero. A step of 0
// leaves `a` as it is.
double dRoundToStep(double a, double step);
