#include "road_model/sections/layer_transform.h"

#include "geometry/line.h"
#include "geometry/line_measure.h"
#include "geometry/line_parallel.h"
#include "road_model/sections/layer_compare.h"
#include "road_model/sections/layer_heights.h"
#include "road_model/sections/section.h"

namespace {

// The element data slots that carry a point's code word.
constexpr int kPcodeSlot = 0;
constexpr int kMarkSlot = 1;

// Elements closer than this are merged before a parallel is made.
constexpr double kParallelPointRadius = 0.005;

// The parallel of the layer's line at `distance`; null when the layer makes
// no line.
LiLine* ParallelLine(const RmLayer* layer, double distance, bool closed) {
  LiLine* line = RmLayerToLine(layer, true);
  if (!line) return nullptr;
  double oldRadius = dViGetCommonPointRadius();
  vViSetCommonPointRadius(kParallelPointRadius);
  vLiLineSetPolygon(line, closed);
  iLiLineRemoveShortElements(line, closed ? 1 : 0);
  vViSetCommonPointRadius(oldRadius);
  LiLine* parallel = LiLineCreateParallel(line, distance);
  vLiLineDelete(&line);
  return parallel;
}

void vMakeParallel(RmLayer* layer, double distance) {
  const RmPoint* oldLast = RmPointsGetLast(layer);
  int lastPcode = iRmPointGetPcode(oldLast);
  int lastMark = iRmPointGetMark(oldLast);
  bool closed = RmPointsGetFirst(layer) != oldLast && boRmLayerIsClosed(layer);
  LiLine* parallel = ParallelLine(layer, distance, closed);
  if (!parallel) return;
  vRmLayerSetFromLine(layer, parallel);
  vLiLineDelete(&parallel);
  if (!closed) return;
  // The ring of a polygon closes by itself; the layer repeats its start.
  RmPoint* first = RmPointsGetFirst(layer);
  RmPoint* end = first ? RmPointAdd(layer, nullptr, first->X, first->Z, lastPcode) : nullptr;
  if (end) vRmPointSetMark(end, lastMark);
}

}  // namespace

void vRmLayerSetMark(RmLayer* layer, int mark) {
  for (RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
    vRmPointSetMark(point, mark);
  }
}

void vRmLayerAddHeight(RmLayer* layer, double dz) {
  for (RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
    if (boRmPointHasHeight(point)) vRmPointAddHeight(point, dz);
  }
}

void vRmLayerOffsetAll(RmLayer* layer, double dx) {
  for (RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
    vRmPointMove(point, dx, 0.0);
  }
}

void vRmLayerTransform(RmLayer* layer, int mode, double value) {
  if (!RmPointsGetFirst(layer)) return;
  switch (mode) {
    case kRmLayerRaise: vRmLayerAddHeight(layer, value); break;
    case kRmLayerParallel: vMakeParallel(layer, value); break;
    case kRmLayerShift: vRmLayerOffsetAll(layer, value); break;
    default: break;
  }
}

void vRmPointToLine(LiLine* line, const RmPoint* point, bool startsPart, bool arcs) {
  if (!line || !point) return;
  LiElm added;
  double radius = arcs ? fRmPointGetArcRadius(point) : 0.0;
  if (startsPart) {
    added = iLiLineGetElmCount(line) == 0 ? LiLineAddP2d(line, point->X, point->Z)
                                          : LiLineAddPInvisible(line, point->X, point->Z);
  } else if (radius != 0.0) {
    added = LiLineAddArc2PTo(line, point->X, point->Z, radius);
  } else {
    added = LiLineAddP2d(line, point->X, point->Z);
  }
  vLiElmSetData(line, added, kPcodeSlot, iRmPointGetPcode(point));
  vLiElmSetData(line, added, kMarkSlot, iRmPointGetMark(point));
}

LiLine* RmLayerToLine(const RmLayer* layer, bool arcs) {
  if (!layer) return nullptr;
  LiLine* line = LiLineCreate(false);
  if (!line) return nullptr;
  bool startsPart = true;
  for (const RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
    if (!boRmPointHasHeight(point)) {
      startsPart = true;
      continue;
    }
    vRmPointToLine(line, point, startsPart, arcs);
    startsPart = false;
  }
  if (iLiLineGetElmCount(line) < 2) vLiLineDelete(&line);
  return line;
}

void vRmLayerSetFromLine(RmLayer* layer, const LiLine* line) {
  if (!layer) return;
  vRmPointsClear(layer);
  for (LiElm elm = LiElmGetFirst(line); elm != kLiNoElm; elm = LiElmGetNext(line, elm)) {
    ViPoint2d at;
    vLiElmGetP2d(line, elm, &at);
    bool startsPart = boLiElmIsPartStart(line, elm);
    if (startsPart && elm != LiElmGetFirst(line)) {
      RmPointAdd(layer, nullptr, at.x, kRmNoHeight, 0);
    }
    RmPoint* point = RmPointAdd(layer, nullptr, at.x, at.y, iLiElmGetData(line, elm, kPcodeSlot));
    if (!point) return;
    vRmPointSetMark(point, iLiElmGetData(line, elm, kMarkSlot));
    // The arc that ends in this point is the piece of the element before.
    const LiElm arcStart = LiElmGetPrev(line, elm);
    if (!startsPart && LiElmGetType(line, arcStart) == kLiElmArc2p) {
      if (RmPoint* owner = RmPointGetArcOwner(point)) {
        owner->Radius = static_cast<float>(dLiElmGetRadius(line, arcStart));
      }
    }
  }
}

namespace {

// Whether an arc ends in a point of the layer that has a height.
bool boHasArcs(const RmLayer* layer) {
  for (const RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
    if (boRmPointHasHeight(point) && fRmPointGetArcRadius(point) != 0.0f) return true;
  }
  return false;
}

void vAddPointsWithHeight(const RmLayer* layer, ViExtent* extent) {
  for (const RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
    if (boRmPointHasHeight(point)) vViExtentAddPoint(extent, point->X, point->Z);
  }
}

}  // namespace

bool boRmSectionLayerExtent(const RmSection* section, ViExtent* extent, uint32_t type) {
  if (!extent) return false;
  vViExtentClear(extent);
  bool found = false;
  for (const RmLayer* layer = RmSectionLayersGetFirst(section); layer; layer = layer->Next) {
    if (layer->Id.Type != type) continue;
    ViExtent own;
    vViExtentClear(&own);
    // Only arcs may bulge beyond the points; a layer of a single valid
    // point makes no line, and the point still counts.
    LiLine* line = boHasArcs(layer) ? RmLayerToLine(layer, true) : nullptr;
    if (line) {
      vLiLineGetExtent(line, &own);
      vLiLineDelete(&line);
    } else {
      vAddPointsWithHeight(layer, &own);
    }
    if (boViExtentIsEmpty(own)) continue;
    vViExtentAddExtent(extent, own);
    found = true;
  }
  return found;
}
