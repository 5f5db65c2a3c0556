// The model's layer names (LAYERNAMES): which layers exist, what they are
// called and how they are drawn. A list of RmLayerName records, ascending by
// layer type and then by number, one record per id.
//
// A layer without a record of its own is called by the default name of its
// id in the factory settings (sRmLayerIdDefaultName); a record's name wins
// over that.
#pragma once

#include <cstdint>

#include "base/slink.h"
#include "road_model/codes/layer_id.h"
#include "road_model/names/fresh_guid.h"
#include "road_model/names/layer_list.h"
#include "road_model/names/presentation.h"

inline constexpr int kRmLayerGuidSize = static_cast<int>(kRmGuidTextSize);

struct RmLayerName {
  RmLayerName* Next;
  RmLayerId Id;
  char* Name;                    // owned; null when empty
  char Guid[kRmLayerGuidSize];   // GUID
  int32_t ComposedType;          // COMPOSEDTYPE
  int32_t KeepOpenSpaces;        // KEEPOPENSPACES
  int32_t CloseContour;          // CLOSECONTOUR
  int32_t DeleteRedundantPoints; // DELETEREDUNANTPOINTS
  int32_t AddCenterPointIfMissing;  // ADDCENTERPOINTIFMISSING, 1 by default
  RmLayerList Layers;            // LAYERS, mode 2
  int32_t LayersJoin;            // LAYERSJOIN, 1 by default
  RmPresentation Pres;
  int32_t Category;              // CATEGORY: 1 to 5 puts a physical layer in a group
  int32_t Priority;              // PRIORITY: -1 takes it out of derivation
};

struct RmLayerNames {
  ListHead Names;  // of RmLayerName
};

// The type that stands for every type in RmLayerNamesAtIndex.
inline constexpr uint32_t kRmAllLayerTypes = ~0u;

// ---- The list ----

RmLayerNames* RmLayerNamesCreate();
// Deletes the list with its records and nulls the pointer.
void vRmLayerNamesDelete(RmLayerNames** names);
// Makes `to` a deep copy of `from`, GUIDs included.
void vRmLayerNamesCopy(RmLayerNames* to, const RmLayerNames* from);
RmLayerName* RmLayerNamesGetFirst(const RmLayerNames* names);
RmLayerName* RmLayerNameGetNext(const RmLayerName* name);

// ---- Lookups ----

// The record of `id`, both halves equal; null when there is none or the list
// is null.
RmLayerName* RmLayerNameFind(const RmLayerNames* names, RmLayerId id);
// The name of the record of `id`; null when there is no record, the empty
// text for a record without a name.
const char* sRmLayerNameGetName(const RmLayerNames* names, RmLayerId id);
// The first record whose name is `name`, byte for byte.
RmLayerName* RmLayerNamesFindByName(const RmLayerNames* names, const char* name);
// The position of the record of `id` from 0; -1 when there is none.
int iRmLayerNamesGetIndex(const RmLayerNames* names, RmLayerId id);
// The `index`-th record of `type` (kRmAllLayerTypes: of any type).
RmLayerName* RmLayerNamesAtIndex(const RmLayerNames* names, uint32_t type, int index);
int iRmLayerNamesCountOfType(const RmLayerNames* names, uint32_t type);
// The highest number of `type`; -1 when the type has no record.
int iRmLayerNamesMaxNumber(const RmLayerNames* names, uint32_t type);

// ---- Adding and removing ----

// The named add: the record of `id` gets `name`. A missing record is made at
// its place in the order, with a fresh GUID, no presentation, and the
// defaults of a new record; an existing one keeps all but its name. Null
// when memory ran out.
RmLayerName* RmLayerNameSet(RmLayerNames* names, RmLayerId id, const char* name);
// The add with the default name: for a valid id without a record, a record
// named by the factory settings' name of the id. A record that exists keeps
// its name.
void vRmLayerNameEnsure(RmLayerNames* names, RmLayerId id);
// The record of `id` in `other`; when `names` has none, one is made there
// with the other's name. Null when `other` has no record of `id`.
RmLayerName* RmLayerNameCopyFrom(RmLayerNames* names, const RmLayerNames* other, RmLayerId id);
// Default names for the standard layers of a type: theoretical types get
// 0 to 11, 30 to 32, 40 to 43, 50 to 52, 60 to 62 and 70 to 73; physical
// types 1, 6, 11, 16, 21 and 91.
void vRmLayerNamesAddDefaults(RmLayerNames* names, uint32_t type);
// Unlinks and deletes the record.
void vRmLayerNameRemove(RmLayerNames* names, RmLayerName* name);
void vRmLayerNamesRemoveType(RmLayerNames* names, uint32_t type);

// ---- Records ----

// Every field of `from` into `to` but the link and the id; the GUID only
// with `withGuid`.
void vRmLayerNameCopy(RmLayerName* to, const RmLayerName* from, bool withGuid);
void vRmLayerNameSetGuid(RmLayerName* name, const char* guid);
