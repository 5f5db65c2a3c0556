#include "road_model/tables/side_boundaries.h"

#include <cstdlib>
#include <initializer_list>

#include "base/dlink.h"
#include "base/numbers.h"
#include "road_model/codes/pcode.h"

namespace {

void vInitList(RmSideBoundaryList* list) {
  DLinkInit(&list->Rows, sizeof(RmSideBoundary), nullptr);
}

void vSetAbsent(RmSideBoundary* row) {
  row->Code = kNullInteger;
  row->Distance = kNullNumber;
  row->LineId = kNullInteger;
}

bool boHasAnyValue(const RmSideBoundary* row) {
  return row->Code != kNullInteger || boIsPresent(row->Distance) || row->LineId != kNullInteger;
}

// Deletes rows from the start and from the end of the list until the first
// and the last have a chainage.
void vTrimList(RmSideBoundaryList* list) {
  RmSideBoundary* row;
  while ((row = ListFirst<RmSideBoundary>(&list->Rows)) && !boIsPresent(row->Chain)) {
    vDLinkDeleteObj(&list->Rows, row);
  }
  while ((row = ListLast<RmSideBoundary>(&list->Rows)) && !boIsPresent(row->Chain)) {
    vDLinkDeleteObj(&list->Rows, row);
  }
}

void vDropLineRows(RmSideBoundaryList* list) {
  RmSideBoundary* row = RmSideBoundariesGetFirst(list);
  while (row) {
    RmSideBoundary* next = row->Next;
    if (row->LineId != kNullInteger) vDLinkDeleteObj(&list->Rows, row);
    row = next;
  }
}

}  // namespace

RmSideBoundaries* RmSideBoundariesCreate() {
  auto* boundaries = static_cast<RmSideBoundaries*>(std::calloc(1, sizeof(RmSideBoundaries)));
  if (!boundaries) return nullptr;
  vInitList(&boundaries->Left);
  vInitList(&boundaries->Right);
  return boundaries;
}

void vRmSideBoundariesDelete(RmSideBoundaries** boundaries) {
  if (!boundaries || !*boundaries) return;
  vDLinkClear(&(*boundaries)->Left.Rows);
  vDLinkClear(&(*boundaries)->Right.Rows);
  std::free(*boundaries);
  *boundaries = nullptr;
}

void vRmSideBoundariesCopy(RmSideBoundaries* to, const RmSideBoundaries* from) {
  if (!to || !from || to == from) return;
  vDLinkClear(&to->Left.Rows);
  vDLinkClear(&to->Right.Rows);
  DLinkCopy(&from->Left.Rows, &to->Left.Rows, nullptr);
  DLinkCopy(&from->Right.Rows, &to->Right.Rows, nullptr);
}

bool boRmSideBoundariesHasRows(const RmSideBoundaries* boundaries) {
  return boundaries && (boundaries->Left.Rows.first || boundaries->Right.Rows.first);
}

bool boRmSideBoundariesIsEmpty(const RmSideBoundaries* boundaries) {
  return !boRmSideBoundariesHasRows(boundaries);
}

RmSideBoundaryList* RmSideBoundariesGetLeft(RmSideBoundaries* boundaries) {
  return boundaries ? &boundaries->Left : nullptr;
}

RmSideBoundaryList* RmSideBoundariesGetRight(RmSideBoundaries* boundaries) {
  return boundaries ? &boundaries->Right : nullptr;
}

RmSideBoundaryList* RmSideBoundariesGetSide(RmSideBoundaries* boundaries, int side) {
  if (side == kRmSideLeft) return RmSideBoundariesGetLeft(boundaries);
  if (side == kRmSideRight) return RmSideBoundariesGetRight(boundaries);
  return nullptr;
}

const RmSideBoundaryList* RmSideBoundariesGetSide(const RmSideBoundaries* boundaries, int side) {
  return RmSideBoundariesGetSide(const_cast<RmSideBoundaries*>(boundaries), side);
}

RmSideBoundary* RmSideBoundariesGetFirst(const RmSideBoundaryList* list) {
  return list ? ListFirst<RmSideBoundary>(&list->Rows) : nullptr;
}

RmSideBoundary* RmSideBoundaryGetNext(const RmSideBoundary* row) {
  return row ? row->Next : nullptr;
}

RmSideBoundary* RmSideBoundaryAdd(RmSideBoundaryList* list, double chain) {
  if (!list) return nullptr;
  RmSideBoundary* before = RmSideBoundariesGetFirst(list);
  while (before && before->Chain <= chain) before = before->Next;
  RmSideBoundary* row = RmSideBoundaryAddBefore(list, before);
  if (row) row->Chain = chain;
  return row;
}

RmSideBoundary* RmSideBoundaryAddBefore(RmSideBoundaryList* list, RmSideBoundary* before) {
  if (!list) return nullptr;
  auto* row = DLinkNewObjAs<RmSideBoundary>(&list->Rows, before);
  if (row) vSetAbsent(row);
  return row;
}

void vRmSideBoundaryRemove(RmSideBoundaryList* list, RmSideBoundary* row) {
  if (list && row) vDLinkDeleteObj(&list->Rows, row);
}

int iRmSideBoundaryGetIndex(const RmSideBoundaryList* list, const RmSideBoundary* row) {
  int index = 0;
  for (RmSideBoundary* at = RmSideBoundariesGetFirst(list); at; at = at->Next, ++index) {
    if (at == row) return index;
  }
  return -1;
}

RmSideBoundary* RmSideBoundaryFindFrom(const RmSideBoundaryList* list, double chain) {
  RmSideBoundary* row = RmSideBoundariesGetFirst(list);
  while (row && row->Chain < chain) row = row->Next;
  return row;
}

bool boRmSideBoundaryCovers(const RmSideBoundaryList* list, double chain) {
  const RmSideBoundary* row = RmSideBoundaryFindFrom(list, chain);
  return row && (boEqual(row->Chain, chain) || row->Prev);
}

bool boRmSideBoundariesCoverCode(const RmSideBoundaries* boundaries, int32_t code, double chain) {
  if (!boundaries) return false;
  for (const RmSideBoundaryList* list : {&boundaries->Left, &boundaries->Right}) {
    if (!boRmSideBoundaryCovers(list, chain)) continue;
    if (RmSideBoundaryFindFrom(list, chain)->LineId == code) return true;
  }
  return false;
}

int iRmSideBoundaryAt(const RmSideBoundaryList* list, double chain, int32_t* code,
                      double* distance, int32_t* lineId) {
  if (code) *code = kNullInteger;
  if (distance) *distance = kNullNumber;
  if (lineId) *lineId = kNullInteger;

  const RmSideBoundary* row = RmSideBoundaryFindFrom(list, chain);
  if (!row) return 0;
  double distanceAt = row->Distance;
  if (!boEqual(row->Chain, chain)) {
    const RmSideBoundary* prev = row->Prev;
    if (!prev || !boHasAnyValue(prev) || !boHasAnyValue(row)) return 0;
    if (prev->Code != row->Code || prev->LineId != row->LineId) return 0;
    if (boEqual(prev->Chain, row->Chain)) return 0;
    distanceAt = kNullNumber;
    if (boIsPresent(prev->Distance) && boIsPresent(row->Distance)) {
      double t = (chain - prev->Chain) / (row->Chain - prev->Chain);
      distanceAt = prev->Distance + (row->Distance - prev->Distance) * t;
    }
  }
  if (code) *code = row->Code;
  if (distance) *distance = distanceAt;
  if (lineId) *lineId = row->LineId;
  return 1;
}

void vRmSideBoundariesTrimEmpty(RmSideBoundaries* boundaries) {
  if (!boundaries) return;
  vTrimList(&boundaries->Left);
  vTrimList(&boundaries->Right);
}

void vRmSideBoundariesDropLines(RmSideBoundaries* boundaries) {
  if (!boundaries) return;
  vDropLineRows(&boundaries->Left);
  vDropLineRows(&boundaries->Right);
  vRmSideBoundariesTrimEmpty(boundaries);
}

void vRmSideBoundariesMapCodes(RmSideBoundaries* boundaries, int32_t (*map)(int32_t code)) {
  if (!boundaries || !map) return;
  for (RmSideBoundaryList* list : {&boundaries->Left, &boundaries->Right}) {
    for (RmSideBoundary* row = RmSideBoundariesGetFirst(list); row; row = row->Next) {
      if (row->Code != kNullInteger) row->Code = map(row->Code);
    }
  }
}
