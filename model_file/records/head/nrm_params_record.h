// NRMPARAMS: the design parameters along the road. Each parameter is a line
// "CODE <code>" followed by its values as rows " <chain> <side> <value>";
// then each branch is a line "BRCHAIN <chain> <class>" followed by rows
// " <x> <y> <code>". A row is a line whose first token starts with a digit,
// "-" or "."; ":GROUPEND" ends the section. A model without parameters
// writes no section.
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmNrmParamsFamily;
