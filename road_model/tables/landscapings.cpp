#include "road_model/tables/landscapings.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

#include "base/numbers.h"

namespace {

// Chainages within this distance are the same chainage.
constexpr double kSameChain = 1e-5;

void vClearSide(ListHead* list) {
  for (RmLandscaping* item = RmLandscapingsGetFirst(list); item; item = item->Next) {
    vDLinkClear(&item->Rows);
  }
  vDLinkClear(list);
}

// Copies the landscapings with their rows; the byte copy of a landscaping
// shares its source's rows, so each gets its own.
void vCopySide(ListHead* to, const ListHead* from) {
  vClearSide(to);
  DLinkCopy(from, to, nullptr);
  RmLandscaping* target = RmLandscapingsGetFirst(to);
  for (RmLandscaping* source = RmLandscapingsGetFirst(from); source && target;
       source = source->Next, target = target->Next) {
    DLinkInit(&target->Rows, sizeof(RmLandscapingRow), nullptr);
    DLinkCopy(&source->Rows, &target->Rows, nullptr);
  }
}

}  // namespace

RmLandscapings* RmLandscapingsCreate() {
  auto* table = static_cast<RmLandscapings*>(std::calloc(1, sizeof(RmLandscapings)));
  if (!table) return nullptr;
  DLinkInit(&table->Left, sizeof(RmLandscaping), nullptr);
  DLinkInit(&table->Right, sizeof(RmLandscaping), nullptr);
  return table;
}

void vRmLandscapingsDelete(RmLandscapings** table) {
  if (!table || !*table) return;
  vClearSide(&(*table)->Left);
  vClearSide(&(*table)->Right);
  std::free(*table);
  *table = nullptr;
}

void vRmLandscapingsCopy(RmLandscapings* to, const RmLandscapings* from) {
  if (!to || !from || to == from) return;
  vCopySide(&to->Left, &from->Left);
  vCopySide(&to->Right, &from->Right);
}

bool boRmLandscapingsHasRows(const RmLandscapings* table) {
  return table && (table->Left.first || table->Right.first);
}

ListHead* RmLandscapingsGetSide(const RmLandscapings* table, int side) {
  if (!table || (side != 1 && side != 2)) return nullptr;
  return const_cast<ListHead*>(side == 1 ? &table->Left : &table->Right);
}

RmLandscaping* RmLandscapingsGetFirst(const ListHead* list) {
  return list ? ListFirst<RmLandscaping>(list) : nullptr;
}

RmLandscaping* RmLandscapingGetNext(const RmLandscaping* landscaping) {
  return landscaping ? landscaping->Next : nullptr;
}

RmLandscaping* RmLandscapingAddBefore(ListHead* list, RmLandscaping* before) {
  if (!list) return nullptr;
  RmLandscaping* item = DLinkNewObjAs<RmLandscaping>(list, before);
  if (!item) return nullptr;
  item->Integers[0] = kNullInteger;
  item->Integers[1] = kNullInteger;
  item->Real = kNullNumber;
  DLinkInit(&item->Rows, sizeof(RmLandscapingRow), nullptr);
  return item;
}

RmLandscaping* RmLandscapingAdd(ListHead* list, double chain) {
  RmLandscaping* before = RmLandscapingsGetFirst(list);
  while (before && before->Chain <= chain) before = before->Next;
  RmLandscaping* item = RmLandscapingAddBefore(list, before);
  if (item) item->Chain = chain;
  return item;
}

void vRmLandscapingsSort(ListHead* list) {
  if (!list || !list->first) return;
  std::vector<RmLandscaping*> items;
  for (RmLandscaping* item = RmLandscapingsGetFirst(list); item; item = item->Next) {
    items.push_back(item);
  }
  std::stable_sort(items.begin(), items.end(), [](const RmLandscaping* a, const RmLandscaping* b) {
    return a->Chain < b->Chain - kSameChain;
  });
  RmLandscaping* prev = nullptr;
  for (RmLandscaping* item : items) {
    item->Prev = prev;
    if (prev) prev->Next = item;
    prev = item;
  }
  prev->Next = nullptr;
  list->first = items.front();
  list->last = prev;
}

int iRmLandscapingGetIndex(const ListHead* list, const RmLandscaping* landscaping) {
  int index = 0;
  for (RmLandscaping* item = RmLandscapingsGetFirst(list); item; item = item->Next, ++index) {
    if (item == landscaping) return index;
  }
  return -1;
}

RmLandscaping* RmLandscapingFindAt(const ListHead* list, double chain) {
  for (RmLandscaping* item = RmLandscapingsGetFirst(list); item; item = item->Next) {
    if (std::abs(item->Chain - chain) < kSameChain) return item;
  }
  return nullptr;
}

RmLandscapingRow* RmLandscapingRowAdd(RmLandscaping* landscaping) {
  if (!landscaping) return nullptr;
  RmLandscapingRow* row = DLinkNewObjAs<RmLandscapingRow>(&landscaping->Rows);
  if (row) std::fill(std::begin(row->Values), std::end(row->Values), kNullNumber);
  return row;
}

RmLandscapingRow* RmLandscapingRowsGetFirst(const RmLandscaping* landscaping) {
  return landscaping ? ListFirst<RmLandscapingRow>(&landscaping->Rows) : nullptr;
}

RmLandscapingRow* RmLandscapingRowGetNext(const RmLandscapingRow* row) {
  return row ? row->Next : nullptr;
}
