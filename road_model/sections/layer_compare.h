// Equality of points and layers within a tolerance.
#pragma once

#include "road_model/sections/layer.h"

// Offset, height and radius within `tol` (a greater difference is unequal),
// PCODE and mark exact.
bool boRmPointsEqual(const RmPoint* a, const RmPoint* b, double tol);
// Offset and height within `tol`, inclusive.
bool boRmPointsSamePosition(const RmPoint* a, const RmPoint* b, double tol);
// The same, and the radius.
bool boRmPointsSamePosition3(const RmPoint* a, const RmPoint* b, double tol);
// The point at the offset and height `xz` within `tol`, inclusive.
bool boRmPointNear(const RmPoint* point, const double xz[2], double tol);

// True when the first or the last point is missing, or when both stand at
// the same position within 0.0002.
bool boRmLayerIsClosed(const RmLayer* layer);
// The same number of points, and every pair equal by boRmPointsEqual.
bool boRmLayersEqual(const RmLayer* a, const RmLayer* b, double tolerance);
