// SIDEBOUNDARIES, SURFACEBORDERLINES, CLOSEDDITCHES and STRINGLINESLAYERS
// beyond the fixture (tests/data/records/side_tables.sfi): the model's order,
// the values that read as absent, and what bad or short lines give.
#include <gtest/gtest.h>

#include <string>

#include "model_file/records/frame/record_line.h"
#include "model_file/records/tables/surface_border_lines_record.h"
#include "road_model/lines/plan_lines.h"
#include "road_model/model/model_parts.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/tables/side_boundaries.h"
#include "road_model/tables/string_lines.h"
#include "road_model/tables/surface_border_lines.h"
#include "tests/support/model_file_text.h"

namespace {

const SectionRewrite kCases[] = {
    {"SIDEBOUNDARIES",
     {" 1 2 3 4", ":RIGHTSIDE", " 20 0 1.5 0", " 10 30105", ":GROUPEND", " 5 5 5 5", ":LEFTSIDE",
      " 7 -30105 -2 6"},
     // Left first, rows by chainage; a row before a side or behind another
     // line has no side; a code or alignment of 0 or left out is absent, a
     // distance left out 0.
     {":LEFTSIDE", " 7.000 -30105 -2.000 6", ":RIGHTSIDE", " 10.000 30105 0.000 -99999",
      " 20.000 -99999 1.500 -99999"}},
    {"SURFACEBORDERLINES",
     {" 30105 50 60 1 0 0", "UNKNOWN 1", " -30105 70 80 2 5", " 30105 10 20", ":GROUPEND",
      " 1 1 1 1 1 1"},
     // By surface, then by start; the alignment's 0 is absent, the free
     // surface's is not; what follows the end line is not read.
     {" -30105 70.0000 80.0000 2 5 -99999", " 30105 10.0000 20.0000 0 -99999 -99999",
      " 30105 50.0000 60.0000 1 -99999 0"}},
    {"CLOSEDDITCHES",
     {" 1 1", ":CLOSEDDITCH_CHAIN 5 1", ":CLOSEDDITCH 41", ":CLOSEDDITCH_CHAIN 200 1", " -1 0.5",
      ":CLOSEDDITCH_CHAIN 100", " 2", ":CLOSEDDITCH 22", "OTHER", " 9 9",
      ":CLOSEDDITCH_CHAIN 300 0", ":CLOSEDDITCH -3"},
     // Ditches by layer number, sections by chainage; points need a section,
     // a section needs a ditch, and a number that is no layer opens none.
     {":CLOSEDDITCH 22", ":CLOSEDDITCH 41", ":CLOSEDDITCH_CHAIN 100.0000 0", " 2.000 0.000",
      ":CLOSEDDITCH_CHAIN 200.0000 1", " -1.000 0.500"}},
    {"STRINGLINESLAYERS",
     {"LAYER 32", "OTHER 5", "LAYER 21", " 41", "LAYER -1"},
     {"LAYER 21", "LAYER 32"}},
};

}  // namespace

TEST(SideTableRecords, SectionsAreWrittenBackInTheModelsOrderWithoutWhatCannotBeRead) {
  for (const SectionRewrite& section : kCases) {
    EXPECT_EQ(sSectionWrittenBack(section.Name, section.Read, section.Version),
              sCrLf(section.Written))
        << section.Name;
  }
}

TEST(SideTableRecords, EmptySectionsStoreEmptyTablesAndWriteNothing) {
  ModelPtr model = ReadModel(
      sModelHead({"DATAVERSION 13"}, {"SIDEBOUNDARIES", "SURFACEBORDERLINES", "CLOSEDDITCHES"}) +
      sCrLf({"[+O_SIDEBOUNDARIES]", ":LEFTSIDE", "[+O_SURFACEBORDERLINES]", ":GROUPEND",
             "[+O_CLOSEDDITCHES]", "[END]"}));
  ASSERT_NE(model, nullptr);
  EXPECT_NE(RmModelGetSideBoundaries(model.get()), nullptr);
  EXPECT_NE(RmModelGetSurfaceBorderLines(model.get()), nullptr);
  EXPECT_NE(RmSurfGenGet<kRmClosedDitchesSlot>(RmModelGetSurfGen(model.get())), nullptr);
  const std::string written = sWrittenModel(model.get());
  EXPECT_EQ(written.find("SIDEBOUNDARIES"), std::string::npos);
  EXPECT_EQ(written.find("SURFACEBORDERLINES"), std::string::npos);
  EXPECT_EQ(written.find("CLOSEDDITCHES"), std::string::npos);
}

TEST(SideTableRecords, ALayerWithoutLinesWritesOnlyItsLayerLine) {
  // A loaded model has its surface tables object.
  ModelPtr model = ReadModel(sModelFileOf(13, {{"MASSCALC", ""}}));
  ASSERT_NE(model, nullptr);
  RmStringLines* table = RmStringLinesCreate();
  RmStringLineAdd(table, RmLayerIdMake(1, 2));
  vRmStringLineSetLines(RmStringLineAdd(table, RmLayerIdMake(1, 3)), RmLinesCreate());
  vRmSurfGenSet<kRmStringLinesSlot>(RmModelGetSurfGen(model.get()), table);
  const std::string written = sWrittenModel(model.get());
  EXPECT_EQ(sSectionBody(written, "STRINGLINESLAYERS"), sCrLf({"LAYER 21", "LAYER 31"}));
  EXPECT_EQ(written.find("STRINGLINESSURFACES"), std::string::npos);
}

TEST(SideTableRecords, BorderLineRowsOfAGroupShareTheForm) {
  RmSurfaceBorderLines* table = RmSurfaceBorderLinesCreate();
  RecordLine line;
  vRecordLineStart(&line, " 30105 1 2 3 0");
  sRecordToken(&line);
  vRmSurfaceBorderLineRowRead(&line, table);
  const RmSurfaceBorderLine* row = RmSurfaceBorderLinesGetFirst(table);
  ASSERT_NE(row, nullptr);
  EXPECT_EQ(row->Surface, 30105);
  EXPECT_EQ(row->Range.High, 2.0);
  EXPECT_EQ(row->Method, 3);
  EXPECT_EQ(row->LineId, -99999);
  EXPECT_EQ(row->FreeSurface, -99999);
  vRmSurfaceBorderLinesDelete(&table);
}
