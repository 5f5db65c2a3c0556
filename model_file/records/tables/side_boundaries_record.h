// SIDEBOUNDARIES: the side boundaries of the model. ":LEFTSIDE" and
// ":RIGHTSIDE" stand in front of the rows of their side, written only for a
// side with rows; a row is " chain code distance lineId". A code or an
// alignment written as 0 or left out reads as absent. Any other line, the
// ":GROUPEND" of older files among them, ends the side: rows behind it that
// follow no side keyword are passed over.
#pragma once

#include "model_file/records/frame/record_family.h"

struct RmSideBoundaries;

extern const RmRecordFamily kRmSideBoundariesFamily;

// The section's records of a table, and a new table from them (null only
// when no table could be made); the clipboard uses them too.
void vRmSideBoundariesWrite(AsfFile* file, AsfSection* section,
                            const RmSideBoundaries* boundaries);
RmSideBoundaries* RmSideBoundariesRead(AsfFile* file, AsfSection* section);
