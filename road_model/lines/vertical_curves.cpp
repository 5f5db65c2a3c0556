#include "road_model/lines/vertical_curves.h"

#include <cmath>
#include <numbers>

#include "geometry/arc.h"
#include "road_model/lines/vertical_line.h"
#include "road_model/lines/vertical_plane.h"

namespace {

// Pieces shorter than this have no slope of their own.
constexpr double kShortestPiece = 1e-12;
// A curve pulled back to the end of the one before still fits when its start
// was this close to that end already.
constexpr double kFitChain = 0.01;
constexpr double kFitHeight = 0.0005;

void vMakeFlat(RmVerPoint* p) {
  p->StartChain = p->EndChain = p->Chain;
  p->StartHeight = p->EndHeight = p->Height;
  p->CurveType = kRmCurveNone;
  p->Length = 0.0;
  p->Radius = 0.0;
}

bool boIsFlat(const RmVerPoint* p) {
  if (!p->Next || !p->Prev || p->CurveType == kRmCurveNone) return true;
  if (p->CurveType == kRmCurveParabola) return p->Length == 0.0;
  return p->Radius == 0.0;
}

// The parabola of length `Length` centred on the point, from the slope that
// arrives to the slope that leaves.
bool boComputeParabola(RmVerPoint* p) {
  const RmVerPoint* n = p->Next;
  if (!n) return false;
  double change = std::fabs(p->Slope - n->Slope);
  if (change == 0.0) return false;
  double length = p->Length;
  p->CurveType = kRmCurveParabola;
  p->StartChain = p->Chain - length / 2.0;
  p->StartHeight = p->Height - length * p->Slope / 2.0;
  p->EndChain = p->Chain + length / 2.0;
  p->EndHeight = p->Height + length * n->Slope / 2.0;
  p->Radius = length / change;
  return true;
}

// The circle of radius `Radius` that touches the piece arriving at the point
// and the piece leaving it.
bool boComputeCircle(RmVerPoint* p) {
  p->Radius = std::fabs(p->Radius);
  const RmVerPoint* q = p->Prev;
  const RmVerPoint* n = p->Next;
  if (!q || !n) return false;
  // Towards the centre: below the pieces on a crest, above them in a sag.
  double turn = (p->Slope > n->Slope ? -1.0 : 1.0) * std::numbers::pi / 2.0;
  RmPlanePoint from{q->Chain, q->Height};
  RmPlanePoint at{p->Chain, p->Height};
  RmPlanePoint to{n->Chain, n->Height};
  double arriving = dRmPlaneBearing(from, at);
  double leaving = dRmPlaneBearing(at, to);
  RmPlanePoint center;
  if (!boRmPlaneIntersectLines(RmPlaneMove(from, arriving + turn, p->Radius), arriving,
                               RmPlaneMove(at, leaving + turn, p->Radius), leaving, &center)) {
    return false;
  }
  p->Length = std::fabs(dGrNormalizeAngle((arriving - turn) - (leaving - turn))) * p->Radius;
  RmPlanePoint start = RmPlaneMove(center, arriving - turn, p->Radius);
  RmPlanePoint end = RmPlaneMove(center, leaving - turn, p->Radius);
  p->StartChain = start.Chain;
  p->StartHeight = start.Height;
  p->EndChain = end.Chain;
  p->EndHeight = end.Height;
  p->CenterChain = center.Chain;
  p->CenterHeight = center.Height;
  p->CurveType = kRmCurveCircle;
  return true;
}

// Lays the circle of the point's radius through the start and end that the
// curve has after shortening. Left as it is when there is none.
void vRefitCircle(RmVerPoint* p) {
  const RmVerPoint* n = p->Next;
  bool crest = n && p->Slope > n->Slope;
  double radius = crest ? std::fabs(p->Radius) : -std::fabs(p->Radius);
  RmPlanePoint start{p->StartChain, p->StartHeight};
  RmPlanePoint end{p->EndChain, p->EndHeight};
  RmPlanePoint center;
  if (!boRmPlaneCircleCenter(start, end, radius, &center)) return;
  p->CenterChain = center.Chain;
  p->CenterHeight = center.Height;
  double toStart = dRmPlaneBearing(center, start);
  double toEnd = dRmPlaneBearing(center, end);
  p->Length = std::fabs(dGrNormalizeAngle(toStart - toEnd)) * std::fabs(p->Radius);
}

}  // namespace

int iRmVerLineCompute(RmVerLine* verLine) {
  RmVerPoint* first = RmVerLineGetFirst(verLine);
  if (!first || !first->Next) return 2;
  for (RmVerPoint* p = first->Next; p; p = p->Next) {
    double distance = p->Chain - p->Prev->Chain;
    p->Slope = distance <= kShortestPiece ? kRmVerSlopeVertical
                                          : (p->Height - p->Prev->Height) / distance;
  }
  int result = 0;
  for (RmVerPoint* p = first; p; p = p->Next) {
    bool redo = false;
    if (boIsFlat(p)) {
      vMakeFlat(p);
    } else if (p->CurveType == kRmCurveParabola) {
      redo = !boComputeParabola(p);
    } else {
      p->CurveType = kRmCurveCircle;
      redo = !boComputeCircle(p);
    }
    // A curve may reach no further than the next point...
    const RmVerPoint* n = p->Next;
    if (n && p->EndChain > n->Chain) {
      p->EndChain = n->Chain;
      p->EndHeight = n->Height;
      redo = true;
    }
    // ... and starts no earlier than the curve before it ends.
    const RmVerPoint* q = p->Prev;
    if (q && q->EndChain > p->StartChain) {
      redo = !(std::fabs(p->StartChain - q->EndChain) < kFitChain &&
               std::fabs(p->StartHeight - q->EndHeight) < kFitHeight);
      p->StartChain = q->EndChain;
      p->StartHeight = q->EndHeight;
    }
    if (!redo) continue;
    result = 1;
    vRefitCircle(p);
  }
  return result;
}
