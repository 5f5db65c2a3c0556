// The command-line tool kvrvips, run as a program: its exit status and what
// it tells on standard output and standard error.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/paths.h"
#include "design_model/document.h"
#include "tests/support/scratch_folder.h"
#include "tests/tools/program_run.h"

namespace {

const std::string kExample = KVRVIPS_SOURCE_DIR "/examples/road.json";

ProgramRun RunTool(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), KVRVIPS_TOOL);
  return RunProgram(arguments);
}

// A design document whose first bad member is /input/modelType.
const std::string kBadModelType =
    R"({"format":"design-model","formatVersion":1,"input":{"modelType":1.5}})";

TEST(KvrvipsTool, UsageErrorsExitWithTwoAndTouchNothing) {
  ScratchFolder folder;
  const std::string model = folder / "model.sfi";
  const std::vector<std::vector<std::string>> usageErrors = {
      {},
      {"frobnicate"},
      {"convert", kExample},
      {"convert", kExample, model, "surplus"},
      {"convert", kExample, model, "--flags"},
      {"convert", kExample, model, "--flags", "all"},
      {"convert", kExample, model, "--colour"},
      {"check"},
      {"check", kExample, "--flags", "3"},
  };
  for (const std::vector<std::string>& arguments : usageErrors) {
    std::string line;
    for (const std::string& word : arguments) line += word + " ";
    ProgramRun run = RunTool(arguments);
    EXPECT_EQ(run.iStatus, 2) << line;
    EXPECT_EQ(run.sOut, "") << line;
    EXPECT_NE(run.sErr, "") << line;
    EXPECT_FALSE(boFileExists(model.c_str())) << line;
  }
  // A bad flag word is named as such.
  ProgramRun run = RunTool({"convert", kExample, model, "--flags", "all"});
  EXPECT_NE(run.sErr.find("--flags"), std::string::npos) << run.sErr;
}

TEST(KvrvipsTool, HelpAndVersionExitWithZero) {
  ProgramRun help = RunTool({"--help"});
  EXPECT_EQ(help.iStatus, 0);
  EXPECT_NE(help.sOut.find("convert"), std::string::npos);
  EXPECT_NE(help.sOut.find("check"), std::string::npos);

  EXPECT_EQ(RunTool({"convert", "--help"}).iStatus, 0);
  ProgramRun version = RunTool({"--version"});
  EXPECT_EQ(version.iStatus, 0);
  EXPECT_EQ(version.sOut, "kvrvips " KVRVIPS_VERSION "\n");
}

TEST(KvrvipsTool, CheckTellsAValidDocumentOrNamesTheFirstProblem) {
  ScratchFolder folder;
  const std::string design = folder / "design.json";
  const std::string invalid = "kvrvips: " + design + " is not a valid design document\n";
  struct Case {
    std::string document;
    int status;
    std::string out, err;
  };
  const Case cases[] = {
      {sReadWholeFile(kExample), 0, design + ": valid design document\n", ""},
      {R"({"format":"design-model","formatVersion":1,"results":{"sections":[)"
       R"({"chainage":0},{"chainage":10,"model":{"refElevation":"high"}}]}})",
       1, "", invalid + "  at /results/sections/1/model/refElevation: expected a number or null\n"},
      {R"(["design-model"])", 1, "", invalid + "  at the document root: expected an object\n"},
      {R"({"format":"design-model","formatVersion":2})", 1, "",
       "kvrvips: " + design +
           " has a newer format version than this program reads\n"
           "  at /formatVersion: expected a format version of at most 1\n"}};
  for (const Case& c : cases) {
    vWriteWholeFile(design, c.document);
    ProgramRun run = RunTool({"check", design});
    EXPECT_EQ(run.iStatus, c.status) << c.document;
    EXPECT_EQ(run.sOut, c.out) << c.document;
    EXPECT_EQ(run.sErr, c.err);
  }
  const std::string missing = folder / "missing.json";
  ProgramRun run = RunTool({"check", missing});
  EXPECT_EQ(run.iStatus, 1);
  EXPECT_EQ(run.sErr, "kvrvips: cannot read " + missing + "\n");
}

TEST(KvrvipsTool, ConvertsTheExampleWithTheDefaultSettings) {
  // A copy, so that the log, which goes beside the design, lands in the
  // scratch folder.
  ScratchFolder folder;
  const std::string design = folder / "road.json";
  const std::string model = folder / "road.sfi";
  vWriteWholeFile(design, sReadWholeFile(kExample));

  ProgramRun run = RunTool({"convert", design, model});
  EXPECT_EQ(run.iStatus, 0) << run.sErr;
  EXPECT_EQ(run.sOut, "log: " + folder.path() + "/road.log\n");
  EXPECT_EQ(run.sErr, "");
  EXPECT_TRUE(
      sReadWholeFile(model).starts_with("[KVRFILE_ASCII]\r\n_VERSION 2\r\n_FILETYPE sfi\r\n"));
  EXPECT_TRUE(sReadTextFile(folder / "road.log")
                  .starts_with("Import VIPS database (.gen fil)\nVersion: Np21 Type: Road\n"));
}

TEST(KvrvipsTool, FailedConversionsExitWithOneAndLeaveTheModelAlone) {
  ScratchFolder folder;
  const std::string design = folder / "bad.json";
  const std::string model = folder / "model.sfi";
  const std::string log = folder / "bad.log";
  const std::string oldModel = "an older model file\r\n";
  vWriteWholeFile(design, kBadModelType);
  vWriteWholeFile(model, oldModel);

  // A design that cannot be opened: the log holds the open error, the tool
  // names the bad member.
  ProgramRun run = RunTool({"convert", design, model, "--describe-open-error"});
  EXPECT_EQ(run.iStatus, 1);
  EXPECT_EQ(run.sOut, "log: " + log + "\n");
  EXPECT_EQ(run.sErr, "kvrvips: " + design +
                          " is not a valid design document\n"
                          "  at /input/modelType: expected an integer from -2147483648 to "
                          "2147483647\n"
                          "kvrvips: converting " + design + " failed; " + model +
                          " is left as it was\n"
                          "kvrvips: the log tells more: " + log + "\n");
  EXPECT_EQ(sReadTextFile(log),
            "Illegal file (cannot read content properly)File version is incorrect"
            "File already openFile access denied\n");
  EXPECT_EQ(sReadWholeFile(model), oldModel);

  // Settings that cannot be read: the export's message (a message box on
  // Windows, standard error elsewhere), no log at all.
#ifdef _WIN32
  const std::string message;
#else
  const std::string message = "Failed to read SORNLIB_FACTORY_SETTINGS\n";
#endif
  const std::string settings = folder / "no_settings.ini";
  vWriteWholeFile(design, sReadWholeFile(kExample));
  std::filesystem::remove(log);
  run = RunTool({"convert", design, model, "--settings", settings});
  EXPECT_EQ(run.iStatus, 1);
  EXPECT_EQ(run.sOut, "");
  EXPECT_EQ(run.sErr, message +
                      "kvrvips: cannot read the factory settings file " + settings + "\n"
                      "kvrvips: converting " + design + " failed; " + model +
                      " is left as it was\n");
  EXPECT_FALSE(boFileExists(log.c_str()));
  EXPECT_EQ(sReadWholeFile(model), oldModel);
}

TEST(KvrvipsTool, ConvertFirstRunsTheConverterBesideTheLibrary) {
  ScratchFolder folder;
  const std::string design = folder / "road.json";
  const std::string model = folder / "road.sfi";
  const std::string example = sReadWholeFile(kExample);
  vWriteWholeFile(design, example);

  // The converter rewrote the design in the current format, every member
  // written out, before the import read it.
  ProgramRun run = RunTool({"convert", design, model, "--convert-first"});
  EXPECT_EQ(run.iStatus, 0) << run.sErr;
  std::unique_ptr<NpDesignModel::DesignModelRecord> original =
      NpDesignModel::ReadDocumentText(example, nullptr);
  ASSERT_TRUE(original);
  EXPECT_EQ(sReadWholeFile(design), NpDesignModel::sDocumentText(*original, true));
  EXPECT_TRUE(boFileExists(model.c_str()));
}

}  // namespace
