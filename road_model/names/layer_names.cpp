#include "road_model/names/layer_names.h"

#include <cstdlib>
#include <cstring>

#include "base/text.h"
#include "road_model/codes/layer_texts.h"

namespace {

// Whether `a` stands in front of `b` in the list's order.
bool boIdBefore(RmLayerId a, RmLayerId b) {
  if (a.Type != b.Type) return a.Type < b.Type;
  return a.Number < b.Number;
}

void vFreeRecord(RmLayerName* name) {
  vHeapFree(&name->Name);
  vRmLayerListClear(&name->Layers);
}

// A record with the defaults of a new one, linked in front of `before`.
RmLayerName* NewRecord(RmLayerNames* names, RmLayerName* before, RmLayerId id) {
  auto* name = SLinkNewObjAs<RmLayerName>(&names->Names, before);
  if (!name) return nullptr;
  name->Id = id;
  vRmFreshGuid(name->Guid);
  name->AddCenterPointIfMissing = 1;
  vRmLayerListInit(&name->Layers, 2, 0);
  name->LayersJoin = 1;
  vRmPresentationClear(&name->Pres);
  return name;
}

bool boOfType(const RmLayerName* name, uint32_t type) {
  return type == kRmAllLayerTypes || name->Id.Type == type;
}

constexpr int kTheoreticalDefaults[] = {0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 30, 31,
                                        32, 40, 41, 42, 43, 50, 51, 52, 60, 61, 62, 70, 71, 72,
                                        73};
constexpr int kPhysicalDefaults[] = {1, 6, 11, 16, 21, 91};

}  // namespace

RmLayerNames* RmLayerNamesCreate() {
  auto* names = static_cast<RmLayerNames*>(std::calloc(1, sizeof(RmLayerNames)));
  if (names) SLinkInit(&names->Names, sizeof(RmLayerName), nullptr);
  return names;
}

void vRmLayerNamesDelete(RmLayerNames** names) {
  if (!names || !*names) return;
  for (RmLayerName* name = RmLayerNamesGetFirst(*names); name; name = name->Next) {
    vFreeRecord(name);
  }
  vSLinkClear(&(*names)->Names);
  std::free(*names);
  *names = nullptr;
}

void vRmLayerNamesCopy(RmLayerNames* to, const RmLayerNames* from) {
  if (!to || !from || to == from) return;
  for (RmLayerName* name = RmLayerNamesGetFirst(to); name; name = name->Next) vFreeRecord(name);
  vSLinkClear(&to->Names);
  for (const RmLayerName* name = RmLayerNamesGetFirst(from); name; name = name->Next) {
    RmLayerName* copy = NewRecord(to, nullptr, name->Id);
    if (copy) vRmLayerNameCopy(copy, name, true);
  }
}

RmLayerName* RmLayerNamesGetFirst(const RmLayerNames* names) {
  return names ? ListFirst<RmLayerName>(&names->Names) : nullptr;
}

RmLayerName* RmLayerNameGetNext(const RmLayerName* name) { return name ? name->Next : nullptr; }

RmLayerName* RmLayerNameFind(const RmLayerNames* names, RmLayerId id) {
  for (RmLayerName* name = RmLayerNamesGetFirst(names); name; name = name->Next) {
    if (boRmLayerIdEquals(name->Id, id)) return name;
  }
  return nullptr;
}

const char* sRmLayerNameGetName(const RmLayerNames* names, RmLayerId id) {
  const RmLayerName* name = RmLayerNameFind(names, id);
  return name ? sOrEmpty(name->Name) : nullptr;
}

RmLayerName* RmLayerNamesFindByName(const RmLayerNames* names, const char* text) {
  if (!text) return nullptr;
  for (RmLayerName* name = RmLayerNamesGetFirst(names); name; name = name->Next) {
    if (std::strcmp(sOrEmpty(name->Name), text) == 0) return name;
  }
  return nullptr;
}

int iRmLayerNamesGetIndex(const RmLayerNames* names, RmLayerId id) {
  int index = 0;
  for (const RmLayerName* name = RmLayerNamesGetFirst(names); name; name = name->Next, ++index) {
    if (boRmLayerIdEquals(name->Id, id)) return index;
  }
  return -1;
}

RmLayerName* RmLayerNamesAtIndex(const RmLayerNames* names, uint32_t type, int index) {
  if (index < 0) return nullptr;
  for (RmLayerName* name = RmLayerNamesGetFirst(names); name; name = name->Next) {
    if (boOfType(name, type) && index-- == 0) return name;
  }
  return nullptr;
}

int iRmLayerNamesCountOfType(const RmLayerNames* names, uint32_t type) {
  int count = 0;
  for (const RmLayerName* name = RmLayerNamesGetFirst(names); name; name = name->Next) {
    if (boOfType(name, type)) ++count;
  }
  return count;
}

int iRmLayerNamesMaxNumber(const RmLayerNames* names, uint32_t type) {
  int highest = -1;
  for (const RmLayerName* name = RmLayerNamesGetFirst(names); name; name = name->Next) {
    if (boOfType(name, type) && name->Id.Number > highest) highest = name->Id.Number;
  }
  return highest;
}

RmLayerName* RmLayerNameSet(RmLayerNames* names, RmLayerId id, const char* text) {
  if (!names) return nullptr;
  RmLayerName* name = RmLayerNamesGetFirst(names);
  while (name && boIdBefore(name->Id, id)) name = name->Next;
  if (!name || !boRmLayerIdEquals(name->Id, id)) name = NewRecord(names, name, id);
  if (name) sHeapSet(&name->Name, text);
  return name;
}

void vRmLayerNameEnsure(RmLayerNames* names, RmLayerId id) {
  if (!names || !boRmLayerIdValid(id) || RmLayerNameFind(names, id)) return;
  RmLayerNameSet(names, id, sRmLayerIdDefaultName(id));
}

RmLayerName* RmLayerNameCopyFrom(RmLayerNames* names, const RmLayerNames* other, RmLayerId id) {
  RmLayerName* source = RmLayerNameFind(other, id);
  if (source && names && !RmLayerNameFind(names, id)) RmLayerNameSet(names, id, source->Name);
  return source;
}

void vRmLayerNamesAddDefaults(RmLayerNames* names, uint32_t type) {
  RmLayerId id = RmLayerIdMake(type, 0);
  if (RmLayerIdIsTheoretical(id)) {
    for (int number : kTheoreticalDefaults) vRmLayerNameEnsure(names, RmLayerIdMake(type, number));
  } else if (RmLayerIdIsPhysical(id)) {
    for (int number : kPhysicalDefaults) vRmLayerNameEnsure(names, RmLayerIdMake(type, number));
  }
}

void vRmLayerNameRemove(RmLayerNames* names, RmLayerName* name) {
  if (!names || !name) return;
  vFreeRecord(name);
  vSLinkDeleteObj(&names->Names, name);
}

void vRmLayerNamesRemoveType(RmLayerNames* names, uint32_t type) {
  RmLayerName* name = RmLayerNamesGetFirst(names);
  while (name) {
    RmLayerName* next = name->Next;
    if (name->Id.Type == type) vRmLayerNameRemove(names, name);
    name = next;
  }
}

void vRmLayerNameCopy(RmLayerName* to, const RmLayerName* from, bool withGuid) {
  if (!to || !from || to == from) return;
  sHeapSet(&to->Name, from->Name);
  if (withGuid) vRmLayerNameSetGuid(to, from->Guid);
  to->ComposedType = from->ComposedType;
  to->KeepOpenSpaces = from->KeepOpenSpaces;
  to->CloseContour = from->CloseContour;
  to->DeleteRedundantPoints = from->DeleteRedundantPoints;
  to->AddCenterPointIfMissing = from->AddCenterPointIfMissing;
  vRmLayerListCopy(&to->Layers, &from->Layers);
  to->LayersJoin = from->LayersJoin;
  to->Pres = from->Pres;
  to->Category = from->Category;
  to->Priority = from->Priority;
}

void vRmLayerNameSetGuid(RmLayerName* name, const char* guid) {
  if (name) sCopy(name->Guid, sOrEmpty(guid), sizeof name->Guid);
}
