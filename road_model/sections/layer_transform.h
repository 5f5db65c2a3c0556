// Whole-layer changes (marks, heights, offsets, parallels), the layer as a
// line of the geometry library, and its extent.
#pragma once

#include "geometry/point.h"
#include "road_model/sections/layer.h"

struct LiLine;
struct RmSection;

void vRmLayerSetMark(RmLayer* layer, int mark);
// Adds `dz` to the height of every point that has one.
void vRmLayerAddHeight(RmLayer* layer, double dz);
// Adds `dx` to every offset.
void vRmLayerOffsetAll(RmLayer* layer, double dx);

// Transform modes.
inline constexpr int kRmLayerRaise = 1;     // vRmLayerAddHeight
inline constexpr int kRmLayerParallel = 2;  // a parallel at distance `value`
inline constexpr int kRmLayerShift = 3;     // vRmLayerOffsetAll

// Applies mode 1, 2 or 3 with `value`; other modes and an empty layer do
// nothing. The parallel of a closed outline stays closed, its end point
// keeping the PCODE and mark of the old last point.
void vRmLayerTransform(RmLayer* layer, int mode, double value);

// Appends one point to a 2D line (offset as x, height as y): an invisible
// move when it starts a part, otherwise an arc by its arc radius when
// `arcs` is set and the radius is not 0, else a straight. The element's
// data slots get the PCODE and the mark.
void vRmPointToLine(LiLine* line, const RmPoint* point, bool startsPart, bool arcs);
// The layer as a new free 2D line: gaps become invisible moves to the next
// valid point. Null when fewer than two elements result.
LiLine* RmLayerToLine(const RmLayer* layer, bool arcs);
// Replaces the points of the layer by the elements of `line`: codes and
// marks from the data slots, arc radii into the points that hold them, a
// gap in front of every part but the first.
void vRmLayerSetFromLine(RmLayer* layer, const LiLine* line);

// Clears `extent`, then widens it by the box around the valid points of
// each layer of `type` and the arcs between them. True if any layer gave
// one.
bool boRmSectionLayerExtent(const RmSection* section, ViExtent* extent, uint32_t type);
