#include "road_model/surfaces/surface_groups.h"

#include <cstdlib>

#include "road_model/codes/pcode.h"
#include "road_model/surfaces/surface_ref_heights.h"
#include "road_model/surfaces/surfaces.h"
#include "road_model/tables/surface_border_lines.h"

namespace {

void vFreeGroup(RmSurfaceGroup* group) {
  vRmSurfacesClear(group);
  vRmSurfaceRefHeightsDelete(&group->RefHeights);
  vRmSurfaceBorderLinesDelete(&group->BorderLines);
}

// A deep copy of an owned table, or null.
template <typename Table>
Table* Duplicate(const Table* from, Table* (*create)(), void (*copy)(Table*, const Table*)) {
  if (!from) return nullptr;
  Table* table = create();
  if (table) copy(table, from);
  return table;
}

}  // namespace

RmSurfaceGroups* RmSurfaceGroupsCreate() {
  auto* groups = static_cast<RmSurfaceGroups*>(std::calloc(1, sizeof(RmSurfaceGroups)));
  if (groups) SLinkInit(&groups->Groups, sizeof(RmSurfaceGroup), nullptr);
  return groups;
}

void vRmSurfaceGroupsDelete(RmSurfaceGroups** groups) {
  if (!groups || !*groups) return;
  for (RmSurfaceGroup* group = RmSurfaceGroupsGetFirst(*groups); group; group = group->Next) {
    vFreeGroup(group);
  }
  vSLinkClear(&(*groups)->Groups);
  std::free(*groups);
  *groups = nullptr;
}

void vRmSurfaceGroupsCopy(RmSurfaceGroups* to, const RmSurfaceGroups* from) {
  if (!to || !from || to == from) return;
  for (RmSurfaceGroup* group = RmSurfaceGroupsGetFirst(to); group; group = group->Next) {
    vFreeGroup(group);
  }
  vSLinkClear(&to->Groups);
  for (RmSurfaceGroup* group = RmSurfaceGroupsGetFirst(from); group; group = group->Next) {
    auto* copy = SLinkNewObjAs<RmSurfaceGroup>(&to->Groups);
    if (!copy) return;
    DLinkInit(&copy->Surfaces, sizeof(RmSurface), nullptr);
    vRmSurfaceGroupCopy(copy, group);
  }
}

bool boRmSurfaceGroupsHasRows(const RmSurfaceGroups* groups) {
  return RmSurfaceGroupsGetFirst(groups) != nullptr;
}

RmSurfaceGroup* RmSurfaceGroupsGetFirst(const RmSurfaceGroups* groups) {
  return groups ? static_cast<RmSurfaceGroup*>(groups->Groups.first) : nullptr;
}

RmSurfaceGroup* RmSurfaceGroupGetNext(const RmSurfaceGroup* group) {
  return group ? group->Next : nullptr;
}

RmSurfaceGroup* RmSurfaceGroupFind(const RmSurfaceGroups* groups, RmLayerId id) {
  for (RmSurfaceGroup* group = RmSurfaceGroupsGetFirst(groups); group; group = group->Next) {
    if (boRmLayerIdEquals(group->Id, id)) return group;
  }
  return nullptr;
}

RmSurfaceGroup* RmSurfaceGroupsAdd(RmSurfaceGroups* groups, RmLayerId id) {
  if (!groups) return nullptr;
  RmSurfaceGroup* before = RmSurfaceGroupsGetFirst(groups);
  while (before && before->Id.Number <= id.Number) before = before->Next;
  auto* group = SLinkNewObjAs<RmSurfaceGroup>(&groups->Groups, before);
  if (!group) return nullptr;
  DLinkInit(&group->Surfaces, sizeof(RmSurface), nullptr);
  group->Id = id;
  vRmLayerIdClear(&group->ClipLayerLeft);
  vRmLayerIdClear(&group->ClipLayerRight);
  return group;
}

RmSurfaceGroup* RmSurfaceGroupsReplace(RmSurfaceGroups* groups, RmLayerId id) {
  vRmSurfaceGroupRemove(groups, RmSurfaceGroupFind(groups, id));
  RmSurfaceGroup* group = RmSurfaceGroupsAdd(groups, id);
  if (!group) return nullptr;
  group->RefSurf = iRmPcodeBuild2(1, 1);
  group->RefHeights = RmSurfaceRefHeightsCreate();
  return group;
}

void vRmSurfaceGroupRemove(RmSurfaceGroups* groups, RmSurfaceGroup* group) {
  if (!groups || !group) return;
  vFreeGroup(group);
  vSLinkDeleteObj(&groups->Groups, group);
}

int iRmSurfaceGroupsGetIndexOf(const RmSurfaceGroups* groups, const RmSurfaceGroup* group) {
  int index = 0;
  for (RmSurfaceGroup* at = RmSurfaceGroupsGetFirst(groups); at; at = at->Next, ++index) {
    if (at == group) return index;
  }
  return -1;
}

void vRmSurfaceGroupCopy(RmSurfaceGroup* to, const RmSurfaceGroup* from) {
  if (!to || !from || to == from) return;
  vFreeGroup(to);
  for (RmSurface* surface = RmSurfacesGetFirst(from); surface; surface = surface->Next) {
    RmSurface* copy = RmSurfaceAdd(to, surface->Number);
    if (copy) vRmSurfaceCopy(copy, surface);
  }
  to->RefHeights =
      Duplicate(from->RefHeights, RmSurfaceRefHeightsCreate, vRmSurfaceRefHeightsCopy);
  to->BorderLines =
      Duplicate(from->BorderLines, RmSurfaceBorderLinesCreate, vRmSurfaceBorderLinesCopy);
  to->Id = from->Id;
  to->RefSurf = from->RefSurf;
  to->RefHeight = from->RefHeight;
  to->TrimLeft = from->TrimLeft;
  to->TrimRight = from->TrimRight;
  to->ClipLayerLeft = from->ClipLayerLeft;
  to->ClipLayerRight = from->ClipLayerRight;
  to->Start = from->Start;
}

void vRmSurfaceGroupSetClipLayer(RmSurfaceGroup* group, RmLayerId id, int side) {
  if (!group) return;
  if (side == 0 || side == 1) group->ClipLayerLeft = id;
  if (side == 0 || side == 2) group->ClipLayerRight = id;
}

int32_t iRmSurfaceGroupGetTrim(const RmSurfaceGroup* group, int side) {
  if (!group) return 0;
  return side == 1 ? group->TrimLeft : group->TrimRight;
}

void vRmSurfaceGroupSetTrim(RmSurfaceGroup* group, int side, int32_t trim) {
  if (!group) return;
  (side == 1 ? group->TrimLeft : group->TrimRight) = trim;
}

void vRmSurfaceGroupGetStart(const RmSurfaceGroup* group, RmSurfaceGroupStart* start) {
  if (group && start) *start = group->Start;
}

void vRmSurfaceGroupSetStart(RmSurfaceGroup* group, const RmSurfaceGroupStart* start) {
  if (group && start) group->Start = *start;
}

void vRmSurfaceGroupsMapCodes(RmSurfaceGroups* groups, int32_t (*map)(int32_t code)) {
  if (!map) return;
  for (RmSurfaceGroup* group = RmSurfaceGroupsGetFirst(groups); group; group = group->Next) {
    group->RefSurf = map(group->RefSurf);
    for (RmSurface* surface = RmSurfacesGetFirst(group); surface; surface = surface->Next) {
      surface->Number = map(surface->Number);
    }
  }
}

void vRmSurfaceGroupsStartAtOffsets(RmSurfaceGroups* groups) {
  for (RmSurfaceGroup* group = RmSurfaceGroupsGetFirst(groups); group; group = group->Next) {
    RmSurfaceGroupStart& start = group->Start;
    if (start.Type != kRmStartAtExtraLine) continue;
    start.Type = kRmStartAtCentre;
    start.XOffset = start.LayerNoOrExtraLine;
    start.YOffset = start.Pcode2;
    start.LayerNoOrExtraLine = -99999.0f;
    start.Pcode2 = -9999.0f;
  }
}
