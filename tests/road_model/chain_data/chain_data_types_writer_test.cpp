// The chain data type catalogue written into its file, with the file's other
// sections kept, and read back.
#include "road_model/chain_data/chain_data_types_writer.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "road_model/chain_data/chain_data_types.h"
#include "road_model/chain_data/chain_data_types_file.h"
#include "tests/support/scratch_folder.h"

namespace {

RmChainDataTypes SmallCatalogue() {
  RmChainDataTypes types;
  RmChainDataType rail = RmChainDataTypeDefaults(101);
  std::strcpy(rail.Descr, "Rail left");
  std::strcpy(rail.PTheme, "RV V");
  rail.FieldCount = 2;
  std::strcpy(rail.FieldNames[0], "Name");
  rail.FieldKinds[0] = kRmChainFieldText;
  std::strcpy(rail.FieldNames[1], "Height");
  rail.PlanDraw.LType = 3;
  rail.PlanDraw.LScale = 2.5f;
  std::strcpy(rail.PlanDraw.Fig, "PIL");
  rail.PlanDraw.Text = 5;
  rail.PlanDraw.TextFrame = 3;
  rail.PlanDraw.GdpLayer = 12;
  rail.SectionDraw.TextH = 0.25f;
  types.Types.push_back(rail);
  RmChainDataType mark = RmChainDataTypeDefaults(119);
  std::strcpy(mark.Descr, "Mark");
  types.Types.push_back(mark);
  return types;
}

constexpr char kTypes[] =
    "[ChainDataTypes]\r\n"
    "101=Descr:\"Rail left\" InfoType:1 ReflineType:2 PTheme:\"RV V\" Fields:(Name,s;Height)\r\n"
    "119=Descr:\"Mark\" InfoType:3 OwnerType:109 Fields:()\r\n";
constexpr char kPlan101[] =
    "101=LType:3 LScale:2.5 LColor:1 Fig:\"PIL\" FigColor:1 FigRotMet:1 FScale:1 Text:5 "
    "TextFrame:3 TextEraseBackground:0 TextColor:1 TextH:1 TextRot:0 TextDx:1 TextDy:1 "
    "GdpLayer:12\r\n";
constexpr char kPlan119[] =
    "119=LType:1 LScale:1 LColor:1 FigColor:1 FigRotMet:1 FScale:1 Text:0 TextFrame:0 "
    "TextEraseBackground:0 TextColor:1 TextH:1 TextRot:0 TextDx:1 TextDy:1 GdpLayer:0\r\n";
constexpr char kSections[] =
    "[ChainDataSectionDraw]\r\n"
    "101=LType:1 LScale:1 LColor:1 FigColor:1 FigRotMet:0 FScale:1 Text:0 TextFrame:0 "
    "TextEraseBackground:0 TextColor:1 TextH:0.25 TextRot:0 TextDx:1 TextDy:1\r\n"
    "119=LType:1 LScale:1 LColor:1 FigColor:1 FigRotMet:0 FScale:1 Text:0 TextFrame:0 "
    "TextEraseBackground:0 TextColor:1 TextH:1 TextRot:0 TextDx:1 TextDy:1\r\n";

}  // namespace

TEST(ChainDataTypesWriter, WritesItsSectionsAndKeepsTheRestOfTheFile) {
  ScratchFolder folder;
  const std::string path = folder / "types.ini";
  vWriteWholeFile(path,
                  "[ChainDataInfoTypes]\r\n1=\"Rekkverk med stolper\"\r\n\r\n"
                  "[ChainDataTypes]\r\n; old catalogue\r\n5=Descr:Gammel\r\n\r\n"
                  "[ChainDataPlanDraw]\r\n999=LType:9\r\n101=LType:7\r\n");
  const RmChainDataTypes types = SmallCatalogue();
  vRmChainDataTypesWrite(path.c_str(), &types);
  vRmChainDataDrawWrite(path.c_str(), &types, true);

  // The types section is cleared, its closing blank line stays; with `keep`
  // the draw entry of 101 is replaced where it stood and 999 stays.
  EXPECT_EQ(sReadWholeFile(path), std::string("[ChainDataInfoTypes]\r\n"
                                              "1=\"Rekkverk med stolper\"\r\n\r\n") +
                                      kTypes + "\r\n[ChainDataPlanDraw]\r\n999=LType:9\r\n" +
                                      kPlan101 + kPlan119 + kSections);
}

TEST(ChainDataTypesWriter, ACatalogueReadBackIsWrittenTheSame) {
  ScratchFolder folder;
  const std::string path = folder / "types.ini";
  const RmChainDataTypes types = SmallCatalogue();
  vRmChainDataTypesWrite(path.c_str(), &types);
  vRmChainDataDrawWrite(path.c_str(), &types, false);
  const std::string written = sReadWholeFile(path);
  ASSERT_EQ(written,
            std::string(kTypes) + "[ChainDataPlanDraw]\r\n" + kPlan101 + kPlan119 + kSections);

  RmChainDataTypes read;
  ASSERT_TRUE(boRmChainDataTypesRead(path.c_str(), &read, false));
  ASSERT_TRUE(boRmChainDataDrawRead(path.c_str(), &read));
  ASSERT_EQ(read.Types.size(), 2u);
  EXPECT_STREQ(read.Types[0].FieldNames[1], "Height");
  EXPECT_FLOAT_EQ(read.Types[0].SectionDraw.TextH, 0.25f);

  const std::string again = folder / "again.ini";
  vRmChainDataTypesWrite(again.c_str(), &read);
  vRmChainDataDrawWrite(again.c_str(), &read, false);
  EXPECT_EQ(sReadWholeFile(again), written);
}
