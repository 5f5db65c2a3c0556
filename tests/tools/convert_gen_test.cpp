// kvrvips_convert_gen, run as the export runs it: a child process judged by
// the exit code that reaches the parent on this platform.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "base/platform.h"
#include "design_model/document.h"
#include "tests/support/scratch_folder.h"
#include "tests/tools/program_run.h"

namespace {

ProgramRun RunConverter(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), KVRVIPS_CONVERT_GEN);
  return RunProgram(arguments);
}

const std::string kSparseDesign =
    R"({"format":"design-model","formatVersion":1,"extra":"kept out",)"
    R"("input":{"modelType":2,"alignments":[{"id":7,"name":"Spor 1"}]}})";

TEST(ConvertGen, RewritesAValidDocumentInTheCurrentFormat) {
  ScratchFolder folder;
  const std::string design = folder / "design.json";
  vWriteWholeFile(design, kSparseDesign);
  std::unique_ptr<NpDesignModel::DesignModelRecord> expected =
      NpDesignModel::ReadDocumentText(kSparseDesign, nullptr);
  ASSERT_TRUE(expected);
  // A second run finds the document already current and leaves it the same.
  for (int run = 1; run <= 2; ++run) {
    EXPECT_EQ(RunConverter({design}).iStatus, iPlatformExitCodeOf(1001)) << run;
    EXPECT_EQ(sReadWholeFile(design), NpDesignModel::sDocumentText(*expected, true)) << run;
  }
}

TEST(ConvertGen, ExitCodesTellMissingAndBadDocumentsAndStandardErrorWhy) {
  ScratchFolder folder;
  for (const std::string& path : {folder / "missing.json", folder.path()}) {
    ProgramRun run = RunConverter({path});
    EXPECT_EQ(run.iStatus, iPlatformExitCodeOf(1000)) << path;
    EXPECT_EQ(run.sErr, "kvrvips_convert_gen: no design document at " + path + "\n");
  }

  const std::string design = folder / "design.json";
  const std::string wrongKind =
      R"({"format":"design-model","formatVersion":1,"input":{"modelType":"road"}})";
  for (const std::string& bad :
       {std::string("not json"), std::string(R"({"format":"design-model","formatVersion":2})"),
        std::string(R"({"format":"road","formatVersion":1})"), wrongKind}) {
    vWriteWholeFile(design, bad);
    ProgramRun run = RunConverter({design});
    EXPECT_EQ(run.iStatus, iPlatformExitCodeOf(999)) << bad;
    EXPECT_EQ(run.sOut, "") << bad;
    EXPECT_EQ(sReadWholeFile(design), bad);
    if (bad == wrongKind) {
      EXPECT_EQ(run.sErr, "kvrvips_convert_gen: " + design +
                              " is not a valid design document\n"
                              "  at /input/modelType: expected an integer from -2147483648 to "
                              "2147483647\n");
    }
  }

  // Not a single design path: no argument, two of them (a path with a blank
  // reaches the converter as two), or an option.
  vWriteWholeFile(design, kSparseDesign);
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{}, {design, design}, {"--help"}}) {
    ProgramRun run = RunConverter(arguments);
    EXPECT_EQ(run.iStatus, iPlatformExitCodeOf(1)) << arguments.size();
    EXPECT_TRUE(run.sErr.starts_with("usage: kvrvips_convert_gen DESIGN\n")) << run.sErr;
  }
  EXPECT_EQ(sReadWholeFile(design), kSparseDesign);
}

}  // namespace
