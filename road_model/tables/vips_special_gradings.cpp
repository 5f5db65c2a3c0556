#include "road_model/tables/vips_special_gradings.h"

#include <cstdlib>

#include "base/numbers.h"
#include "road_model/codes/pcode.h"

namespace {

void vClearSide(ListHead* side) {
  for (RmVipsGradingSurface* surface = RmVipsGradingSurfacesGetFirst(side); surface;
       surface = surface->Next) {
    vDLinkClear(&surface->Rows);
  }
  vDLinkClear(side);
}

void vClearEntry(RmVipsSpecialGrading* entry) {
  vClearSide(&entry->Left);
  vClearSide(&entry->Right);
}

void vClearEntries(RmVipsSpecialGradings* table) {
  for (RmVipsSpecialGrading* entry = RmVipsSpecialGradingsGetFirst(table); entry;
       entry = entry->Next) {
    vClearEntry(entry);
  }
  vSLinkClear(&table->Entries);
}

// Appends copies of the surfaces of `from`, with their rows, to `to`.
bool boCopySide(ListHead* to, const ListHead* from) {
  for (const RmVipsGradingSurface* source = RmVipsGradingSurfacesGetFirst(from); source;
       source = source->Next) {
    RmVipsGradingSurface* surface = RmVipsGradingSurfaceAdd(to);
    if (!surface) return false;
    surface->Surface = source->Surface;
    DLinkCopy(&source->Rows, &surface->Rows, nullptr);
  }
  return true;
}

bool boKept(const RmVipsSpecialGrading* entry, int32_t code, int32_t defaultCode) {
  return entry->Id.Number == kRmVipsMinThickLayerNumber && boRmPcodeIsValid(code) &&
         code != defaultCode;
}

}  // namespace

RmVipsSpecialGradings* RmVipsSpecialGradingsCreate() {
  auto* table = static_cast<RmVipsSpecialGradings*>(std::calloc(1, sizeof(RmVipsSpecialGradings)));
  if (table) SLinkInit(&table->Entries, sizeof(RmVipsSpecialGrading), nullptr);
  return table;
}

void vRmVipsSpecialGradingsDelete(RmVipsSpecialGradings** table) {
  if (!table || !*table) return;
  vClearEntries(*table);
  std::free(*table);
  *table = nullptr;
}

void vRmVipsSpecialGradingsCopy(RmVipsSpecialGradings* to, const RmVipsSpecialGradings* from) {
  if (!to || !from || to == from) return;
  vClearEntries(to);
  for (const RmVipsSpecialGrading* source = RmVipsSpecialGradingsGetFirst(from); source;
       source = source->Next) {
    // Appended in the order of `from`, which is already the table's order.
    auto* entry = SLinkNewObjAs<RmVipsSpecialGrading>(&to->Entries);
    if (!entry) return;
    entry->Id = source->Id;
    entry->MinThickLeftPcode = source->MinThickLeftPcode;
    entry->MinThickRightPcode = source->MinThickRightPcode;
    DLinkInit(&entry->Left, sizeof(RmVipsGradingSurface), nullptr);
    DLinkInit(&entry->Right, sizeof(RmVipsGradingSurface), nullptr);
    if (!boCopySide(&entry->Left, &source->Left) || !boCopySide(&entry->Right, &source->Right)) {
      return;
    }
  }
}

bool boRmVipsSpecialGradingsHasRows(const RmVipsSpecialGradings* table) {
  return RmVipsSpecialGradingsGetFirst(table) != nullptr;
}

RmVipsSpecialGrading* RmVipsSpecialGradingsGetFirst(const RmVipsSpecialGradings* table) {
  return table ? ListFirst<RmVipsSpecialGrading>(&table->Entries) : nullptr;
}

RmVipsSpecialGrading* RmVipsSpecialGradingGetNext(const RmVipsSpecialGrading* entry) {
  return entry ? entry->Next : nullptr;
}

RmVipsSpecialGrading* RmVipsSpecialGradingFind(const RmVipsSpecialGradings* table, RmLayerId id) {
  for (RmVipsSpecialGrading* entry = RmVipsSpecialGradingsGetFirst(table); entry;
       entry = entry->Next) {
    if (boRmLayerIdEquals(entry->Id, id)) return entry;
  }
  return nullptr;
}

RmVipsSpecialGrading* RmVipsSpecialGradingAdd(RmVipsSpecialGradings* table, RmLayerId id) {
  if (!table) return nullptr;
  RmVipsSpecialGrading* before = RmVipsSpecialGradingsGetFirst(table);
  while (before && before->Id.Number <= id.Number) before = before->Next;
  auto* entry = SLinkNewObjAs<RmVipsSpecialGrading>(&table->Entries, before);
  if (!entry) return nullptr;
  entry->Id = id;
  DLinkInit(&entry->Left, sizeof(RmVipsGradingSurface), nullptr);
  DLinkInit(&entry->Right, sizeof(RmVipsGradingSurface), nullptr);
  bool minThick = id.Number == kRmVipsMinThickLayerNumber;
  entry->MinThickLeftPcode = minThick ? kRmVipsMinThickLeftDefault : kNullInteger;
  entry->MinThickRightPcode = minThick ? kRmVipsMinThickRightDefault : kNullInteger;
  return entry;
}

void vRmVipsSpecialGradingRemove(RmVipsSpecialGradings* table, RmVipsSpecialGrading* entry) {
  if (!table || !entry) return;
  vClearEntry(entry);
  vSLinkDeleteObj(&table->Entries, entry);
}

ListHead* RmVipsSpecialGradingSide(RmVipsSpecialGrading* entry, int side) {
  if (!entry) return nullptr;
  if (side == kRmSideLeft) return &entry->Left;
  if (side == kRmSideRight) return &entry->Right;
  return nullptr;
}

bool boRmVipsMinThickLeftKept(const RmVipsSpecialGrading* entry) {
  return entry && boKept(entry, entry->MinThickLeftPcode, kRmVipsMinThickLeftDefault);
}

bool boRmVipsMinThickRightKept(const RmVipsSpecialGrading* entry) {
  return entry && boKept(entry, entry->MinThickRightPcode, kRmVipsMinThickRightDefault);
}

RmVipsGradingSurface* RmVipsGradingSurfacesGetFirst(const ListHead* side) {
  return side ? ListFirst<RmVipsGradingSurface>(side) : nullptr;
}

RmVipsGradingSurface* RmVipsGradingSurfaceGetNext(const RmVipsGradingSurface* surface) {
  return surface ? surface->Next : nullptr;
}

RmVipsGradingSurface* RmVipsGradingSurfaceAdd(ListHead* side) {
  if (!side) return nullptr;
  auto* surface = DLinkNewObjAs<RmVipsGradingSurface>(side);
  if (surface) DLinkInit(&surface->Rows, sizeof(RmVipsGradingRow), nullptr);
  return surface;
}

RmVipsGradingRow* RmVipsGradingRowsGetFirst(const RmVipsGradingSurface* surface) {
  return surface ? ListFirst<RmVipsGradingRow>(&surface->Rows) : nullptr;
}

RmVipsGradingRow* RmVipsGradingRowGetNext(const RmVipsGradingRow* row) {
  return row ? row->Next : nullptr;
}

RmVipsGradingRow* RmVipsGradingRowAdd(RmVipsGradingSurface* surface) {
  if (!surface) return nullptr;
  auto* row = DLinkNewObjAs<RmVipsGradingRow>(&surface->Rows);
  if (!row) return nullptr;
  row->Chain = row->Height = row->Width = kNullNumber;
  row->WidthPcode = row->AlignmentId = kNullInteger;
  row->WidthMethod = -1;
  row->WidthOffset = row->Slope = kNullNumber;
  row->SlopeMethod = -1;
  row->Extra1 = row->Extra2 = row->BeamSlope = kNullNumber;
  return row;
}
