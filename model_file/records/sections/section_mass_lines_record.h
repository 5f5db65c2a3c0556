// CSECTSMASSESLINES and LSECTSMASSESLINES: the outlines of the masses of a
// section set, one ":L" record per outline, found again by the fields
// CHAIN, MASSID and EXACTLINE.
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmCrossMassLinesFamily;
extern const RmRecordFamily kRmLongMassLinesFamily;
