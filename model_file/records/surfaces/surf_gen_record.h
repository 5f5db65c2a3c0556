// SURFGEN: the surface groups of the surface tables object, and
// SURFGEN_BUILDSETTINGS: the tables object's one word of build settings.
//
// A group opens with ":SURFACES <layer>" and holds its settings as keyword
// lines, then an optional table of reference heights (":SURFACEREFHEIGHTS"
// and rows of chainage and height), an optional table of border lines
// (":GROUPSURFBOUND", rows as SURFACEBORDERLINES, ":GROUPEND"), and its
// surfaces: ":SURFACE <number> [<second number>]", an optional DESCR line
// and rows of chainage, width, slope and row type.
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmSurfGenFamily;
extern const RmRecordFamily kRmBuildSettingsFamily;
