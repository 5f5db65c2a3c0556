// Where a plan line crosses a section: the offset along the section, for
// surfaces whose outer edge follows a line.
#pragma once

#include "road_model/lines/plan_lines.h"

struct RmSection;

// The offset along the section (negative to the left) of the crossing of
// `line` with the section's plan line nearest to the section's origin on
// `side` (1 left, 2 right, 0 either). False when the line does not cross
// the section there.
bool boRmSectionLineCrossing(const RmSection* section, const RmLine* line, int side,
                             double* offset);
