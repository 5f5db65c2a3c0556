#include "road_model/sections/layer.h"

#include <cstdlib>

#include "base/text.h"
#include "road_model/codes/pcode.h"
#include "road_model/names/layer_names.h"
#include "road_model/sections/section.h"

namespace {

constexpr int32_t kPointSize = sizeof(RmPoint);
constexpr int32_t kLayerSize = sizeof(RmLayer);

bool boIsTheoreticalKind(RmLayerId id) { return RmLayerIdIsTheoreticalOrEight(id); }
bool boIsPhysicalKind(RmLayerId id) { return RmLayerIdIsPhysical(id); }

// Whether codes lose their meaning between the two layers.
bool boCodesCrossKinds(RmLayerId a, RmLayerId b) {
  return (boIsTheoreticalKind(a) && boIsPhysicalKind(b)) ||
         (boIsPhysicalKind(a) && boIsTheoreticalKind(b));
}

RmLayerBuildInfo* BuildInfoOf(RmLayer* layer) {
  if (!layer->BuildInfo) {
    auto* info = static_cast<RmLayerBuildInfo*>(std::calloc(1, sizeof(RmLayerBuildInfo)));
    if (!info) return nullptr;
    info->BuildMethod = 1;
    layer->BuildInfo = info;
  }
  return layer->BuildInfo;
}

void vCopyBuildInfo(RmLayer* to, const RmLayer* from) {
  if (!from->BuildInfo) {
    vRmLayerClearBuildInfo(to);
    return;
  }
  RmLayerBuildInfo* info = BuildInfoOf(to);
  if (!info) return;
  info->BuildMethod = from->BuildInfo->BuildMethod;
  info->InterMethod = from->BuildInfo->InterMethod;
  info->OppositeDiagonal = from->BuildInfo->OppositeDiagonal;
  sHeapSet(&info->BlockName, from->BuildInfo->BlockName);
}

int iCompareLayerIds(RmLayerId a, RmLayerId b) {
  if (a.Type != b.Type) return a.Type < b.Type ? -1 : 1;
  if (a.Number != b.Number) return a.Number < b.Number ? -1 : 1;
  return 0;
}

int iCompareLayers(const void* a, const void* b) {
  const auto* first = *static_cast<const RmLayer* const*>(a);
  const auto* second = *static_cast<const RmLayer* const*>(b);
  return iCompareLayerIds(first->Id, second->Id);
}

}  // namespace

// ---- Layers of a section ----

RmLayer* RmSectionLayersGetFirst(const RmSection* section) {
  return section ? ListFirst<RmLayer>(&section->Layers) : nullptr;
}

RmLayer* RmSectionLayersGetLast(const RmSection* section) {
  return section ? ListLast<RmLayer>(&section->Layers) : nullptr;
}

RmLayer* RmLayerGetNext(const RmLayer* layer) { return layer ? layer->Next : nullptr; }

RmLayer* RmLayerGetPrev(const RmLayer* layer) { return layer ? layer->Prev : nullptr; }

int iRmSectionLayersGetCount(const RmSection* section) {
  int count = 0;
  for (RmLayer* layer = RmSectionLayersGetFirst(section); layer; layer = layer->Next) ++count;
  return count;
}

RmLayer* RmLayerFind(const RmSection* section, RmLayerId id) {
  for (RmLayer* layer = RmSectionLayersGetFirst(section); layer; layer = layer->Next) {
    if (boRmLayerIdEquals(layer->Id, id)) return layer;
  }
  return nullptr;
}

bool boRmSectionHasLayerType(const RmSection* section, uint32_t type) {
  for (RmLayer* layer = RmSectionLayersGetFirst(section); layer; layer = layer->Next) {
    if (layer->Id.Type == type) return true;
  }
  return false;
}

RmLayer* RmLayerAddAt(RmSection* section, RmLayer* before, RmLayerId id) {
  if (!section) return nullptr;
  RmLayer* layer = DLinkNewObjAs<RmLayer>(&section->Layers, before);
  if (!layer) return nullptr;
  // The points come from where the section's layers come from.
  DLinkInit(&layer->Points, kPointSize, section->Layers.pool);
  layer->Id = id;
  return layer;
}

RmLayer* RmLayerAdd(RmSection* section, RmLayerId id) {
  if (!section) return nullptr;
  RmLayer* before = RmSectionLayersGetFirst(section);
  while (before && iCompareLayerIds(before->Id, id) <= 0) before = before->Next;
  return RmLayerAddAt(section, before, id);
}

RmLayer* RmLayerAddNamed(RmSection* section, RmLayerId id, RmLayerNames* layerNames) {
  RmLayer* layer = RmLayerAdd(section, id);
  if (layer) vRmLayerNameEnsure(layerNames, id);
  return layer;
}

void vRmLayerRemove(RmSection* section, RmLayer* layer) {
  if (!section || !layer) return;
  vRmPointsClear(layer);
  vRmLayerClearBuildInfo(layer);
  vDLinkDeleteObj(&section->Layers, layer);
}

void vRmSectionRemoveTheoreticalLayers(RmSection* section) {
  RmLayer* layer = RmSectionLayersGetFirst(section);
  while (layer) {
    RmLayer* next = layer->Next;
    if (layer->Id.Type == kRmLayerTheoretical && layer->Id.Number < 100) {
      vRmLayerRemove(section, layer);
    }
    layer = next;
  }
}

void vRmSectionSortLayers(RmSection* section) {
  if (section) vDLinkSort(&section->Layers, iCompareLayers);
}

RmLayer* RmLayerCreateFree() {
  auto* layer = static_cast<RmLayer*>(std::calloc(1, kLayerSize));
  if (!layer) return nullptr;
  DLinkInit(&layer->Points, kPointSize, nullptr);
  return layer;
}

void vRmLayerDeleteFree(RmLayer* layer) {
  if (!layer) return;
  vRmPointsClear(layer);
  vRmLayerClearBuildInfo(layer);
  std::free(layer);
}

void vRmLayerCopy(RmLayer* to, const RmLayer* from) {
  if (!to || !from || to == from) return;
  vRmPointsClear(to);
  bool clearCodes = boCodesCrossKinds(to->Id, from->Id);
  for (RmPoint* point = RmPointsGetFirst(from); point; point = point->Next) {
    RmPoint* copy = RmPointCopyBefore(to, nullptr, point);
    if (!copy) break;
    if (clearCodes) vRmPointSetPcode(copy, 0);
  }
  to->Id = from->Id;
  vCopyBuildInfo(to, from);
}

void vRmLayerCopyKeepId(RmLayer* to, const RmLayer* from) {
  if (!to || !from) return;
  RmLayerId id = to->Id;
  vRmLayerCopy(to, from);
  to->Id = id;
}

// ---- Points of a layer ----

RmPoint* RmPointsGetFirst(const RmLayer* layer) {
  return layer ? ListFirst<RmPoint>(&layer->Points) : nullptr;
}

RmPoint* RmPointsGetLast(const RmLayer* layer) {
  return layer ? ListLast<RmPoint>(&layer->Points) : nullptr;
}

RmPoint* RmPointGetNext(const RmPoint* point) { return point ? point->Next : nullptr; }

RmPoint* RmPointGetPrev(const RmPoint* point) { return point ? point->Prev : nullptr; }

int iRmPointsGetCount(const RmLayer* layer) {
  int count = 0;
  for (RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) ++count;
  return count;
}

RmPoint* RmPointGetOutward(const RmPoint* point, int side) {
  if (!point) return nullptr;
  if (side == kRmSideLeft) return point->Prev;
  if (side == kRmSideRight) return point->Next;
  return nullptr;
}

RmPoint* RmPointGetInward(const RmPoint* point, int side) {
  if (!point) return nullptr;
  if (side == kRmSideLeft) return point->Next;
  if (side == kRmSideRight) return point->Prev;
  return nullptr;
}

RmPoint* RmPointAddBefore(RmLayer* layer, RmPoint* before) {
  if (!layer) return nullptr;
  return DLinkNewObjAs<RmPoint>(&layer->Points, before);
}

RmPoint* RmPointCopyBefore(RmLayer* layer, RmPoint* before, const RmPoint* source) {
  RmPoint* point = RmPointAddBefore(layer, before);
  if (!point || !source) return point;
  point->Z = source->Z;
  point->X = source->X;
  point->Radius = source->Radius;
  point->Code = source->Code;
  return point;
}

RmPoint* RmPointAdd(RmLayer* layer, RmPoint* before, double x, double z, int pcode) {
  RmPoint* point = RmPointAddBefore(layer, before);
  if (!point) return nullptr;
  point->X = static_cast<float>(x);
  point->Z = static_cast<float>(z);
  vRmPointSetPcode(point, pcode);
  return point;
}

RmPoint* RmPointAddSorted(RmLayer* layer, double x, double z, int pcode) {
  if (!layer) return nullptr;
  float offset = static_cast<float>(x);
  RmPoint* before = RmPointsGetFirst(layer);
  while (before && before->X < offset) before = before->Next;
  return RmPointAdd(layer, before, x, z, pcode);
}

RmPoint* RmPointAddAtEnd(RmLayer* layer, int side, double x, double z, int pcode) {
  RmPoint* before = side == kRmSideLeft ? RmPointsGetFirst(layer) : nullptr;
  return RmPointAdd(layer, before, x, z, pcode);
}

RmPoint* RmPointAddSlope(RmLayer* layer, int side, RmPoint* from, double dist, double slope,
                         int pcode) {
  if (!layer) return nullptr;
  if (!from && side != kRmSideLeft) from = RmPointsGetLast(layer);
  if (!from) return nullptr;
  double x = side == kRmSideLeft ? double(from->X) - dist : double(from->X) + dist;
  double z = double(from->Z) + dist * slope;
  RmPoint* before = side == kRmSideLeft ? from : from->Next;
  return RmPointAdd(layer, before, x, z, pcode);
}

void vRmPointRemove(RmLayer* layer, RmPoint* point) {
  if (layer && point) vDLinkDeleteObj(&layer->Points, point);
}

void vRmPointMoveBefore(RmLayer* layer, RmPoint* point, RmPoint* before) {
  if (layer) vDLinkMove(&layer->Points, point, before);
}

void vRmPointsClear(RmLayer* layer) {
  if (layer) vDLinkClear(&layer->Points);
}

void vRmLayerReversePoints(RmLayer* layer) {
  if (!layer) return;
  RmPoint* point = RmPointsGetFirst(layer);
  while (point) {
    RmPoint* next = point->Next;
    point->Next = point->Prev;
    point->Prev = next;
    point = next;
  }
  void* first = layer->Points.first;
  layer->Points.first = layer->Points.last;
  layer->Points.last = first;
}

void vRmPointCopyPosition(RmPoint* to, const RmPoint* from) {
  if (!to || !from) return;
  to->X = from->X;
  to->Z = from->Z;
}

void vRmPointCopyAll(RmPoint* to, const RmPoint* from) {
  if (!to || !from) return;
  vRmPointCopyPosition(to, from);
  to->Radius = from->Radius;
  vRmPointSetPcode(to, iRmPointGetPcode(from));
  vRmPointSetMark(to, iRmPointGetMark(from));
}

void vRmPointAddHeight(RmPoint* point, double dz) {
  if (point) point->Z += static_cast<float>(dz);
}

void vRmPointMove(RmPoint* point, double dx, double dz) {
  if (!point) return;
  point->X += static_cast<float>(dx);
  point->Z += static_cast<float>(dz);
}

void vRmPointGetXz(const RmPoint* point, double* x, double* z) {
  if (!point) return;
  if (x) *x = point->X;
  if (z) *z = point->Z;
}

void vRmPointSetXz(RmPoint* point, double x, double z) {
  if (!point) return;
  point->X = static_cast<float>(x);
  point->Z = static_cast<float>(z);
}

// ---- Identity and build info ----

void vRmLayerClearBuildInfo(RmLayer* layer) {
  if (!layer || !layer->BuildInfo) return;
  vHeapFree(&layer->BuildInfo->BlockName);
  std::free(layer->BuildInfo);
  layer->BuildInfo = nullptr;
}

uint32_t iRmLayerGetType(const RmLayer* layer) { return layer ? layer->Id.Type : 0; }

int iRmLayerGetNumber(const RmLayer* layer) { return layer ? layer->Id.Number : 0; }

int iRmLayerGetBuildMethod(const RmLayer* layer) {
  return layer && layer->BuildInfo ? layer->BuildInfo->BuildMethod : 0;
}

void vRmLayerSetBuildMethod(RmLayer* layer, int method) {
  if (RmLayerBuildInfo* info = layer ? BuildInfoOf(layer) : nullptr) info->BuildMethod = method;
}

int iRmLayerGetInterMethod(const RmLayer* layer) {
  return layer && layer->BuildInfo ? layer->BuildInfo->InterMethod : 0;
}

void vRmLayerSetInterMethod(RmLayer* layer, int method) {
  if (RmLayerBuildInfo* info = layer ? BuildInfoOf(layer) : nullptr) info->InterMethod = method;
}

const char* sRmLayerGetBlockName(const RmLayer* layer) {
  return layer && layer->BuildInfo ? sOrEmpty(layer->BuildInfo->BlockName) : "";
}

void vRmLayerSetBlockName(RmLayer* layer, const char* name) {
  if (RmLayerBuildInfo* info = layer ? BuildInfoOf(layer) : nullptr) {
    sHeapSet(&info->BlockName, name);
  }
}

bool boRmLayerGetOppositeDiagonal(const RmLayer* layer) {
  return layer && layer->BuildInfo && layer->BuildInfo->OppositeDiagonal != 0;
}

void vRmLayerSetOppositeDiagonal(RmLayer* layer, bool on) {
  if (RmLayerBuildInfo* info = layer ? BuildInfoOf(layer) : nullptr) {
    info->OppositeDiagonal = on ? 1 : 0;
  }
}
