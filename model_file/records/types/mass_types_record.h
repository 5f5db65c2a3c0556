// CSECTMASSTYPES and LSECTMASSTYPES: one group per mass type, from
// ":MASSTYPE <number> <name>" to the next. The calculation lines always
// stand; the others only when they differ from their defaults. Chain ranges
// follow "CHAINRANGES" as rows, and the drawing is the presentation text of
// "PRES":
//   :MASSTYPE 12 "Jord og stein"
//   CALCTYPE 0
//   ...
//   FLAYERS 11 21
//   CHAINRANGES
//    0.0000 250.0000 1 0
//   PRES Color:9 Mat:1 Hatch:Hatch(HFillCol:-1 HType:10 HFact:1.000 )
//
// A load turns the older single-layer rules of cross-section types into
// layer lists and gives each type without a category the one of its number.
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmCrossMassTypesFamily;
extern const RmRecordFamily kRmLongMassTypesFamily;
