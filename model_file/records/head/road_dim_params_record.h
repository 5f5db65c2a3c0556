// ROADDIMPARAMS. A model of the Norwegian market with CLASSVERSION 0 is
// written in the old form (speed, traffic, basic road, road and vehicle
// class); every other model writes the road class and its version. The
// reader takes all six keywords wherever they stand; CLASSVERSION starts at
// the class version of the road class parameters when the model has them.
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmRoadDimParamsFamily;
