// The sections of the chain range tables, one family each, all written and
// read by the chain range records (chain_range_records.h):
//   ROCKBENCHS             MINSLOPEBUILD, sides, " from to" and four reals;
//                          files of DATAVERSION 1 and older hold one row for
//                          both sides, without sides and MINSLOPEBUILD
//   MINDITCHDEPTHS         " from to" and the left and right depth
//   STONEEXCAVATIONSLOPES  "STONEEXCAVATIONSLOPE from to" and a line for each
//                          of the six slopes that is given
//   DEEPROCKBLASTS         " from to" and nine numbers; a short row reads its
//                          missing numbers at their marks
//   FILLDITCHES            sides, " from to"
//   REMOVALTOPSOILS        " from to", codes, slopes and criteria
//   UNSUITABLESOILS        " from to" and the design mode
//   SOILCUTPLASTERS        " from to" and two reals
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmRockBenchesFamily;
extern const RmRecordFamily kRmMinDitchDepthsFamily;
extern const RmRecordFamily kRmStoneExcavationSlopesFamily;
extern const RmRecordFamily kRmDeepRockBlastsFamily;
extern const RmRecordFamily kRmFillDitchesFamily;
extern const RmRecordFamily kRmRemovalTopsoilsFamily;
extern const RmRecordFamily kRmUnsuitableSoilsFamily;
extern const RmRecordFamily kRmSoilCutPlastersFamily;
