// The span of heights that chain data reach along a stretch of road, for
// fitting a long section's height range around it.
#pragma once

#include "road_model/codes/code_ranges.h"

struct RmChainData;
struct RmChainDataTypes;

// The lowest and the highest height of the rows whose chainage lies in
// `range`. Rows of a type of info type 3 are passed over; rows of info type 1
// count their first two field values as heights too. A line's type that the
// catalogue does not know has the line's own info type. False, with the ends
// untouched, when no row lies in the range.
bool boRmChainDataHeightRange(const RmChainDataTypes* types, const RmChainData* data,
                              RmChainRange range, double* min, double* max);
