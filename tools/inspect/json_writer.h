// A small writer of JSON documents: objects, arrays, texts and numbers,
// with the commas and the escapes set by the writer. Output is indented by
// two spaces per level.
#pragma once

#include <string>
#include <string_view>
#include <vector>

class JsonWriter {
 public:
  // A member name inside an object; the value follows with the next call.
  JsonWriter& Key(std::string_view name);
  JsonWriter& BeginObject();
  JsonWriter& EndObject();
  JsonWriter& BeginArray();
  JsonWriter& EndArray();
  // UTF-8 text.
  JsonWriter& String(std::string_view text);
  // A finite number in its shortest exact form; null otherwise.
  JsonWriter& Number(double value);
  // A number kept in single precision, in the shortest form that reads back
  // as the same single.
  JsonWriter& Single(float value);
  JsonWriter& Integer(long long value);
  JsonWriter& Bool(bool value);
  JsonWriter& Null();

  // The document, ended by a line feed.
  std::string Text() const { return out_ + "\n"; }

 private:
  void vBeforeValue();
  void vNewLine();
  void vWriteQuoted(std::string_view text);

  std::string out_;
  std::vector<bool> hasItems_;  // per open level: whether it holds an item already
  bool afterKey_ = false;
};
