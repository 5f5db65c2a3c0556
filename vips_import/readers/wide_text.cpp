#include "vips_import/readers/wide_text.h"

#include <cstring>

#include "base/platform.h"

std::string sVipsNarrow(const std::u16string& wide) {
  // Every 16-bit unit becomes at most one byte.
  std::string narrow(wide.size() + 1, '\0');
  narrow.resize(uPlatformWideToAnsi(wide.c_str(), narrow.data(), narrow.size()));
  return narrow;
}

std::u16string sVipsWiden(const char* text) {
  if (!text) return std::u16string();
  std::u16string wide(std::strlen(text) + 1, u'\0');
  wide.resize(uPlatformAnsiToWide(text, wide.data(), wide.size()));
  return wide;
}
