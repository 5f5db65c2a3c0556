// A fixed element order for outlines of the same shape, whatever order the
// clipping left their rings and points in: parts from left to right, each
// starting at its leftmost lowest point.
#pragma once

#include "geometry/line.h"

// The element of the part with the smallest x; of points with x equal by
// boEqual, the one with the smaller or equal y, so that of two equal points
// the later one wins. kLiNoElm for a part that is not there.
LiElm LineFindLeftmost(const LiLine* line, LiElm part);

// A new line (a polygon if the source is one) with the parts of `line`
// sorted by the x of their leftmost points, rising, each walked once from
// that point. The caller owns it; null for a null or empty line. Parts of
// equal x have no fixed order.
LiLine* LineNormalise(const LiLine* line);

// Replaces the elements of the polygon by those of LineNormalise; the
// polygon keeps its GUID. A null result leaves it as it was.
void vPolygonNormalise(LiLine* polygon);
