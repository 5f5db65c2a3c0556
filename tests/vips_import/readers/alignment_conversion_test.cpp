// Alignments through the whole conversion: a design document with a main
// alignment of straights, clothoids and arcs, a profile with circular
// curves, elevation differences and two other alignments, converted by the
// exported function with each flag that reads alignments. The model file's
// plan lines, VERLINE and DIFFALTITUDES are checked byte for byte, the plan
// lines that load back against the design's geometry.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <initializer_list>
#include <string>

#include "geometry/line_measure.h"
#include "kvrvips/kvrvips.h"
#include "road_model/lines/line_chainage.h"
#include "road_model/model/model_lines.h"
#include "tests/vips_import/alignment_reading.h"
#include "tests/vips_import/conversion_fixtures.h"

namespace {

using NpDesignModel::AlignmentRecord;
using NpDesignModel::DesignModelBuilder;
using NpDesignModel::DesignModelRecord;

#define GUID_1 "5b7e2c1a-0000-4000-8000-000000000001"
#define GUID_3 "5b7e2c1a-0000-4000-8000-000000000003"
#define GUID_5 "5b7e2c1a-0000-4000-8000-000000000005"

// The main alignment, id 1, from chainage 1000 heading east:
//   1000-1100 straight;
//   1100-1125 clothoid from straight to radius 100 left, A = 50, so 25 m
//             long (A^2 = R L) and turning 0.125 rad (L / 2R);
//   1125-1525 arc of radius 100 left, 400 m: longer than the half circle of
//             314.16 m, so the large arc, turning 4 rad;
//   1525-1550 clothoid from radius 100 back to straight, A = 50;
//   1550-1600 straight, heading 4.25 rad;
//   1600-1680 arc of radius 80 right, 80 m.
// The clothoid ends are the Fresnel integrals of the shape, to 0.1 mm.
struct Element {
  double startChain, endChain, x1, y1, startRadius, endRadius, a;
};
constexpr double kMainStartX = 1000.5;
constexpr double kMainStartY = 2000.5;
constexpr Element kMainElements[] = {
    {1000.0, 1100.0, 1100.5, 2000.5, 0.0, 0.0, 0.0},
    {1100.0, 1125.0, 1125.4610, 2001.5405, 0.0, 100.0, 50.0},
    {1125.0, 1525.0, 1029.7544, 2156.1792, 100.0, 100.0, 0.0},
    {1525.0, 1550.0, 1017.6884, 2134.3036, 100.0, 0.0, 50.0},
    {1550.0, 1600.0, 995.3841, 2089.5541, 0.0, 0.0, 0.0},
    {1600.0, 1680.0, 932.4405, 2045.7107, -80.0, -80.0, 0.0},
};

// Angle points of the main profile: a crest at 1200 and a sag at 1400.
constexpr double kProfile[][3] = {
    {1000.0, 100.0, 0.0}, {1200.0, 104.0, 2000.0}, {1400.0, 101.0, 1500.0}, {1680.0, 103.8, 0.0}};

// The design: the others come first and last in the list, and the
// alignment of id 5 is read before the one of id 3.
std::unique_ptr<DesignModelRecord> RoadDesign() {
  DesignModelBuilder builder;
  NpDesignModel::InDataRecord& input = builder.Input();
  input.modelVersionNumber = 10.0;
  input.modelType = NpDesignModel::CInData::ModelTypeEnums{1};
  input.referenceAlignmentId = 1;

  // A footway: 50 m straight (a 3-4-5 triangle), then an arc of radius 40
  // right, 40 m.
  AlignmentRecord& footway = builder.AddAlignment(5, u"G/S-veg \u00f8st");
  footway.guid = u"" GUID_5;
  vAddElement(footway, 0.0, 50.0, 2000.5, 3000.25, 2030.5, 3040.25);
  vAddElement(footway, 50.0, 90.0, 2030.5, 3040.25, 2065.4056, 3056.1443, -40.0, -40.0);
  vAddAnglePoint(footway, 0.0, 50.0);
  vAddAnglePoint(footway, 90.0, 51.8);

  AlignmentRecord& main = builder.AddAlignment(1, u"Fv. 4512 Hovedlinje");
  main.guid = u"" GUID_1;
  double x0 = kMainStartX, y0 = kMainStartY;
  for (const Element& e : kMainElements) {
    vAddElement(main, e.startChain, e.endChain, x0, y0, e.x1, e.y1, e.startRadius, e.endRadius,
                e.a);
    x0 = e.x1;
    y0 = e.y1;
  }
  for (const auto& point : kProfile) vAddAnglePoint(main, point[0], point[1], point[2]);

  // An edge without a profile.
  AlignmentRecord& edge = builder.AddAlignment(3, u"Kant");
  edge.guid = u"" GUID_3;
  vAddElement(edge, 1000.0, 1100.0, 1000.25, 1990.25, 1100.25, 1990.25);

  vAddElevationDifference(input, 1300.0, 1350.0, 0.25);
  vAddElevationDifference(input, 1050.0, 1100.0, -0.5);
  vAddElevationDifference(input, 1300.0, 1320.0, 0.1);
  return builder.Build();
}

// ---- Expected texts ----

// The line section's head in the directory: the extent of all lines
// (rounded outwards) and the fields.
std::string sLineSectionHead(const std::string& extent, const std::string& fields) {
  return sCrLf({"[L_]", sExtentLine(extent), "_FIELDNAMES " + fields});
}

// The main line's extent: west to the end of the right arc at x 932.44,
// south to the start at y 2000.5, and east and north to where the large arc
// (centre 1112.99, 2100.76) heads north and west: x 1212.99, y 2200.76.
const std::string kMainLine = sCrLf({
    ":L 1",
    "_EXTENT 932 2000 1213 2201 ",
    "_FIELDVALUES 1000.0000;" GUID_1 ";1;",
    "GUID ",
    "/XY",
    "1000.5 2000.5",
    "1100.5 2000.5 clot 0.000000 100.000000 50.000000",
    "1125.461 2001.5405 a2p 100 1",
    "1029.7544 2156.1792 clot 100.000000 0.000000 50.000000",
    "1017.6884 2134.3036",
    "995.3841 2089.5541 a2p -80",
    "932.4405 2045.7107",
});

const std::string kEdgeLine = sCrLf({
    ":L 3",
    "_EXTENT 1000 1990 1101 1991 ",
    "_FIELDVALUES 1000.0000;" GUID_3 ";;",
    "GUID ",
    "/XY",
    "1000.25 1990.25",
    "1100.25 1990.25",
});

// The footway's arc (centre 2062.5, 3016.25) heads east at its top, y
// 3056.25; the start chainage 0 is written as none.
const std::string kFootwayLine = sCrLf({
    ":L 5",
    "_EXTENT 2000 3000 2066 3057 ",
    "_FIELDVALUES ;" GUID_5 ";;",
    "GUID ",
    "/XY",
    "2000.5 3000.25",
    "2030.5 3040.25 a2p -40",
    "2065.4056 3056.1443",
});

const std::string kMainProfile = sCrLf({
    ":VERLINE 1",
    " 1000.0000 100.0000 0.000",
    " 1200.0000 104.0000 2000.000",
    " 1400.0000 101.0000 1500.000",
    " 1680.0000 103.8000 0.000",
});

const std::string kFootwayProfile = sCrLf({
    ":VERLINE 5",
    " 0.0000 50.0000 0.000",
    " 90.0000 51.8000 0.000",
});

// Ascending by start; of the two that start at 1300 the one listed first
// stays first.
const std::string kDifferences = sCrLf({
    ":DIFFALTITUDES 1",
    " 1050.0000 1100.0000 -0.500",
    " 1300.0000 1350.0000 0.250",
    " 1300.0000 1320.0000 0.100",
});

const std::string kLogHead = sLogHead("Np21", "Road", "10.0");
const std::string kLogMain = "Leser horisontalkurvatur\n";
const std::string kLogProfile = "Leser vertikalkurvatur\n";
const std::string kLogDifferences = "  Leser tabell: Overstyring av vertikalkurvatur\n\n";
const std::string kLogExtra = "Leser ekstra linjer\n";
const std::string kLogTables = sTablesLog() + "\n";

// ---- Conversion ----

struct Converted {
  int result = -1;
  std::string log;
  std::string file;  // the model file's bytes
};

// Writes the design's document into the folder and converts it into a new
// model file there.
Converted Convert(const ScratchFolder& folder, DesignModelRecord& design, uint32_t flags) {
  std::string document = folder / "veg.json";
  std::string modelFile = folder / "veg.sfi";
  design.documentPath = document;
  EXPECT_TRUE(design.ToFile(true));
  std::filesystem::remove(modelFile);

  char* logFile = nullptr;
  std::string settings = sShippedSettings();
  Converted converted;
  converted.result = iKvrVipsConvertDatabase(document.c_str(), modelFile.c_str(), flags, &logFile,
                                             settings.c_str(), 0, 0);
  converted.log = sReadTextFile(folder / "veg.log");
  converted.file = sReadWholeFile(modelFile);
  return converted;
}

// ---- The design's geometry ----

// The main line against the design: the end of every element lies at its
// end chainage, and the middle of the large arc where the circle puts it.
// (The profile's heights are the vertical line's own; its bytes are checked.)
void vExpectMainGeometry(const RmLine* line) {
  ASSERT_NE(line, nullptr);
  EXPECT_NEAR(dLiLineLength(line), 680.0, 1e-3);
  ViPoint2d point;
  for (const Element& e : kMainElements) {
    ASSERT_TRUE(boRmLinePointAtChain(line, e.endChain, &point, nullptr, 0.0));
    EXPECT_NEAR(point.x, e.x1, 1e-3) << e.endChain;
    EXPECT_NEAR(point.y, e.y1, 1e-3) << e.endChain;
  }
  // The large arc starts heading 0.125 rad; 200 m on it heads 2.125 rad.
  double centreX = kMainElements[1].x1 - 100.0 * std::sin(0.125);
  double centreY = kMainElements[1].y1 + 100.0 * std::cos(0.125);
  ASSERT_TRUE(boRmLinePointAtChain(line, 1325.0, &point, nullptr, 0.0));
  EXPECT_NEAR(point.x, centreX + 100.0 * std::sin(2.125), 1e-3);
  EXPECT_NEAR(point.y, centreY - 100.0 * std::cos(2.125), 1e-3);
}

}  // namespace

TEST(AlignmentConversion, AFullImportWritesEveryAlignmentThatLoadsBackOnTheDesign) {
  ScratchFolder folder;
  std::unique_ptr<DesignModelRecord> design = RoadDesign();
  Converted converted = Convert(folder, *design, KVRVIPS_IMPORT_FULL);
  ASSERT_EQ(converted.result, 0);

  EXPECT_EQ(converted.log, kLogHead + kLogMain + kLogProfile + kLogDifferences + kLogExtra +
                               kLogTables);
  EXPECT_NE(converted.file.find(sLineSectionHead("932 1990 2066 3057", "CHAIN;NAME;CL;")),
            std::string::npos)
      << converted.file;
  EXPECT_EQ(sBody(converted.file, "[+L_]"), kMainLine + kEdgeLine + kFootwayLine);
  EXPECT_EQ(sBody(converted.file, "[+O_VERLINE]"), kMainProfile + kFootwayProfile);
  EXPECT_EQ(sBody(converted.file, "[+O_DIFFALTITUDES]"), kDifferences);

  ModelPtr loaded = Loaded(folder / "veg.sfi");
  vExpectMainGeometry(RmModelGetCenterLine(loaded.get()));
  EXPECT_NEAR(dLiLineLength(RmLinesFindById(RmModelGetLines(loaded.get()), 5)), 90.0, 1e-3);
}

TEST(AlignmentConversion, EachFlagReadsItsOwnPartOfTheAlignments) {
  const std::string noExtent = "99999999 99999999 -99999999 -99999999";
  const std::string bareMainLine = sCrLf(
      {":L 1", "_EXTENT " + noExtent + " ", "_FIELDVALUES ;" GUID_1 ";", "GUID ", "/XY"});
  const struct {
    uint32_t flags;
    std::string log, extent, fields, lines, profiles, differenceRows;
  } cases[] = {
      // The main alignment alone, plan and profile, with its differences.
      {KVRVIPS_IMPORT_HORIZONTAL | KVRVIPS_IMPORT_VERTICAL,
       kLogMain + kLogProfile + kLogDifferences, "932 2000 1213 2201", "CHAIN;NAME;CL;",
       kMainLine, kMainProfile, kDifferences},
      // The others alone: no main line, so nothing marked as one.
      {KVRVIPS_IMPORT_EXTRA_ALIGNMENTS, kLogExtra, "1000 1990 2066 3057",
       "CHAIN;NAME;CL;", kEdgeLine + kFootwayLine, kFootwayProfile, "<none>"},
      // The main profile alone: its line has no plan and is no centre line,
      // so the differences have no line to go to.
      {KVRVIPS_IMPORT_VERTICAL, kLogProfile + kLogDifferences, noExtent, "CHAIN;NAME;",
       bareMainLine, kMainProfile, "<none>"},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.log);
    ScratchFolder folder;
    Converted converted = Convert(folder, *RoadDesign(), test.flags);
    ASSERT_EQ(converted.result, 0);
    EXPECT_EQ(converted.log, kLogHead + test.log);
    EXPECT_NE(converted.file.find(sLineSectionHead(test.extent, test.fields)), std::string::npos);
    EXPECT_EQ(sBody(converted.file, "[+L_]"), test.lines);
    EXPECT_EQ(sBody(converted.file, "[+O_VERLINE]"), test.profiles);
    EXPECT_EQ(sBody(converted.file, "[+O_DIFFALTITUDES]"), test.differenceRows);
    ModelPtr loaded = Loaded(folder / "veg.sfi");
    if (test.flags & KVRVIPS_IMPORT_HORIZONTAL) {
      vExpectMainGeometry(RmModelGetCenterLine(loaded.get()));
    } else {
      EXPECT_EQ(RmModelGetCenterLine(loaded.get()), nullptr);
    }
  }
}
