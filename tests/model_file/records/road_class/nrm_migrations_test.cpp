// Files of older data versions with parameters along the road, road class
// parameters and road dimensions, written back as version 13.
#include <gtest/gtest.h>

#include <string>

#include "tests/support/model_file_text.h"
#include "tests/support/scratch_folder.h"

namespace {

// Old codes (13, 20, 26, 40, 41, 51) beside codes of today (210, 411, 510).
const std::string kNrmLines = sCrLf(
    {"[+O_NRMPARAMS]", "CODE 13",   " 0 0 2.5",  "CODE 20",  " 0 0 0.5",  "CODE 26",  " 0 0 1",
     "CODE 40",        " 0 0 -4",   " 100 0 -2", "CODE 41",  " 50 0 1.5", "CODE 51",  " 0 0 7",
     "CODE 210",       " 0 0 -2.5", " 100 1 0",  "CODE 411", " 0 0 4",    "CODE 510", " 0 2 1"});

const std::string kRoadClassLines =
    sCrLf({"[+O_ROADCLASSPARAMETERS]", "CLASSNAME Stamveg", "SPEEDLIMIT 90;1,1",
           "SUPERELEVATION 700;1,1 2.5;1,100"});

std::string sOldFile(int version) {
  std::initializer_list<std::string> keys = {"DATAVERSION " + std::to_string(version),
                                             "MARKET Nor"};
  std::initializer_list<std::string> noVersion = {"MARKET Nor"};
  return sModelHead(version == 0 ? noVersion : keys,
                    {"ROADCLASSPARAMETERS", "ROADDIMPARAMS", "NRMPARAMS"}) +
         kRoadClassLines + "[+O_ROADDIMPARAMS]\r\nROADCLASS S5\r\n" + kNrmLines + "[END]\r\n";
}

// Versions 3 and older: the old codes mapped, a lone 20 spread over 1161
// and 1162, codes without a new number dropped; then the signs and the
// split of the later steps. 412 (from 41) becomes 410 as its ratio to 411
// at chainage 50, where 411 runs from 4 to 2.
const std::string kFromVersion3 =
    sCrLf({"CODE 210", " 0.0000 0 0.0250", "CODE 211", " 0.0000 0 100.0000", "CODE 410",
           " 50.0000 0 0.5000", "CODE 411", " 0.0000 0 4.0000", " 100.0000 0 2.0000", "CODE 511",
           " 0.0000 0 7.0000", "CODE 1161", " 0.0000 0 0.5000", "CODE 1162", " 0.0000 0 0.5000"});

// The old codes, which versions from 4 on keep as they are.
const std::string kOldCodesKept =
    sCrLf({"CODE 13", " 0.0000 0 2.5000", "CODE 20", " 0.0000 0 0.5000", "CODE 26",
           " 0.0000 0 1.0000", "CODE 40", " 0.0000 0 -4.0000", " 100.0000 0 -2.0000", "CODE 41",
           " 50.0000 0 1.5000", "CODE 51", " 0.0000 0 7.0000"});

// Versions 4 to 8 keep every code; 210 splits into a magnitude and a
// direction (zero has none), 510 and 511 change places.
std::string sFromVersion8(const char* value411) {
  return kOldCodesKept +
         sCrLf({"CODE 210", " 0.0000 0 0.0250", " 100.0000 1 0.0000", "CODE 211",
                " 0.0000 0 -100.0000", " 100.0000 1 -99999.0000", "CODE 411",
                std::string(" 0.0000 0 ") + value411, "CODE 511", " 0.0000 2 1.0000"});
}

const std::string kUnchanged =
    kOldCodesKept + sCrLf({"CODE 210", " 0.0000 0 -2.5000", " 100.0000 1 0.0000", "CODE 411",
                           " 0.0000 0 4.0000", "CODE 510", " 0.0000 2 1.0000"});

}  // namespace

TEST(NrmMigrations, OlderFilesAreWrittenBackInTodaysCodes) {
  struct Case {
    int Version;
    std::string Nrm;
  } const kCases[] = {
      {0, kFromVersion3},           {3, kFromVersion3}, {4, sFromVersion8("-4.0000")},
      {8, sFromVersion8("4.0000")}, {9, kUnchanged},    {10, kUnchanged},
  };
  std::string roadClass;
  for (const Case& test : kCases) {
    ModelPtr model = ReadModel(sOldFile(test.Version));
    ASSERT_NE(model, nullptr) << test.Version;
    const std::string written = sWrittenModel(model.get());
    EXPECT_NE(written.find("\r\nDATAVERSION 13\r\n"), std::string::npos);
    EXPECT_EQ(sSectionBody(written, "NRMPARAMS"), test.Nrm) << test.Version;
    // The road dimensions inherit the road class's version, so the
    // Norwegian old form gives way to the new one.
    EXPECT_EQ(sSectionBody(written, "ROADDIMPARAMS"), sCrLf({"ROADCLASS S5", "CLASSVERSION 2"}))
        << test.Version;
    // The road class parameters are the same in every version.
    if (roadClass.empty()) roadClass = sSectionBody(written, "ROADCLASSPARAMETERS");
    EXPECT_EQ(sSectionBody(written, "ROADCLASSPARAMETERS"), roadClass) << test.Version;
  }
  EXPECT_NE(roadClass.find("SPEEDLIMIT 90.0000\r\n"), std::string::npos);
}

TEST(NrmMigrations, OldGeneralValuesGoWhenEmptyAndStandAloneOnlyForTwenty) {
  struct Case {
    std::string Lines;
    std::string Nrm;
  } const kCases[] = {
      // 20 beside 21: 21 is kept as 1111 and 20 dropped.
      {sCrLf({"CODE 20", " 0 0 1", "CODE 21", " 0 1 2"}), sCrLf({"CODE 1111", " 0.0000 1 2.0000"})},
      // A 21 of zeros goes before the test for 20, which then stands alone.
      {sCrLf({"CODE 20", " 5 2 1", "CODE 21", " 0 0 0", " 1 0 -99999"}),
       sCrLf({"CODE 1161", " 5.0000 2 1.0000", "CODE 1162", " 5.0000 2 1.0000"})},
      // Values sorted by chainage; 12 becomes 220 and stays there.
      {sCrLf({"CODE 12", " 9 0 1", " 3 0 2"}),
       sCrLf({"CODE 220", " 3.0000 0 2.0000", " 9.0000 0 1.0000"})},
      // 18 becomes 340, which splits into 340 and 341.
      {sCrLf({"CODE 18", " 0 1 -2.5"}),
       sCrLf({"CODE 340", " 0.0000 1 0.0250", "CODE 341", " 0.0000 1 -100.0000"})},
  };
  for (const Case& test : kCases) {
    ModelPtr model = ReadModel(sModelHead({"DATAVERSION 3"}, {"NRMPARAMS"}) + "[+O_NRMPARAMS]\r\n" +
                               test.Lines + "[END]\r\n");
    ASSERT_NE(model, nullptr);
    EXPECT_EQ(sSectionBody(sWrittenModel(model.get()), "NRMPARAMS"), test.Nrm) << test.Lines;
  }
}

// The seeds of old versions for the model file fuzz target, with broken
// lines among the good ones: once migrated, a file reads back as it was
// written.
TEST(NrmMigrations, OldFilesSettleAfterOneLoad) {
  for (const char* name : {"nrm_version0.sfi", "nrm_version3.sfi", "nrm_version4.sfi",
                           "nrm_version8.sfi"}) {
    ModelPtr model = ReadModel(
        sReadWholeFile(std::string(KVRVIPS_TEST_DATA_DIR) + "/records/old_versions/" + name));
    ASSERT_NE(model, nullptr) << name;
    const std::string written = sWrittenModel(model.get());
    EXPECT_NE(sSectionBody(written, "NRMPARAMS"), "<none>") << name;
    ModelPtr again = ReadModel(written);
    ASSERT_NE(again, nullptr) << name;
    EXPECT_EQ(sWrittenModel(again.get()), written) << name;
  }
}
