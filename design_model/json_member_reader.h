// Reads the members of the design document into the held records.
//
// Every record names its members in Describe; the reader walks those names,
// finds each in the JSON object (the first member of that name) and reads it
// by the type of the field. An absent member keeps the field's default. The
// first bad value stops the walk: its place is kept as a JSON pointer, built
// while the walk unwinds.
#pragma once

#include <simdjson.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "design_model/values.h"

namespace NpDesignModel {

// The state of one reading: the first problem and the memory still allowed.
class ReadState {
 public:
  explicit ReadState(uint64_t recordBudget) : uRecordBudget(recordBudget) {}

  bool boFailed() const { return boFailed_; }
  const std::string& sPointer() const { return sPointer_; }
  const std::string& sExpected() const { return sExpected_; }

  // Marks the value being read as bad; its pointer is built by vPrefix as
  // the walk goes back up.
  void vFail(std::string_view expected);
  // Puts a member name or an array position in front of the pointer.
  void vPrefix(std::string_view segment);
  void vPrefixIndex(size_t index);
  // Takes `bytes` from the memory that the document's design may use; false
  // when the document would need more.
  bool boSpend(uint64_t bytes);

 private:
  bool boFailed_ = false;
  std::string sPointer_;
  std::string sExpected_;
  uint64_t uRecordBudget;
};

// Value readers: each reads one JSON value into `out`. A bad value is
// reported to `state` and gives false.
bool boReadValue(simdjson::dom::element value, double& out, ReadState& state);
bool boReadValue(simdjson::dom::element value, int32_t& out, ReadState& state);
bool boReadValue(simdjson::dom::element value, uint32_t& out, ReadState& state);
bool boReadValue(simdjson::dom::element value, bool& out, ReadState& state);
bool boReadValue(simdjson::dom::element value, std::u16string& out, ReadState& state);
bool boReadValue(simdjson::dom::element value, CSurfaceNumber& out, ReadState& state);

template <class Enum>
  requires std::is_enum_v<Enum>
bool boReadValue(simdjson::dom::element value, Enum& out, ReadState& state);
template <class Element>
bool boReadValue(simdjson::dom::element value, std::vector<Element>& out, ReadState& state);
template <class Record>
  requires std::is_class_v<Record>
bool boReadValue(simdjson::dom::element value, Record& out, ReadState& state);

// Reads the members that a record names from one JSON object.
class MemberReader {
 public:
  MemberReader(simdjson::dom::object object, ReadState& state)
      : object_(object), next_(object.begin()), end_(object.end()), state_(state) {}

  // `name` is the literal that Describe gives, so that its length is known
  // here and the member names compare without a call.
  template <size_t Size, class Field>
  void operator()(const char (&name)[Size], Field& field) {
    if (state_.boFailed()) return;
    std::string_view key(name, Size - 1);
    simdjson::dom::element value;
    if (next_ != end_ && next_.key_length() == Size - 1 &&
        std::memcmp(next_.key_c_str(), name, Size - 1) == 0) {
      // Documents list the members in the order that the record names them,
      // so the member after the last one taken in that order is tried first:
      // every member before it was taken for an earlier name, none of them
      // this one, so a match there is the first of its name.
      value = next_.value();
      ++next_;
    } else if (object_.at_key(key).get(value) != simdjson::SUCCESS) {
      return;
    }
    if (!boReadValue(value, field, state_)) state_.vPrefix(key);
  }

 private:
  simdjson::dom::object object_;
  simdjson::dom::object::iterator next_;
  simdjson::dom::object::iterator end_;
  ReadState& state_;
};

template <class Enum>
  requires std::is_enum_v<Enum>
bool boReadValue(simdjson::dom::element value, Enum& out, ReadState& state) {
  static_assert(std::is_same_v<std::underlying_type_t<Enum>, int32_t>);
  int32_t number;
  if (!boReadValue(value, number, state)) return false;
  out = static_cast<Enum>(number);
  return true;
}

template <class Element>
bool boReadValue(simdjson::dom::element value, std::vector<Element>& out, ReadState& state) {
  simdjson::dom::array array;
  if (value.get_array().get(array) != simdjson::SUCCESS) {
    state.vFail("an array");
    return false;
  }
  size_t count = array.size();
  if (!state.boSpend(uint64_t{count} * sizeof(Element))) return false;
  out.clear();
  out.reserve(count);
  size_t index = 0;
  for (simdjson::dom::element item : array) {
    if (!boReadValue(item, out.emplace_back(), state)) {
      state.vPrefixIndex(index);
      return false;
    }
    ++index;
  }
  return true;
}

template <class Record>
  requires std::is_class_v<Record>
bool boReadValue(simdjson::dom::element value, Record& out, ReadState& state) {
  simdjson::dom::object object;
  if (value.get_object().get(object) != simdjson::SUCCESS) {
    state.vFail("an object");
    return false;
  }
  MemberReader reader(object, state);
  Record::Describe(out, reader);
  return !state.boFailed();
}

}  // namespace NpDesignModel
