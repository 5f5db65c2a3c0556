// The surface descriptions in the model file: a file in any order is
// written back in the model's order, lines of older files are read into
// the current form, and files of older versions are written back migrated.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/model_file_text.h"

namespace {

using Sections = std::vector<std::pair<std::string, std::string>>;

struct RewriteCase {
  const char* What;
  int Version;
  Sections Input;
  std::string SurfGen;        // the body written back
  std::string BuildSettings;  // the body written back
};

TEST(SurfGenRecords, FilesAreWrittenBackInTheModelsOrderAndForm) {
  const RewriteCase cases[] = {
      {"order, older keywords and lines that belong to no group",
       13,
       {{"SURFGEN",
         sCrLf({"REFSURF 5", ":SURFACES 11", "REFSURF 3", "STARTTYPE 0",
                "STARTLAYERNOOREXTRALINE 9.0000", "UNKNOWN 1", ":SURFACE 20000", " 100 2 0.01 0",
                " 50 1 0.02 0", ":SURFACE -20000", " 10 1 0 0", "DESCR Late", ":SURFACE 0 0",
                "DESCR \"Midt i vegen\"", ":SURFACES 1", "CLIPLAYER 21", "STARTLAYERNO 11",
                "STARTPCODE"})}},
       sCrLf({":SURFACES 1", "REFSURF 0", "REFHEIGHT 0.0000", "CLIPLAYERLEFT 21",
              "CLIPLAYERRIGHT 21", "STARTTYPE 1", "STARTLAYERNOOREXTRALINE 11.0000",
              "STARTPCODE2 -99999.0000", ":SURFACES 11", "REFSURF 3", "REFHEIGHT 0.0000",
              "STARTTYPE 0", ":SURFACE -20000", " 10 1 0 0", ":SURFACE 0",
              "DESCR \"Midt i vegen\"", ":SURFACE 20000", " 50 1 0.02 0", " 100 2 0.01 0"}),
       sCrLf({"BUILDSETTINGS 0"})},
      {"version 5: ranged reference heights, extra line starts, border lines of the model",
       5,
       {{"MASSCALC", sCrLf({"CALCMODE 0"})},
        {"SURFGEN_BUILDSETTINGS", sCrLf({"BUILDSETTINGS 3"})},
        {"SURFGEN",
         sCrLf({":SURFACES 1", "STARTTYPE 2", "STARTLAYERNOOREXTRALINE 1.5",
                "STARTPCODE2 -0.5", ":SURFACEREFHEIGHTS", " 0 100 10", " 200 300 12"})},
        {"SURFACEBORDERLINES", sCrLf({" 10100 0.0000 50.0000 1 7 -99999"})}},
       sCrLf({":SURFACES 1", "REFSURF 0", "REFHEIGHT 0.0000", "STARTTYPE 0",
              "STARTXOFFSET 1.5000", "STARTYOFFSET -0.5000", ":SURFACEREFHEIGHTS",
              " 0.0000 10.0000", " 100.0000 10.0000", " 100.0010 -99999.0000",
              " 200.0000 12.0000", " 300.0000 12.0000", ":GROUPSURFBOUND",
              " 10100 0.0000 50.0000 1 7 -99999", ":GROUPEND"}),
       sCrLf({"BUILDSETTINGS -1048573"})},
      {"version 0: surface numbers of the old decimal form",
       0,
       {{"SURFGEN", sCrLf({":SURFACES 1", "REFSURF 10003", ":SURFACE -30007", ":SURFACE 10005"})}},
       sCrLf({":SURFACES 1", "REFSURF 10300", "REFHEIGHT 0.0000", "STARTTYPE 0",
              ":SURFACE -30700", ":SURFACE 10500"}),
       // Without the section nothing is combined with the older settings.
       sCrLf({"BUILDSETTINGS 0"})},
  };
  for (const RewriteCase& c : cases) {
    ModelPtr model = ReadModel(sModelFileOf(c.Version, c.Input));
    ASSERT_NE(model, nullptr) << c.What;
    const std::string written = sWrittenModel(model.get());
    EXPECT_EQ(sSectionBody(written, "SURFGEN"), c.SurfGen) << c.What;
    EXPECT_EQ(sSectionBody(written, "SURFGEN_BUILDSETTINGS"), c.BuildSettings) << c.What;
    EXPECT_EQ(sSectionBody(written, "SURFACEBORDERLINES"), "<none>") << c.What;
  }
}

TEST(SurfGenRecords, SuperstructureModeNeedsGradingsOrStoneSlopes) {
  const std::string masscalc = sCrLf({"SUPERSTRUCTUREMODE 1"});
  ModelPtr without = ReadModel(sModelFileOf(13, {{"MASSCALC", masscalc}}));
  EXPECT_NE(sWrittenModel(without.get()).find("SUPERSTRUCTUREMODE 0\r\n"), std::string::npos);
  ModelPtr with = ReadModel(sModelFileOf(
      13, {{"MASSCALC", masscalc},
           {"SPECIALGRADINGS",
            sCrLf({":SPECIALGRADINGCHAIN 10.000", " 10100 0.500 10200 1.000"})}}));
  EXPECT_NE(sWrittenModel(with.get()).find("SUPERSTRUCTUREMODE 1\r\n"), std::string::npos);
}

}  // namespace
