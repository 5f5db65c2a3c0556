// Lists of layers: which layers a layer name or a mass is made of, each
// entry with the codes and values that select its part of the layer.
#pragma once

#include <cstdint>

#include "base/slink.h"
#include "road_model/codes/layer_id.h"

struct RmLayerListEntry {
  RmLayerListEntry* Next;
  RmLayerId Id;
  int32_t Kind;    // 1 by default
  float Value;
  char* Filter;    // owned code filter; null when empty
  char* Text;      // owned; null when empty
  int32_t Number;
  uint32_t Flags;  // kRmLayerListEntryLast sorts the entry behind the others
  float Value2;
};

struct RmLayerList {
  ListHead Entries;  // of RmLayerListEntry
  int32_t Mode;
  int32_t Join;
};

// The flag that puts an entry behind all entries without it.
inline constexpr uint32_t kRmLayerListEntryLast = 1u << 4;

// A value of an entry from a real: values beyond the range of a float
// stand at its ends.
float fRmLayerListValue(double value);

// An empty list of heap entries with its mode and join.
void vRmLayerListInit(RmLayerList* list, int32_t mode, int32_t join);
// Frees the entries and their texts; mode and join stay.
void vRmLayerListClear(RmLayerList* list);
// Makes `to` a deep copy of `from`, mode and join included.
void vRmLayerListCopy(RmLayerList* to, const RmLayerList* from);

RmLayerListEntry* RmLayerListGetFirst(const RmLayerList* list);
int iRmLayerListCount(const RmLayerList* list);
bool boRmLayerListIsEmpty(const RmLayerList* list);

// A new entry of `id` with the defaults at the end; null when memory ran out.
RmLayerListEntry* RmLayerListAdd(RmLayerList* list, RmLayerId id);
// A new entry at the end, a deep copy of `entry`.
RmLayerListEntry* RmLayerListAddCopy(RmLayerList* list, const RmLayerListEntry* entry);
// Unlinks and frees the entry with its texts.
void vRmLayerListRemove(RmLayerList* list, RmLayerListEntry* entry);

// Whether every field but the id holds its default: such an entry is told
// by its id alone.
bool boRmLayerListEntryIsPlain(const RmLayerListEntry* entry);
void vRmLayerListEntrySetFilter(RmLayerListEntry* entry, const char* filter);
void vRmLayerListEntrySetText(RmLayerListEntry* entry, const char* text);

// Orders the entries: those without kRmLayerListEntryLast first, then by
// type and number. Stable.
void vRmLayerListSort(RmLayerList* list);

// Entry by entry: ids, kinds, flags, filters and texts equal, the values
// within `tolerance`; the lists' modes and joins equal.
bool boRmLayerListsEqual(const RmLayerList* a, const RmLayerList* b, double tolerance);
// Whether each entry of the list is of a theoretical layer.
bool boRmLayerListIsTheoretical(const RmLayerList* list);
