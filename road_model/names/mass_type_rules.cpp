#include "road_model/names/mass_type_rules.h"

#include <cmath>
#include <cstring>
#include <initializer_list>

#include "base/text.h"

namespace {

constexpr int kComposedOfBase = 2;
constexpr int kUnresolved = -1;
constexpr double kZeroTolerance = 0.00001;
constexpr double kAbsentReal = -99999.0;
constexpr int32_t kAbsentInteger = -99999;
// The calculation type of the older single-layer rule.
constexpr int kOldRuleCalcType = 3;

int iKindOf(const RmMassTypes* types, const RmMassType* type) {
  if (types) return types->Kind;
  return type ? type->ListKind : -1;
}

bool boIn(int value, std::initializer_list<int> set) {
  for (int member : set) {
    if (member == value) return true;
  }
  return false;
}

bool boNear(double a, double b, double tolerance) { return std::fabs(a - b) <= tolerance; }

bool boSameText(const char* a, const char* b) { return std::strcmp(sOrEmpty(a), sOrEmpty(b)) == 0; }

bool boSameNumbers(const RmMassNumbers& a, const RmMassNumbers& b) {
  return a.Count == b.Count &&
         (a.Count == 0 || std::memcmp(a.Numbers, b.Numbers, sizeof(int32_t) * size_t(a.Count)) == 0);
}

bool boSameRanges(const RmMassType* a, const RmMassType* b, double tolerance) {
  const RmMassChainRange* x = ListFirst<RmMassChainRange>(&a->ChainRanges);
  const RmMassChainRange* y = ListFirst<RmMassChainRange>(&b->ChainRanges);
  for (; x && y; x = x->Next, y = y->Next) {
    if (!boNear(x->Range[0], y->Range[0], tolerance) ||
        !boNear(x->Range[1], y->Range[1], tolerance) || x->A != y->A || x->B != y->B) {
      return false;
    }
  }
  return !x && !y;
}

bool boVolumeOf(int kind, int calcType) {
  switch (kind) {
    case 0: return calcType == 0 || (calcType >= 8 && calcType <= 11);
    case 1: return calcType == 6 || calcType == 7;
    case 2: return calcType == 8;
    default: return false;
  }
}

bool boAreaOf(int kind, int calcType) {
  if (kind == 0) return boIn(calcType, {1, 2, 3, 7, 12});
  return calcType == 4 || calcType == 5;
}

bool boTopsoilCalc(int calcType) { return calcType >= 9 && calcType <= 11; }

}  // namespace

const RmMassType* RmMassTypeResolve(const RmMassTypes* types, const RmMassType* type) {
  if (!type || !types || type->ComposedType != kComposedOfBase) return type;
  return RmMassTypeFind(types, type->BaseMassId);
}

int iRmMassTypeGetCalcType(const RmMassTypes* types, const RmMassType* type) {
  const RmMassType* resolved = RmMassTypeResolve(types, type);
  return resolved ? resolved->CalcType : kUnresolved;
}

double dRmMassTypeGetScaleFactor(const RmMassTypes* types, const RmMassType* type) {
  const RmMassType* resolved = RmMassTypeResolve(types, type);
  return resolved ? resolved->ScaleFactor : 1.0;
}

double dRmMassTypeGetConversionFactor(const RmMassTypes* types, const RmMassType* type) {
  const RmMassType* resolved = RmMassTypeResolve(types, type);
  return resolved ? resolved->ConversionFactor : 1.0;
}

const char* sRmMassTypeGetConversionUnit(const RmMassTypes* types, const RmMassType* type) {
  const RmMassType* resolved = RmMassTypeResolve(types, type);
  return resolved ? sOrEmpty(resolved->ConversionUnit) : "";
}

bool boRmMassTypeIsVolume(const RmMassTypes* types, const RmMassType* type) {
  return boVolumeOf(iKindOf(types, type), iRmMassTypeGetCalcType(types, type));
}

bool boRmMassTypeIsArea(const RmMassTypes* types, const RmMassType* type) {
  return boAreaOf(iKindOf(types, type), iRmMassTypeGetCalcType(types, type));
}

int boRmMassTypeIsBetweenLayers(const RmMassTypes* types, const RmMassType* type) {
  int calcType = iRmMassTypeGetCalcType(types, type);
  if (calcType == kUnresolved) return -1;
  if (iKindOf(types, type) != 2) return 0;
  return calcType < 4 || calcType == 8 ? 1 : 0;
}

bool boRmMassTypeIsTopsoil(const RmMassTypes* types, const RmMassType* type) {
  return boTopsoilCalc(iRmMassTypeGetCalcType(types, type));
}

bool boRmMassTypeIsLine(const RmMassTypes* types, const RmMassType* type) {
  return boIn(iRmMassTypeGetCalcType(types, type), {1, 2, 7, 9, 10, 11});
}

void vRmMassTypeMakeVolumeDefaults(const RmMassTypes* types, RmMassType* type) {
  if (!type) return;
  vRmPresentationClear(&type->Pres);
  type->Pres.Color = 9;
  type->Pres.Material = 1;
  if (boRmMassTypeIsVolume(types, type)) {
    type->Pres.HatchType = 10;
  } else if (boRmMassTypeIsArea(types, type)) {
    type->Pres.Color = 109;
  }
}

void vRmMassTypeClearForCalcType(const RmMassTypes* types, RmMassType* type) {
  if (!type) return;
  int kind = iKindOf(types, type);
  int calcType = type->CalcType;
  if ((calcType == 0 && (kind == 0 || kind == 2)) ||
      ((calcType == 6 || calcType == 7) && kind == 1) || (boTopsoilCalc(calcType) && kind == 0)) {
    vRmLayerListClear(&type->AreaLayers);
  }
  if (calcType == 8 && kind == 0) {
    vRmLayerListClear(&type->FromLayers);
    vRmLayerListClear(&type->ToLayers);
  }
  if (calcType == 8 || boTopsoilCalc(calcType)) {
    type->MinThickness = 0.0;
    type->ResLayerExt = 0.0;
    type->ResLayerExtRight = kAbsentReal;
    type->ResLineLeft = kAbsentInteger;
    type->ResLineRight = kAbsentInteger;
    vRmLayerIdClear(&type->RestrictionLayer);
    vHeapFree(&type->ResLayerSur);
  }
}

int iRmMassTypesAllDefined(const RmMassNumbers* numbers, const RmMassTypes* types) {
  if (!numbers) return 1;
  for (int32_t i = 0; i < numbers->Count; ++i) {
    if (!RmMassTypeFind(types, numbers->Numbers[i])) return 0;
  }
  return 1;
}

int iRmMassTypesAnyDefined(const RmMassNumbers* numbers, const RmMassTypes* types) {
  if (!numbers) return 0;
  for (int32_t i = 0; i < numbers->Count; ++i) {
    if (RmMassTypeFind(types, numbers->Numbers[i])) return 1;
  }
  return 0;
}

bool boRmMassTypeIsAdditive(const RmMassType* type) {
  if (!type || type->ComposedType != 0) return false;
  uint32_t restriction = type->RestrictionLayer.Type;
  if (restriction != 0 && restriction != 1 && restriction != 3) return false;
  return boRmLayerListIsTheoretical(&type->FromLayers) &&
         boRmLayerListIsTheoretical(&type->ToLayers) &&
         boRmLayerListIsTheoretical(&type->AreaLayers);
}

bool boRmMassTypesEqual(const RmMassType* a, const RmMassType* b, double tolerance) {
  if (!a || !b) return a == b;
  return a->Number == b->Number && a->Category == b->Category &&
         boSameText(a->StandardCodeGroup, b->StandardCodeGroup) && boSameText(a->Name, b->Name) &&
         boSameText(a->StdCode, b->StdCode) && boSameText(a->CpCode, b->CpCode) &&
         a->BalAccount == b->BalAccount && boNear(a->BalFactor, b->BalFactor, tolerance) &&
         boNear(a->MinThickness, b->MinThickness, tolerance) &&
         boNear(a->ScaleFactor, b->ScaleFactor, tolerance) &&
         boNear(a->ConversionFactor, b->ConversionFactor, tolerance) &&
         boSameText(a->ConversionUnit, b->ConversionUnit) &&
         boNear(a->PointInterval, b->PointInterval, tolerance) &&
         boNear(a->ResLayerExt, b->ResLayerExt, tolerance) &&
         boNear(a->ResLayerExtRight, b->ResLayerExtRight, tolerance) &&
         a->ResLineLeft == b->ResLineLeft && a->ResLineRight == b->ResLineRight &&
         boSameText(a->ResLayerSur, b->ResLayerSur) && a->ExtentAllTheo == b->ExtentAllTheo &&
         a->GenerateLayer == b->GenerateLayer && a->CalcType == b->CalcType &&
         a->ComposedType == b->ComposedType && a->CombinedAreaOpType == b->CombinedAreaOpType &&
         a->CombinedAreaJoinMethod == b->CombinedAreaJoinMethod &&
         boRmLayerListsEqual(&a->FromLayers, &b->FromLayers, tolerance) &&
         boRmLayerListsEqual(&a->ToLayers, &b->ToLayers, tolerance) &&
         boRmLayerListsEqual(&a->AreaLayers, &b->AreaLayers, tolerance) &&
         boSameRanges(a, b, tolerance) &&
         boRmLayerIdEquals(a->RestrictionLayer, b->RestrictionLayer) &&
         boRmPresentationsEqual(&a->Pres, &b->Pres, tolerance) &&
         boSameNumbers(a->FromMasses, b->FromMasses) && boSameNumbers(a->ToMasses, b->ToMasses) &&
         a->BaseMassId == b->BaseMassId && boSameText(a->Info, b->Info);
}

int iRmMassTypeCategoryOfNumber(int number) {
  if (number < 40) return number != 0 ? 1 : 0;
  if (number < 50) return 2;
  if (number < 60) return 4;
  if (number < 100) return 1;
  return 0;
}

void vRmMassTypesDeriveCategories(RmMassTypes* types) {
  for (RmMassType* type = RmMassTypesGetFirst(types); type; type = type->Next) {
    if (type->Category == 0) type->Category = iRmMassTypeCategoryOfNumber(type->Number);
  }
}

void vRmMassTypesRewriteOldRules(RmMassTypes* types) {
  for (RmMassType* type = RmMassTypesGetFirst(types); type; type = type->Next) {
    if (type->CalcType != kOldRuleCalcType || !boRmLayerListIsEmpty(&type->AreaLayers) ||
        std::fabs(type->MinThickness) < kZeroTolerance || iRmLayerListCount(&type->ToLayers) != 1 ||
        boRmLayerListIsEmpty(&type->FromLayers)) {
      continue;
    }
    double thickness = type->MinThickness;
    type->MinThickness = 0.0;
    RmLayerListEntry* to = RmLayerListGetFirst(&type->ToLayers);
    RmLayerListAdd(&type->AreaLayers, to->Id);
    vRmLayerListRemove(&type->ToLayers, to);
    for (const RmLayerListEntry* from = RmLayerListGetFirst(&type->FromLayers); from;
         from = from->Next) {
      RmLayerListEntry* copy = RmLayerListAddCopy(&type->ToLayers, from);
      if (copy) copy->Value = fRmLayerListValue(thickness);
    }
  }
}
