// The plan line families: the line section with the empty name, VERLINE,
// DIFFALTITUDES and CHAINEQUATIONS, written byte for byte and read back, and
// the older forms read.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>

#include "geometry/line_measure.h"
#include "road_model/lines/chain_equations.h"
#include "road_model/lines/diff_altitudes.h"
#include "road_model/lines/line_chainage.h"
#include "road_model/lines/line_fields.h"
#include "road_model/lines/vertical_curves.h"
#include "road_model/lines/vertical_heights.h"
#include "road_model/model/model_lines.h"
#include "road_model/lines/vertical_line.h"
#include "tests/support/model_file_text.h"

namespace {

// A model with three plan lines: the centre line of straights, an arc of
// three quarters of a circle and a clothoid, with a vertical line, a
// difference table and chain equations; a side line with a PCODE; and a
// line with neither geometry nor fields but a difference table.
ModelPtr MakeModel() {
  ModelPtr model = NewModel();
  RmLines* lines = RmModelGetOrCreateLines(model.get());

  RmLine* main = RmLinesAddWithId(lines, 1, false);
  vRmLineSetName(main, "Senter linje");
  vRmLineSetCenterLine(main, true);
  vRmLineSetStartChain(main, 1000.0);
  LiLineAddP(main, 1000, 2000, 0);
  LiElm arc = LiLineAddP(main, 1100, 2000, 0);
  LiElm clothoid = LiLineAddP(main, 1150, 2050, 0);
  LiLineAddP(main, 1141, 2050, 0);
  EXPECT_TRUE(boLiElmSet2pArc(main, arc, 50, true));
  EXPECT_TRUE(boLiElmSetClotoide(main, clothoid, 0, 100, 30));
  vLiElmSetText(main, arc, "bue (3/4)");

  RmVerLine* verLine = RmVerLineCreate();
  RmVerPointAdd(verLine, 1000.0, 10.0, 0.0, 0.0);
  RmVerPointAdd(verLine, 1100.0, 12.0, 2000.0, 0.0);
  RmVerPoint* parabola = RmVerPointAdd(verLine, 1200.0, 11.0, 0.0, 40.0);
  parabola->Flags |= kRmVerPointFlagLs;
  RmVerPoint* last = RmVerPointAdd(verLine, 1300.0, 13.0, 0.0, 0.0);
  last->Flags |= kRmVerPointFlagLs;
  iRmVerLineCompute(verLine);
  verLine->DiffAltitudes = RmDiffAltitudesCreate();
  RmDiffAltitude* later = RmDiffAltitudeAdd(verLine->DiffAltitudes, 1150.0);
  vRmDiffAltitudeSetRange(later, 1150.0, 1180.0);
  vRmDiffAltitudeSetHeight(later, 0.25);
  RmDiffAltitude* earlier = RmDiffAltitudeAdd(verLine->DiffAltitudes, 1020.0);
  vRmDiffAltitudeSetRange(earlier, 1020.0, 1050.0);
  vRmDiffAltitudeSetHeight(earlier, -0.5);
  vRmLineSetVerLine(lines, main, verLine);

  RmChainEquations* equations = RmChainEquationsCreate();
  RmChainEquationAdd(equations, 1300.0, 1250.0, "K1");
  RmChainEquationAdd(equations, 1500.25, 1400.5, "");
  vRmLineSetEquations(main, equations);

  RmLine* side = RmLinesAddWithId(lines, 2, false);
  vRmLineSetName(side, "Kant; venstre");
  vRmLineSetCenterLine(side, false);
  vRmLineSetPcode(side, -30105);
  vRmLineSetStartChain(side, 0.00004);
  LiLineAddP(side, 1000, 1990, 0);
  LiLineAddP(side, 1100.5, 1990.25, 0);

  RmLine* bare = RmLinesAddWithId(lines, 7, false);
  RmVerLine* onlyTable = RmVerLineCreate();
  onlyTable->DiffAltitudes = RmDiffAltitudesCreate();
  RmDiffAltitude* row = RmDiffAltitudeAdd(onlyTable->DiffAltitudes, 0.0);
  vRmDiffAltitudeSetRange(row, 0.0, 10.0);
  vRmDiffAltitudeSetHeight(row, 1.0);
  vRmLineSetVerLine(lines, bare, onlyTable);
  return model;
}

const std::string kLineSectionHead = "[L_]\r\n";

const std::string kLineBody = sCrLf({
    ":L 1",
    "_EXTENT 1000 1950 1200 2051 ",
    "_FIELDVALUES 1000.0000;Senter linje;1;;",
    "GUID ",
    "/XY",
    "1000 2000",
    "1100 2000 a2p 50 1 elmdata (bue (3/4))",
    "1150 2050 clot 0.000000 100.000000 30.000000",
    "1141 2050",
    ":L 2",
    "_EXTENT 1000 1990 1101 1991 ",
    "_FIELDVALUES ;Kant\\; venstre;;-3.0105;",
    "GUID ",
    "/XY",
    "1000 1990",
    "1100.5 1990.25",
    ":L 7",
    "_EXTENT 99999999 99999999 -99999999 -99999999 ",
    "_FIELDVALUES ;;;;",
    "GUID ",
    "/XY",
});

const std::string kVerLineBody = sCrLf({
    ":VERLINE 1",
    " 1000.0000 10.0000 0.000",
    " 1100.0000 12.0000 2000.000",
    " 1200.0000 11.0000 1333.333 P 40.0 LS",
    " 1300.0000 13.0000 0.000 LS",
    ":VERLINE 7",
});

const std::string kDiffAltitudesBody = sCrLf({
    ":DIFFALTITUDES 1",
    " 1020.0000 1050.0000 -0.500",
    " 1150.0000 1180.0000 0.250",
    ":DIFFALTITUDES 7",
    " 0.0000 10.0000 1.000",
});

const std::string kChainEquationsBody = sCrLf({
    ":CHAINEQUATIONS 1",
    " 1250.000000 1300.000000 K1",
    " 1400.500000 1500.250000 ",
});

}  // namespace

TEST(LineRecords, SectionsAreWrittenByteForByteAndReadBack) {
  ModelPtr model = MakeModel();
  std::string written = sWrittenModel(model.get());

  // The directory: the line section first, with CHAIN and the line fields.
  std::string directory =
      "[L_]\r\n_EXTENT 1000 1950 1200 2051 " + std::string(42, '!') +
      "\r\n_FIELDNAMES CHAIN;NAME;CL;PCODE;\r\n[O_VERLINE]\r\n[O_DIFFALTITUDES]\r\n"
      "[O_CHAINEQUATIONS]\r\n[O_SECTPARAMS]\r\n";
  EXPECT_NE(written.find(directory), std::string::npos) << written;
  EXPECT_EQ(sBody(written, "[+L_]"), kLineBody);
  EXPECT_EQ(sBody(written, "[+O_VERLINE]"), kVerLineBody);
  EXPECT_EQ(sBody(written, "[+O_DIFFALTITUDES]"), kDiffAltitudesBody);
  EXPECT_EQ(sBody(written, "[+O_CHAINEQUATIONS]"), kChainEquationsBody);

  // The file read back: the bytes come back the same (the record families'
  // fixture holds these bytes); what they do not show is checked here.
  ModelPtr again = ReadModel(written);
  ASSERT_NE(again, nullptr);
  const RmLines* read = RmModelGetLines(again.get());
  ASSERT_NE(read, nullptr);
  EXPECT_EQ(read->Model, again.get());
  RmLine* main = RmLinesGetCenterLine(read);
  RmVerLine* verLine = RmLineGetVerLine(main);
  ASSERT_NE(verLine, nullptr);
  EXPECT_EQ(verLine->Lines, read);
  const RmVerLine* original =
      RmLineGetVerLine(RmLinesGetCenterLine(RmModelGetLines(model.get())));
  for (double chain = 990.0; chain <= 1310.0; chain += 2.5) {
    EXPECT_NEAR(dRmVerLineHeightAt(verLine, chain, nullptr),
                dRmVerLineHeightAt(original, chain, nullptr), 1e-9)
        << chain;
  }
  EXPECT_EQ(RmChainEquationAt(RmLineGetEquations(main), 1)->Text, nullptr);
}

// A centre line as the host writes it, each piece's words on the line of the
// point where the piece starts: a straight, a left quarter circle about
// (100, 50), a right three-quarter circle about (150, 100) with its direction
// flag, a half circle by three points about (250, 100), a clothoid from a
// straight into radius 200 with A = 100 (50 m), an invisible move and a
// straight with element data.
const std::string kHostLineBody = sCrLf({
    ":L 1",
    "_EXTENT 0 0 410 150 ",
    "_FIELDVALUES 1000.0000;Senterlinje;1;",
    "GUID ",
    "/XY",
    "0 0",
    "100 0 a2p 50",
    "150 50 a2p -50 1",
    "200 100 a3p",
    "250 150",
    "300 100 clot 0.000000 200.000000 100.000000",
    "349.921931 102.081009 invis",
    "400 0 elmdata (kum)",
    "410 0",
});

TEST(LineRecords, AHostLineCarriesEachPieceOnItsStartPoint) {
  const std::string bytes =
      sModelHead({"DATAVERSION 13"}, {}) +
      sCrLf({"[L_]", "_EXTENT 0 0 410 150 ", "_FIELDNAMES CHAIN;NAME;CL;", "[+L_]"}) +
      kHostLineBody + "[END]\r\n";
  ModelPtr model = ReadModel(bytes);
  ASSERT_NE(model, nullptr);
  const RmLine* line = RmLinesGetCenterLine(RmModelGetLines(model.get()));
  ASSERT_NE(line, nullptr);
  EXPECT_EQ(sBody(sWrittenModel(model.get()), "[+L_]"), kHostLineBody);

  // Position and direction inside every piece, from the circles and the
  // Fresnel series of the standard clothoid (x = 19.999200015,
  // y = 0.133329524 at s = 20 for A = 100).
  constexpr double pi = 3.141592653589793;
  const double quarter = 25.0 * pi, large = 75.0 * pi, half = 50.0 * pi;
  auto circle = [](double cx, double cy, double angle, bool left) {
    return std::array<double, 3>{cx + 50.0 * std::cos(angle), cy + 50.0 * std::sin(angle),
                                 angle + (left ? pi / 2.0 : -pi / 2.0)};
  };
  struct Probe {
    double chain;
    std::array<double, 3> expected;  // x, y, direction
  };
  const Probe probes[] = {
      {1040.0, {40.0, 0.0, 0.0}},
      {1100.0 + 10.0, circle(100.0, 50.0, -pi / 2.0 + 10.0 / 50.0, true)},
      {1100.0 + quarter + 200.0, circle(150.0, 100.0, -pi / 2.0 - 200.0 / 50.0, false)},
      {1100.0 + quarter + large + 30.0, circle(250.0, 100.0, pi - 30.0 / 50.0, false)},
      {1100.0 + quarter + large + half + 20.0, {319.999200015, 100.133329524, 0.02}},
      {1100.0 + quarter + large + half + 50.0 + 4.0, {404.0, 0.0, 0.0}},
  };
  for (const Probe& probe : probes) {
    ViPoint2d point;
    double direction = 0.0;
    ASSERT_TRUE(boRmLinePointAtChain(line, probe.chain, &point, &direction, 0.0)) << probe.chain;
    EXPECT_NEAR(point.x, probe.expected[0], 1e-5) << probe.chain;
    EXPECT_NEAR(point.y, probe.expected[1], 1e-5) << probe.chain;
    EXPECT_NEAR(std::remainder(direction - probe.expected[2], 2.0 * pi), 0.0, 1e-6)
        << probe.chain;
  }
}

// (A new model writes no line section: the head section tests pin its bytes.)
TEST(LineRecords, AModelWithoutLinesOrVerticalDataLeavesTheSectionsOut) {
  ModelPtr model = NewModel();
  vRmModelSetLines(model.get(), RmLinesCreate());
  RmLine* line = RmLinesAddWithId(RmModelGetLines(model.get()), 3, false);
  LiLineAddP(line, 0, 0, 0);
  LiLineAddP(line, 10, 0, 0);
  vRmLineSetEquations(line, RmChainEquationsCreate());
  std::string written = sWrittenModel(model.get());
  EXPECT_NE(written.find("[L_]\r\n_EXTENT 0 0 10 0 "), std::string::npos) << written;
  // With no field, the line section still names CHAIN, and each record has
  // its empty value.
  EXPECT_NE(written.find("_FIELDNAMES CHAIN;\r\n"), std::string::npos);
  EXPECT_EQ(sBody(written, "[+L_]"),
            sCrLf({":L 3", "_EXTENT 0 0 10 0 ", "_FIELDVALUES ;", "GUID ", "/XY", "0 0",
                   "10 0"}));
  EXPECT_EQ(written.find("VERLINE"), std::string::npos);
  EXPECT_EQ(written.find("CHAINEQUATIONS"), std::string::npos);
  EXPECT_EQ(written.find("DIFFALTITUDES"), std::string::npos);
}

TEST(LineRecords, ReadingGroupsAddsMissingLinesAndPassesOverStrayText) {
  std::string bytes =
      sModelHead({"DATAVERSION 13"}, {"VERLINE", "DIFFALTITUDES", "CHAINEQUATIONS"}) +
      sCrLf({"[+O_VERLINE]",
             " 5.0 1.0 0.0",  // in front of any group: dropped
             ":VERLINE 5",
             " 0.0000 100.0000 0.000 junk",
             " 100.0000 102.0000 0.000 P",
             " 200.0000 101.0000 0.000 LS",
             "NOTE passed over",
             " 300.0000 99.0000 0.000",  // behind the group: dropped
             "[+O_DIFFALTITUDES]",
             ":DIFFALTITUDES 6",
             " 20.0000 30.0000 0.500",
             " 10.0000 15.0000 0.250",
             "[+O_CHAINEQUATIONS]",
             ":CHAINEQUATIONS 5",
             " 90.000000 100.000000 \"Ny start\" rest",
             "[END]"});
  ModelPtr model = ReadModel(bytes);
  ASSERT_NE(model, nullptr);
  RmLines* lines = RmModelGetLines(model.get());
  ASSERT_EQ(iRmLinesGetCount(lines), 2);
  RmLine* five = RmLinesFindById(lines, 5);
  ASSERT_NE(five, nullptr);
  EXPECT_EQ(iLiLineGetElmCount(five), 0);
  RmVerLine* verLine = RmLineGetVerLine(five);
  ASSERT_EQ(iRmVerLineGetCount(verLine), 3);
  RmVerPoint* first = RmVerLineGetFirst(verLine);
  RmVerPoint* middle = first->Next;
  EXPECT_EQ(first->Flags, 0u);
  // "P" without a number: a parabola of length 0, which the computation
  // flattens.
  EXPECT_EQ(middle->CurveType, kRmCurveNone);
  EXPECT_EQ(middle->Length, 0.0);
  EXPECT_EQ(middle->Next->Flags, kRmVerPointFlagLs);
  EXPECT_NEAR(dRmVerLineHeightAt(verLine, 150.0, nullptr), 101.5, 1e-12);

  RmLine* six = RmLinesFindById(lines, 6);
  ASSERT_NE(six, nullptr);
  RmDiffAltitudes* table = RmLineGetVerLine(six)->DiffAltitudes;
  ASSERT_EQ(iRmDiffAltitudesGetCount(table), 2);
  EXPECT_EQ(RmDiffAltitudesGetFirst(table)->FromChain, 10.0);
  EXPECT_EQ(RmDiffAltitudesGetFirst(table)->ToChain, 15.0);

  const RmChainEquation* equation = RmChainEquationAt(RmLineGetEquations(five), 0);
  ASSERT_NE(equation, nullptr);
  EXPECT_EQ(equation->ChainBack, 90.0);
  EXPECT_EQ(equation->ChainAhead, 100.0);
  EXPECT_STREQ(equation->Text, "Ny start");
}

TEST(LineRecords, OlderFormsHoldOneCentreLineWithoutGroupLines) {
  std::string bytes =
      sCrLf({"[KVRFILE_ASCII]", "_VERSION 2", "_FILETYPE sfi", "_INDEX !!!!!!!!!!!!!!!!!!!!",
             sEmptyExtentLine(), "DATAVERSION 2", "[L_]", "_EXTENT 0 0 50 0 ",
             "_FIELDNAMES CHAIN;NAME;", "[O_VERLINE]", "[O_DIFFALTITUDES]", "[O_CHAINEQUATIONS]",
             "[+L_]", ":L 0", "_EXTENT 0 0 50 0 ", "_FIELDVALUES 100.5000;Hovedlinje;",
             "GUID ", "/XY", "0 0", "50 0",
             "[+O_VERLINE]", " 100.0000 10.0000 0.000", " 150.0000 11.0000 0.000",
             "[+O_DIFFALTITUDES]", " 110.0000 120.0000 0.300", "END OF ROWS",
             " 130.0000 140.0000 0.400",
             "[+O_CHAINEQUATIONS]", " 120.000000 200.000000 S1", "[END]"});
  ModelPtr model = ReadModel(bytes);
  ASSERT_NE(model, nullptr);
  RmLines* lines = RmModelGetLines(model.get());
  ASSERT_EQ(iRmLinesGetCount(lines), 1);
  RmLine* line = RmLinesGetFirst(lines);
  EXPECT_EQ(lRmLineGetId(line), 1);
  EXPECT_STREQ(sRmLineGetName(line), "CL");
  EXPECT_TRUE(boRmLineIsCenterLine(line));
  EXPECT_NEAR(dRmLineGetStartChain(line), 100.5, 1e-12);
  EXPECT_EQ(iLiLineGetElmCount(line), 2);
  RmVerLine* verLine = RmLineGetVerLine(line);
  ASSERT_NE(verLine, nullptr);
  EXPECT_EQ(iRmVerLineGetCount(verLine), 2);
  EXPECT_NEAR(dRmVerLineHeightAt(verLine, 125.0, nullptr), 10.5, 1e-12);
  // The older difference rows end at the first line that is no row.
  ASSERT_EQ(iRmDiffAltitudesGetCount(verLine->DiffAltitudes), 1);
  EXPECT_NEAR(RmDiffAltitudesGetFirst(verLine->DiffAltitudes)->Height, 0.3, 1e-12);
  const RmChainEquation* equation = RmChainEquationAt(RmLineGetEquations(line), 0);
  ASSERT_NE(equation, nullptr);
  EXPECT_EQ(equation->ChainAhead, 200.0);
  EXPECT_STREQ(equation->Text, "S1");
}

TEST(LineRecords, OlderChainEquationsGoToTheCentreLineOnly) {
  auto file = [](const std::string& clValue) {
    return sCrLf({"[KVRFILE_ASCII]", "_VERSION 2", "_FILETYPE sfi",
                  "_INDEX !!!!!!!!!!!!!!!!!!!!", sEmptyExtentLine(), "DATAVERSION 12", "[L_]",
                  "_EXTENT 0 0 50 0 ", "_FIELDNAMES CHAIN;CL;", "[O_VERLINE]",
                  "[O_CHAINEQUATIONS]", "[+L_]", ":L 4", "_EXTENT 0 0 50 0 ",
                  "_FIELDVALUES ;" + clValue + ";", "GUID ", "/XY", "0 0", "50 0",
                  "[+O_VERLINE]", ":VERLINE 4", " 0.0000 1.0000 0.000",
                  "[+O_CHAINEQUATIONS]", " 10.000000 20.000000 A", " 30.000000 40.000000 B",
                  "[END]"});
  };
  ModelPtr withMain = ReadModel(file("1"));
  ASSERT_NE(withMain, nullptr);
  RmLine* line = RmLinesFindById(RmModelGetLines(withMain.get()), 4);
  ASSERT_NE(line, nullptr);
  EXPECT_EQ(iRmVerLineGetCount(RmLineGetVerLine(line)), 1);
  EXPECT_EQ(iRmChainEquationsGetCount(RmLineGetEquations(line)), 2);

  ModelPtr withoutMain = ReadModel(file(""));
  ASSERT_NE(withoutMain, nullptr);
  line = RmLinesFindById(RmModelGetLines(withoutMain.get()), 4);
  ASSERT_NE(line, nullptr);
  EXPECT_EQ(RmLineGetEquations(line), nullptr);
}
