#include "design_model/json_text.h"

#include <charconv>
#include <cmath>

#include "design_model/utf16.h"

namespace NpDesignModel {

void JsonText::NewLine() {
  if (!boIndented) return;
  text_ += '\n';
  text_.append(2 * itemCounts_.size(), ' ');
}

// Separates an array element from the one before it; a member value follows
// its key directly.
void JsonText::BeforeValue() {
  if (boAfterKey) {
    boAfterKey = false;
    return;
  }
  if (itemCounts_.empty()) return;
  if (itemCounts_.back()++ > 0) text_ += ',';
  NewLine();
}

void JsonText::Key(std::string_view name) {
  if (itemCounts_.back()++ > 0) text_ += ',';
  NewLine();
  text_ += '"';
  text_ += name;
  text_ += boIndented ? "\": " : "\":";
  boAfterKey = true;
}

void JsonText::BeginObject() {
  BeforeValue();
  text_ += '{';
  itemCounts_.push_back(0);
}

void JsonText::BeginArray() {
  BeforeValue();
  text_ += '[';
  itemCounts_.push_back(0);
}

void JsonText::Close(char bracket) {
  size_t count = itemCounts_.back();
  itemCounts_.pop_back();
  if (count > 0) NewLine();
  text_ += bracket;
}

void JsonText::EndObject() { Close('}'); }
void JsonText::EndArray() { Close(']'); }

void JsonText::Number(double value) {
  BeforeValue();
  if (!std::isfinite(value)) {
    text_ += "null";
    return;
  }
  char digits[32];
  std::to_chars_result result = std::to_chars(digits, digits + sizeof digits, value);
  std::string_view written(digits, static_cast<size_t>(result.ptr - digits));
  text_ += written;
  // Shortest digits of a whole number have neither; "20.0" keeps it a real
  // number, also past the range of the integers.
  if (written.find_first_of(".e") == std::string_view::npos) text_ += ".0";
}

void JsonText::Integer(int64_t value) {
  BeforeValue();
  char digits[24];
  std::to_chars_result result = std::to_chars(digits, digits + sizeof digits, value);
  text_.append(digits, result.ptr);
}

void JsonText::Boolean(bool value) {
  BeforeValue();
  text_ += value ? "true" : "false";
}

void JsonText::Null() {
  BeforeValue();
  text_ += "null";
}

void JsonText::Text(std::u16string_view text) {
  static constexpr char kHex[] = "0123456789abcdef";
  BeforeValue();
  text_ += '"';
  for (size_t index = 0; index < text.size();) {
    char32_t c = cNextCodePoint(text, index);
    switch (c) {
      case '"':
        text_ += "\\\"";
        break;
      case '\\':
        text_ += "\\\\";
        break;
      case '\b':
        text_ += "\\b";
        break;
      case '\f':
        text_ += "\\f";
        break;
      case '\n':
        text_ += "\\n";
        break;
      case '\r':
        text_ += "\\r";
        break;
      case '\t':
        text_ += "\\t";
        break;
      default:
        if (c < 0x20) {
          text_ += "\\u00";
          text_ += kHex[c >> 4];
          text_ += kHex[c & 0xF];
        } else {
          vAppendUtf8(text_, c);
        }
    }
  }
  text_ += '"';
}

std::string JsonText::Finish() {
  text_ += '\n';
  return std::move(text_);
}

}  // namespace NpDesignModel
