#include "road_model/names/mass_types.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "base/temp_text.h"
#include "base/text.h"
#include "road_model/names/owned_text.h"

namespace {

constexpr double kAbsentReal = -99999.0;
constexpr int32_t kAbsentInteger = -99999;

void vFreeOwned(RmMassType* type) {
  vHeapFree(&type->StandardCodeGroup);
  vHeapFree(&type->Name);
  vHeapFree(&type->StdCode);
  vHeapFree(&type->CpCode);
  vHeapFree(&type->ConversionUnit);
  vRmOwnedTextSet(&type->ResLayerSur, nullptr);
  vHeapFree(&type->Info);
  vRmLayerListClear(&type->FromLayers);
  vRmLayerListClear(&type->ToLayers);
  vRmLayerListClear(&type->AreaLayers);
  vSLinkClear(&type->ChainRanges);
  vRmMassNumbersSet(&type->FromMasses, nullptr, 0);
  vRmMassNumbersSet(&type->ToMasses, nullptr, 0);
}

// The defaults of a type whose storage holds nothing owned.
void vSetDefaults(RmMassType* type) {
  RmMassType* next = type->Next;
  *type = RmMassType{};
  type->Next = next;
  type->ListKind = -1;
  type->ScaleFactor = 1.0;
  type->ConversionFactor = 1.0;
  type->ResLayerExtRight = kAbsentReal;
  type->ResLineLeft = kAbsentInteger;
  type->ResLineRight = kAbsentInteger;
  vRmLayerListInit(&type->FromLayers, 0, 1);
  vRmLayerListInit(&type->ToLayers, 1, 0);
  vRmLayerListInit(&type->AreaLayers, 2, 2);
  SLinkInit(&type->ChainRanges, sizeof(RmMassChainRange), nullptr);
  vRmLayerIdClear(&type->RestrictionLayer);
  vRmPresentationClear(&type->Pres);
}

// The first type whose number is not below `number`.
RmMassType* PlaceOf(const RmMassTypes* types, int32_t number) {
  RmMassType* type = RmMassTypesGetFirst(types);
  while (type && type->Number < number) type = type->Next;
  return type;
}

}  // namespace

RmMassTypes* RmMassTypesCreate(int32_t kind) {
  auto* types = static_cast<RmMassTypes*>(std::calloc(1, sizeof(RmMassTypes)));
  if (!types) return nullptr;
  SLinkInit(&types->Types, sizeof(RmMassType), nullptr);
  types->Kind = kind;
  return types;
}

void vRmMassTypesDelete(RmMassTypes** types) {
  if (!types || !*types) return;
  for (RmMassType* type = RmMassTypesGetFirst(*types); type; type = type->Next) vFreeOwned(type);
  vSLinkClear(&(*types)->Types);
  std::free(*types);
  *types = nullptr;
}

void vRmMassTypesCopy(RmMassTypes* to, const RmMassTypes* from) {
  if (!to || !from || to == from) return;
  for (RmMassType* type = RmMassTypesGetFirst(to); type; type = type->Next) vFreeOwned(type);
  vSLinkClear(&to->Types);
  to->Kind = from->Kind;
  for (const RmMassType* type = RmMassTypesGetFirst(from); type; type = type->Next) {
    auto* copy = SLinkNewObjAs<RmMassType>(&to->Types);
    if (!copy) return;
    vSetDefaults(copy);
    vRmMassTypeCopy(copy, type);
  }
}

RmMassType* RmMassTypesGetFirst(const RmMassTypes* types) {
  return types ? ListFirst<RmMassType>(&types->Types) : nullptr;
}

RmMassType* RmMassTypeGetNext(const RmMassType* type) { return type ? type->Next : nullptr; }

int iRmMassTypesGetKind(const RmMassTypes* types) { return types ? types->Kind : -1; }

void vRmMassTypesStampKind(RmMassTypes* types) {
  for (RmMassType* type = RmMassTypesGetFirst(types); type; type = type->Next) {
    type->ListKind = types->Kind;
  }
}

RmMassType* RmMassTypeFind(const RmMassTypes* types, int32_t number) {
  RmMassType* type = PlaceOf(types, number);
  return type && type->Number == number ? type : nullptr;
}

int iRmMassTypesMaxNumber(const RmMassTypes* types) {
  RmMassType* last = types ? ListLast<RmMassType>(&types->Types) : nullptr;
  return last ? last->Number : 0;
}

int iRmMassTypesGetIndex(const RmMassTypes* types, int32_t number) {
  int index = 0;
  for (const RmMassType* type = RmMassTypesGetFirst(types); type; type = type->Next, ++index) {
    if (type->Number == number) return index;
  }
  return -1;
}

RmMassType* RmMassTypeAdd(RmMassTypes* types, int32_t number) {
  if (!types || RmMassTypeFind(types, number)) return nullptr;
  auto* type = SLinkNewObjAs<RmMassType>(&types->Types, PlaceOf(types, number));
  if (!type) return nullptr;
  vSetDefaults(type);
  type->Number = number;
  return type;
}

RmMassType* RmMassTypeAddWithKind(RmMassTypes* types, int32_t number, int32_t listKind) {
  if (!types) return nullptr;
  RmMassType* before = PlaceOf(types, number);
  for (RmMassType* type = before; type && type->Number == number; type = type->Next) {
    if (type->ListKind == listKind) return nullptr;
  }
  auto* type = SLinkNewObjAs<RmMassType>(&types->Types, before);
  if (!type) return nullptr;
  vSetDefaults(type);
  type->Number = number;
  type->ListKind = listKind;
  return type;
}

RmMassType* RmMassTypeCreate() {
  auto* type = static_cast<RmMassType*>(std::calloc(1, sizeof(RmMassType)));
  if (type) vSetDefaults(type);
  return type;
}

void vRmMassTypeDelete(RmMassType** type) {
  if (!type || !*type) return;
  vFreeOwned(*type);
  std::free(*type);
  *type = nullptr;
}

void vRmMassTypesPut(RmMassTypes* types, RmMassType* type) {
  if (!types || !type) return;
  RmMassType* place = PlaceOf(types, type->Number);
  RmMassType* replaced = place && place->Number == type->Number ? place : nullptr;
  if (replaced) place = replaced->Next;
  if (replaced) vRmMassTypeRemove(types, replaced);
  type->Next = nullptr;
  vSLinkLink(&types->Types, place, type);
}

void vRmMassTypeRemove(RmMassTypes* types, RmMassType* type) {
  if (!types || !type) return;
  vFreeOwned(type);
  vSLinkDeleteObj(&types->Types, type);
}

void vRmMassTypeCopy(RmMassType* to, const RmMassType* from) {
  if (!to || !from || to == from) return;
  to->ListKind = from->ListKind;
  to->Number = from->Number;
  to->Category = from->Category;
  sHeapSet(&to->StandardCodeGroup, from->StandardCodeGroup);
  sHeapSet(&to->Name, from->Name);
  sHeapSet(&to->StdCode, from->StdCode);
  sHeapSet(&to->CpCode, from->CpCode);
  to->BalAccount = from->BalAccount;
  to->BalFactor = from->BalFactor;
  to->MinThickness = from->MinThickness;
  to->ScaleFactor = from->ScaleFactor;
  to->ConversionFactor = from->ConversionFactor;
  sHeapSet(&to->ConversionUnit, from->ConversionUnit);
  to->PointInterval = from->PointInterval;
  to->ResLayerExt = from->ResLayerExt;
  to->ResLayerExtRight = from->ResLayerExtRight;
  to->ResLineLeft = from->ResLineLeft;
  to->ResLineRight = from->ResLineRight;
  vRmOwnedTextSet(&to->ResLayerSur, from->ResLayerSur);
  to->ExtentAllTheo = from->ExtentAllTheo;
  to->GenerateLayer = from->GenerateLayer;
  to->CalcType = from->CalcType;
  to->ComposedType = from->ComposedType;
  to->CombinedAreaOpType = from->CombinedAreaOpType;
  to->CombinedAreaJoinMethod = from->CombinedAreaJoinMethod;
  vRmLayerListCopy(&to->FromLayers, &from->FromLayers);
  vRmLayerListCopy(&to->ToLayers, &from->ToLayers);
  vRmLayerListCopy(&to->AreaLayers, &from->AreaLayers);
  vSLinkClear(&to->ChainRanges);
  for (const RmMassChainRange* range = ListFirst<RmMassChainRange>(&from->ChainRanges); range;
       range = range->Next) {
    SLinkNewObj(&to->ChainRanges, nullptr, range);
  }
  to->RestrictionLayer = from->RestrictionLayer;
  to->Pres = from->Pres;
  vRmMassNumbersSet(&to->FromMasses, from->FromMasses.Numbers, from->FromMasses.Count);
  vRmMassNumbersSet(&to->ToMasses, from->ToMasses.Numbers, from->ToMasses.Count);
  to->BaseMassId = from->BaseMassId;
  sHeapSet(&to->Info, from->Info);
}

void vRmMassTypeDefaults(RmMassType* type) {
  if (!type) return;
  vFreeOwned(type);
  vSetDefaults(type);
}

const char* sRmMassTypeToText(const RmMassType* type) {
  if (!type) return sTempCopy("");
  return sFormat("%d: %s", type->Number, sOrEmpty(type->Name));
}

int iRmMassTypeNumberOfText(const char* text) {
  if (!text || !*text) return 0;
  return static_cast<int>(std::strtol(text, nullptr, 10));
}

double dRmMassTypeGetResLayerExt(const RmMassType* type, int side) {
  if (!type) return 0.0;
  if (side == 2) return type->ResLayerExtRight > -99998.0 ? type->ResLayerExtRight : type->ResLayerExt;
  if (side == 1) return type->ResLayerExt;
  return 0.0;
}

RmMassChainRange* RmMassChainRangeAdd(RmMassType* type, double start, double end, int32_t a,
                                      int32_t b) {
  if (!type) return nullptr;
  RmMassChainRange* before = ListFirst<RmMassChainRange>(&type->ChainRanges);
  while (before && before->Range[0] <= start) before = before->Next;
  auto* range = SLinkNewObjAs<RmMassChainRange>(&type->ChainRanges, before);
  if (!range) return nullptr;
  range->Range[0] = start;
  range->Range[1] = end;
  range->A = a;
  range->B = b;
  return range;
}

RmMassChainRange* RmMassChainRangeFind(const RmMassType* type, double chain) {
  if (!type) return nullptr;
  for (RmMassChainRange* range = ListFirst<RmMassChainRange>(&type->ChainRanges); range;
       range = range->Next) {
    if (chain >= range->Range[0] && chain <= range->Range[1]) return range;
  }
  return nullptr;
}

void vRmMassNumbersSet(RmMassNumbers* numbers, const int32_t* values, int32_t count) {
  std::free(numbers->Numbers);
  numbers->Numbers = nullptr;
  numbers->Count = 0;
  if (!values || count <= 0) return;
  numbers->Numbers = static_cast<int32_t*>(std::malloc(sizeof(int32_t) * size_t(count)));
  if (!numbers->Numbers) return;
  std::memcpy(numbers->Numbers, values, sizeof(int32_t) * size_t(count));
  numbers->Count = count;
}

void vRmMassNumbersAdd(RmMassNumbers* numbers, int32_t value) {
  auto* grown = static_cast<int32_t*>(
      std::realloc(numbers->Numbers, sizeof(int32_t) * (size_t(numbers->Count) + 1)));
  if (!grown) return;
  grown[numbers->Count++] = value;
  numbers->Numbers = grown;
}
