// The chain data type catalogue read from a file of all four sections.
#include "road_model/chain_data/chain_data_types_file.h"

#include <gtest/gtest.h>

#include <string>

#include "road_model/chain_data/chain_data_types.h"
#include "tests/support/scratch_folder.h"

namespace {

const char kCatalogue[] =
    "[ChainDataInfoTypes]\r\n"
    "1=\"Rekkverk med stolper\"\r\n"
    "3=Skilt\r\n"
    "[ChainDataTypes]\r\n"
    "0=Descr:Ingen\r\n"
    "101=Descr:\"Rekkverk venstre\" InfoType:1 PTheme:\"RV V\" Fields:(Navn,s;Hoyde;Type,s)\r\n"
    "102=Descr:Kopi InheritType:101 Fields:(Annet)\r\n"
    "119=Descr:Merke Unknown:7\r\n"
    "505=Descr:Stolpe OwnerType:9 ReflineType:4 LTheme:L1\r\n"
    "[ChainDataPlanDraw]\r\n"
    "101=LType:3 LScale:2.5 Fig:PIL Text:5 GdpLayer:12\r\n"
    "102=Text:5 TextFrame:1\r\n"
    "119=Text:2\r\n"
    "777=LType:9\r\n"
    "-1=LType:9\r\n"
    "[ChainDataSectionDraw]\r\n"
    "101=LColor:4 GdpLayer:12 TextEraseBackground:1\r\n";

class ChainDataTypesFile : public ::testing::Test {
 protected:
  void SetUp() override {
    vWriteWholeFile(folder_ / "types.ini", kCatalogue);
    ASSERT_TRUE(boRmChainDataTypesRead((folder_ / "types.ini").c_str(), &types_, false));
    ASSERT_TRUE(boRmChainDataDrawRead((folder_ / "types.ini").c_str(), &types_));
  }
  ScratchFolder folder_;
  RmChainDataTypes types_;
};

}  // namespace

TEST_F(ChainDataTypesFile, InfoTypesLoseTheirQuotes) {
  EXPECT_STREQ(sRmChainDataInfoTypeText(&types_, 1), "Rekkverk med stolper");
  EXPECT_STREQ(sRmChainDataInfoTypeText(&types_, 3), "Skilt");
  EXPECT_EQ(sRmChainDataInfoTypeText(&types_, 2), nullptr);
}

TEST_F(ChainDataTypesFile, TypesTakeTheirKeysOverTheDefaultsOfTheirNumber) {
  ASSERT_EQ(types_.Types.size(), 4u);  // key 0 is no entry
  const RmChainDataType* rail = RmChainDataTypeFind(&types_, 101);
  EXPECT_STREQ(rail->Descr, "Rekkverk venstre");
  EXPECT_STREQ(rail->PTheme, "RV V");
  EXPECT_EQ(rail->ReflineType, 2);
  ASSERT_EQ(rail->FieldCount, 3);
  EXPECT_STREQ(rail->FieldNames[1], "Hoyde");
  EXPECT_EQ(rail->FieldKinds[0], kRmChainFieldText);
  EXPECT_EQ(rail->FieldKinds[1], kRmChainFieldNumber);

  const RmChainDataType* mark = RmChainDataTypeFind(&types_, 119);
  EXPECT_EQ(mark->InfoType, 3);
  EXPECT_EQ(mark->OwnerType, 109);
  const RmChainDataType* post = RmChainDataTypeFind(&types_, 505);
  EXPECT_EQ(post->InfoType, 4);
  EXPECT_EQ(post->OwnerType, 9);
  EXPECT_EQ(post->ReflineType, 4);
  EXPECT_STREQ(post->LTheme, "L1");
}

TEST_F(ChainDataTypesFile, AnInheritingTypeTakesTheFieldsOfItsBase) {
  const RmChainDataType* copy = RmChainDataTypeFind(&types_, 102);
  ASSERT_EQ(copy->FieldCount, 3);
  EXPECT_STREQ(copy->FieldNames[2], "Type");
  EXPECT_EQ(copy->FieldKinds[2], kRmChainFieldText);
}

TEST_F(ChainDataTypesFile, DrawEntriesAndTheirDefaults) {
  const RmChainDataType* rail = RmChainDataTypeFind(&types_, 101);
  EXPECT_EQ(rail->PlanDraw.LType, 3);
  EXPECT_FLOAT_EQ(rail->PlanDraw.LScale, 2.5f);
  EXPECT_STREQ(rail->PlanDraw.Fig, "PIL");
  EXPECT_EQ(rail->PlanDraw.TextFrame, 3);  // text 5 without a frame key
  EXPECT_EQ(rail->PlanDraw.GdpLayer, 12);
  EXPECT_EQ(rail->PlanDraw.FigRotMet, 1);
  EXPECT_EQ(rail->SectionDraw.LColor, 4);
  EXPECT_EQ(rail->SectionDraw.GdpLayer, 0);  // read in plan entries only
  EXPECT_EQ(rail->SectionDraw.FigRotMet, 0);
  EXPECT_EQ(rail->SectionDraw.TextEraseBackground, 1);

  EXPECT_EQ(RmChainDataTypeFind(&types_, 102)->PlanDraw.TextFrame, 1);
  EXPECT_EQ(RmChainDataTypeFind(&types_, 119)->PlanDraw.Text, 0);  // info type 3
  EXPECT_EQ(RmChainDataTypeFind(&types_, 505)->PlanDraw.LType, 1);
  EXPECT_EQ(RmChainDataTypeFind(&types_, 777), nullptr);
}

TEST(ChainDataTypesFileMissing, ReadsNothing) {
  RmChainDataTypes types;
  EXPECT_FALSE(boRmChainDataTypesRead("/nonexistent/types.ini", &types, false));
  EXPECT_FALSE(boRmChainDataDrawRead("/nonexistent/types.ini", &types));
  EXPECT_TRUE(types.Types.empty());
}
