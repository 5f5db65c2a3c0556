#include "road_model/sections/layer_heights.h"

#include <cmath>

#include "base/numbers.h"
#include "road_model/sections/layer_lookup.h"
#include "road_model/codes/pcode.h"
#include "road_model/sections/layer_sides.h"

namespace {

// Height between two points with heights, at offset `x`.
double dInterpolate(const RmPoint* a, const RmPoint* b, double x) {
  double run = double(b->X) - double(a->X);
  if (run == 0.0) return a->Z;
  return a->Z + (x - a->X) * (double(b->Z) - double(a->Z)) / run;
}

bool boStrictlyBetween(double x, double a, double b) {
  return (a < x && x < b) || (b < x && x < a);
}

const RmPoint* PointOrLast(const RmLayer* layer, const RmPoint* point) {
  return point ? point : RmPointsGetLast(layer);
}

// A rise over a run; none for a run of 0.
double dSlope(double rise, double run) {
  if (std::fabs(run) < kRmOffsetEqual) return kNullNumber;
  return rise / run;
}

// The forward run between a point and its neighbour: next minus this, or
// this minus previous.
double dForwardRun(const RmPoint* point, const RmPoint* neighbour) {
  return neighbour == point->Next ? double(neighbour->X) - point->X
                                  : double(point->X) - neighbour->X;
}

// The slope between a point (the layer's last for null) and its next or
// previous neighbour: 0 when either is missing, none when either has no
// height. The rise is taken towards the neighbour or from it; the run is
// the forward run, or its size alone.
double dNeighbourSlope(const RmLayer* layer, const RmPoint* point, bool towardsNext,
                       bool riseToNeighbour, bool absoluteRun) {
  point = PointOrLast(layer, point);
  if (!point) return 0.0;
  const RmPoint* neighbour = towardsNext ? point->Next : point->Prev;
  if (!neighbour) return 0.0;
  if (!boRmPointHasHeight(point) || !boRmPointHasHeight(neighbour)) return kNullNumber;
  double rise = double(neighbour->Z) - point->Z;
  double run = dForwardRun(point, neighbour);
  return dSlope(riseToNeighbour ? rise : -rise, absoluteRun ? std::fabs(run) : run);
}

}  // namespace

// ---- Heights and offsets ----

double dRmLayerHeightAtTol(const RmLayer* layer, double x, double tol) {
  const RmPoint* previous = nullptr;
  for (const RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
    if (std::fabs(point->X - x) < tol) return point->Z;
    if (previous && boStrictlyBetween(x, previous->X, point->X)) {
      if (!boRmPointHasHeight(previous) || !boRmPointHasHeight(point)) return kNullNumber;
      return dInterpolate(previous, point, x);
    }
    previous = point;
  }
  return kNullNumber;
}

double dRmLayerHeightAt(const RmLayer* layer, double x) {
  return dRmLayerHeightAtTol(layer, x, kRmPointTolerance);
}

double dRmLayerHeightAtFilled(const RmLayer* layer, double x) {
  double height = dRmLayerHeightAt(layer, x);
  if (boIsPresent(height)) return height;
  const RmPoint* below = nullptr;  // largest offset at most x
  const RmPoint* above = nullptr;  // smallest offset above x
  for (const RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
    if (!boRmPointHasHeight(point)) continue;
    if (point->X <= x) {
      if (!below || point->X > below->X) below = point;
    } else if (!above || point->X < above->X) {
      above = point;
    }
  }
  if (below && above) return dInterpolate(below, above, x);
  if (below) return below->Z;
  if (above) return above->Z;
  return kNullNumber;
}

double dRmLayerCenterHeight(const RmLayer* layer, int mode) {
  double candidate = kNullNumber;
  for (const RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
    int pcode = iRmPointGetPcode(point);
    if (std::fabs(point->X) < kRmOffsetEqual) {
      if (pcode < 0) {
        if (mode != 2) candidate = point->Z;
      } else if (pcode == 0) {
        candidate = point->Z;
        if (mode == 1 && boIsPresent(candidate)) return candidate;
      } else {
        if (mode < 2 && boIsPresent(candidate)) return candidate;
        if (mode != 1) {
          candidate = point->Z;
          if (boIsPresent(candidate)) return candidate;
        }
      }
    } else if (point->X > 0.0f && pcode > 0) {
      break;
    }
  }
  if (boIsPresent(candidate)) return candidate;
  return dRmLayerHeightAt(layer, 0.0);
}

double dRmLayerOffsetAtHeight(double z, const RmPoint* from, int side) {
  if (!from) return kNullNumber;
  if (std::fabs(from->Z - z) < kRmPointTolerance) return from->X;
  const RmPoint* inner = RmPointGetInward(from, side);
  if (!inner || !boRmPointHasHeight(inner) || !boRmPointHasHeight(from)) return kNullNumber;
  if (!boStrictlyBetween(z, inner->Z, from->Z)) return kNullNumber;
  double distance = std::fabs((double(from->X) - inner->X) * (z - inner->Z) /
                              (double(inner->Z) - from->Z));
  return side == kRmSideLeft ? inner->X - distance : inner->X + distance;
}

double dRmLayerOffsetOfCode(const RmLayer* layer, double z, int pcode, int side) {
  for (const RmPoint* point = RmPointFindCodeFromSide(layer, pcode, side); point;
       point = RmPointGetOutward(point, side)) {
    double offset = dRmLayerOffsetAtHeight(z, point, side);
    if (boIsPresent(offset)) return offset;
  }
  return kNullNumber;
}

// ---- Slopes ----

double dRmPointSlopeByCode(const RmLayer* layer, const RmPoint* point, bool flag) {
  return dNeighbourSlope(layer, point, !flag, false, false);
}

double dRmPointSlopeByOffset(const RmLayer* layer, const RmPoint* point, bool flag) {
  return dNeighbourSlope(layer, point, flag, true, false);
}

double dRmPointSlopeAbs(const RmLayer* layer, const RmPoint* point, bool flag) {
  return dNeighbourSlope(layer, point, flag, true, true);
}

double dRmPointSlopeOrVertical(const RmLayer* layer, const RmPoint* point, bool flag) {
  double slope = dRmPointSlopeByOffset(layer, point, flag);
  if (boIsPresent(slope)) return slope;
  point = PointOrLast(layer, point);
  const RmPoint* neighbour = flag ? point->Next : point->Prev;
  if (!boRmPointHasHeight(point) || !boRmPointHasHeight(neighbour)) return kNullNumber;
  return point->Z > neighbour->Z ? -999.0 : 999.0;
}

float fRmPointGetWidth(const RmPoint* point, int side) {
  const RmPoint* inner = RmPointGetInward(point, side);
  if (!inner) return 0.0f;
  return side == kRmSideLeft ? inner->X - point->X : point->X - inner->X;
}

// ---- Arcs ----

RmPoint* RmPointGetArcOwner(const RmPoint* point) {
  if (!point) return nullptr;
  RmPoint* previous = point->Prev;
  if (!previous || !boRmPointHasHeight(previous)) return nullptr;
  int pcode = iRmPointGetPcode(point);
  if (pcode == 0) pcode = iRmPointGetPcode(previous);
  return pcode < 0 ? previous : const_cast<RmPoint*>(point);
}

float fRmPointGetArcRadius(const RmPoint* point) {
  const RmPoint* owner = RmPointGetArcOwner(point);
  return owner ? owner->Radius : 0.0f;
}
