#include "road_model/tunnel/tunnel_data.h"

#include <cstdlib>
#include <cstring>

#include "base/numbers.h"
#include "base/text.h"

namespace {

void vClearPackage(RmTunnelPackage* package) {
  std::free(package->Standard);
  package->Standard = nullptr;
  for (auto* group = ListFirst<RmTunnelSurfaceGroup>(&package->SurfaceGroups); group;
       group = group->Next) {
    vSLinkClear(&group->Rows);
  }
  vSLinkClear(&package->SurfaceGroups);
}

void vClear(RmTunnelData* data) {
  vSLinkClear(&data->Sections);
  vSLinkClear(&data->Rotations);
  for (auto* package = ListFirst<RmTunnelPackage>(&data->Packages); package;
       package = package->Next) {
    vClearPackage(package);
  }
  vSLinkClear(&data->Packages);
}

bool boCopyPackage(RmTunnelData* to, const RmTunnelPackage* from) {
  RmTunnelPackage* package = RmTunnelPackageAdd(to, from->Name);
  if (!package) return false;
  if (from->Standard) {
    RmTunnelStandard* standard = RmTunnelPackageMakeStandard(package);
    if (!standard) return false;
    *standard = *from->Standard;
  }
  for (auto* group = ListFirst<RmTunnelSurfaceGroup>(&from->SurfaceGroups); group;
       group = group->Next) {
    RmTunnelSurfaceGroup* copy = RmTunnelSurfaceGroupAdd(package, group->LayerId);
    if (!copy) return false;
    ListHead rows = copy->Rows;
    RmTunnelSurfaceGroup* next = copy->Next;
    *copy = *group;
    copy->Next = next;
    copy->Rows = rows;
    SLinkCopy(&group->Rows, &copy->Rows, nullptr);
  }
  return true;
}

}  // namespace

RmTunnelData* RmTunnelDataCreate() {
  auto* data = static_cast<RmTunnelData*>(std::calloc(1, sizeof(RmTunnelData)));
  if (!data) return nullptr;
  SLinkInit(&data->Sections, sizeof(RmTunnelSection), nullptr);
  SLinkInit(&data->Rotations, sizeof(RmTunnelRotation), nullptr);
  SLinkInit(&data->Packages, sizeof(RmTunnelPackage), nullptr);
  return data;
}

void vRmTunnelDataDelete(RmTunnelData** data) {
  if (!data || !*data) return;
  vClear(*data);
  std::free(*data);
  *data = nullptr;
}

void vRmTunnelDataCopy(RmTunnelData* to, const RmTunnelData* from) {
  if (!to || !from || to == from) return;
  vClear(to);
  to->InterpolMethod = from->InterpolMethod;
  to->RoadbedLayerNo = from->RoadbedLayerNo;
  SLinkCopy(&from->Sections, &to->Sections, nullptr);
  SLinkCopy(&from->Rotations, &to->Rotations, nullptr);
  for (auto* package = ListFirst<RmTunnelPackage>(&from->Packages); package;
       package = package->Next) {
    if (!boCopyPackage(to, package)) return;
  }
}

bool boRmTunnelDataHasRows(const RmTunnelData* data) {
  return data && (data->Sections.first || data->Rotations.first);
}

RmTunnelSection* RmTunnelSectionAdd(RmTunnelData* data, double chain, const char* name) {
  if (!data) return nullptr;
  auto* section = SLinkNewObjAs<RmTunnelSection>(&data->Sections);
  if (!section) return nullptr;
  section->Chain = chain;
  sCopy(section->Name, sOrEmpty(name), sizeof section->Name);
  return section;
}

RmTunnelRotation* RmTunnelRotationAdd(RmTunnelData* data, double chain, int method, double value) {
  if (!data) return nullptr;
  auto* rotation = SLinkNewObjAs<RmTunnelRotation>(&data->Rotations);
  if (!rotation) return nullptr;
  rotation->Chain = chain;
  rotation->Method = method;
  rotation->Value = value;
  return rotation;
}

RmTunnelPackage* RmTunnelPackageAdd(RmTunnelData* data, const char* name) {
  if (!data) return nullptr;
  auto* package = SLinkNewObjAs<RmTunnelPackage>(&data->Packages);
  if (!package) return nullptr;
  sCopy(package->Name, sOrEmpty(name), sizeof package->Name);
  SLinkInit(&package->SurfaceGroups, sizeof(RmTunnelSurfaceGroup), nullptr);
  return package;
}

RmTunnelStandard* RmTunnelPackageMakeStandard(RmTunnelPackage* package) {
  if (!package) return nullptr;
  if (!package->Standard) {
    package->Standard = static_cast<RmTunnelStandard*>(std::calloc(1, sizeof(RmTunnelStandard)));
  }
  return package->Standard;
}

RmTunnelSurfaceGroup* RmTunnelSurfaceGroupAdd(RmTunnelPackage* package, uint32_t layerId) {
  if (!package) return nullptr;
  auto* group = SLinkNewObjAs<RmTunnelSurfaceGroup>(&package->SurfaceGroups);
  if (!group) return nullptr;
  group->LayerId = layerId;
  group->StartLayerNoOrExtraLine = kNullNumber;
  group->StartPcode2 = kNullNumber;
  SLinkInit(&group->Rows, sizeof(RmTunnelSurfaceRow), nullptr);
  return group;
}

RmTunnelSurfaceRow* RmTunnelSurfaceRowAdd(RmTunnelSurfaceGroup* group) {
  return group ? SLinkNewObjAs<RmTunnelSurfaceRow>(&group->Rows) : nullptr;
}
