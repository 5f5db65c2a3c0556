#include "road_model/lines/vertical_line.h"

#include <cmath>
#include <cstdlib>

#include "base/dlink.h"
#include "road_model/lines/diff_altitudes.h"

namespace {

// A length below this counts as none.
constexpr double kNoLength = 1e-5;

void vInitPoint(RmVerPoint* point, double chain, double height, double radius, double length) {
  point->Flags = 0;
  point->CurveType = kRmCurveNone;
  point->Chain = chain;
  point->Height = height;
  point->Radius = radius;
  point->Length = length;
  if (std::fabs(length) >= kNoLength) {
    point->Radius = 0.0;
    point->CurveType = kRmCurveParabola;
  } else if (std::fabs(radius) >= kNoLength) {
    point->Length = 0.0;
    point->CurveType = kRmCurveCircle;
  }
}

}  // namespace

RmVerLine* RmVerLineCreate() {
  auto* verLine = static_cast<RmVerLine*>(std::calloc(1, sizeof(RmVerLine)));
  if (verLine) DLinkInit(&verLine->Points, sizeof(RmVerPoint), nullptr);
  return verLine;
}

void vRmVerLineDelete(RmVerLine** verLine) {
  if (!verLine || !*verLine) return;
  vRmDiffAltitudesDelete(&(*verLine)->DiffAltitudes);
  vDLinkClear(&(*verLine)->Points);
  std::free(*verLine);
  *verLine = nullptr;
}

void vRmVerLineCopy(RmVerLine* to, const RmVerLine* from) {
  if (!to || !from || to == from) return;
  vDLinkClear(&to->Points);
  DLinkCopy(&from->Points, &to->Points, nullptr);
  if (from->DiffAltitudes) {
    if (!to->DiffAltitudes) to->DiffAltitudes = RmDiffAltitudesCreate();
    vRmDiffAltitudesCopy(to->DiffAltitudes, from->DiffAltitudes);
  }
}

void vRmVerLineSetDiffAltitudes(RmVerLine* verLine, RmDiffAltitudes* table) {
  if (!verLine) return;
  if (verLine->DiffAltitudes != table) vRmDiffAltitudesDelete(&verLine->DiffAltitudes);
  verLine->DiffAltitudes = table;
}

RmVerPoint* RmVerLineGetFirst(const RmVerLine* verLine) {
  return verLine ? ListFirst<RmVerPoint>(&verLine->Points) : nullptr;
}

RmVerPoint* RmVerPointGetNext(const RmVerPoint* point) { return point ? point->Next : nullptr; }

int iRmVerLineGetCount(const RmVerLine* verLine) {
  return verLine ? static_cast<int>(lSLinkCount(&verLine->Points)) : 0;
}

RmVerPoint* RmVerPointAdd(RmVerLine* verLine, double chain, double height, double radius,
                          double length) {
  return RmVerPointAddBefore(verLine, nullptr, chain, height, radius, length);
}

RmVerPoint* RmVerPointAddBefore(RmVerLine* verLine, RmVerPoint* before, double chain,
                                double height, double radius, double length) {
  if (!verLine) return nullptr;
  auto* point = DLinkNewObjAs<RmVerPoint>(&verLine->Points, before);
  if (point) vInitPoint(point, chain, height, radius, length);
  return point;
}
