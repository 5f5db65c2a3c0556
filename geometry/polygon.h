// Polygons: lines drawn as closed rings, one ring per part, and their
// boolean operations.
//
// A polygon is a line with the polygon flag; each part is a ring that closes
// by itself from its last point back to its first (the first point need not
// be repeated). Rings inside others are holes, and rings inside holes
// islands again, whatever their direction. Polygons that come out of the
// boolean operations run counter-clockwise around their outer rings and
// clockwise around holes, so that their signed area is the area they cover.
#pragma once

#include "geometry/line.h"
#include "geometry/line_measure.h"
#include "geometry/lines.h"

using YgPolygon = LiLine;
using YgPolygons = LiLines;

// Boolean operations, by number.
enum : int {
  kYgClipIntersection = 1,
  kYgClipDifference = 2,  // first minus second
  kYgClipUnion = 3,
};

// Scale from metres to the integer grid of the boolean operations, and the
// largest distance between an arc or clothoid and the chords that replace it
// there.
inline constexpr double kYgClipScale = 1e6;
inline constexpr double kYgClipChordTolerance = 1e-4;

// A free 2D polygon.
YgPolygon* YgPolygonCreate();
// Deletes it (taking it out of its set first) and nulls the pointer.
void vYgPolygonDelete(YgPolygon** polygon);
// As boLiLineCopy.
bool boYgPolygonCopy(YgPolygon* to, const YgPolygon* from);
int iYgElmGetCount(const YgPolygon* polygon);
void vYgPolygonDeleteElms(YgPolygon* polygon);
// Signed area of all rings, arcs taken exactly; `centroidX` (may be null)
// receives the x of the centroid, the lever of the area about the y axis.
double dYgPolygonArea(const YgPolygon* polygon, double* centroidX);

// The element operations of lines under the names of polygons.
inline LiElm YgElmGetFirst(const YgPolygon* polygon) { return LiElmGetFirst(polygon); }
inline LiElm YgElmGetLast(const YgPolygon* polygon) { return LiElmGetLast(polygon); }
inline LiElm YgElmGetNext(const YgPolygon* polygon, LiElm elm) {
  return LiElmGetNext(polygon, elm);
}
inline LiElm YgElmGetPrev(const YgPolygon* polygon, LiElm elm) {
  return LiElmGetPrev(polygon, elm);
}
inline int YgElmGetType(const YgPolygon* polygon, LiElm elm) { return LiElmGetType(polygon, elm); }
inline bool boYgElmSetType(YgPolygon* polygon, LiElm elm, int type) {
  return boLiElmSetType(polygon, elm, type);
}
inline void vYgElmGetP2d(const YgPolygon* polygon, LiElm elm, ViPoint2d* point) {
  vLiElmGetP2d(polygon, elm, point);
}
inline void vYgPolygonDeleteElm(YgPolygon* polygon, LiElm elm) { vLiLineDeleteElm(polygon, elm); }
inline double dYgPolygonPartLength(const YgPolygon* polygon, LiElm part, int mode) {
  return dLiLinePartLength(polygon, part, mode);
}
inline double dYgPolygonPartArea(const YgPolygon* polygon, LiElm part, int mode) {
  return dLiLinePartArea(polygon, part, mode);
}
inline void vYgPolygonGetExtent(const YgPolygon* polygon, ViExtent* extent) {
  vLiLineGetExtent(polygon, extent);
}

// ---- Polygon sets -----------------------------------------------------------------

// A set of polygons with ids, ascending as in a line container.
YgPolygons* YgPolygonsCreate();
void vYgPolygonsDelete(YgPolygons** polygons);
// A new polygon of the set with the id; null if the id is taken.
YgPolygon* YgPolygonsCreatePolygon(YgPolygons* polygons, long id);
YgPolygon* YgPolygonsFindID(const YgPolygons* polygons, long id);
YgPolygon* YgPolygonsGetFirst(const YgPolygons* polygons);
YgPolygon* YgPolygonsGetNext(const YgPolygons* polygons, const YgPolygon* polygon);
void vYgPolygonsDeletePolygon(YgPolygons* polygons, YgPolygon* polygon);

// ---- Boolean operations ------------------------------------------------------------

// A new free polygon with the result of `operation` on `a` and `b`; null when
// the result is empty or the operation unknown. A null or empty operand
// counts as an empty area. Arcs and clothoids are replaced by chords, and
// coordinates come out on the grid of 1e-6 m.
YgPolygon* pYgPolygonPolygonClip(const YgPolygon* a, const YgPolygon* b, int operation);

// As pYgPolygonPolygonClip, with the rings in an order that shows the
// islands: each outer ring is followed by its holes; rings inside those holes
// follow as outer rings of their own. With `flag` set the groups of an outer
// ring and its holes stand from left to right by the outer ring's leftmost
// point (lower first when equal).
YgPolygon* pYgPolygonPolygonClipAndSortPartsForIslands(const YgPolygon* a, const YgPolygon* b,
                                                       int operation, int flag);
