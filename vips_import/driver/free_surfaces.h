// The free surfaces that the border lines of the design hand over to.
#pragma once

struct RmSurfGen;

// For each border line of surface group 1 with a free surface that the
// group has no surface of, a surface of that number without rows, in its
// place by number. Without the group or its border lines nothing is done.
void vVipsAddFreeSurfaces(RmSurfGen* surfGen);
