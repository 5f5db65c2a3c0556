#include "road_model/codes/layer_codes.h"

#include <initializer_list>

#include "road_model/sections/layer_compare.h"
#include "road_model/sections/layer_lookup.h"
#include "road_model/codes/pcode.h"
#include "road_model/sections/layer_sides.h"

namespace {

// Gives `point` the code and mark of its counterpart in `reference`, or the
// defaults.
void vTakeCode(RmPoint* point, const RmLayer* reference, double tol, int pcode, int mark) {
  const RmPoint* model = reference ? RmPointFindNearXTol(reference, point->X, tol) : nullptr;
  if (model) {
    pcode = iRmPointGetPcode(model);
    mark = iRmPointGetMark(model);
  }
  vRmPointSetPcode(point, pcode);
  vRmPointSetMark(point, mark);
}

// Numbers the points outward of `from` on `side`, each one step beyond its
// inner neighbour.
void vNumberOutward(RmPoint* from, int side, const RmLayer* reference, double tol) {
  RmPoint* inner = from;
  for (RmPoint* point = RmPointGetOutward(from, side); point;
       point = RmPointGetOutward(point, side)) {
    vTakeCode(point, reference, tol, iRmPcodeStep(iRmPointGetPcode(inner), side, 1),
              iRmPointGetMark(inner));
    inner = point;
  }
}

}  // namespace

void vRmLayerRenumber(RmLayer* layer, const RmLayer* reference, double tol) {
  if (!RmPointsGetFirst(layer)) return;
  RmPoint* centre = nullptr;
  bool anyRight = false;
  for (RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
    if (point->X < 0.0f) continue;
    anyRight = true;
    if (boRmPointHasHeight(point)) {
      centre = point;
      break;
    }
  }
  if (!centre) centre = RmPointsGetLast(layer);
  int side = anyRight ? kRmSideRight : kRmSideLeft;
  vTakeCode(centre, reference, tol, iRmPcodeBuildSide(0, 0, 1, side), iRmPointGetMark(centre));
  vNumberOutward(centre, side, reference, tol);
  vNumberOutward(centre, iRmSideOpposite(side), reference, tol);
  vRmLayerEnforceCodeOrder(layer);
}

void vRmLayerCodesFromLine(RmLayer* layer, const RmLayer* line, double tol) {
  if (!layer || !RmPointsGetFirst(layer)) return;
  RmPoint* start = RmPointFindXFromLeft(layer, 0.0);
  const bool bothSides = start != nullptr;
  if (!bothSides) start = RmPointsGetLast(layer);
  const int side = bothSides ? kRmSideRight : kRmSideLeft;
  vTakeCode(start, line, tol, iRmPcodeBuildSide(0, 0, 1, side), 0);
  vNumberOutward(start, side, line, tol);
  if (bothSides) vNumberOutward(start, kRmSideLeft, line, tol);
  vRmLayerEnforceCodeOrder(layer);
}

void vRmLayerEnforceCodeOrder(RmLayer* layer) {
  if (!RmPointsGetFirst(layer)) return;
  if (boRmLayerIsClosed(layer)) {
    for (RmPoint* point = RmPointsGetFirst(layer)->Next; point; point = point->Next) {
      int previous = iRmPointGetPcode(point->Prev);
      if (iRmPointGetPcode(point) <= previous) vRmPointSetPcode(point, previous + 1);
    }
    return;
  }
  for (int side : {kRmSideLeft, kRmSideRight}) {
    RmPoint* inner = RmPointGetSideStart(layer, side, false);
    if (!inner) continue;
    for (RmPoint* point = RmPointGetOutward(inner, side); point;
         point = RmPointGetOutward(point, side)) {
      int previous = iRmPointGetPcode(inner);
      int pcode = iRmPointGetPcode(point);
      if (side == kRmSideRight && pcode <= previous) vRmPointSetPcode(point, previous + 1);
      if (side == kRmSideLeft && pcode >= previous) vRmPointSetPcode(point, previous - 1);
      inner = point;
    }
  }
}

void vRmLayerCodesSequential(RmLayer* layer) {
  int family = 1;
  int group = 1;
  for (RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
    vRmPointSetPcode(point, iRmPcodeBuild(family, group, 0));
    vRmPcodeNextGroup(&family, &group, true);
  }
}

void vRmLayerCodesByRun(RmLayer* layer) {
  int family = 1;
  int group = 1;
  int number = 0;
  bool runStarted = false;
  for (RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
    if (!boRmPointHasHeight(point)) {
      vRmPointSetPcode(point, 0);
      if (runStarted) {
        ++family;
        group = 1;
        number = 0;
        runStarted = false;
      }
      continue;
    }
    if (runStarted) vRmPcodeNextNumber(&family, &group, &number);
    vRmPointSetPcode(point, iRmPcodeBuild(family, group, number));
    runStarted = true;
  }
}
