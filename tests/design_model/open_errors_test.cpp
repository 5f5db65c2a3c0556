// Bad design documents: every one is refused with its open error code, and
// the validation names the first bad member and what was expected there.
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "design_model/design_model.h"
#include "design_model/document.h"
#include "tests/support/scratch_folder.h"

namespace NpDesignModel {
namespace {

// A document with `input` as its input side.
std::string WithInput(const std::string& input) {
  return R"({"format":"design-model","formatVersion":1,"input":)" + input + "}";
}

DocumentProblem ProblemOf(std::string_view text) {
  DocumentProblem problem;
  std::unique_ptr<DesignModelRecord> design = ReadDocumentText(text, &problem);
  EXPECT_EQ(design == nullptr, problem.iError != 0);
  return problem;
}

TEST(DesignDocumentOpening, OpenGivesTheDesignAndErrorZero) {
  ScratchFolder folder;
  // The path reaches Open widened from the ANSI code page: "vei\xF8.json".
  std::string narrow = folder / "vei\xF8.json";
  vWriteWholeFile(narrow, WithInput(R"({"modelType":3})"));
  std::u16string wide(folder.path().begin(), folder.path().end());
  wide += u"/vei\u00F8.json";
  int32_t err = 99;
  std::unique_ptr<CDesignModel> design(CDesignModel::Open(wide, err));
  EXPECT_EQ(err, 0);
  ASSERT_TRUE(design);
  ASSERT_TRUE(design->GetI());
  EXPECT_EQ(design->GetI()->GetModelType(), 3);
  EXPECT_EQ(design->GetR(), nullptr);
}

TEST(DesignDocumentOpening, AFileThatCannotBeReadIsError2) {
  ScratchFolder folder;
  std::u16string place(folder.path().begin(), folder.path().end());
  // A missing file, a folder and no path at all.
  for (const std::u16string& path : {place + u"/mangler.json", place, std::u16string()}) {
    int32_t err = 0;
    EXPECT_EQ(CDesignModel::Open(path, err), nullptr);
    EXPECT_EQ(err, -2);
  }
  DocumentProblem problem = ValidateDocument((folder / "mangler.json").c_str());
  EXPECT_EQ(problem.iError, -2);
  EXPECT_EQ(problem.sPointer, "");
  EXPECT_EQ(problem.sExpected, "a file that can be read");
}

// A document that is no design document, or one with a member of the wrong
// kind: the place of the first bad member and what was expected there.
TEST(DesignDocumentOpening, ABadDocumentIsError3AndNamesItsFirstBadMember) {
  struct Case {
    std::string text;
    const char* pointer;
    const char* expected;
  };
  const char* const kInt32 = "an integer from -2147483648 to 2147483647";
  const Case kCases[] = {
      {"", "", "a JSON document (Empty: no JSON found)"},
      {"{\"format\": \"design-model\", ", "", nullptr},
      {"design-model", "", nullptr},
      {"[{\"format\":\"design-model\",\"formatVersion\":1}]", "", "an object"},
      {"{\"formatVersion\":1}", "/format", "the string \"design-model\""},
      {"{\"format\":\"Design-Model\",\"formatVersion\":1}", "/format",
       "the string \"design-model\""},
      {"{\"format\":7,\"formatVersion\":1}", "/format", "the string \"design-model\""},
      {"{\"format\":\"design-model\"}", "/formatVersion", "an integer"},
      {"{\"format\":\"design-model\",\"formatVersion\":\"1\"}", "/formatVersion", "an integer"},
      {"{\"format\":\"design-model\",\"formatVersion\":1.0}", "/formatVersion", "an integer"},
      {"{\"format\":\"design-model\",\"formatVersion\":0}", "/formatVersion",
       "a format version of at least 1"},
      {WithInput("[]"), "/input", "an object or null"},
      {"{\"format\":\"design-model\",\"formatVersion\":1,\"results\":true}", "/results",
       "an object or null"},
      {WithInput(R"({"modelVersionNumber":"10"})"), "/input/modelVersionNumber",
       "a number or null"},
      {WithInput(R"({"modelType":1.5})"), "/input/modelType", kInt32},
      // The first bad member in the record's order, not in the text's.
      {WithInput(R"({"modelType":"x","modelVersionNumber":"y"})"), "/input/modelVersionNumber",
       "a number or null"},
      {WithInput(R"({"modelType":1.0})"), "/input/modelType", kInt32},
      {WithInput(R"({"referenceAlignmentId":2147483648})"), "/input/referenceAlignmentId", kInt32},
      {WithInput(R"({"referenceAlignmentId":-2147483649})"), "/input/referenceAlignmentId",
       kInt32},
      {WithInput(R"({"referenceAlignmentId":null})"), "/input/referenceAlignmentId", kInt32},
      {WithInput(R"({"elevationReferenceSurface":{"serialNumber":-1}})"),
       "/input/elevationReferenceSurface/serialNumber", "an integer from 0 to 4294967295"},
      {WithInput(R"({"elevationReferenceSurface":{"serialNumber":4294967296}})"),
       "/input/elevationReferenceSurface/serialNumber", "an integer from 0 to 4294967295"},
      {WithInput(R"({"elevationReferenceSurface":{"decimal":"1.2"}})"),
       "/input/elevationReferenceSurface/decimal", "a number or null"},
      {WithInput(R"({"elevationReferenceSurface":1.2})"), "/input/elevationReferenceSurface",
       "an object"},
      {WithInput(R"({"modelSettings":{"sodding":1}})"), "/input/modelSettings/sodding",
       "true or false"},
      {WithInput(R"({"railwayParams":[]})"), "/input/railwayParams", "an object"},
      {WithInput(R"({"subSurfaceMaterials":["Jord",2]})"), "/input/subSurfaceMaterials/1",
       "a string"},
      {WithInput(R"({"alignments":{}})"), "/input/alignments", "an array"},
      {WithInput(R"({"alignments":[{"id":1},7]})"), "/input/alignments/1", "an object"},
      {WithInput(R"({"alignments":[{"name":null}]})"), "/input/alignments/0/name", "a string"},
      {WithInput(R"({"closedDrainages":[{"sections":[{},{"points":[{"distance":true}]}]}]})"),
       "/input/closedDrainages/0/sections/1/points/0/distance", "a number or null"},
      {WithInput(R"({"pvmtTmpls":[{"rehab":{"existRoadEdgeRight":{"refIdType":"a"}}}]})"),
       "/input/pvmtTmpls/0/rehab/existRoadEdgeRight/refIdType", kInt32},
      // Deep in the results, and the first of two bad members.
      {R"({"format":"design-model","formatVersion":1,"results":{"sections":[{"chainage":0},)"
       R"({"model":{"pavementLayers":[{"layerPoints":[{},{},{"point":{"elevation":"2.5"}}]}]}},)"
       R"({"model":{"refElevation":"also bad, but after the first"}}]}})",
       "/results/sections/1/model/pavementLayers/0/layerPoints/2/point/elevation",
       "a number or null"},
  };
  EXPECT_EQ(ProblemOf(std::string_view()).iError, -3);
  for (const Case& c : kCases) {
    DocumentProblem problem = ProblemOf(c.text);
    EXPECT_EQ(problem.iError, -3) << c.text;
    EXPECT_EQ(problem.sPointer, c.pointer) << c.text;
    if (c.expected) {
      EXPECT_EQ(problem.sExpected, c.expected) << c.text;
    }
  }
}

TEST(DesignDocumentOpening, ATooNewFormatVersionIsError4) {
  for (const char* version : {"2", "18446744073709551615"}) {
    std::string text = std::string("{\"format\":\"design-model\",\"formatVersion\":") + version +
                       ",\"input\":\"not looked at\"}";
    DocumentProblem problem = ProblemOf(text);
    EXPECT_EQ(problem.iError, -4) << version;
    EXPECT_EQ(problem.sPointer, "/formatVersion");
    EXPECT_EQ(problem.sExpected, "a format version of at most 1");
  }
  ScratchFolder folder;
  std::string path = folder / "ny.json";
  vWriteWholeFile(path, "{\"format\":\"design-model\",\"formatVersion\":2}");
  int32_t err = 0;
  EXPECT_EQ(CDesignModel::Open(std::u16string(path.begin(), path.end()), err), nullptr);
  EXPECT_EQ(err, -4);
}

TEST(DesignDocumentOpening, MalformedTextNestingAndSizeAreRefusedWithoutHarm) {
  // Invalid UTF-8 in a text, a lone surrogate and numbers past what a double
  // or an integer holds.
  for (const char* input :
       {"{\"subSurfaceMaterials\":[\"Gr\xF8" "ft\"]}", R"({"subSurfaceMaterials":["\ud800"]})",
        R"({"modelVersionNumber":1e400})", R"({"modelType":18446744073709551616})"}) {
    EXPECT_EQ(ProblemOf(WithInput(input)).iError, -3) << input;
  }

  // Nesting deeper than allowed, even in a member that is not read.
  std::string deep =
      std::string(kMaxDocumentNesting + 1, '[') + std::string(kMaxDocumentNesting + 1, ']');
  DocumentProblem nested = ProblemOf(WithInput("{\"exporter\":" + deep + "}"));
  EXPECT_EQ(nested.iError, -3);
  EXPECT_EQ(nested.sPointer, "");
  EXPECT_NE(nested.sExpected.find("too deep"), std::string::npos);

  // A file above the size limit is refused before it is read: a sparse file
  // takes no room on the disk.
  ScratchFolder folder;
  std::string huge = folder / "stor.json";
  vWriteWholeFile(huge, WithInput("{}"));
  std::filesystem::resize_file(huge, kMaxDocumentBytes + 1);
  DocumentProblem tooLarge = ValidateDocument(huge.c_str());
  EXPECT_EQ(tooLarge.iError, -3);
  EXPECT_EQ(tooLarge.sExpected, "a document of at most 1073741824 bytes");

  // Empty records cost far more memory than their text: a document of
  // nothing else is refused before its design is made.
  std::string sections;
  for (int i = 0; i < 400000; ++i) sections += i ? ",{}" : "{}";
  DocumentProblem amplified = ProblemOf(
      R"({"format":"design-model","formatVersion":1,"results":{"sections":[)" + sections + "]}}");
  EXPECT_EQ(amplified.iError, -3);
  EXPECT_EQ(amplified.sPointer, "/results/sections");
}

TEST(DesignDocumentOpening, UnknownMembersAreIgnoredEverywhere) {
  DocumentProblem problem = ProblemOf(
      R"({"format":"design-model","formatVersion":1,"generator":{"x":[1,2]},
          "input":{"own":"x","alignments":[{"id":1,"colour":"red",
            "horizontalLineElements":[{"startChainage":0,"note":[null]}]}]},
          "results":{"sections":[{"model":{"extra":1},"terrain":{"source":"laser"}}]}})");
  EXPECT_EQ(problem.iError, 0);
}

}  // namespace
}  // namespace NpDesignModel
