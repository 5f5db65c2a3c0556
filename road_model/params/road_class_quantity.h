// The value forms of the road class parameters: a number in a unit given as
// a ratio (`Quantity`), the same with an integer, a pair of numbers, a
// factor and a flag that remembers whether it was given.
#pragma once

#include <cstdint>

// A value means `value` times `unitNum` over `unitDen`. An absent quantity
// (`present` 0) is not written.
struct Quantity {
  double value = 0.0;
  uint16_t unitNum = 1;
  uint16_t unitDen = 1;
  uint8_t present = 0;
};

struct IntQuantity {
  int32_t value = 0;
  uint16_t unitNum = 1;
  uint16_t unitDen = 1;
  uint8_t present = 0;
};

// One item of a list of pairs (profile speed limits, superelevation). The
// file holds `second` first and `first` second.
struct RmQuantityPair {
  Quantity first;
  Quantity second;
};

// A friction or safety factor, unit 1,1.
struct RmFactor {
  float value = 0.0f;
  uint8_t present = 0;
};

// A yes/no choice and whether it was given.
struct RmGivenFlag {
  uint8_t value = 0;
  uint8_t given = 0;
};
