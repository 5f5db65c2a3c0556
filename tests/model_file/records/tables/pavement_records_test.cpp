// PAVEMENT beyond the fixture (tests/data/records/pavement.sfi): a file out
// of order and with lines that cannot be read, the older versions, and the
// older SUPERSTRUCT section.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/model_file_text.h"

namespace {

// The lines of a package that sets nothing on its own.
std::vector<std::string> EmptyPackageLines() {
  return {"UNDERMEDIAN 0 0 0 0 0 0 0 0 0 0",     "OUTEREDGETOTERRAIN 0 0",
          "OUTEREDGETOTERRAINSLOPE 0.000 0.000", "USESURFACEEDGE 0 0",
          "OUTEREDGETODEEPROCKBLAST 0 0",        "EXCAVATIONSLOPE 0.000 0.000"};
}

const std::string kZeros = " 0.000 0.000 0.000 0.000 0.000 0.000 0.000 0.000 0.000 0.000";

std::vector<std::string> Join(std::initializer_list<std::vector<std::string>> parts) {
  std::vector<std::string> lines;
  for (const auto& part : parts) lines.insert(lines.end(), part.begin(), part.end());
  return lines;
}

}  // namespace

TEST(PavementRecords, WrittenInOrderWithoutWhatCannotBeRead) {
  const std::vector<std::string> read = {
      " 5 6 7",           // a row before any group
      "UNDERMEDIAN 1 1",  // before any package
      ":PAVEMENTSECTIONROCK 300 400 3",
      ":PAVEMENTSECTIONSOIL 200 300 2",
      ":PAVEMENTSECTIONSOIL 0 200",      // package missing: 0
      ":PAVEMENTSECTIONSOIL 200 250 4",  // an equal start goes behind
      ":PAVEMENTPACKAGE 2 \"Lett veg\"",
      "THICKNESS 1 2",  // before any surface
      ":PAVEMENTSURFACE 10102",
      "THICKNESS 0.1 0.2",
      ":PAVEMENTSURFACE -10101",
      "MAXTHICKNESS 0.5",
      "UNKNOWN 7",
      ":PAVEMENT_SURFACEEDGE 10102",
      "WIDTH 1",
      ":PAVEMENTPACKAGE 1 Tung",
      "CUTANTIFREEZEFILLING 5",  // a truth value, of the table
      ":PAVEMENTGRADUALLYCHANGINGLAYER",
      "THINNEREXTENSION 7",
      "CODE 5",  // the package has no edge
      ":PAVEMENTAPPEARINGS",
      " 10 20 1",
      " 20 30",
      "GRADIENT 0.5",  // ends the rows, and goes to the layer
      " 40 50 2",
  };
  const std::vector<std::string> written = Join({
      {"CUTANTIFREEZEFILLING 1", ":PAVEMENTSECTIONSOIL 0.000 200.000 0",
       ":PAVEMENTSECTIONSOIL 200.000 300.000 2", ":PAVEMENTSECTIONSOIL 200.000 250.000 4",
       ":PAVEMENTSECTIONROCK 300.000 400.000 3", ":PAVEMENTPACKAGE 1 Tung"},
      EmptyPackageLines(),
      {":PAVEMENTGRADUALLYCHANGINGLAYER 0", "EXTRAWIDTH 0.000", "GRADIENT 0.500",
       "TRANSITIONGRADIENT 0.000", "THINNEREXTENSION 1", ":PAVEMENTPACKAGE 2 \"Lett veg\""},
      EmptyPackageLines(),
      {":PAVEMENTSURFACE -10101", "MINTHICKNESS 0.000", "THICKNESS" + kZeros,
       "MAXTHICKNESS 0.500 0.000 0.000 0.000 0.000 0.000 0.000 0.000 0.000 0.000",
       ":PAVEMENTSURFACE 10102", "MINTHICKNESS 0.000",
       "THICKNESS 0.100 0.200 0.000 0.000 0.000 0.000 0.000 0.000 0.000 0.000",
       "MAXTHICKNESS" + kZeros, ":PAVEMENT_SURFACEEDGE 10102", "CODE 0",
       "WIDTH 1.000 0.000 0.000 0.000 0.000 0.000 0.000 0.000 0.000 0.000", "SLOPE" + kZeros,
       ":PAVEMENTAPPEARINGS", " 10.0000 20.0000 1", " 20.0000 30.0000 0"},
  });
  EXPECT_EQ(sSectionWrittenBack("PAVEMENT", read), sCrLf(written));
  // A table without ranges and packages is not written.
  EXPECT_EQ(sSectionWrittenBack("PAVEMENT", {"CUTANTIFREEZEFILLING 1", ":PAVEMENTAPPEARINGS"}),
            "<none>");
}

TEST(PavementRecords, OlderVersionsMoveAndRewriteWhatTheyHeldOtherwise) {
  const std::vector<std::string> read = {
      ":PAVEMENTPACKAGE 1 A",         "UNDERMEDIAN 0 1 2 3 4 5 6 7 8 9",
      ":PAVEMENTSURFACE 10005",       "THICKNESS -99999 0.1 0.2 0.3 0.4 0.5 0.6 0.7 0.8 0.9",
      ":PAVEMENT_SURFACEEDGE -20003", "CODE 30007",
      "WIDTH 0 1 2 3 4 5 6 7 8 9",
  };
  struct Case {
    int Version;
    const char* UnderMedian;
    const char* Thickness;
    int Surface, Edge, Code;
  };
  const char* kAsRead = "0.100 0.200 0.300 0.400 0.500 0.600 0.700 0.800 0.900";
  const char* kMoved = "0.100 0.200 0.300 0.400 0.000 0.500 0.600 0.800 0.700";
  const Case cases[] = {
      // Version 11 on: as the file has it.
      {11, "0 1 2 3 4 5 6 7 8 9", "-99999.000", 10005, -20003, 30007},
      // Version 10 and older: positions 5, 6, 7 go to 6, 7, 9.
      {10, "0 1 2 3 4 0 5 6 8 7", "-99999.000", 10005, -20003, 30007},
      // Version 6 and older: a thickness not given is the design's none.
      {6, "0 1 2 3 4 0 5 6 8 7", "999999.000", 10005, -20003, 30007},
      // A file without a version: the codes are of the older form.
      {0, "0 1 2 3 4 0 5 6 8 7", "999999.000", 10500, -20300, 30700},
  };
  for (const Case& c : cases) {
    const bool moved = c.Version <= 10;
    const std::string width = moved ? "0.000 1.000 2.000 3.000 4.000 0.000 5.000 6.000 8.000 7.000"
                                    : "0.000 1.000 2.000 3.000 4.000 5.000 6.000 7.000 8.000 9.000";
    const std::vector<std::string> written = {
        ":PAVEMENTPACKAGE 1 A",
        std::string("UNDERMEDIAN ") + c.UnderMedian,
        "OUTEREDGETOTERRAIN 0 0",
        "OUTEREDGETOTERRAINSLOPE 0.000 0.000",
        "USESURFACEEDGE 0 0",
        "OUTEREDGETODEEPROCKBLAST 0 0",
        "EXCAVATIONSLOPE 0.000 0.000",
        ":PAVEMENTSURFACE " + std::to_string(c.Surface),
        "MINTHICKNESS 0.000",
        std::string("THICKNESS ") + c.Thickness + " " + (moved ? kMoved : kAsRead),
        "MAXTHICKNESS" + kZeros,
        ":PAVEMENT_SURFACEEDGE " + std::to_string(c.Edge),
        "CODE " + std::to_string(c.Code),
        "WIDTH " + width,
        "SLOPE" + kZeros,
    };
    EXPECT_EQ(sSectionWrittenBack("PAVEMENT", read, c.Version), sCrLf(written)) << c.Version;
  }
}

TEST(PavementRecords, SuperstructIsReadAsPavementAndStoneExcavationSlopes) {
  const std::string superstruct = sCrLf({
      "UNDERMEDIAN 1 0 1",
      "STONESLOPESIDE 0.1",
      "EXCAVATIONSLOPE 0.5",
      ":SUPERCHAIN 100 200 0.2 0.3",
      ":SURFACESOIL",
      " 10101 0.04 0.1 0.3",
      " -10101 0.04 0.1",
      ":SURFACEROCK",
      " 10101 0.05",
      ":SUPERCHAIN 200 400",
      ":SURFACESOIL",
      ":SUPERCHAIN 0 100",
  });
  ModelPtr model = ReadModel(sModelFileOf(13, {{"SUPERSTRUCT", superstruct}}));
  ASSERT_NE(model, nullptr);
  const std::string file = sWrittenModel(model.get());
  EXPECT_EQ(sSectionBody(file, "SUPERSTRUCT"), "<none>");
  const std::vector<std::string> underMedian = {"UNDERMEDIAN 1 0 0 0 0 0 1 0 0 0"};
  std::vector<std::string> rest = EmptyPackageLines();
  rest.erase(rest.begin());
  EXPECT_EQ(sSectionBody(file, "PAVEMENT"),
            sCrLf(Join({
                {":PAVEMENTSECTIONSOIL 0.000 100.000 0", ":PAVEMENTSECTIONSOIL 100.000 200.000 1",
                 ":PAVEMENTSECTIONSOIL 200.000 400.000 3", ":PAVEMENTSECTIONROCK 0.000 100.000 0",
                 ":PAVEMENTSECTIONROCK 100.000 200.000 2", ":PAVEMENTSECTIONROCK 200.000 400.000 0",
                 ":PAVEMENTPACKAGE 1 \"Soil 1\""},
                underMedian,
                rest,
                {":PAVEMENTSURFACE -10101", "MINTHICKNESS 0.000",
                 "THICKNESS 0.040 0.000 0.000 0.100 0.000 0.000 0.000 0.000 0.000 0.000",
                 "MAXTHICKNESS" + kZeros, ":PAVEMENTSURFACE 10101", "MINTHICKNESS 0.000",
                 "THICKNESS 0.040 0.000 0.000 0.100 0.000 0.000 0.300 0.000 0.000 0.000",
                 "MAXTHICKNESS" + kZeros, ":PAVEMENTPACKAGE 2 \"Rock 1\""},
                underMedian,
                rest,
                {":PAVEMENTSURFACE 10101", "MINTHICKNESS 0.000",
                 "THICKNESS 0.050 0.000 0.000 0.000 0.000 0.000 0.000 0.000 0.000 0.000",
                 "MAXTHICKNESS" + kZeros, ":PAVEMENTPACKAGE 3 \"Soil 2\""},
                underMedian,
                rest,
            })));
  // The given slopes of a chain make a row; the slopes of the whole road
  // fill the soil stretches before and behind it.
  EXPECT_EQ(sSectionBody(file, "STONEEXCAVATIONSLOPES"),
            sCrLf({"STONEEXCAVATIONSLOPE 0.0000 100.0000", "STONESLOPESIDELEFT 0.100",
                   "STONESLOPESIDERIGHT 0.100", "STONESLOPEINTERMEDLEFT 0.000",
                   "STONESLOPEINTERMEDRIGHT 0.000", "EXCAVATIONSLOPELEFT 0.500",
                   "EXCAVATIONSLOPERIGHT 0.500", "STONEEXCAVATIONSLOPE 100.0000 200.0000",
                   "STONESLOPESIDELEFT 0.200", "STONESLOPESIDERIGHT 0.200",
                   "STONESLOPEINTERMEDLEFT 0.300", "STONESLOPEINTERMEDRIGHT 0.300",
                   "STONEEXCAVATIONSLOPE 200.0000 400.0000", "STONESLOPESIDELEFT 0.100",
                   "STONESLOPESIDERIGHT 0.100", "STONESLOPEINTERMEDLEFT 0.000",
                   "STONESLOPEINTERMEDRIGHT 0.000", "EXCAVATIONSLOPELEFT 0.500",
                   "EXCAVATIONSLOPERIGHT 0.500"}));

  // Beside a PAVEMENT section the older one is not read.
  const std::string pavement = sCrLf({":PAVEMENTPACKAGE 7 Ny"});
  ModelPtr both =
      ReadModel(sModelFileOf(13, {{"PAVEMENT", pavement}, {"SUPERSTRUCT", superstruct}}));
  ASSERT_NE(both, nullptr);
  const std::string bothFile = sWrittenModel(both.get());
  EXPECT_EQ(sSectionBody(bothFile, "PAVEMENT"),
            sCrLf(Join({{":PAVEMENTPACKAGE 7 Ny"}, EmptyPackageLines()})));
  EXPECT_EQ(sSectionBody(bothFile, "STONEEXCAVATIONSLOPES"), "<none>");
}
