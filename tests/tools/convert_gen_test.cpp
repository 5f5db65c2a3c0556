// kvrvips_convert_gen, run as the export runs it: a child process judged by
// the exit code that reaches the parent on this platform.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "base/platform.h"
#include "design_model/document.h"
#include "tests/support/scratch_folder.h"
#include "tests/tools/program_run.h"

namespace {

// What the converter's exit code arrives as, the way the export starts it:
// the program's path, a blank and the rest of the command line.
int iRunConverter(const std::string& commandTail) {
  return iPlatformRunProcess((std::string(KVRVIPS_CONVERT_GEN) + commandTail).c_str());
}

const std::string kSparseDesign =
    R"({"format":"design-model","formatVersion":1,"extra":"kept out",)"
    R"("input":{"modelType":2,"alignments":[{"id":7,"name":"Spor 1"}]}})";

TEST(ConvertGen, RewritesAValidDocumentInTheCurrentFormat) {
  ScratchFolder folder;
  const std::string design = folder / "design.json";
  vWriteWholeFile(design, kSparseDesign);

  EXPECT_EQ(iRunConverter(" " + design), iPlatformExitCodeOf(1001));
  std::unique_ptr<NpDesignModel::DesignModelRecord> expected =
      NpDesignModel::ReadDocumentText(kSparseDesign, nullptr);
  ASSERT_TRUE(expected);
  EXPECT_EQ(sReadWholeFile(design), NpDesignModel::sDocumentText(*expected, true));
  // A second run finds the document already current and leaves it the same.
  const std::string once = sReadWholeFile(design);
  EXPECT_EQ(iRunConverter(" " + design), iPlatformExitCodeOf(1001));
  EXPECT_EQ(sReadWholeFile(design), once);
}

TEST(ConvertGen, ExitCodesTellMissingAndBadDocuments) {
  ScratchFolder folder;
  EXPECT_EQ(iRunConverter(" " + folder / "missing.json"), iPlatformExitCodeOf(1000));
  EXPECT_EQ(iRunConverter(" " + folder.path()), iPlatformExitCodeOf(1000));

  const std::string design = folder / "design.json";
  for (const std::string& bad : {std::string("not json"),
                                std::string(R"({"format":"design-model","formatVersion":2})"),
                                std::string(R"({"format":"road","formatVersion":1})"),
                                std::string(R"({"format":"design-model","formatVersion":1,)"
                                            R"("input":{"modelType":"road"}})")}) {
    vWriteWholeFile(design, bad);
    EXPECT_EQ(iRunConverter(" " + design), iPlatformExitCodeOf(999)) << bad;
    EXPECT_EQ(sReadWholeFile(design), bad);
  }

  // Not a single design path: no argument, two of them (a path with a blank
  // reaches the converter as two), or an option.
  vWriteWholeFile(design, kSparseDesign);
  EXPECT_EQ(iRunConverter(""), iPlatformExitCodeOf(1));
  EXPECT_EQ(iRunConverter(" " + design + " " + design), iPlatformExitCodeOf(1));
  EXPECT_EQ(iRunConverter(" --help"), iPlatformExitCodeOf(1));
  EXPECT_EQ(sReadWholeFile(design), kSparseDesign);
}

TEST(ConvertGen, TellsWhyOnStandardError) {
  ScratchFolder folder;
  const std::string design = folder / "design.json";
  vWriteWholeFile(design, R"({"format":"design-model","formatVersion":1,"input":{"modelType":"road"}})");
  ProgramRun run = RunProgram({KVRVIPS_CONVERT_GEN, design});
  EXPECT_EQ(run.sOut, "");
  EXPECT_EQ(run.sErr, "kvrvips_convert_gen: " + design +
                          " is not a valid design document\n"
                          "  at /input/modelType: expected an integer from -2147483648 to "
                          "2147483647\n");

  run = RunProgram({KVRVIPS_CONVERT_GEN, folder / "missing.json"});
  EXPECT_EQ(run.sErr, "kvrvips_convert_gen: no design document at " + folder / "missing.json" + "\n");

  run = RunProgram({KVRVIPS_CONVERT_GEN});
  EXPECT_TRUE(run.sErr.starts_with("usage: kvrvips_convert_gen DESIGN\n")) << run.sErr;
}

}  // namespace
