// The whole conversion through the exported function, in this process.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "base/platform.h"
#include "kvrvips/kvrvips.h"
#include "geometry/line.h"
#include "model_file/records/frame/model_save.h"
#include "road_model/model/model.h"
#include "road_model/model/model_lines.h"
#include "road_model/model/model_scalars.h"
#include "tests/vips_import/alignment_reading.h"
#include "tests/vips_import/conversion_fixtures.h"
#include "vips_import/driver/version_labels.h"

namespace {

struct Conversion {
  int result;
  std::string logPath;  // "<unset>" when the export left it alone
  std::string log;
};

Conversion Convert(const std::string& design, const std::string& modelFile, uint32_t flags,
                   uint32_t describeOpenError = 0,
                   const std::string& settings = sShippedSettings()) {
  char unset[] = "<unset>";
  char* logFile = unset;
  Conversion conversion;
  conversion.result = iKvrVipsConvertDatabase(design.c_str(), modelFile.c_str(), flags,
                                              &logFile, settings.c_str(), describeOpenError, 0);
  conversion.logPath = logFile ? logFile : "<null>";
  if (std::filesystem::is_regular_file(conversion.logPath)) {
    conversion.log = sReadTextFile(conversion.logPath);
  }
  return conversion;
}

// Saves a model with two plan lines and settings that no import makes.
void vSaveWorkedModel(const std::string& modelFile) {
  ModelPtr model(RmModelCreate());
  vRmModelSetMarket(model.get(), "Nor");
  vRmModelSetGuid(model.get(), "{5e1f}");
  vRmModelSetRoadType(model.get(), 4);
  vRmModelSetCalcMode(model.get(), 3);
  RmLines* lines = RmModelGetOrCreateLines(model.get());
  for (RmLine* line : {RmLinesAddDefault(lines), RmLinesAddWithId(lines, 7, false)}) {
    LiLineAddP2d(line, 100.0, 200.0);
    LiLineAddP2d(line, 150.0, 200.0);
  }
  ASSERT_TRUE(boRmModelSave(model.get(), modelFile.c_str()));
  ASSERT_EQ(iRmLinesGetCount(RmModelGetLines(Loaded(modelFile).get())), 2);
}

// The headings of the table readers of a design without tables.
const std::string kTablesHeading = sTablesLog();
// What a full import logs of a design without alignments: the heading of
// the elevation differences with the blank line for none, and the heading
// of the other alignments.
const std::string kNoAlignments =
    "  Leser tabell: Overstyring av vertikalkurvatur\n\n\nLeser ekstra linjer\n";

TEST(ConvertDatabase, AMissingModelFileIsMadeNewWithTheImport) {
  ScratchFolder folder;
  vWriteWholeFile(folder / "veg.json", sDesignDocument(sInputOf("10.0", 1)));
  std::string modelFile = folder / "veg.sfi";

  Conversion conversion = Convert(folder / "veg.json", modelFile, KVRVIPS_IMPORT_FULL);
  EXPECT_EQ(conversion.result, 0);
  EXPECT_EQ(conversion.logPath, folder / "veg.log");
  EXPECT_EQ(conversion.log,
            sLogHead("Np21", "Road", "10.0") + kNoAlignments + kTablesHeading + sSectionsLog());

  EXPECT_EQ(sReadWholeFile(modelFile).rfind("[KVRFILE_ASCII]\r\n", 0), 0u);
  ModelPtr model = Loaded(modelFile);
  EXPECT_EQ(model->RoadType, 1);
  EXPECT_EQ(model->CalcTheo, 3);
  EXPECT_EQ(model->CalcPhys, 4);
  EXPECT_EQ(model->CalcStandard, 1);  // the first standard of the settings
  EXPECT_EQ(model->CalcMode, 0);
}

TEST(ConvertDatabase, AFailedOpenLeavesTheModelFileByteForByte) {
  ScratchFolder folder;
  std::string modelFile = folder / "veg.sfi";
  vSaveWorkedModel(modelFile);
  std::string before = sReadWholeFile(modelFile);

  vWriteWholeFile(folder / "ugyldig.json", "{not a design");
  Conversion conversion = Convert(folder / "ugyldig.json", modelFile, KVRVIPS_IMPORT_FULL);
  EXPECT_EQ(conversion.result, -1);
  EXPECT_EQ(conversion.log, "Feil ved \xE5pning av VIPS database -3\n");
  EXPECT_EQ(sReadWholeFile(modelFile), before);

  // With the texts asked for, a code runs on into every text after it.
  conversion = Convert(folder / "mangler.json", modelFile, KVRVIPS_IMPORT_FULL, 1);
  EXPECT_EQ(conversion.result, -1);
  EXPECT_EQ(conversion.logPath, folder / "mangler.log");
  EXPECT_EQ(conversion.log,
            "File not accessable (cannot be opened)"
            "Illegal file (cannot read content properly)"
            "File version is incorrect"
            "File already open"
            "File access denied\n");
  EXPECT_EQ(sReadWholeFile(modelFile), before);
}

TEST(ConvertDatabase, TheFlagsAndTheInputSideDecideWhatOfTheLoadedModelStays) {
  const std::string connected = R"(,"connectedWSModels":[
      {"fromChainage":10,"toChainage":20.5,"wsModel":"Gr\u00f8ft A"},
      {"fromChainage":-5.125,"toChainage":0,"wsModel":"Kanal \u0416"}])";
  const struct {
    std::string input;  // the design's input side
    uint32_t flags;
    std::string log;
    double version;  // the design's model version; 0 where it has none
    const char* market;
    int roadType, calcMode, lineCount;
  } cases[] = {
      // Flags zero log the design and empty the plan lines alone.
      {sInputOf("8.200005", 2), 0, sLogHead("Np20", "Railway", "8.2"), 8.200005, "Nor", 4, 3, 0},
      // A full import resets the model but keeps its guid; a WS design names
      // no road type.
      {sInputOf("9.0", 3), KVRVIPS_IMPORT_FULL,
       sLogHead("Unknown", "WS", "9.0") + kNoAlignments + kTablesHeading + sSectionsLog(), 9.0,
       "", 0, 0, 0},
      // The tables list the connected models without resetting the model.
      {sInputOf("8.1", 1, connected), KVRVIPS_IMPORT_TABLES,
       sLogHead("Np19.20", "Road", "8.1") +
           sTablesLog("", "Gr\xF8" "ftemodel:\t10.000\t20.500\tGr\xF8" "ft A\n"
                          "Gr\xF8" "ftemodel:\t-5.125\t0.000\tKanal ?\n") +
           sSectionsLog(),
       8.1, "Nor", 4, 0, 0},
      // A design without input side is neither logged nor read for
      // alignments, and resets nothing; the tables start all the same.
      {"null", KVRVIPS_IMPORT_FULL, sSectionsLog(), 0.0, "Nor", 4, 0, 2},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.input);
    ScratchFolder folder;
    std::string modelFile = folder / "veg.sfi";
    vSaveWorkedModel(modelFile);
    vWriteWholeFile(folder / "veg.json", sDesignDocument(test.input));

    Conversion conversion = Convert(folder / "veg.json", modelFile, test.flags);
    EXPECT_EQ(conversion.result, 0);
    EXPECT_EQ(conversion.log, test.log);
    if (test.version != 0.0) {
      EXPECT_DOUBLE_EQ(VipsModelVersion, test.version);
    }

    ModelPtr model = Loaded(modelFile);
    EXPECT_STREQ(sRmModelGetGuid(model.get()), "{5e1f}");
    EXPECT_STREQ(sRmModelGetMarket(model.get()), test.market);
    EXPECT_EQ(model->RoadType, test.roadType);
    EXPECT_EQ(model->CalcMode, test.calcMode);
    EXPECT_EQ(iRmLinesGetCount(RmModelGetLines(model.get())), test.lineCount);
  }
}

TEST(ConvertDatabase, WithoutFactorySettingsNothingIsTouched) {
  ScratchFolder folder;
  vWriteWholeFile(folder / "veg.json", sDesignDocument(sInputOf("10.0", 1)));
  std::string modelFile = folder / "veg.sfi";
  CapturedMessages messages;

  // No settings named and no model file; a settings file that is missing
  // and a model file to keep.
  for (const std::string& settings : {std::string(), folder / "mangler.ini"}) {
    if (!settings.empty()) vSaveWorkedModel(modelFile);
    std::string before = sReadWholeFile(modelFile);
    Conversion conversion =
        Convert(folder / "veg.json", modelFile, KVRVIPS_IMPORT_FULL, 0, settings);
    EXPECT_EQ(conversion.result, -1);
    EXPECT_EQ(conversion.logPath, "<unset>");
    EXPECT_FALSE(std::filesystem::exists(folder / "veg.log"));
    EXPECT_EQ(std::filesystem::exists(modelFile), !settings.empty());
    EXPECT_EQ(sReadWholeFile(modelFile), before);
  }

  char* logFile = nullptr;
  EXPECT_EQ(iKvrVipsConvertDatabase(nullptr, nullptr, 0, &logFile, nullptr, 0, 0), -1);
  EXPECT_EQ(logFile, nullptr);

  EXPECT_EQ(messages.texts(),
            std::vector<std::string>(3, "Failed to read SORNLIB_FACTORY_SETTINGS"));
}

TEST(ConvertDatabase, TheLogGoesToTheCurrentDirectoryWhenItCannotBeMadeBesideTheDesign) {
  ScratchFolder folder;
  ScratchFolder elsewhere;
  CurrentDirectory stay(elsewhere.path());
  std::string current = std::filesystem::current_path().string();

  // A folder holds the log's name: no file can be made there, not even by
  // the super-user.
  vWriteWholeFile(folder / "veg.json", sDesignDocument(sInputOf("10.0", 1)));
  std::filesystem::create_directory(folder / "veg.log");
  Conversion conversion = Convert(folder / "veg.json", folder / "veg.sfi", 0);
  EXPECT_EQ(conversion.result, 0);
  EXPECT_EQ(conversion.logPath, current + cPlatformPathSeparator() + "veg.log");
  EXPECT_EQ(conversion.log, sLogHead("Np21", "Road", "10.0"));

  // Neither place takes the log: the import goes on, writing to nothing.
  std::filesystem::remove(current + cPlatformPathSeparator() + "veg.log");
  std::filesystem::create_directory(current + cPlatformPathSeparator() + "veg.log");
  conversion = Convert(folder / "veg.json", folder / "veg.sfi", KVRVIPS_IMPORT_FULL);
  EXPECT_EQ(conversion.result, 0);
  EXPECT_EQ(conversion.logPath, current + cPlatformPathSeparator() + "veg.log");
  EXPECT_EQ(Loaded(folder / "veg.sfi")->RoadType, 1);

  // The design's folder is a plain file: the design cannot be opened
  // either, and the log in the current directory says so.
  vWriteWholeFile(folder / "fil", "");
  conversion = Convert(folder / "fil/bru.json", folder / "bru.sfi", 0);
  EXPECT_EQ(conversion.result, -1);
  EXPECT_EQ(conversion.logPath, current + cPlatformPathSeparator() + "bru.log");
  EXPECT_EQ(conversion.log, "Feil ved \xE5pning av VIPS database -2\n");
  EXPECT_FALSE(std::filesystem::exists(folder / "bru.sfi"));
}

}  // namespace
