// STRINGLINESLAYERS: the layers of the string lines, one line "LAYER id"
// each (the file's number of the layer id). The plan lines of a layer with
// at least one line stand in sections of their own behind it: the L section
// "STRINGLINESSURFACES_id" in the form of the plan lines' section, and, when
// a line has a vertical line, the O section "VERLINESTRINGLINESSURFACES_id"
// in the form of VERLINE. The names are cut to the container's limit of 35
// characters, on writing and on looking them up alike.
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmStringLinesFamily;
