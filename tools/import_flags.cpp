#include "tools/import_flags.h"

namespace {

// The value of a digit in `base`, or -1.
int iDigitValue(char c, unsigned base) {
  int value = -1;
  if (c >= '0' && c <= '9') value = c - '0';
  else if (c >= 'a' && c <= 'f') value = c - 'a' + 10;
  else if (c >= 'A' && c <= 'F') value = c - 'A' + 10;
  return value >= 0 && static_cast<unsigned>(value) < base ? value : -1;
}

}  // namespace

bool boParseImportFlags(const char* text, uint32_t* flags) {
  if (!text || !flags) return false;
  unsigned base = 10;
  // A leading zero is no octal mark here: "010" is ten.
  if (text[0] == '0' && (text[1] == 'x' || text[1] == 'X')) {
    base = 16;
    text += 2;
  }
  if (*text == 0) return false;
  uint64_t value = 0;
  for (; *text; ++text) {
    int digit = iDigitValue(*text, base);
    if (digit < 0) return false;
    value = value * base + static_cast<unsigned>(digit);
    if (value > UINT32_MAX) return false;
  }
  *flags = static_cast<uint32_t>(value);
  return true;
}
