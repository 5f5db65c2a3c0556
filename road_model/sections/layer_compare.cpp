#include "road_model/sections/layer_compare.h"

#include <cmath>

namespace {

constexpr double kClosedTolerance = 0.0002;

bool boWithin(double a, double b, double tol) { return std::fabs(a - b) <= tol; }

}  // namespace

bool boRmPointsEqual(const RmPoint* a, const RmPoint* b, double tol) {
  if (!a || !b) return a == b;
  return boWithin(a->X, b->X, tol) && boWithin(a->Z, b->Z, tol) &&
         boWithin(a->Radius, b->Radius, tol) && iRmPointGetPcode(a) == iRmPointGetPcode(b) &&
         iRmPointGetMark(a) == iRmPointGetMark(b);
}

bool boRmPointsSamePosition(const RmPoint* a, const RmPoint* b, double tol) {
  if (!a || !b) return false;
  return boWithin(a->X, b->X, tol) && boWithin(a->Z, b->Z, tol);
}

bool boRmPointsSamePosition3(const RmPoint* a, const RmPoint* b, double tol) {
  return boRmPointsSamePosition(a, b, tol) && boWithin(a->Radius, b->Radius, tol);
}

bool boRmPointNear(const RmPoint* point, const double xz[2], double tol) {
  if (!point || !xz) return false;
  return boWithin(point->X, xz[0], tol) && boWithin(point->Z, xz[1], tol);
}

bool boRmLayerIsClosed(const RmLayer* layer) {
  const RmPoint* first = RmPointsGetFirst(layer);
  const RmPoint* last = RmPointsGetLast(layer);
  if (!first || !last) return true;
  return boRmPointsSamePosition(first, last, kClosedTolerance);
}

bool boRmLayersEqual(const RmLayer* a, const RmLayer* b, double tolerance) {
  if (!a || !b) return a == b;
  const RmPoint* p = RmPointsGetFirst(a);
  const RmPoint* q = RmPointsGetFirst(b);
  for (; p && q; p = p->Next, q = q->Next) {
    if (!boRmPointsEqual(p, q, tolerance)) return false;
  }
  return !p && !q;
}
