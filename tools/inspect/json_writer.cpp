#include "tools/inspect/json_writer.h"

#include <fmt/format.h>

#include <cmath>

void JsonWriter::vNewLine() {
  out_ += '\n';
  out_.append(2 * hasItems_.size(), ' ');
}

void JsonWriter::vBeforeValue() {
  if (afterKey_) {
    afterKey_ = false;
    return;
  }
  if (hasItems_.empty()) return;
  if (hasItems_.back()) out_ += ',';
  hasItems_.back() = true;
  vNewLine();
}

JsonWriter& JsonWriter::Key(std::string_view name) {
  vBeforeValue();
  vWriteQuoted(name);
  out_ += ": ";
  afterKey_ = true;
  return *this;
}

JsonWriter& JsonWriter::BeginObject() {
  vBeforeValue();
  out_ += '{';
  hasItems_.push_back(false);
  return *this;
}

JsonWriter& JsonWriter::EndObject() {
  bool items = hasItems_.back();
  hasItems_.pop_back();
  if (items) vNewLine();
  out_ += '}';
  return *this;
}

JsonWriter& JsonWriter::BeginArray() {
  vBeforeValue();
  out_ += '[';
  hasItems_.push_back(false);
  return *this;
}

JsonWriter& JsonWriter::EndArray() {
  bool items = hasItems_.back();
  hasItems_.pop_back();
  if (items) vNewLine();
  out_ += ']';
  return *this;
}

JsonWriter& JsonWriter::String(std::string_view text) {
  vBeforeValue();
  vWriteQuoted(text);
  return *this;
}

void JsonWriter::vWriteQuoted(std::string_view text) {
  out_ += '"';
  for (char c : text) {
    switch (c) {
      case '"': out_ += "\\\""; break;
      case '\\': out_ += "\\\\"; break;
      case '\n': out_ += "\\n"; break;
      case '\r': out_ += "\\r"; break;
      case '\t': out_ += "\\t"; break;
      default:
        if (static_cast<unsigned char>(c) < 0x20) {
          out_ += fmt::format("\\u{:04x}", static_cast<unsigned>(c));
        } else {
          out_ += c;
        }
    }
  }
  out_ += '"';
}

JsonWriter& JsonWriter::Number(double value) {
  if (!std::isfinite(value)) return Null();
  vBeforeValue();
  out_ += fmt::format("{}", value);
  return *this;
}

JsonWriter& JsonWriter::Single(float value) {
  if (!std::isfinite(value)) return Null();
  vBeforeValue();
  out_ += fmt::format("{}", value);
  return *this;
}

JsonWriter& JsonWriter::Integer(long long value) {
  vBeforeValue();
  out_ += fmt::format("{}", value);
  return *this;
}

JsonWriter& JsonWriter::Bool(bool value) {
  vBeforeValue();
  out_ += value ? "true" : "false";
  return *this;
}

JsonWriter& JsonWriter::Null() {
  vBeforeValue();
  out_ += "null";
  return *this;
}
