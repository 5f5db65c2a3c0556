// Writing designs as documents: the exact compact text (the indented one is
// pinned by the document of every member that the reading tests write back),
// numbers and texts that read back unchanged, and the file written in place.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <iterator>
#include <limits>
#include <memory>
#include <string>

#include "design_model/design_model_builder.h"
#include "design_model/document.h"
#include "tests/support/scratch_folder.h"

namespace NpDesignModel {
namespace {

TEST(DesignDocumentWriting, CompactTextHasEveryMemberInTheDocumentOrder) {
  DesignModelBuilder builder;
  ResultSectionRecord& section = builder.AddSection(12.5);
  section.model.refElevation = 3.0;
  section.model.roadBed.emplace_back(-2.0, 0.25);
  section.terrain.materials.push_back(CRTerrainSection::MaterialEnums{2});
  std::unique_ptr<DesignModelRecord> design = builder.Build();
  EXPECT_EQ(sDocumentText(*design, false),
            "{\"format\":\"design-model\",\"formatVersion\":1,\"input\":null,\"results\":"
            "{\"sections\":[{\"chainage\":12.5,\"model\":{\"refElevation\":3.0,"
            "\"railwayRefElevation\":0.0,\"surfacesLeft\":[],\"surfacesRight\":[],"
            "\"pavementLayers\":[],\"deepBlastings\":[],\"landscapingsLeft\":[],"
            "\"landscapingsRight\":[],\"soddingsLeft\":[],\"soddingsRight\":[],"
            "\"removalBed\":[],\"edgeReinforcesLeft\":[],\"edgeReinforcesRight\":[],"
            "\"roadBed\":[{\"distance\":-2.0,\"elevation\":0.25}],\"splitSoddings\":[],"
            "\"closedDrainages\":[]},\"terrain\":{\"elevation\":0.0,\"materials\":[2],"
            "\"layerElevations\":[],\"objects\":[]}}]}}\n");
}

TEST(DesignDocumentWriting, NumbersAndTextsReadBackUnchanged) {
  const double kNumbers[] = {20.0, -0.0, 0.1, 1e21, 1.8446744073709552e19, -1e-300, 999999.0};
  const std::u16string kTexts[] = {u"", u"\"sitat\" og \\", u"linje\nfane\tkontroll\x01",
                                   u"\u00C6\u00D8\u00C5 \u20AC", u"utenfor \U0001F6A7 planet"};
  DesignModelBuilder builder;
  LayerElevationsRecord& column = builder.AddSection(0.0).terrain.layerElevations.emplace_back();
  column.subSurfaces.assign(std::begin(kNumbers), std::end(kNumbers));
  builder.Input().subSurfaceMaterials.assign(std::begin(kTexts), std::end(kTexts));
  std::string text = sDocumentText(*builder.Build(), false);

  EXPECT_NE(text.find("\"subSurfaces\":[20.0,-0.0,0.1,1e+21,18446744073709551616.0,-1e-300,"
                      "999999.0]"),
            std::string::npos);
  EXPECT_NE(
      text.find("[\"\",\"\\\"sitat\\\" og \\\\\",\"linje\\nfane\\tkontroll\\u0001\","
                "\"\xC3\x86\xC3\x98\xC3\x85 \xE2\x82\xAC\",\"utenfor \xF0\x9F\x9A\xA7 planet\"]"),
      std::string::npos);

  DocumentProblem problem;
  std::unique_ptr<DesignModelRecord> again = ReadDocumentText(text, &problem);
  ASSERT_TRUE(again) << problem.sPointer << ": " << problem.sExpected;
  std::vector<double> numbers =
      again->GetR()->GetSections()[0]->GetTerrain()->GetLayerElevations()[0]->GetSubSurfaces();
  ASSERT_EQ(numbers.size(), std::size(kNumbers));
  for (size_t i = 0; i < numbers.size(); ++i) {
    EXPECT_EQ(numbers[i], kNumbers[i]) << i;
    EXPECT_EQ(std::signbit(numbers[i]), std::signbit(kNumbers[i])) << i;
  }
  EXPECT_EQ(again->GetI()->GetSubSurfaceMaterials(),
            std::vector<std::u16string>(std::begin(kTexts), std::end(kTexts)));
}

TEST(DesignDocumentWriting, ValuesThatJsonCannotHoldAreWrittenReadably) {
  DesignModelBuilder builder;
  builder.AddSection(std::numeric_limits<double>::quiet_NaN());
  builder.Input().subSurfaceMaterials = {std::u16string(1, u'\xD800') + u"x"};
  std::string text = sDocumentText(*builder.Build(), false);
  EXPECT_NE(text.find("\"chainage\":null"), std::string::npos);
  EXPECT_NE(text.find("[\"\xEF\xBF\xBDx\"]"), std::string::npos);
  EXPECT_TRUE(ReadDocumentText(text, nullptr));
}

TEST(DesignDocumentWriting, ToFileRewritesTheDocumentItCameFrom) {
  ScratchFolder folder;
  std::string path = folder / "vei.json";
  vWriteWholeFile(path, R"({"format":"design-model","formatVersion":1,"input":{"modelType":2}})");
  std::unique_ptr<DesignModelRecord> design = ReadDocumentFile(path.c_str(), nullptr);
  ASSERT_TRUE(design);
  ASSERT_TRUE(design->ToFile(false));
  EXPECT_EQ(sReadWholeFile(path), sDocumentText(*design, false));
  ASSERT_TRUE(design->ToFile(true));
  EXPECT_EQ(sReadWholeFile(path), sDocumentText(*design, true));
  // Nothing but the document is left in the folder.
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()),
                          std::filesystem::directory_iterator()),
            1);

  // A design made in memory has no document of its own until it is given one.
  DesignModelBuilder builder;
  EXPECT_FALSE(builder.Build()->ToFile(true));
  builder.SetDocumentPath(folder / "bygget.json");
  EXPECT_TRUE(builder.Build()->ToFile(true));
  EXPECT_TRUE(ReadDocumentFile((folder / "bygget.json").c_str(), nullptr));
}

TEST(DesignDocumentWriting, AFailedWriteLeavesNothingBehind) {
  ScratchFolder folder;
  DesignModelBuilder builder;
  std::unique_ptr<DesignModelRecord> design = builder.Build();
  EXPECT_FALSE(boWriteDocument(*design, (folder / "mangler/vei.json").c_str(), true));
  EXPECT_FALSE(boWriteDocument(*design, "", true));
  EXPECT_FALSE(boWriteDocument(*design, nullptr, true));
  EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

}  // namespace
}  // namespace NpDesignModel
