// Heights, offsets, slopes, widths and arcs of a layer.
//
// A result without a value is -99999.0; a value counts as present when it
// is above -99998.0 (boIsPresent). A gap point breaks the polyline: no
// height is interpolated across it.
#pragma once

#include "road_model/sections/layer.h"

// ---- Heights and offsets ----

// The height at offset `x`: a point within `tol` (strict) gives its own
// height, gap or not; between two points with heights, the straight
// interpolation; otherwise none.
double dRmLayerHeightAtTol(const RmLayer* layer, double x, double tol);
// The same within 0.001.
double dRmLayerHeightAt(const RmLayer* layer, double x);
// dRmLayerHeightAt, and where that has no value the height carried over
// the gap: interpolated between the nearest valid points on both sides, or
// the height of the only one there is.
double dRmLayerHeightAtFilled(const RmLayer* layer, double x);
// The height at the centre line, chosen among the points at offset 0 by
// their codes: `mode` 0 prefers the left and centre codes, 1 only a valid
// centre code or the left one, 2 ignores left codes. Falls back to
// dRmLayerHeightAt(layer, 0).
double dRmLayerCenterHeight(const RmLayer* layer, int mode);
// The offset between `from` and its inward neighbour at which the layer
// reaches height `z`; `from`'s own offset when it lies within 0.001 of `z`.
double dRmLayerOffsetAtHeight(double z, const RmPoint* from, int side);
// The first such offset walking outward from the first point of `side` at
// or beyond `pcode`.
double dRmLayerOffsetOfCode(const RmLayer* layer, double z, int pcode, int side);

// ---- Slopes ----
//
// Each takes the last point for a null `point`. The neighbour is chosen by
// `flag`; a missing neighbour gives 0.0, a gap at either point or a run
// below 1e-5 gives -99999.0.

// Neighbour: previous with `flag`, else next. (p.Z - n.Z) over the forward
// run.
double dRmPointSlopeByCode(const RmLayer* layer, const RmPoint* point, bool flag);
// Neighbour: next with `flag`, else previous. (n.Z - p.Z) over the forward
// run.
double dRmPointSlopeByOffset(const RmLayer* layer, const RmPoint* point, bool flag);
// As dRmPointSlopeByOffset over the absolute run.
double dRmPointSlopeAbs(const RmLayer* layer, const RmPoint* point, bool flag);
// dRmPointSlopeByOffset; on a vertical piece -999 going down, 999 going up.
double dRmPointSlopeOrVertical(const RmLayer* layer, const RmPoint* point, bool flag);

// The distance in offset to the inward neighbour, positive outward; 0 when
// there is none.
float fRmPointGetWidth(const RmPoint* point, int side);

// ---- Arcs ----
//
// The radius of the arc that ends in a point is kept in the outer point of
// the piece: the point itself on the right side, the point before it on the
// left side (by the point's PCODE, or the previous one's when it has none).

// The radius of the arc from the previous point to `point`, as stored; 0
// after a gap or at the first point.
float fRmPointGetArcRadius(const RmPoint* point);
// The point that holds that radius; null where fRmPointGetArcRadius gives 0
// for want of a previous point.
RmPoint* RmPointGetArcOwner(const RmPoint* point);
