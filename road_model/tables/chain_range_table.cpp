#include "road_model/tables/chain_range_table.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace {

// Starts within this distance are the same start.
constexpr double kSameStart = 1e-5;

// A row with its values, rounded up to whole words.
int32_t iRowSize(const RmChainRangeKind* kind) {
  int32_t size = static_cast<int32_t>(sizeof(RmChainRangeRow)) + kind->ValuesSize;
  return (size + 7) / 8 * 8;
}

int iListCount(const RmChainRangeKind* kind) { return kind->Sides == 2 ? 2 : 1; }

void vInitLists(RmChainRangeTable* table, const RmChainRangeKind* kind) {
  table->Kind = kind;
  for (RmChainRangeList& list : table->Lists) {
    DLinkInit(&list.Rows, iRowSize(kind), nullptr);
    list.Kind = kind;
  }
}

void vClearLists(RmChainRangeTable* table) {
  for (RmChainRangeList& list : table->Lists) vDLinkClear(&list.Rows);
}

void vSetNewRowValues(const RmChainRangeKind* kind, RmChainRangeRow* row) {
  for (const RmChainRangeField& field : kind->Fields) {
    vRmChainRangeRowSetField(row, field, field.Absent);
  }
}

}  // namespace

RmChainRangeTable* RmChainRangeTableCreate(const RmChainRangeKind* kind) {
  if (!kind) return nullptr;
  auto* table = static_cast<RmChainRangeTable*>(std::calloc(1, sizeof(RmChainRangeTable)));
  if (!table) return nullptr;
  vInitLists(table, kind);
  for (size_t i = 0; i < kind->TableFields.size() && i < kRmChainRangeMaxTableFields; ++i) {
    table->Values[i] = kind->TableFields[i].Default;
  }
  return table;
}

void vRmChainRangeTableDelete(RmChainRangeTable** table) {
  if (!table || !*table) return;
  vClearLists(*table);
  std::free(*table);
  *table = nullptr;
}

void vRmChainRangeTableCopy(RmChainRangeTable* to, const RmChainRangeTable* from) {
  if (!to || !from || to == from) return;
  vClearLists(to);
  vInitLists(to, from->Kind);
  for (int i = 0; i < 2; ++i) DLinkCopy(&from->Lists[i].Rows, &to->Lists[i].Rows, nullptr);
  std::copy(std::begin(from->Values), std::end(from->Values), std::begin(to->Values));
}

bool boRmChainRangeTableHasRows(const RmChainRangeTable* table) {
  if (!table) return false;
  for (const RmChainRangeList& list : table->Lists) {
    if (list.Rows.first) return true;
  }
  return false;
}

RmChainRangeList* RmChainRangeTableGetSide(const RmChainRangeTable* table, int side) {
  if (!table) return nullptr;
  bool sided = iListCount(table->Kind) == 2;
  if (sided ? side != 1 && side != 2 : side != 0) return nullptr;
  return const_cast<RmChainRangeList*>(&table->Lists[sided ? side - 1 : 0]);
}

double dRmChainRangeTableGetValue(const RmChainRangeTable* table, int index) {
  if (!table || index < 0 || static_cast<size_t>(index) >= table->Kind->TableFields.size()) {
    return 0.0;
  }
  return table->Values[index];
}

void vRmChainRangeTableSetValue(RmChainRangeTable* table, int index, double value) {
  if (!table || index < 0 || static_cast<size_t>(index) >= table->Kind->TableFields.size()) {
    return;
  }
  table->Values[index] = value;
}

RmChainRangeRow* RmChainRangeGetFirst(const RmChainRangeList* list) {
  return list ? ListFirst<RmChainRangeRow>(&list->Rows) : nullptr;
}

RmChainRangeRow* RmChainRangeGetNext(const RmChainRangeRow* row) {
  return row ? row->Next : nullptr;
}

RmChainRangeRow* RmChainRangeAddBefore(RmChainRangeList* list, RmChainRangeRow* before) {
  if (!list) return nullptr;
  auto* row = static_cast<RmChainRangeRow*>(DLinkNewObj(&list->Rows, before, nullptr));
  if (row) vSetNewRowValues(list->Kind, row);
  return row;
}

RmChainRangeRow* RmChainRangeAdd(RmChainRangeList* list, double from) {
  RmChainRangeRow* before = RmChainRangeGetFirst(list);
  while (before && before->Range.Low <= from) before = before->Next;
  RmChainRangeRow* row = RmChainRangeAddBefore(list, before);
  if (row) row->Range.Low = from;
  return row;
}

void vRmChainRangeSetRange(RmChainRangeRow* row, double from, double to) {
  if (row) row->Range = RmChainRange{from, to};
}

double dRmChainRangeRowGetField(const RmChainRangeRow* row, const RmChainRangeField& field) {
  const char* at = static_cast<const char*>(pRmChainRangeRowValues(row)) + field.Offset;
  if (field.Type == RmChainFieldType::kInteger) {
    int32_t value;
    std::memcpy(&value, at, sizeof value);
    return value;
  }
  double value;
  std::memcpy(&value, at, sizeof value);
  return value;
}

void vRmChainRangeRowSetField(RmChainRangeRow* row, const RmChainRangeField& field, double value) {
  char* at = static_cast<char*>(pRmChainRangeRowValues(row)) + field.Offset;
  if (field.Type == RmChainFieldType::kInteger) {
    // Out of range and not-a-number values stand at the nearest end, or 0.
    auto integer =
        value == value ? static_cast<int32_t>(std::clamp(value, -2147483648.0, 2147483647.0)) : 0;
    std::memcpy(at, &integer, sizeof integer);
  } else {
    std::memcpy(at, &value, sizeof value);
  }
}

void vRmChainRangeSort(RmChainRangeList* list) {
  if (!list || !list->Rows.first) return;
  std::vector<RmChainRangeRow*> rows;
  for (RmChainRangeRow* row = RmChainRangeGetFirst(list); row; row = row->Next) rows.push_back(row);
  std::stable_sort(rows.begin(), rows.end(),
                   [](const RmChainRangeRow* a, const RmChainRangeRow* b) {
                     return a->Range.Low < b->Range.Low - kSameStart;
                   });
  RmChainRangeRow* prev = nullptr;
  for (RmChainRangeRow* row : rows) {
    row->Prev = prev;
    if (prev) prev->Next = row;
    prev = row;
  }
  prev->Next = nullptr;
  list->Rows.first = rows.front();
  list->Rows.last = prev;
}

int iRmChainRangeGetIndex(const RmChainRangeList* list, const RmChainRangeRow* row) {
  int index = 0;
  for (RmChainRangeRow* at = RmChainRangeGetFirst(list); at; at = at->Next, ++index) {
    if (at == row) return index;
  }
  return -1;
}

RmChainRangeRow* RmChainRangeFindAt(const RmChainRangeList* list, double chain) {
  for (RmChainRangeRow* row = RmChainRangeGetFirst(list); row; row = row->Next) {
    if (row->Range.Low <= chain && chain <= row->Range.High) return row;
  }
  return nullptr;
}
