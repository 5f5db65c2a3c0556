#include "road_model/names/layer_list.h"

#include <cfloat>
#include <cmath>
#include <cstring>

#include "base/text.h"

namespace {

void vFreeEntryTexts(RmLayerListEntry* entry) {
  vHeapFree(&entry->Filter);
  vHeapFree(&entry->Text);
}

bool boTextsEqual(const char* a, const char* b) {
  return std::strcmp(sOrEmpty(a), sOrEmpty(b)) == 0;
}

// Whether `a` stands in front of `b` in the sorted order.
bool boBefore(const RmLayerListEntry* a, const RmLayerListEntry* b) {
  bool aLast = (a->Flags & kRmLayerListEntryLast) != 0;
  bool bLast = (b->Flags & kRmLayerListEntryLast) != 0;
  if (aLast != bLast) return bLast;
  if (a->Id.Type != b->Id.Type) return a->Id.Type < b->Id.Type;
  return a->Id.Number < b->Id.Number;
}

}  // namespace

float fRmLayerListValue(double value) {
  if (std::isnan(value)) return 0.0f;
  if (value > FLT_MAX) return FLT_MAX;
  if (value < -FLT_MAX) return -FLT_MAX;
  return static_cast<float>(value);
}

void vRmLayerListInit(RmLayerList* list, int32_t mode, int32_t join) {
  SLinkInit(&list->Entries, sizeof(RmLayerListEntry), nullptr);
  list->Mode = mode;
  list->Join = join;
}

void vRmLayerListClear(RmLayerList* list) {
  if (!list) return;
  for (RmLayerListEntry* entry = RmLayerListGetFirst(list); entry; entry = entry->Next) {
    vFreeEntryTexts(entry);
  }
  vSLinkClear(&list->Entries);
}

void vRmLayerListCopy(RmLayerList* to, const RmLayerList* from) {
  if (!to || !from || to == from) return;
  vRmLayerListClear(to);
  to->Mode = from->Mode;
  to->Join = from->Join;
  for (const RmLayerListEntry* entry = RmLayerListGetFirst(from); entry; entry = entry->Next) {
    RmLayerListAddCopy(to, entry);
  }
}

RmLayerListEntry* RmLayerListGetFirst(const RmLayerList* list) {
  return list ? ListFirst<RmLayerListEntry>(&list->Entries) : nullptr;
}

int iRmLayerListCount(const RmLayerList* list) {
  return list ? static_cast<int>(lSLinkCount(&list->Entries)) : 0;
}

bool boRmLayerListIsEmpty(const RmLayerList* list) { return RmLayerListGetFirst(list) == nullptr; }

RmLayerListEntry* RmLayerListAdd(RmLayerList* list, RmLayerId id) {
  if (!list) return nullptr;
  auto* entry = SLinkNewObjAs<RmLayerListEntry>(&list->Entries);
  if (!entry) return nullptr;
  entry->Id = id;
  entry->Kind = 1;
  return entry;
}

RmLayerListEntry* RmLayerListAddCopy(RmLayerList* list, const RmLayerListEntry* source) {
  RmLayerListEntry* entry = RmLayerListAdd(list, source->Id);
  if (!entry) return nullptr;
  entry->Kind = source->Kind;
  entry->Value = source->Value;
  entry->Number = source->Number;
  entry->Flags = source->Flags;
  entry->Value2 = source->Value2;
  sHeapSet(&entry->Filter, source->Filter);
  sHeapSet(&entry->Text, source->Text);
  return entry;
}

void vRmLayerListRemove(RmLayerList* list, RmLayerListEntry* entry) {
  if (!list || !entry) return;
  vFreeEntryTexts(entry);
  vSLinkDeleteObj(&list->Entries, entry);
}

bool boRmLayerListEntryIsPlain(const RmLayerListEntry* entry) {
  return entry->Kind == 1 && entry->Value == 0.0f && sOrEmpty(entry->Filter)[0] == 0 &&
         entry->Flags == 0 && entry->Number == 0 && entry->Value2 == 0.0f &&
         sOrEmpty(entry->Text)[0] == 0;
}

void vRmLayerListEntrySetFilter(RmLayerListEntry* entry, const char* filter) {
  sHeapSet(&entry->Filter, filter);
}

void vRmLayerListEntrySetText(RmLayerListEntry* entry, const char* text) {
  sHeapSet(&entry->Text, text);
}

void vRmLayerListSort(RmLayerList* list) {
  if (!list) return;
  // Insertion into a new chain keeps entries of equal keys in their order.
  RmLayerListEntry* sorted = nullptr;
  RmLayerListEntry* entry = RmLayerListGetFirst(list);
  while (entry) {
    RmLayerListEntry* next = entry->Next;
    RmLayerListEntry** place = &sorted;
    while (*place && !boBefore(entry, *place)) place = &(*place)->Next;
    entry->Next = *place;
    *place = entry;
    entry = next;
  }
  RmLayerListEntry* last = sorted;
  while (last && last->Next) last = last->Next;
  list->Entries.first = sorted;
  list->Entries.last = last;
}

bool boRmLayerListsEqual(const RmLayerList* a, const RmLayerList* b, double tolerance) {
  if (!a || !b) return a == b;
  if (a->Mode != b->Mode || a->Join != b->Join) return false;
  const RmLayerListEntry* x = RmLayerListGetFirst(a);
  const RmLayerListEntry* y = RmLayerListGetFirst(b);
  for (; x && y; x = x->Next, y = y->Next) {
    if (!boRmLayerIdEquals(x->Id, y->Id) || x->Kind != y->Kind || x->Flags != y->Flags ||
        std::fabs(double(x->Value) - double(y->Value)) > tolerance ||
        !boTextsEqual(x->Filter, y->Filter) || !boTextsEqual(x->Text, y->Text)) {
      return false;
    }
  }
  return !x && !y;
}

bool boRmLayerListIsTheoretical(const RmLayerList* list) {
  for (const RmLayerListEntry* entry = RmLayerListGetFirst(list); entry; entry = entry->Next) {
    if (!RmLayerIdIsTheoretical(entry->Id)) return false;
  }
  return true;
}
