#include "road_model/sections/layer_sides.h"

#include <cmath>

#include "road_model/sections/layer_lookup.h"
#include "road_model/codes/pcode.h"

namespace {

bool boAtCentre(const RmPoint* point) { return std::fabs(point->X) < kRmOffsetEqual; }

RmPoint* SideStartByOffset(const RmLayer* layer, int side) {
  if (side == kRmSideLeft) {
    for (RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
      if (boAtCentre(point)) return point;
      if (point->X > 0.0f) return point->Prev;
    }
    RmPoint* last = RmPointsGetLast(layer);
    return last && last->X <= 0.0f ? last : nullptr;
  }
  for (RmPoint* point = RmPointsGetLast(layer); point; point = point->Prev) {
    if (boAtCentre(point)) return point;
    if (point->X < 0.0f) return point->Next;
  }
  RmPoint* first = RmPointsGetFirst(layer);
  return first && first->X >= 0.0f ? first : nullptr;
}

RmPoint* SideStartByCode(const RmLayer* layer, int side) {
  if (side == kRmSideLeft) {
    for (RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
      if (iRmPointGetPcode(point) <= 0) continue;
      RmPoint* inner = point->Prev;
      if (!inner) return nullptr;
      RmPoint* before = inner->Prev;
      if (!before) return inner;
      // Of two points of one code at the centre, the outer one starts the side.
      return iRmPointGetPcode(inner) != iRmPointGetPcode(before) ? inner : before;
    }
    return RmPointsGetLast(layer);
  }
  for (RmPoint* point = RmPointsGetLast(layer); point; point = point->Prev) {
    if (iRmPointGetPcode(point) < 0) return point->Next;
  }
  return RmPointsGetFirst(layer);
}

// Whether `a` lies beyond `b` going outward on `side`.
bool boBeyond(double a, double b, int side) { return side == kRmSideLeft ? a < b : a > b; }

// The walk shared by the code and offset lookups: from the side start
// outward to the first point at or beyond `target` (strictly beyond with
// `strict`). `value` gives the quantity compared.
template <typename Value>
RmPoint* FirstReaching(const RmLayer* layer, int side, double target, bool strict, Value value) {
  if (side != kRmSideLeft && side != kRmSideRight) return nullptr;
  for (RmPoint* point = RmPointGetSideStartAuto(layer, side); point;
       point = RmPointGetOutward(point, side)) {
    double v = value(point);
    if (boBeyond(v, target, side) || (!strict && v == target)) return point;
  }
  return nullptr;
}

double dCodeOf(const RmPoint* point) { return iRmPointGetPcode(point); }
double dOffsetOf(const RmPoint* point) { return point->X; }

}  // namespace

bool boRmLayerIsCoded(const RmLayer* layer) {
  if (!layer || !boRmLayerIsSurfaceKind(layer->Id)) return false;
  for (RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
    if (boRmPcodeIsValid(iRmPointGetPcode(point))) return true;
  }
  return false;
}

RmPoint* RmPointGetSideStart(const RmLayer* layer, int side, bool coded) {
  if (!layer || (side != kRmSideLeft && side != kRmSideRight)) return nullptr;
  return coded ? SideStartByCode(layer, side) : SideStartByOffset(layer, side);
}

RmPoint* RmPointGetSideStartAuto(const RmLayer* layer, int side) {
  return RmPointGetSideStart(layer, side, boRmLayerIsCoded(layer));
}

RmPoint* RmPointGetSideOuter(const RmLayer* layer, int side) {
  if (side == kRmSideLeft) {
    RmPoint* first = RmPointsGetFirst(layer);
    return first && iRmPointGetPcode(first) <= 0 ? first : nullptr;
  }
  if (side == kRmSideRight) {
    RmPoint* last = RmPointsGetLast(layer);
    return last && iRmPointGetPcode(last) >= 0 ? last : nullptr;
  }
  return nullptr;
}

bool boRmPointOnSide(const RmPoint* point, RmLayerId layerId, int side) {
  if (!point) return false;
  if (boRmLayerIsSurfaceKind(layerId)) {
    int pcode = iRmPointGetPcode(point);
    if (side == kRmSideLeft) return pcode <= 0;
    if (side == kRmSideRight) return pcode >= 0;
    return false;
  }
  if (side == kRmSideLeft) return point->X <= 0.0f;
  if (side == kRmSideRight) return point->X >= 0.0f;
  return false;
}

RmPoint* RmPointFindCodeOnSide(const RmLayer* layer, int pcode, int side) {
  RmPoint* outer = side == kRmSideLeft ? RmPointsGetFirst(layer) : RmPointsGetLast(layer);
  if (!outer || (side != kRmSideLeft && side != kRmSideRight)) return nullptr;
  if (boBeyond(pcode, iRmPointGetPcode(outer), side)) return outer;
  RmPoint* found = FirstReaching(layer, side, pcode, false, dCodeOf);
  if (!found || iRmPointGetPcode(found) == pcode) return found;
  return RmPointGetInward(found, side);
}

RmPoint* RmPointFindCodeFromSide(const RmLayer* layer, int pcode, int side) {
  return FirstReaching(layer, side, pcode, false, dCodeOf);
}

RmPoint* RmPointFindXOnSide(const RmLayer* layer, double x, int side) {
  RmPoint* found = FirstReaching(layer, side, static_cast<float>(x), false, dOffsetOf);
  if (!found || std::fabs(found->X - x) < kRmOffsetEqual) return found;
  return RmPointGetInward(found, side);
}

RmPoint* RmPointFindXFromSide(const RmLayer* layer, double x, int side) {
  return FirstReaching(layer, side, static_cast<float>(x), false, dOffsetOf);
}

RmPoint* RmPointFindXBeyondSide(const RmLayer* layer, double x, int side) {
  return FirstReaching(layer, side, static_cast<float>(x), true, dOffsetOf);
}

int iRmLayerCountFamilySix(const RmLayer* layer, int side) {
  int count = 0;
  for (RmPoint* point = RmPointGetSideStartAuto(layer, side); point;
       point = RmPointGetOutward(point, side)) {
    int pcode = iRmPointGetPcode(point);
    if (boRmPcodeIsValid(pcode) && iRmPcodeFamily(pcode) == 6) ++count;
  }
  return count;
}

bool boRmLayerHasFamilyZero(const RmLayer* layer, int side) {
  for (RmPoint* point = RmPointGetSideStartAuto(layer, side); point;
       point = RmPointGetOutward(point, side)) {
    int pcode = iRmPointGetPcode(point);
    if (boRmPcodeIsValid(pcode) && iRmPcodeFamily(pcode) == 0) return true;
  }
  return false;
}
