// CLOSEDDITCHES: the closed ditches of the surface tables. ":CLOSEDDITCH id"
// opens the ditch of a layer (the file's number of its id),
// ":CLOSEDDITCH_CHAIN chain mode" opens a section of it, and each row
// " distance elevation" is a point of that section. Rows before a section,
// and a section line before a ditch, belong to nothing and are passed over;
// any other line ends the open ditch.
#pragma once

#include "model_file/records/frame/record_family.h"

struct RmClosedDitches;

extern const RmRecordFamily kRmClosedDitchesFamily;

// The section's records of a table, and a new table from them (null only
// when no table could be made); the clipboard uses them too.
void vRmClosedDitchesWrite(AsfFile* file, AsfSection* section, const RmClosedDitches* ditches);
RmClosedDitches* RmClosedDitchesRead(AsfFile* file, AsfSection* section);
