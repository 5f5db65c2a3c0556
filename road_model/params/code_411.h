// The value of parameter 411 along the road on one side, as the section
// builder asks for it.
#pragma once

#include <cstdint>

struct RmNrmParams;

// The value of code 411 on `side` (1 left, 2 right) at `chain`, into
// `value`. Values given for both sides (side 0) count on either side. The
// last value at or before `chain` is taken, on the straight line towards
// the next value behind it when the code interpolates and that value is
// given. False, with `value` untouched, when no value stands at or before
// `chain` or it is "no value" (-99999.0).
bool boRmCode411At(const RmNrmParams* codes, int32_t side, double chain, double* value);
