// Vertical lines: the height of a plan line along its chainage.
//
// A vertical line is a row of intersection points in the plane of chainage
// and height. Straight pieces join the points; at a point the two pieces may
// be joined by a circular curve of a given radius or by a parabola of a given
// length. iRmVerLineCompute works out the slopes and where each curve starts
// and ends; the model calls it after every change of the points. The height
// at a chainage is then read from the pieces and curves.
//
// Every evaluation gives -99999.0 when it has no height.
#pragma once

#include <cstdint>

#include "base/slink.h"
#include "road_model/codes/code_ranges.h"
#include "road_model/lines/plan_lines.h"

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

// ---- Curves ----

// Computes slopes and the curves at the points. 2 when the line has fewer
// than two points, 1 when a curve had to be shortened to fit between its
// neighbours, 0 otherwise.
int iRmVerLineCompute(RmVerLine* verLine);

// ---- Heights ----

// The height at `chain` from the points and curves alone, and the slope of
// the piece there when `slope` is given.
double dRmVerLineHeightAt(const RmVerLine* verLine, double chain, double* slope);
// The same, except inside a range of the difference table: there the height
// follows the centre heights of the model's cross sections, raised by the
// range's difference (see section_heights.h).
double dRmVerLineHeightDiffAware(const RmVerLine* verLine, double chain, double* slope);
// The difference-aware height of the line's vertical line; without one the
// height of a 3D line at that chainage (the slope is then left alone), or
// -99999.0 for a 2D line.
double dRmLineHeightAt(const RmLine* line, double chain, double* slope);

// The lowest and highest height of the line: the intersection points and
// curve ends of `verLine`, and the heights at the ends of `range` when it is
// given. Without any, the points of a 3D `line`. Only values inside `range`
// (closed) count. False when no height was found.
bool boRmLineHeightRange(const RmVerLine* verLine, const RmLine* line, const RmChainRange* range,
                         double* min, double* max);
