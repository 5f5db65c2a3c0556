// MASSCALC: the model's calculation settings, in every file. When the
// section is there, each keyword that it leaves out takes its default; a
// keyword without its number reads as 0.
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmMassCalcFamily;
