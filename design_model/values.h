// The small value types of the design model: surface numbers and the layer
// types that several tables share.
#pragma once

#include <cstdint>

#include "design_model/export.h"

namespace NpDesignModel {

// Layer type of pavement layers, detailed pavement layers and the layers of a
// pavement template. Only some values have a known meaning; every other value
// passes through as an integer.
enum LayerTypeEnums : int32_t {};

// A surface number: its decimal form, and a serial number that not every
// surface has.
class NP_DESIGN_MODEL_API CSurfaceNumber {
 public:
  CSurfaceNumber() = default;
  explicit CSurfaceNumber(double decimal) : dDecimal(decimal) {}
  CSurfaceNumber(double decimal, uint32_t serialNumber)
      : dDecimal(decimal), uSerialNumber(serialNumber), boHasSerialNumber(true) {}
  ~CSurfaceNumber() = default;

  double GetDecimal() const { return dDecimal; }
  // Valid only when HasSerialNumber; 0 otherwise.
  uint32_t GetSerialNumber() const { return uSerialNumber; }
  bool HasSerialNumber() const { return boHasSerialNumber; }

 private:
  double dDecimal = 0.0;
  uint32_t uSerialNumber = 0;
  bool boHasSerialNumber = false;
};

// The design model's mark for a value that is not there.
inline constexpr double kNoValue = 999999.0;

}  // namespace NpDesignModel
