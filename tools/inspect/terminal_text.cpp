#include "tools/inspect/terminal_text.h"

#include <cstring>
#include <vector>

#include "base/platform.h"

std::string sTerminalText(const char* text) {
  if (!text || !*text) return {};
  size_t length = std::strlen(text);
  // Plain ASCII is the same in both encodings.
  bool ascii = true;
  for (size_t i = 0; i < length && ascii; ++i) ascii = static_cast<unsigned char>(text[i]) < 0x80;
  if (ascii) return std::string(text, length);

  std::vector<char16_t> wide(length + 1);
  size_t units = uPlatformAnsiToWide(text, wide.data(), wide.size());
  std::string out;
  out.reserve(units * 3);
  // Every Windows-1252 character lies in the basic plane: one to three bytes.
  for (size_t i = 0; i < units; ++i) {
    char16_t c = wide[i];
    if (c < 0x80) {
      out += static_cast<char>(c);
    } else if (c < 0x800) {
      out += static_cast<char>(0xC0 | (c >> 6));
      out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
      out += static_cast<char>(0xE0 | (c >> 12));
      out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
      out += static_cast<char>(0x80 | (c & 0x3F));
    }
  }
  return out;
}
