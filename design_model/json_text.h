// Builds JSON text, compact or indented by two blanks per level.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace NpDesignModel {

class JsonText {
 public:
  explicit JsonText(bool indented) : boIndented(indented) {}

  // Containers, as values of their own.
  void BeginObject();
  void EndObject();
  void BeginArray();
  void EndArray();
  // The name of the next member of the open object.
  void Key(std::string_view name);

  // Plain values. A number always has a fraction or an exponent, so that it
  // reads back as the same number; one that is not finite is written null.
  void Number(double value);
  void Integer(int64_t value);
  void Boolean(bool value);
  void Text(std::u16string_view text);
  void Null();

  // Name and value in one step.
  void Member(std::string_view name, double value) {
    Key(name);
    Number(value);
  }
  void Member(std::string_view name, int32_t value) {
    Key(name);
    Integer(value);
  }
  void Member(std::string_view name, bool value) {
    Key(name);
    Boolean(value);
  }
  void Member(std::string_view name, std::u16string_view text) {
    Key(name);
    Text(text);
  }
  template <class Enum>
    requires std::is_enum_v<Enum>
  void Member(std::string_view name, Enum value) {
    Key(name);
    Integer(static_cast<int64_t>(value));
  }

  // The text, ending in a line feed.
  std::string Finish();

 private:
  void BeforeValue();
  void NewLine();
  void Close(char bracket);

  std::string text_;
  bool boIndented;
  bool boAfterKey = false;
  std::vector<size_t> itemCounts_;  // per open container
};

}  // namespace NpDesignModel
