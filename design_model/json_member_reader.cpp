#include "design_model/json_member_reader.h"

#include <limits>

#include "design_model/utf16.h"

namespace NpDesignModel {

using simdjson::dom::element;
using simdjson::dom::element_type;

void ReadState::vFail(std::string_view expected) {
  boFailed_ = true;
  sPointer_.clear();
  sExpected_ = expected;
}

void ReadState::vPrefix(std::string_view segment) {
  std::string front;
  front.reserve(1 + segment.size() + sPointer_.size());
  front += '/';
  front += segment;
  front += sPointer_;
  sPointer_ = std::move(front);
}

void ReadState::vPrefixIndex(size_t index) { vPrefix(std::to_string(index)); }

bool ReadState::boSpend(uint64_t bytes) {
  if (bytes > uRecordBudget) {
    vFail("fewer elements: the design would not fit in the memory allowed for this document");
    return false;
  }
  uRecordBudget -= bytes;
  return true;
}

namespace {

// The integer of a JSON integer (no fraction, no exponent) that lies within
// [lowest, highest].
bool boReadInteger(element value, int64_t lowest, int64_t highest, int64_t& out) {
  switch (value.type()) {
    case element_type::INT64: {
      int64_t number = value.get_int64().value_unsafe();
      if (number < lowest || number > highest) return false;
      out = number;
      return true;
    }
    case element_type::UINT64: {
      uint64_t number = value.get_uint64().value_unsafe();
      if (highest < 0 || number > static_cast<uint64_t>(highest)) return false;
      out = static_cast<int64_t>(number);
      return true;
    }
    default:
      return false;
  }
}

}  // namespace

bool boReadValue(element value, double& out, ReadState& state) {
  switch (value.type()) {
    case element_type::NULL_VALUE:
      out = kNoValue;
      return true;
    case element_type::INT64:
    case element_type::UINT64:
    case element_type::DOUBLE:
      out = value.get_double().value_unsafe();
      return true;
    default:
      state.vFail("a number or null");
      return false;
  }
}

bool boReadValue(element value, int32_t& out, ReadState& state) {
  int64_t number;
  if (!boReadInteger(value, std::numeric_limits<int32_t>::min(),
                     std::numeric_limits<int32_t>::max(), number)) {
    state.vFail("an integer from -2147483648 to 2147483647");
    return false;
  }
  out = static_cast<int32_t>(number);
  return true;
}

bool boReadValue(element value, uint32_t& out, ReadState& state) {
  int64_t number;
  if (!boReadInteger(value, 0, std::numeric_limits<uint32_t>::max(), number)) {
    state.vFail("an integer from 0 to 4294967295");
    return false;
  }
  out = static_cast<uint32_t>(number);
  return true;
}

bool boReadValue(element value, bool& out, ReadState& state) {
  if (value.type() != element_type::BOOL) {
    state.vFail("true or false");
    return false;
  }
  out = value.get_bool().value_unsafe();
  return true;
}

bool boReadValue(element value, std::u16string& out, ReadState& state) {
  std::string_view text;
  if (value.get_string().get(text) != simdjson::SUCCESS) {
    state.vFail("a string");
    return false;
  }
  if (!state.boSpend(text.size() * sizeof(char16_t))) return false;
  out = sUtf8ToUtf16(text);
  return true;
}

// A surface number is an object with a decimal and an optional serial
// number; the serial number counts as given exactly when it is there.
bool boReadValue(element value, CSurfaceNumber& out, ReadState& state) {
  simdjson::dom::object object;
  if (value.get_object().get(object) != simdjson::SUCCESS) {
    state.vFail("an object");
    return false;
  }
  double decimal = 0.0;
  element member;
  if (object.at_key("decimal").get(member) == simdjson::SUCCESS &&
      !boReadValue(member, decimal, state)) {
    state.vPrefix("decimal");
    return false;
  }
  if (object.at_key("serialNumber").get(member) != simdjson::SUCCESS) {
    out = CSurfaceNumber(decimal);
    return true;
  }
  uint32_t serialNumber;
  if (!boReadValue(member, serialNumber, state)) {
    state.vPrefix("serialNumber");
    return false;
  }
  out = CSurfaceNumber(decimal, serialNumber);
  return true;
}

}  // namespace NpDesignModel
