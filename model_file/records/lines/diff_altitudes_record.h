// DIFFALTITUDES: the difference tables of the vertical lines. Each line with
// rows has a group ":DIFFALTITUDES id" and one row per range: from, to and
// the difference. A file of the older form holds the rows of the model's one
// line alone, without a group line.
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmDiffAltitudesFamily;
