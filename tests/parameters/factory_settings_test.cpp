#include "parameters/factory_settings.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "base/session.h"
#include "parameters/inif_file.h"
#include "tests/support/scratch_folder.h"

namespace {

// Each test reads its settings into a fresh primary session.
class FactorySettings : public ::testing::Test {
 protected:
  void SetUp() override { pSessionCreate(); }
  void TearDown() override { vSessionDelete(nullptr); }

  bool boRead(const std::string& content) {
    vWriteWholeFile(folder / "factory.ini", content);
    return boFactorySettingsRead((folder / "factory.ini").c_str());
  }

  ScratchFolder folder;
};

}  // namespace

TEST(InifFile, DeliversEntriesInFileOrderCutToTheBuffers) {
  ScratchFolder folder;
  vWriteWholeFile(folder / "a.ini",
                  "; comment\r\n[One]\r\nb = 2\r\n# other comment\r\na=1\r\nno equals sign\r\n"
                  "[two]\nlong=" + std::string(300, 'x') + "\n");
  KvrInif* inif = pKvrInifOpenPrivate((folder / "a.ini").c_str(), 0);
  ASSERT_NE(inif, nullptr);
  char key[80], value[201];
  ASSERT_TRUE(boKvrInifSetSection(inif, "one"));
  ASSERT_TRUE(boKvrInifGetFirstEntry(inif, key, sizeof key, value, sizeof value));
  EXPECT_STREQ(key, "b");
  EXPECT_STREQ(value, "2");
  ASSERT_TRUE(boKvrInifGetNextEntry(inif, key, sizeof key, value, sizeof value));
  EXPECT_STREQ(key, "a");
  EXPECT_FALSE(boKvrInifGetNextEntry(inif, key, sizeof key, value, sizeof value));
  ASSERT_TRUE(boKvrInifSetSection(inif, "Two"));
  ASSERT_TRUE(boKvrInifGetFirstEntry(inif, key, sizeof key, value, sizeof value));
  EXPECT_EQ(std::string(value), std::string(200, 'x'));
  EXPECT_FALSE(boKvrInifSetSection(inif, "Three"));
  vKvrInifClose(inif);
  EXPECT_EQ(pKvrInifOpenPrivate((folder / "missing.ini").c_str(), 0), nullptr);
}

TEST_F(FactorySettings, RefusesAMissingOrEmptyPath) {
  EXPECT_FALSE(boFactorySettingsRead(nullptr));
  EXPECT_FALSE(boFactorySettingsRead(""));
  EXPECT_FALSE(boFactorySettingsRead((folder / "none.ini").c_str()));
}

TEST_F(FactorySettings, AFileWithoutTablesReadsAndLooksUpEmpty) {
  ASSERT_TRUE(boRead("[Unrelated]\n1=x\n"));
  EXPECT_STREQ(sFactoryText(kFactoryRoadType, 1), "");
  int code = -1;
  const char* text = nullptr;
  EXPECT_FALSE(boFactoryFirst(kFactoryRoadType, &code, &text));
  EXPECT_STREQ(text, "");
  EXPECT_EQ(iRmModelDefaultCalcStandard(), 0);
}

TEST_F(FactorySettings, WalksCodesInNaturalOrderAndFindsTheFirstOfTwo) {
  ASSERT_TRUE(boRead("[RoadType]\n10=Ten\n9=Nine\n9=Again\n"));
  EXPECT_STREQ(sFactoryText(kFactoryRoadType, 9), "Nine");
  std::vector<std::string> walked;
  int code = 0;
  const char* text = "";
  for (bool more = boFactoryFirst(kFactoryRoadType, &code, &text); more;
       more = boFactoryNext(&code, &text)) {
    walked.push_back(std::to_string(code) + "=" + text);
  }
  EXPECT_EQ(walked, (std::vector<std::string>{"9=Nine", "9=Again", "10=Ten"}));
  EXPECT_TRUE(boFactoryCodeByText(kFactoryRoadType, "Ten", &code));
  EXPECT_EQ(code, 10);
  EXPECT_FALSE(boFactoryCodeByText(kFactoryRoadType, "ten", &code));
  EXPECT_FALSE(boFactoryCodeByText(kFactoryRoadType, "", &code));
}

TEST_F(FactorySettings, SplitsTextAndTag) {
  ASSERT_TRUE(boRead("[MassCalcStandard]\n"
                     "0=None\n"
                     "1=\"Two words\"\n"
                     "2=Two words\n"
                     "3=Name tag:(Field:ABC Other:(x y))\n"
                     "4=NoParens tag:Field:ABC\n"
                     "5=\n"));
  // The quoting of the words is the token reader's own test.
  const char* text = "";
  const char* tag = "";
  EXPECT_STREQ(sFactoryText(kFactoryMassCalcStandard, 2), "Two");
  boFactoryTextAndTag("MassCalcStandard", 3, &text, &tag);
  EXPECT_STREQ(text, "Name");
  EXPECT_STREQ(tag, "Field:ABC Other:(x y)");
  EXPECT_STREQ(sMassCalcStandardField(3), "ABC");
  EXPECT_EQ(sMassCalcStandardField(4), nullptr);
  EXPECT_EQ(sMassCalcStandardField(0), nullptr);
  boFactoryTextAndTag("MassCalcStandard", 4, &text, &tag);
  EXPECT_STREQ(tag, "");
  // An entry with no token at all is left out.
  int code = 0;
  int last = -1;
  for (bool more = boFactoryFirst(kFactoryMassCalcStandard, &code, &text); more;
       more = boFactoryNext(&code, &text)) {
    last = code;
  }
  EXPECT_EQ(last, 4);
  EXPECT_EQ(iRmModelDefaultCalcStandard(), 1);
}

TEST_F(FactorySettings, ReadsTunnelStandards) {
  ASSERT_TRUE(boRead("[TunnelStandards]\n"
                     "5=T8.5 tag:(TotalWidth:8.5 LaneWidth:3.25 HangRadius:5.4 Unknown:1 Bare)\n"));
  TunnelStandard standard{};
  standard.WallRadius = 7.0;
  EXPECT_TRUE(boTunnelStandardRead(5, &standard));
  EXPECT_STREQ(standard.Name, "T8.5");
  EXPECT_DOUBLE_EQ(standard.TotalWidth, 8.5);
  EXPECT_DOUBLE_EQ(standard.LaneWidth, 3.25);
  EXPECT_DOUBLE_EQ(standard.HangRadius, 5.4);
  EXPECT_DOUBLE_EQ(standard.WallRadius, 7.0);  // not in the tag: left alone
  EXPECT_TRUE(boTunnelStandardRead(6, &standard));
  EXPECT_STREQ(standard.Name, "");

  const std::pair<const char*, int> classes[] = {{"t8.5", 5},  {"T4", 4},  {"T12.5", 6},
                                                 {"T13.5", 9}, {"T15", 1}, {nullptr, 1}};
  for (const auto& [name, tunnelClass] : classes) {
    EXPECT_EQ(iTunnelClassFromName(name), tunnelClass) << (name ? name : "null");
  }
}

TEST_F(FactorySettings, TheShippedSettingsFileFillsEveryTable) {
  ASSERT_TRUE(boFactorySettingsRead(KVRVIPS_SOURCE_DIR "/examples/factory_settings.ini"));
  for (int table = 0; table < kFactoryTableCount; ++table) {
    int code = 0;
    const char* text = "";
    EXPECT_TRUE(boFactoryFirst(table, &code, &text)) << sFactoryTableName(table);
  }
  EXPECT_STREQ(sFactoryText(kFactorySectLayerTypeShort, 2), "Fys");
  EXPECT_NE(sMassCalcStandardField(iRmModelDefaultCalcStandard()), nullptr);
  TunnelStandard standard{};
  boTunnelStandardRead(5, &standard);
  EXPECT_EQ(iTunnelClassFromName(standard.Name), 5);
  EXPECT_GT(standard.TotalWidth, 0.0);
}
