#include "road_model/lines/diff_altitudes.h"

#include <cstdlib>

namespace {

// Starts within this distance are the same start.
constexpr double kSameStart = 1e-5;

int iCompareRowPointers(const void* a, const void* b) {
  return iRmDiffAltitudeCompare(*static_cast<const RmDiffAltitude* const*>(a),
                                *static_cast<const RmDiffAltitude* const*>(b));
}

}  // namespace

RmDiffAltitudes* RmDiffAltitudesCreate() {
  auto* list = static_cast<RmDiffAltitudes*>(std::calloc(1, sizeof(RmDiffAltitudes)));
  if (list) SLinkInit(&list->Rows, sizeof(RmDiffAltitude), nullptr);
  return list;
}

void vRmDiffAltitudesDelete(RmDiffAltitudes** list) {
  if (!list || !*list) return;
  vSLinkClear(&(*list)->Rows);
  std::free(*list);
  *list = nullptr;
}

void vRmDiffAltitudesCopy(RmDiffAltitudes* to, const RmDiffAltitudes* from) {
  if (!to || !from || to == from) return;
  vSLinkClear(&to->Rows);
  SLinkCopy(&from->Rows, &to->Rows, nullptr);
}

RmDiffAltitude* RmDiffAltitudesGetFirst(const RmDiffAltitudes* list) {
  return list ? ListFirst<RmDiffAltitude>(&list->Rows) : nullptr;
}

RmDiffAltitude* RmDiffAltitudeGetNext(const RmDiffAltitude* entry) {
  return entry ? entry->Next : nullptr;
}

int iRmDiffAltitudesGetCount(const RmDiffAltitudes* list) {
  return list ? static_cast<int>(lSLinkCount(&list->Rows)) : 0;
}

RmDiffAltitude* RmDiffAltitudeAdd(RmDiffAltitudes* list, double from) {
  if (!list) return nullptr;
  RmDiffAltitude* before = RmDiffAltitudesGetFirst(list);
  while (before && before->FromChain <= from) before = before->Next;
  auto* entry = SLinkNewObjAs<RmDiffAltitude>(&list->Rows, before);
  if (entry) entry->FromChain = from;
  return entry;
}

void vRmDiffAltitudeSetRange(RmDiffAltitude* entry, double from, double to) {
  if (!entry) return;
  entry->FromChain = from;
  entry->ToChain = to;
}

void vRmDiffAltitudeGetRange(const RmDiffAltitude* entry, RmChainRange* range) {
  if (!entry || !range) return;
  range->Low = entry->FromChain;
  range->High = entry->ToChain;
}

double dRmDiffAltitudeGetHeight(const RmDiffAltitude* entry) {
  return entry ? entry->Height : 0.0;
}

void vRmDiffAltitudeSetHeight(RmDiffAltitude* entry, double height) {
  if (entry) entry->Height = height;
}

void vRmDiffAltitudeRemove(RmDiffAltitudes* list, RmDiffAltitude* entry) {
  if (list && entry) vSLinkDeleteObj(&list->Rows, entry);
}

RmDiffAltitude* RmDiffAltitudeFind(const RmDiffAltitudes* list, double chain) {
  for (RmDiffAltitude* entry = RmDiffAltitudesGetFirst(list); entry; entry = entry->Next) {
    if (entry->FromChain <= chain && chain <= entry->ToChain) return entry;
  }
  return nullptr;
}

int iRmDiffAltitudeGetIndex(const RmDiffAltitudes* list, const RmDiffAltitude* entry) {
  int index = 0;
  for (RmDiffAltitude* row = RmDiffAltitudesGetFirst(list); row; row = row->Next, ++index) {
    if (row == entry) return index;
  }
  return -1;
}

int iRmDiffAltitudeCompare(const RmDiffAltitude* a, const RmDiffAltitude* b) {
  double difference = a->FromChain - b->FromChain;
  if (difference > kSameStart) return 1;
  if (difference < -kSameStart) return -1;
  return 0;
}

void vRmDiffAltitudesSort(RmDiffAltitudes* list) {
  if (list) vSLinkSort(&list->Rows, iCompareRowPointers);
}
