// Measures of section lines: heights between two points, closure, extents
// and lengths of parts.
#pragma once

#include "geometry/line.h"
#include "geometry/point.h"

// The height at `x` on the straight from (x0, y0) to (x1, y1): y0 when x0
// and x1 are one offset (boEqual), the null height -99999 when either
// height is not given.
double dInterpolateNull(double x0, double x1, double y0, double y1, double x);

// Whether the first and the last element are common points.
bool boLineIsClosed(const LiLine* line);

// The extent of the points of one part; false when it has none.
bool boPartExtent(const LiLine* line, LiElm part, ViExtent* box);

// The length of a part; `mode` selects the measure (3: in space) and is
// passed to the line's own length.
double dLinePartMeasure(const LiLine* line, LiElm part, int mode);
// The sum over all parts.
double dLineMeasure(const LiLine* line, int mode);

// The mean offset of the line's drawn pieces, weighted by their length in
// the plane (pieces taken as straights); 0 for a line of no length.
double dLineCentroidOffset(const LiLine* line);
