// ROADCLASSPARAMETERS: one keyword line per design value of the road class,
// in a fixed order. A quantity that was not given is left out; the lists of
// profile speed limits and superelevation write every place, the lane lists
// one line per lane. The reader takes the keywords in any order; the n-th
// line of a list keyword fills its n-th place.
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmRoadClassParametersFamily;
