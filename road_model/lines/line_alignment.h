// Plan lines from the horizontal elements of a designed alignment.
#pragma once

#include "road_model/lines/plan_lines.h"

// One horizontal element as a design gives it: chainages and points of both
// ends, the radius at each end (0 for a straight end, positive turning left)
// and the clothoid parameter.
struct RmAlignmentElement {
  double StartChain;
  double EndChain;
  double StartRadius;
  double EndRadius;
  double A;
  double StartX, StartY;
  double EndX, EndY;
};

// Appends the element to the line. For the first element of an alignment
// the start point comes first, and its chainage becomes the line's start
// chainage. The end point is joined to the point before it by an arc when
// both radii are the same and not 0 (the larger arc when the element is
// longer than half a circle), by a clothoid when the radii differ, and by a
// straight when both are 0; radii compare within 1e-5. The arc or clothoid
// is set on the point before, where its piece starts. Returns the end
// point's element.
LiElm RmLineAddAlignmentElement(RmLine* line, const RmAlignmentElement& element, bool first);
