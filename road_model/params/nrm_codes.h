// The parameter codes that the road model knows by number.
#pragma once

#include <cstdint>

// The code interpolates linearly between its values along the road.
bool boNrmCodeInterpolates(int32_t code);
// The code is one of the twenty codes of the second table.
bool boNrmCodeInSecondTable(int32_t code);
