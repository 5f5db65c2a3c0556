// Chainage along a plan line: the plan point at a chainage and the chainage
// of a plan point.
//
// A line's chainage is its start chainage plus the length along the line.
// Directions are radians from the x axis towards y; offsets are signed,
// negative to the left of the line's direction.
#pragma once

#include "geometry/point.h"
#include "road_model/lines/plan_lines.h"

// The point of the line at `chain`, moved `offset` square to the line, and
// the line's direction there (`tangent` may be null). A chainage up to 0.001
// beyond an end is taken at the end. False for a null line, a line without
// points or a chainage further off.
bool boRmLinePointAtChain(const RmLine* line, double chain, ViPoint2d* point, double* tangent,
                          double offset);

// The chainage and offset of the line's point nearest to (x, y), within
// `maxDistance` (negative: no limit). False when the line has no pieces or
// the point is further off. `offset` may be null.
bool boRmLineChainAtPoint(const RmLine* line, double x, double y, double maxDistance,
                          double* chain, double* offset);
// The same, with the line extended beyond both ends along its end tangents:
// the chainage may fall before the start or beyond the end.
bool boRmLineChainAtPoint2(const RmLine* line, double x, double y, double maxDistance,
                           double* chain, double* offset);

// The side of (x, y) seen along the nearest piece of the line within
// `maxDistance` (negative: no limit): -1 left, 1 right, 0 on the line or with
// no piece near enough. `distance` gets the distance to that piece, negative
// on the left; it is left alone when there is none.
int iRmLineSideOf(const RmLine* line, double x, double y, double maxDistance, double* distance);
