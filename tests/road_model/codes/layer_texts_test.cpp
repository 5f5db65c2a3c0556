#include <gtest/gtest.h>

#include <string>

#include "base/session.h"
#include "parameters/factory_settings.h"
#include "road_model/codes/code_lists.h"
#include "road_model/names/layer_names.h"
#include "road_model/sections/layer_relations.h"
#include "road_model/codes/layer_texts.h"
#include "road_model/model/model.h"
#include "road_model/codes/pcode.h"
#include "tests/support/model_ptr.h"
#include "tests/support/scratch_folder.h"

namespace {

// Layer names of the model for the lookups.
struct LayerNamesFixture {
  LayerNamesFixture() : names(RmLayerNamesCreate()) {}
  ~LayerNamesFixture() { vRmLayerNamesDelete(&names); }
  RmLayerName* Add(uint32_t type, int number, const char* text) {
    return RmLayerNameSet(names, RmLayerIdMake(type, number), text);
  }
  RmLayerNames* names;
};

class LayerTexts : public ::testing::Test {
 protected:
  void SetUp() override {
    pSessionCreate();
    vWriteWholeFile(folder / "settings.ini",
                    "[SectLayerTypeShort]\n1=Teo\n2=Fys\n3=TeoA\n4=FysA\n8=\"Kons. lag\"\n"
                    "9=Avan\n"
                    "[SectLayerTheoName]\n6=Planum\n7=\"Topp. traubunn\"\n"
                    "[SectLayerPhysName]\n6=Fjell\n"
                    "[SectLayerAdvancedName]\n2=Tunnelheng\n");
    ASSERT_TRUE(boFactorySettingsRead((folder / "settings.ini").c_str()));
  }
  void TearDown() override { vSessionDelete(nullptr); }

  ScratchFolder folder;
};

int64_t iPair(uint32_t type, int number) {
  return static_cast<int64_t>(uRmLayerIdPack(RmLayerIdMake(type, number)));
}

}  // namespace

TEST_F(LayerTexts, ALayerTextNamesTheTypeAndTheDefaultNameAndReadsBackToItsPair) {
  // The default name comes from the table of the type: the theoretical one
  // for types 1 and 3, the physical one for 2 and 4.
  const struct {
    int type, number;
    const char* text;
  } rows[] = {{1, 6, "Teo   6: Planum"}, {3, 6, "TeoA   6: Planum"},     {2, 6, "Fys   6: Fjell"},
              {4, 6, "FysA   6: Fjell"}, {9, 2, "Avan   2: Tunnelheng"}, {8, 6, "Kons. lag   6: "},
              {1, 55, "Teo  55: "},      {2, 123, "Fys 123: "},          {7, 1, "   1: "}};
  for (const auto& row : rows) {
    EXPECT_STREQ(sLayerText(nullptr, row.type, row.number), row.text);
    if (row.type <= 4 || row.type == 9) {
      EXPECT_EQ(iLayerFromText(row.text), iPair(row.type, row.number)) << row.text;
    }
  }
  EXPECT_STREQ(sRmLayerIdDefaultName(RmLayerIdMake(9, 2)), "Tunnelheng");
  // The model's own name comes first; a layer without one has the default.
  LayerNamesFixture names;
  names.Add(1, 6, "Eget planum");
  names.Add(1, 9, nullptr);
  EXPECT_STREQ(sLayerText(names.names, 1, 6), "Teo   6: Eget planum");
  EXPECT_STREQ(sLayerText(names.names, 3, 6), "TeoA   6: Planum");
  EXPECT_STREQ(sRmLayerNameGetName(names.names, RmLayerIdMake(1, 9)), "");
  EXPECT_EQ(sRmLayerNameGetName(names.names, RmLayerIdMake(1, 10)), nullptr);
}

TEST_F(LayerTexts, AShortTextDropsWhatFollowsTheFirstPoint) {
  // "Kons. lag   6: " loses the blank behind the point.
  EXPECT_STREQ(sLayerShortText(nullptr, 8, 6), "Kons.lag   6: ");
  // "Teo   7: Topp. traubunn": the point is in the name.
  EXPECT_STREQ(sLayerShortText(nullptr, 1, 7), "Teo   7: Topp.traubunn");
  // No point: the text stays; other types are never cut.
  EXPECT_STREQ(sLayerShortText(nullptr, 1, 6), "Teo   6: Planum");
  LayerNamesFixture names;
  names.Add(3, 1, "A. b");
  names.Add(2, 1, "Ende.");
  EXPECT_STREQ(sLayerShortText(names.names, 3, 1), "TeoA   1: A. b");
  EXPECT_STREQ(sLayerShortText(names.names, 2, 1), "Fys   1: Ende.");
  names.Add(2, 2, "Stopp.her");
  EXPECT_STREQ(sLayerShortText(names.names, 2, 2), "Fys   2: Stopp.");
}

TEST_F(LayerTexts, ATextReadsBackOnlyWithAKnownWordANumberAndAColon) {
  // The word matches a short name that begins with it: "Te" is type 1 before 3.
  EXPECT_EQ(iLayerFromText("Te 5: x"), iPair(1, 5));
  EXPECT_EQ(iLayerFromText("TeoA 5: x"), iPair(3, 5));
  EXPECT_EQ(iLayerFromText("Teo 1:2: x"), iPair(1, 12));
  const std::string tooLong = std::string(300, 'T') + " 5: x";
  for (const char* text : {"Kant 5: x", "Teo 5 uten kolon", ": Teo 5", "", tooLong.c_str()}) {
    EXPECT_EQ(iLayerFromText(text), 0) << text;
  }
  EXPECT_EQ(iLayerFromText(nullptr), 0);

  EXPECT_EQ(iLayerFromTextFor("Fys   6: Fjell", 2, 4), iPair(2, 6));
  EXPECT_EQ(iLayerFromTextFor("Teo   6: Planum", 2, 4), 0);
  // "Fys" begins "FysA" too, and type 4 is offered first.
  EXPECT_EQ(iLayerFromTextFor("Fys   6: Fjell", 4, 2), iPair(4, 6));
}

TEST(LayerRelations, DerivedPhysicalLayersStandForTheirGroups) {
  RmLayerId rockAndSoil = RmLayerIdMake(2, 80);
  EXPECT_TRUE(boRmLayerDerivedFrom(rockAndSoil, RmLayerIdMake(2, 5), nullptr));
  EXPECT_FALSE(boRmLayerDerivedFrom(rockAndSoil, RmLayerIdMake(2, 6), nullptr));
  EXPECT_FALSE(boRmLayerDerivedFrom(rockAndSoil, RmLayerIdMake(4, 5), nullptr));
  EXPECT_FALSE(boRmLayerDerivedFrom(rockAndSoil, RmLayerIdMake(2, 84), nullptr));
  EXPECT_TRUE(boRmLayerDerivedFrom(RmLayerIdMake(2, 96), RmLayerIdMake(2, 15), nullptr));
  EXPECT_FALSE(boRmLayerDerivedFrom(RmLayerIdMake(2, 97), RmLayerIdMake(2, 11), nullptr));
  EXPECT_TRUE(boRmLayerDerivedFrom(RmLayerIdMake(2, 99), RmLayerIdMake(2, 50), nullptr));
  EXPECT_TRUE(boRmLayerDerivedFrom(RmLayerIdMake(1, 98), RmLayerIdMake(1, 50), nullptr));
  EXPECT_FALSE(boRmLayerDerivedFrom(RmLayerIdMake(1, 97), RmLayerIdMake(1, 50), nullptr));

  LayerNamesFixture names;
  names.Add(2, 40, "Grunnvann")->Category = 1;
  names.Add(2, 3, "Utelatt")->Priority = -1;
  EXPECT_TRUE(boRmLayerDerivedFrom(rockAndSoil, RmLayerIdMake(2, 40), names.names));
  EXPECT_FALSE(boRmLayerDerivedFrom(RmLayerIdMake(2, 81), RmLayerIdMake(2, 40), names.names));
  EXPECT_TRUE(boRmLayerDerivedFrom(RmLayerIdMake(2, 97), RmLayerIdMake(2, 40), names.names));
  EXPECT_FALSE(boRmLayerDerivedFrom(rockAndSoil, RmLayerIdMake(2, 3), names.names));
  EXPECT_FALSE(boRmLayerDerivedFrom(RmLayerIdMake(2, 99), RmLayerIdMake(2, 3), names.names));
}

TEST(LayerRelations, CalculationIdsTakeTheModelsTypes) {
  ModelPtr model = NewModel();
  vRmModelSetCalcTheo(model.get(), 3);
  vRmModelSetCalcPhys(model.get(), 4);
  RmLayerId theo = RmLayerIdForCalc(model.get(), RmLayerIdMake(1, 6));
  EXPECT_EQ(theo.Type, 3u);
  EXPECT_EQ(theo.Number, 6);
  EXPECT_EQ(RmLayerIdForCalc(model.get(), RmLayerIdMake(4, 11)).Type, 4u);
  EXPECT_EQ(RmLayerIdForCalc(model.get(), RmLayerIdMake(2, 11)).Type, 4u);
  EXPECT_EQ(RmLayerIdForCalc(model.get(), RmLayerIdMake(9, 11)).Type, 9u);
}

TEST(CodeLists, CodesLieInItemsAndRanges) {
  const char* list = "1.01:1.99,3.05";
  for (int code : {15000, 10100, 19900, 30500}) EXPECT_TRUE(boCodeInList(list, code)) << code;
  for (int code : {20000, 30501}) EXPECT_FALSE(boCodeInList(list, code)) << code;
  // No list holds every code; a list of nothing but commas holds none.
  EXPECT_TRUE(boCodeInList("", 12345));
  EXPECT_TRUE(boCodeInList(nullptr, 12345));
  EXPECT_FALSE(boCodeInList(",,", 0));
  EXPECT_TRUE(boCodeInList("-3.05 , (2.01:2.05)", -30500));
  EXPECT_TRUE(boCodeInList("-3.05 , (2.01:2.05)", 20300));
}

TEST(CodeLists, AscendingOrderIsCheckedAcrossItemsAndGroups) {
  EXPECT_TRUE(boCodeListIsAscending(nullptr));
  // "1.5-1" is one number: the "-" inside it starts nothing new. A group
  // must close within its item.
  for (const char* list :
       {"", "1.01:1.99,3.05", "-2.01,1.05 (1.06:1.10)", "1.5-1,2", "1.01,(1.02"}) {
    EXPECT_TRUE(boCodeListIsAscending(list)) << list;
  }
  for (const char* list : {"3.05,1.01", "1.99:1.01", "(1.01,1.02)"}) {
    EXPECT_FALSE(boCodeListIsAscending(list)) << list;
  }
}
