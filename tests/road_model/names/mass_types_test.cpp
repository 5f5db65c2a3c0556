#include <gtest/gtest.h>

#include <memory>

#include "road_model/names/mass_type_rules.h"
#include "road_model/names/mass_types.h"

namespace {

struct TypesDeleter {
  void operator()(RmMassTypes* types) const { vRmMassTypesDelete(&types); }
};
using TypesPtr = std::unique_ptr<RmMassTypes, TypesDeleter>;

std::string sNumbers(const RmMassTypes* types) {
  std::string numbers;
  for (const RmMassType* type = RmMassTypesGetFirst(types); type; type = type->Next) {
    numbers += std::to_string(type->Number) + " ";
  }
  return numbers;
}

}  // namespace

TEST(MassTypes, NumbersAreUniqueAndAscendingAndAPutTypeTakesThePlaceOfItsNumber) {
  TypesPtr types(RmMassTypesCreate(kRmMassTypesCross));
  RmMassType* twelve = RmMassTypeAdd(types.get(), 12);
  RmMassTypeAdd(types.get(), 3);
  RmMassTypeAdd(types.get(), 40);
  twelve->Category = 2;
  EXPECT_EQ(RmMassTypeAdd(types.get(), 12), nullptr);
  EXPECT_EQ(twelve->Category, 2);
  EXPECT_EQ(sNumbers(types.get()), "3 12 40 ");
  EXPECT_EQ(iRmMassTypesMaxNumber(types.get()), 40);
  EXPECT_EQ(iRmMassTypesGetIndex(types.get(), 40), 2);

  RmMassType* replacement = RmMassTypeCreate();
  replacement->Number = 12;
  replacement->CalcType = 5;
  vRmMassTypesPut(types.get(), replacement);
  RmMassType* fresh = RmMassTypeCreate();
  fresh->Number = 20;
  vRmMassTypesPut(types.get(), fresh);
  EXPECT_EQ(sNumbers(types.get()), "3 12 20 40 ");
  EXPECT_EQ(RmMassTypeFind(types.get(), 12)->CalcType, 5);
  EXPECT_EQ(iRmMassTypeNumberOfText(sRmMassTypeToText(RmMassTypeFind(types.get(), 20))), 20);
}

TEST(MassTypes, TheRightExtensionFallsBackToTheLeftOneUntilItIsSet) {
  RmMassType* type = RmMassTypeCreate();
  EXPECT_EQ(type->ResLayerExtRight, -99999.0);
  type->ResLayerExt = 2.5;
  EXPECT_EQ(dRmMassTypeGetResLayerExt(type, 2), 2.5);
  type->ResLayerExtRight = 0.0;
  EXPECT_EQ(dRmMassTypeGetResLayerExt(type, 2), 0.0);
  EXPECT_EQ(dRmMassTypeGetResLayerExt(type, 1), 2.5);
  EXPECT_EQ(dRmMassTypeGetResLayerExt(type, 0), 0.0);
  vRmMassTypeDelete(&type);
}

TEST(MassTypes, AComposedTypeIsReadThroughItsBaseAndWithoutOneGivesTheFallbacks) {
  TypesPtr types(RmMassTypesCreate(kRmMassTypesCross));
  RmMassType* base = RmMassTypeAdd(types.get(), 4);
  base->CalcType = 9;
  base->ScaleFactor = 2.0;
  RmMassType* composed = RmMassTypeAdd(types.get(), 8);
  composed->ComposedType = 2;
  composed->BaseMassId = 4;
  EXPECT_EQ(iRmMassTypeGetCalcType(types.get(), composed), 9);
  EXPECT_EQ(dRmMassTypeGetScaleFactor(types.get(), composed), 2.0);
  EXPECT_TRUE(boRmMassTypeIsTopsoil(types.get(), composed));
  // Without the list a composed type stands for itself.
  EXPECT_EQ(iRmMassTypeGetCalcType(nullptr, composed), 0);

  composed->BaseMassId = 77;
  EXPECT_EQ(iRmMassTypeGetCalcType(types.get(), composed), -1);
  EXPECT_EQ(dRmMassTypeGetConversionFactor(types.get(), composed), 1.0);
  EXPECT_STREQ(sRmMassTypeGetConversionUnit(types.get(), composed), "");
  EXPECT_EQ(boRmMassTypeIsBetweenLayers(types.get(), composed), -1);
}

TEST(MassTypes, CalculationTypesClassifyByTheKindOfTheList) {
  struct Case {
    int Kind;
    int CalcType;
    bool Volume;
    bool Area;
    int BetweenLayers;
  };
  const Case cases[] = {
      {0, 0, true, false, 0},  {0, 10, true, false, 0}, {0, 3, false, true, 0},
      {0, 12, false, true, 0}, {0, 4, false, false, 0}, {1, 6, true, false, 0},
      {1, 4, false, true, 0},  {1, 0, false, false, 0}, {2, 8, true, false, 1},
      {2, 3, false, false, 1}, {2, 5, false, true, 0},
  };
  for (const Case& c : cases) {
    TypesPtr types(RmMassTypesCreate(c.Kind));
    RmMassType* type = RmMassTypeAdd(types.get(), 1);
    type->CalcType = c.CalcType;
    EXPECT_EQ(boRmMassTypeIsVolume(types.get(), type), c.Volume) << c.Kind << " " << c.CalcType;
    EXPECT_EQ(boRmMassTypeIsArea(types.get(), type), c.Area) << c.Kind << " " << c.CalcType;
    EXPECT_EQ(boRmMassTypeIsBetweenLayers(types.get(), type), c.BetweenLayers)
        << c.Kind << " " << c.CalcType;
  }
}

TEST(MassTypes, ATypeWithoutCategoryTakesTheOneOfItsNumber) {
  const std::pair<int, int> cases[] = {{0, 0},  {-3, 1}, {5, 1},  {39, 1}, {40, 2},
                                       {49, 2}, {50, 4}, {59, 4}, {60, 1}, {99, 1},
                                       {100, 0}};
  TypesPtr types(RmMassTypesCreate(kRmMassTypesLong));
  for (auto [number, category] : cases) RmMassTypeAdd(types.get(), number);
  RmMassTypeFind(types.get(), 5)->Category = 3;
  vRmMassTypesDeriveCategories(types.get());
  for (auto [number, category] : cases) {
    int expected = number == 5 ? 3 : category;
    EXPECT_EQ(RmMassTypeFind(types.get(), number)->Category, expected) << number;
  }
}

TEST(MassTypes, TheOldSingleLayerRuleBecomesLayerLists) {
  TypesPtr types(RmMassTypesCreate(kRmMassTypesCross));
  RmMassType* old = RmMassTypeAdd(types.get(), 1);
  old->CalcType = 3;
  old->MinThickness = 0.3;
  RmLayerListAdd(&old->ToLayers, RmLayerIdMake(1, 6));
  RmLayerListAdd(&old->FromLayers, RmLayerIdMake(2, 1));
  RmLayerListAdd(&old->FromLayers, RmLayerIdMake(2, 6))->Kind = 3;
  // Two layers to measure to: no old rule.
  RmMassType* kept = RmMassTypeAdd(types.get(), 2);
  vRmMassTypeCopy(kept, old);
  kept->Number = 2;
  RmLayerListAdd(&kept->ToLayers, RmLayerIdMake(1, 7));

  vRmMassTypesRewriteOldRules(types.get());
  EXPECT_EQ(old->MinThickness, 0.0);
  ASSERT_EQ(iRmLayerListCount(&old->AreaLayers), 1);
  EXPECT_EQ(RmLayerListGetFirst(&old->AreaLayers)->Id.Number, 6);
  ASSERT_EQ(iRmLayerListCount(&old->ToLayers), 2);
  const RmLayerListEntry* second = RmLayerListGetFirst(&old->ToLayers)->Next;
  EXPECT_EQ(second->Id.Number, 6);
  EXPECT_EQ(second->Kind, 3);
  EXPECT_FLOAT_EQ(second->Value, 0.3f);
  EXPECT_EQ(kept->MinThickness, 0.3);
  EXPECT_EQ(iRmLayerListCount(&kept->ToLayers), 2);

  // A copy compares equal until a value differs beyond the tolerance.
  RmMassType* copy = RmMassTypeCreate();
  vRmMassTypeCopy(copy, kept);
  EXPECT_TRUE(boRmMassTypesEqual(copy, kept, 0.001));
  copy->MinThickness += 0.01;
  EXPECT_FALSE(boRmMassTypesEqual(copy, kept, 0.001));
  vRmMassTypeDelete(&copy);
}
