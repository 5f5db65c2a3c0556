// LANDSCAPINGS: the landscapings of each side that has any, left first, each
// side behind ":LEFTSIDE" or ":RIGHTSIDE". A landscaping opens with
// ":LANDSCAPING chainage integer integer real" and its rows of three reals
// follow, each a line that starts with a blank.
//
// Reading: a landscaping before a side keyword is dropped with its rows; one
// whose chainage is not given is kept, but its rows are skipped. Any line
// other than a row ends the landscaping; keywords not known are skipped.
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmLandscapingsFamily;
