#include "road_model/names/annotation_types.h"

#include <cstdlib>

#include "base/text.h"
#include "road_model/names/owned_text.h"

namespace {

void vFreeOwned(RmAnnotationType* type) {
  vHeapFree(&type->Name);
  vHeapFree(&type->AppLayer);
  vRmOwnedTextSet(&type->SurfaceCodes, nullptr);
  vHeapFree(&type->LineName);
}

void vSetDefaults(RmAnnotationType* type) {
  RmAnnotationType* next = type->Next;
  *type = RmAnnotationType{};
  type->Next = next;
  vRmLayerIdClear(&type->Layer);
  vRmLayerIdClear(&type->DiffLayer);
  vRmLayerIdClear(&type->Diff2Layer);
  type->RemoveValuesHeightRelCl = -99999.0;
}

}  // namespace

RmAnnotationTypes* RmAnnotationTypesCreate(int32_t kind) {
  auto* types = static_cast<RmAnnotationTypes*>(std::calloc(1, sizeof(RmAnnotationTypes)));
  if (!types) return nullptr;
  SLinkInit(&types->Types, sizeof(RmAnnotationType), nullptr);
  types->Kind = kind;
  return types;
}

void vRmAnnotationTypesDelete(RmAnnotationTypes** types) {
  if (!types || !*types) return;
  for (RmAnnotationType* type = RmAnnotationTypesGetFirst(*types); type; type = type->Next) {
    vFreeOwned(type);
  }
  vSLinkClear(&(*types)->Types);
  std::free(*types);
  *types = nullptr;
}

void vRmAnnotationTypesCopy(RmAnnotationTypes* to, const RmAnnotationTypes* from) {
  if (!to || !from || to == from) return;
  for (RmAnnotationType* type = RmAnnotationTypesGetFirst(to); type; type = type->Next) {
    vFreeOwned(type);
  }
  vSLinkClear(&to->Types);
  to->Kind = from->Kind;
  for (const RmAnnotationType* type = RmAnnotationTypesGetFirst(from); type; type = type->Next) {
    auto* copy = SLinkNewObjAs<RmAnnotationType>(&to->Types);
    if (!copy) return;
    vSetDefaults(copy);
    vRmAnnotationTypeCopy(copy, type);
  }
}

RmAnnotationType* RmAnnotationTypesGetFirst(const RmAnnotationTypes* types) {
  return types ? ListFirst<RmAnnotationType>(&types->Types) : nullptr;
}

RmAnnotationType* RmAnnotationTypeGetNext(const RmAnnotationType* type) {
  return type ? type->Next : nullptr;
}

RmAnnotationType* RmAnnotationTypeFind(const RmAnnotationTypes* types, int32_t number) {
  for (RmAnnotationType* type = RmAnnotationTypesGetFirst(types); type; type = type->Next) {
    if (type->Number == number) return type;
  }
  return nullptr;
}

RmAnnotationType* RmAnnotationTypeAdd(RmAnnotationTypes* types, int32_t number) {
  if (!types) return nullptr;
  RmAnnotationType* before = RmAnnotationTypesGetFirst(types);
  while (before && before->Number < number) before = before->Next;
  auto* type = SLinkNewObjAs<RmAnnotationType>(&types->Types, before);
  if (!type) return nullptr;
  vSetDefaults(type);
  type->Number = number;
  return type;
}

void vRmAnnotationTypeRemove(RmAnnotationTypes* types, RmAnnotationType* type) {
  if (!types || !type) return;
  vFreeOwned(type);
  vSLinkDeleteObj(&types->Types, type);
}

void vRmAnnotationTypeCopy(RmAnnotationType* to, const RmAnnotationType* from) {
  if (!to || !from || to == from) return;
  vFreeOwned(to);
  RmAnnotationType* next = to->Next;
  *to = *from;
  to->Next = next;
  to->Name = nullptr;
  to->AppLayer = nullptr;
  to->SurfaceCodes = nullptr;
  to->LineName = nullptr;
  sHeapSet(&to->Name, from->Name);
  sHeapSet(&to->AppLayer, from->AppLayer);
  vRmOwnedTextSet(&to->SurfaceCodes, from->SurfaceCodes);
  sHeapSet(&to->LineName, from->LineName);
}

void vRmAnnotationTypeDefaults(RmAnnotationType* type) {
  if (!type) return;
  vFreeOwned(type);
  vSetDefaults(type);
}

void vRmAnnotationTypesNameLines(RmAnnotationTypes* types) {
  for (RmAnnotationType* type = RmAnnotationTypesGetFirst(types); type; type = type->Next) {
    if (type->AnnotationMethod == kRmAnnotateLine && !sOrEmpty(type->LineName)[0]) {
      sHeapSet(&type->LineName, type->Name);
    }
  }
}
