#include "design_model/utf16.h"

#include <cstdint>

namespace NpDesignModel {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool boIsContinuation(unsigned char byte) { return (byte & 0xC0) == 0x80; }

// Decodes the sequence at text[index]; returns U+FFFD and a length of 1 for
// a bad one (overlong forms, surrogates and values past U+10FFFF included).
char32_t cDecodeUtf8(std::string_view text, size_t index, size_t& length) {
  unsigned char lead = static_cast<unsigned char>(text[index]);
  length = 1;
  if (lead < 0x80) return lead;
  size_t count;
  char32_t value;
  char32_t smallest;
  if ((lead & 0xE0) == 0xC0) {
    count = 2, value = lead & 0x1F, smallest = 0x80;
  } else if ((lead & 0xF0) == 0xE0) {
    count = 3, value = lead & 0x0F, smallest = 0x800;
  } else if ((lead & 0xF8) == 0xF0) {
    count = 4, value = lead & 0x07, smallest = 0x10000;
  } else {
    return kReplacement;
  }
  if (index + count > text.size()) return kReplacement;
  for (size_t i = 1; i < count; ++i) {
    unsigned char byte = static_cast<unsigned char>(text[index + i]);
    if (!boIsContinuation(byte)) return kReplacement;
    value = (value << 6) | (byte & 0x3F);
  }
  if (value < smallest || value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF)) {
    return kReplacement;
  }
  length = count;
  return value;
}

}  // namespace

std::u16string sUtf8ToUtf16(std::string_view text) {
  std::u16string wide;
  wide.reserve(text.size());
  for (size_t index = 0; index < text.size();) {
    size_t length;
    char32_t c = cDecodeUtf8(text, index, length);
    index += length;
    if (c < 0x10000) {
      wide.push_back(static_cast<char16_t>(c));
    } else {
      c -= 0x10000;
      wide.push_back(static_cast<char16_t>(0xD800 + (c >> 10)));
      wide.push_back(static_cast<char16_t>(0xDC00 + (c & 0x3FF)));
    }
  }
  return wide;
}

char32_t cNextCodePoint(std::u16string_view text, size_t& index) {
  char16_t unit = text[index++];
  if (unit < 0xD800 || unit > 0xDFFF) return unit;
  if (unit <= 0xDBFF && index < text.size() && text[index] >= 0xDC00 && text[index] <= 0xDFFF) {
    char16_t low = text[index++];
    return 0x10000 + ((static_cast<char32_t>(unit) - 0xD800) << 10) + (low - 0xDC00);
  }
  return kReplacement;
}

void vAppendUtf8(std::string& out, char32_t c) {
  if (c < 0x80) {
    out.push_back(static_cast<char>(c));
  } else if (c < 0x800) {
    out.push_back(static_cast<char>(0xC0 | (c >> 6)));
    out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
  } else if (c < 0x10000) {
    out.push_back(static_cast<char>(0xE0 | (c >> 12)));
    out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
    out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
  } else {
    out.push_back(static_cast<char>(0xF0 | (c >> 18)));
    out.push_back(static_cast<char>(0x80 | ((c >> 12) & 0x3F)));
    out.push_back(static_cast<char>(0x80 | ((c >> 6) & 0x3F)));
    out.push_back(static_cast<char>(0x80 | (c & 0x3F)));
  }
}

}  // namespace NpDesignModel
