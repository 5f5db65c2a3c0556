// Reading design documents into the design model: the mapping of members to
// operations, defaults, the no-value mark and surface numbers.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "design_model/design_model.h"
#include "design_model/document.h"
#include "tests/support/scratch_folder.h"

namespace NpDesignModel {
namespace {

std::unique_ptr<DesignModelRecord> Read(const std::string& text) {
  DocumentProblem problem;
  std::unique_ptr<DesignModelRecord> design = ReadDocumentText(text, &problem);
  EXPECT_EQ(problem.iError, 0) << problem.sPointer << ": " << problem.sExpected;
  return design;
}

const std::string kSmallRoad = R"({
  "format": "design-model",
  "formatVersion": 1,
  "exporter": {"name": "an exporter's own member", "deep": [[1, 2], {"x": null}]},
  "input": {
    "modelVersionNumber": 8.2,
    "modelType": 1,
    "referenceAlignmentId": 7,
    "subSurfaceMaterials": ["Jord", "Fjell \u00f8st"],
    "alignments": [{
      "id": 7, "name": "Hovedlinje \u00c6\u00d8\u00c5",
      "horizontalLineElements": [
        {"elementNo": 1, "endChainage": 100.5, "endRadius": -350, "clothoidParameter": null}
      ],
      "verticalLineAnglePoints": [{"chainage": 0, "elevation": 10}, {"chainage": 100.5}]
    }],
    "pvmtTmpls": [{"id": 3, "rehab": {"existRoadEdgeLeft": {"refId": 4}}}]
  },
  "results": {"sections": [
    {"chainage": 50,
     "model": {"refElevation": 11.5, "roadBed": [{"distance": -3.5, "elevation": null}]},
     "terrain": {"materials": [2, 1], "layerElevations": [{"subSurfaces": [-0.5, null]}]}}
  ]}
})";

// Every member going to its own operation and back under its own name is
// pinned by the file of every member below; here what that file does not
// hold: escapes in texts and null, the no-value mark, in each kind of place.
TEST(DesignDocumentReading, EscapesAndNullsReadAsTextsAndTheNoValueMark) {
  std::unique_ptr<DesignModelRecord> design = Read(kSmallRoad);
  ASSERT_TRUE(design);
  const CInData* in = design->GetI();
  ASSERT_TRUE(in);
  EXPECT_EQ(in->GetSubSurfaceMaterials(),
            (std::vector<std::u16string>{u"Jord", u"Fjell \u00F8st"}));
  const CIAlignment& alignment = *in->GetAlignments().at(0);
  EXPECT_EQ(alignment.GetName(), u"Hovedlinje \u00C6\u00D8\u00C5");
  EXPECT_DOUBLE_EQ(alignment.GetHorizontalLineElements().at(0)->GetClothoidParameter(), kNoValue);

  const CRResultSection& section = *design->GetR()->GetSections().at(0);
  EXPECT_DOUBLE_EQ(section.GetModel()->GetRoadBed().at(0)->GetElevation(), kNoValue);
  EXPECT_EQ(section.GetTerrain()->GetLayerElevations().at(0)->GetSubSurfaces(),
            (std::vector<double>{-0.5, kNoValue}));
}

TEST(DesignDocumentReading, AbsentMembersReadAtTheirDefaults) {
  std::unique_ptr<DesignModelRecord> design = Read(kSmallRoad);
  ASSERT_TRUE(design);
  const CInData& in = *design->GetI();
  // A text, a number, a list and a surface number.
  EXPECT_EQ(in.GetAlignments()[0]->GetGuid(), u"");
  EXPECT_DOUBLE_EQ(in.GetAlignments()[0]->GetVerticalLineAnglePoints()[1]->GetElevation(), 0.0);
  EXPECT_TRUE(in.GetSurfaces().empty());
  EXPECT_FALSE(in.GetElevationReferenceSurface().HasSerialNumber());
  // Single objects are there at their defaults, never null, also beside a
  // sibling that is given.
  EXPECT_FALSE(in.GetModelSettings()->IsSodding());
  const CIPavementTemplate& pavement = *in.GetPvmtTmpls()[0];
  EXPECT_FALSE(pavement.GetInnerSlopesRight()->IsStatus());
  EXPECT_EQ(pavement.GetRehab()->GetExistRoadEdgeRight()->GetRefId(), 0);
  EXPECT_DOUBLE_EQ(design->GetR()->GetSections()[0]->GetModel()->GetRailwayRefElevation(), 0.0);
}

// Members may stand in any order, and of two members of one name the first
// counts, also when a later one stands where the record's order expects it.
TEST(DesignDocumentReading, MembersInAnyOrderAndTheFirstOfOneNameCounts) {
  struct Case {
    const char* input;
    double version;
    int32_t type;
    int32_t alignment;
  };
  const Case kCases[] = {
      {R"({"referenceAlignmentId":3,"modelType":2,"modelVersionNumber":1.5})", 1.5, 2, 3},
      {R"({"modelVersionNumber":1.5,"modelVersionNumber":4,"modelType":2})", 1.5, 2, 0},
      {R"({"referenceAlignmentId":9,"modelVersionNumber":1.5,"modelType":2,)"
       R"("referenceAlignmentId":3})",
       1.5, 2, 9},
  };
  for (const Case& c : kCases) {
    std::unique_ptr<DesignModelRecord> design =
        Read(std::string(R"({"format":"design-model","formatVersion":1,"input":)") + c.input + "}");
    ASSERT_TRUE(design) << c.input;
    EXPECT_DOUBLE_EQ(design->GetI()->GetModelVersionNumber(), c.version) << c.input;
    EXPECT_EQ(design->GetI()->GetModelType(), c.type) << c.input;
    EXPECT_EQ(design->GetI()->GetReferenceAlignmentID(), c.alignment) << c.input;
  }
}

TEST(DesignDocumentReading, SidesAbsentOrNullAreNotThere) {
  for (const char* text :
       {R"({"format":"design-model","formatVersion":1})",
        R"({"format":"design-model","formatVersion":1,"input":null,"results":null})"}) {
    std::unique_ptr<DesignModelRecord> bare = Read(text);
    ASSERT_TRUE(bare) << text;
    EXPECT_EQ(bare->GetI(), nullptr) << text;
    EXPECT_EQ(bare->GetR(), nullptr) << text;
  }
  std::unique_ptr<DesignModelRecord> empty =
      Read(R"({"format":"design-model","formatVersion":1,"input":{},"results":{}})");
  ASSERT_TRUE(empty);
  ASSERT_TRUE(empty->GetI());
  EXPECT_TRUE(empty->GetI()->GetAlignments().empty());
  ASSERT_TRUE(empty->GetR());
  EXPECT_TRUE(empty->GetR()->GetSections().empty());
}

TEST(DesignDocumentReading, AByteOrderMarkInFrontIsPassedOver) {
  std::unique_ptr<DesignModelRecord> design = Read(
      "\xEF\xBB\xBF{\"format\":\"design-model\",\"formatVersion\":1,\"input\":{\"modelType\":2}}");
  ASSERT_TRUE(design);
  EXPECT_EQ(design->GetI()->GetModelType(), 2);
  // Only in front: the mark anywhere else is no JSON.
  EXPECT_FALSE(ReadDocumentText("\xEF\xBB\xBF\xEF\xBB\xBF{}", nullptr));
}

TEST(DesignDocumentReading, SurfaceNumberHasASerialNumberExactlyWhenOneIsGiven) {
  std::unique_ptr<DesignModelRecord> design = Read(R"({
    "format": "design-model", "formatVersion": 1,
    "input": {"surfaces": [
      {"surfaceNumber": {"decimal": -1.2, "serialNumber": 4294967295}},
      {"surfaceNumber": {"decimal": 2.01}},
      {"surfaceNumber": {"decimal": null, "serialNumber": 0}},
      {"surfaceNumber": {}}
    ]}})");
  ASSERT_TRUE(design);
  auto surfaces = design->GetI()->GetSurfaces();
  ASSERT_EQ(surfaces.size(), 4u);
  struct Expected {
    double decimal;
    bool hasSerial;
    uint32_t serial;
  };
  const Expected expected[] = {
      {-1.2, true, 4294967295u}, {2.01, false, 0}, {kNoValue, true, 0}, {0.0, false, 0}};
  for (size_t i = 0; i < surfaces.size(); ++i) {
    CSurfaceNumber number = surfaces[i]->GetSurfaceNumber();
    EXPECT_DOUBLE_EQ(number.GetDecimal(), expected[i].decimal) << i;
    EXPECT_EQ(number.HasSerialNumber(), expected[i].hasSerial) << i;
    EXPECT_EQ(number.GetSerialNumber(), expected[i].serial) << i;
  }
}

TEST(DesignDocumentReading, ClosedDrainageIsWalkedSectionBySection) {
  std::unique_ptr<DesignModelRecord> design = Read(R"({
    "format": "design-model", "formatVersion": 1,
    "input": {"closedDrainages": [
      {"sections": [{"chainage": 10, "elevationMode": 1},
                    {"chainage": 20, "elevationMode": -1,
                     "points": [{"distance": 2.5, "elevation": 3}]},
                    {"chainage": 30}]},
      {"sections": []}
    ]}})");
  ASSERT_TRUE(design);
  auto drainages = design->GetI()->GetClosedDrainages();
  ASSERT_EQ(drainages.size(), 2u);
  const CIClosedDrainage& drainage = *drainages[0];
  std::vector<double> chainages;
  for (const CIClosedDrainageSection* section = drainage.FirstSection(); section;
       section = drainage.NextSectionOf(section)) {
    chainages.push_back(section->GetChainage());
  }
  EXPECT_EQ(chainages, (std::vector<double>{10.0, 20.0, 30.0}));
  const CIClosedDrainageSection* second = drainage.NextSectionOf(drainage.FirstSection());
  EXPECT_EQ(second->GetElevationMode(), -1);
  EXPECT_DOUBLE_EQ(second->GetPoints().at(0)->GetDistance(), 2.5);
  // An empty drainage has no first section; a section of another drainage
  // and null have no next one.
  EXPECT_EQ(drainages[1]->FirstSection(), nullptr);
  EXPECT_EQ(drainages[1]->NextSectionOf(drainage.FirstSection()), nullptr);
  EXPECT_EQ(drainage.NextSectionOf(nullptr), nullptr);
}

TEST(DesignDocumentReading, AnOpenedFileWritesBackAsItWasRead) {
  // Every member of every class, each with a value of its own: reading and
  // writing it again gives the same bytes only if every member goes to its
  // own operation and back under its own name.
  std::string path = std::string(KVRVIPS_TEST_DATA_DIR) + "/design_model/every_member.json";
  std::string expected = sReadWholeFile(path);
  ASSERT_FALSE(expected.empty());
  DocumentProblem problem;
  std::unique_ptr<DesignModelRecord> design = ReadDocumentFile(path.c_str(), &problem);
  ASSERT_TRUE(design) << problem.sPointer << ": " << problem.sExpected;
  EXPECT_EQ(sDocumentText(*design, true), expected);
}

}  // namespace
}  // namespace NpDesignModel
