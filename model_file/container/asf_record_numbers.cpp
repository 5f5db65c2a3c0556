#include "model_file/container/asf_record_numbers.h"

#include "base/numbers.h"

namespace {

bool boIsDigit(char byte) { return byte >= '0' && byte <= '9'; }

// The start of a number behind blanks and tabs, or null when no optional
// sign and digit stand there. `outDigitsEnd` receives the end of the
// integer digits.
const char* pNumberStart(const char* text, const char** outDigitsEnd) {
  while (*text == ' ' || *text == '\t') ++text;
  const char* digits = text;
  if (*digits == '-' || *digits == '+') ++digits;
  if (!boIsDigit(*digits)) return nullptr;
  while (boIsDigit(*digits)) ++digits;
  *outDigitsEnd = digits;
  return text;
}

}  // namespace

bool boAsfScanNumber(const char** cursor, double* value) {
  const char* digitsEnd = nullptr;
  const char* start = pNumberStart(*cursor, &digitsEnd);
  if (!start) return false;
  const char* end = nullptr;
  if (digitsEnd[0] == '.' && !boIsDigit(digitsEnd[1])) {
    // The number reader would take the byte behind the point for a digit,
    // the terminator too; the integer part is all there is.
    *value = static_cast<double>(lParseInteger(start, &end));
    *cursor = digitsEnd + 1;
    return true;
  }
  *value = dParseNumber(start, &end);
  *cursor = end;
  return true;
}

bool boAsfScanInteger(const char** cursor, long* value) {
  const char* digitsEnd = nullptr;
  const char* start = pNumberStart(*cursor, &digitsEnd);
  if (!start) return false;
  const char* end = nullptr;
  *value = lParseInteger(start, &end);
  *cursor = end;
  return true;
}

int iAsfScanNumbers(const char* text, double* values, int count) {
  int read = 0;
  while (read < count && boAsfScanNumber(&text, &values[read])) ++read;
  return read;
}

long lAsfReadLong(const char* text) {
  long value = 0;
  return boAsfScanInteger(&text, &value) ? value : 0;
}

char* pAsfPrintNumber(char* out, double value, int decimals) {
  char* end = out;
  sPrintNumber(out, kAsfNumberTextSize, value, decimals, &end);
  return end;
}

char* pAsfPrintInteger(char* out, long value) {
  char* end = out;
  sPrintInteger(out, kAsfNumberTextSize, value, &end);
  return end;
}
