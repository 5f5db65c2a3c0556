// Vertical lines: the height of a plan line along its chainage.
//
// A vertical line is a row of intersection points in the plane of chainage
// and height. Straight pieces join the points; at a point the two pieces may
// be joined by a circular curve of a given radius or by a parabola of a given
// length. iRmVerLineCompute (vertical_curves.h) works out the slopes and
// where each curve starts and ends; the model calls it after every change of
// the points. The height at a chainage is then read from the pieces and
// curves (vertical_heights.h).
#pragma once

#include <cstdint>

#include "base/slink.h"
#include "road_model/codes/code_ranges.h"
#include "road_model/lines/plan_lines.h"
#include "road_model/lines/vertical_curves.h"

struct RmDiffAltitudes;

// Kinds of curve at an intersection point.
enum : int32_t {
  kRmCurveNone = 0,
  kRmCurveCircle = 1,
  kRmCurveParabola = 2,
};

// Flag bit of a point spelled with "LS" in the model file.
inline constexpr uint32_t kRmVerPointFlagLs = 1;

// The slope of a piece of zero length.
inline constexpr double kRmVerSlopeVertical = 1000000.0;

struct RmVerPoint {
  RmVerPoint* Next;
  RmVerPoint* Prev;
  double Chain;         // chainage of the intersection point
  double Height;        // height of the intersection point
  double Slope;         // of the straight piece that arrives here; computed
  uint32_t Flags;       // kRmVerPointFlagLs
  int32_t CurveType;    // kRmCurveNone, kRmCurveCircle, kRmCurveParabola
  double Length;        // length of the curve
  double Radius;        // radius; for a parabola its length over the change of slope
  double StartChain;    // where the curve starts; computed
  double StartHeight;
  double EndChain;      // where the curve ends; computed
  double EndHeight;
  double CenterChain;   // centre of a circle; computed
  double CenterHeight;
};

struct RmVerLine {
  RmLines* Lines;                  // the plan lines it hangs on; set when attached
  ListHead Points;                 // RmVerPoint, heap nodes
  RmDiffAltitudes* DiffAltitudes;  // owned, or null
};

// ---- Life cycle ----

// An empty vertical line; null when memory ran out.
RmVerLine* RmVerLineCreate();
// Deletes the difference table, the points and the line, and nulls the
// pointer. Null is accepted.
void vRmVerLineDelete(RmVerLine** verLine);
// Makes the points of `to` copies of those of `from`, and copies the
// difference table when `from` has one. `to` keeps its back pointer.
void vRmVerLineCopy(RmVerLine* to, const RmVerLine* from);

// Gives the line the difference table `table` (taking ownership, null
// removes it) after deleting the one it had.
void vRmVerLineSetDiffAltitudes(RmVerLine* verLine, RmDiffAltitudes* table);

// ---- Points ----

RmVerPoint* RmVerLineGetFirst(const RmVerLine* verLine);
RmVerPoint* RmVerPointGetNext(const RmVerPoint* point);
int iRmVerLineGetCount(const RmVerLine* verLine);

// Appends a point. A `length` other than 0 makes a parabola (the radius is
// then dropped), otherwise a `radius` other than 0 makes a circle.
RmVerPoint* RmVerPointAdd(RmVerLine* verLine, double chain, double height, double radius,
                          double length);
// The same, in front of `before` (null: at the end).
RmVerPoint* RmVerPointAddBefore(RmVerLine* verLine, RmVerPoint* before, double chain,
                                double height, double radius, double length);
