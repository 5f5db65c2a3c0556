// Measures on lines: lengths, areas, positions along the line, the nearest
// piece to a point and the side it lies on, extents.
//
// Lengths are taken in the plane, along the curves of arcs and clothoids;
// invisible moves have no length. Directions are radians from the x axis
// towards y. Sides and offsets follow the direction of the line: an offset is
// negative to the left.
#pragma once

#include "geometry/line.h"

// Length of the piece that starts at `elm`.
double dLiElmLength(const LiLine* line, LiElm elm);
double dLiLineLength(const LiLine* line);

// Length of the part that starts at `part`, on a polygon with the straight
// that closes the ring. `mode` 3 measures in space on a 3D line, with heights
// changing evenly along each piece; other modes measure in the plane.
double dLiLinePartLength(const LiLine* line, LiElm part, int mode);
// Area of the part that starts at `part`, as a ring closed back to its first
// point: positive when it runs counter-clockwise. `mode` 1 gives the
// absolute value.
double dLiLinePartArea(const LiLine* line, LiElm part, int mode);
// Signed area of all parts together and, if asked, the x of the centroid
// (0 for an area of 0).
double dLiLineArea(const LiLine* line, double* centroidX);

// Point (with its height), direction of travel and curvature at `length`
// along the line. A length up to 0.001 outside the line is taken at its end;
// further out, or on a line without points, the result is false.
// `direction` may be null.
bool boLiLineGetPointAtLength(const LiLine* line, double length, ViPoint3d* point,
                              double* direction);
double dLiLineGetCurvatureAtLength(const LiLine* line, double length);

// The length along the line and the signed offset (negative to the left) of
// the point of the line nearest to (x, y). With `extendEnds`, a point beyond
// an end is measured along the end's tangent, so that the length may fall
// below 0 or beyond the line's length. False for a line without pieces, or
// when the distance is above `maxDistance` (a negative one means no limit).
bool boLiLineGetLengthAtPoint(const LiLine* line, double x, double y, double maxDistance,
                              bool extendEnds, double* length, double* offset);

// The element whose piece lies nearest to (x, y), within `maxDistance` (a
// negative one means no limit), and that distance; kLiNoElm if none. Of
// equally near pieces the first is taken.
LiElm LiLineFindNearestSeg(const LiLine* line, double x, double y, double maxDistance,
                           double* distance);
// The side of (x, y) seen along the piece of `elm`: -1 left, 1 right, 0 on
// the piece (within 1e-9) or for an element that draws nothing.
int iLiElmFindSide(const LiLine* line, LiElm elm, double x, double y);

// The extent of all points and pieces, bulges of arcs and clothoids
// included; empty for an empty line.
void vLiLineGetExtent(const LiLine* line, ViExtent* extent);

// Removes each element whose point is a common point (boViIsCommonPoint) of
// the point before it, except behind invisible moves; the element before
// takes over the piece of the removed one. With `mode` 1 on a polygon, also
// the last element of a part that returns to the part's first point, since a
// ring closes by itself. Returns the number of elements removed.
int iLiLineRemoveShortElements(LiLine* line, int mode);
