// The sections of the chain range tables and of the landscapings: each read
// from lines with the faults a file can have and written back in the model's
// order, byte for byte. The fixture (tests/data/records/chain_range_tables.sfi)
// holds the whole of each section for the record families' test.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "road_model/model/model_parts.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/tables/chain_range_table.h"
#include "tests/support/model_file_text.h"

namespace {

const SectionRewrite kCases[] = {
    // Rows before a side keyword have no side; unknown keywords are skipped;
    // MINSLOPEBUILD is written first and a short row reads zeros.
    {"ROCKBENCHS",
     {" 1 2 3 4 5 6", "MINSLOPEBUILD 1.5", ":RIGHTSIDE", " 200 300 1 2 3 4", " 100 150 1.25",
      ":LEFTSIDE", "UNKNOWN 7", " 10 20 0.5 0.6 0.7 0.8"},
     {"MINSLOPEBUILD 1.500", ":LEFTSIDE", " 10.0000 20.0000 0.500 0.600 0.700 0.800", ":RIGHTSIDE",
      " 100.0000 150.0000 1.250 0.000 0.000 0.000", " 200.0000 300.0000 1.000 2.000 3.000 4.000"}},
    // The older form: a row for both sides, two reals each, missing ones not
    // given; no sides, so side keywords are passed over.
    {"ROCKBENCHS",
     {" 10 20 1 2 3 4", ":LEFTSIDE", " 30 40 5"},
     {":LEFTSIDE", " 10.0000 20.0000 1.000 2.000 -99999.000 -99999.000",
      " 30.0000 40.0000 5.000 -99999.000 -99999.000 -99999.000", ":RIGHTSIDE",
      " 10.0000 20.0000 3.000 4.000 -99999.000 -99999.000",
      " 30.0000 40.0000 -99999.000 -99999.000 -99999.000 -99999.000"},
     1},
    {"MINDITCHDEPTHS",
     {" 50 60 1.5 2", " 10 20 0.5"},
     {" 10.000 20.000 0.500 0.000", " 50.000 60.000 1.500 2.000"}},
    // A slope line before the first row has no row to go to.
    {"STONEEXCAVATIONSLOPES",
     {"STONESLOPESIDELEFT 9", "STONEEXCAVATIONSLOPE 100 200", "STONESLOPESIDERIGHT 1.5",
      "STRANGE 3", "EXCAVATIONSLOPERIGHT 0.25", "STONEEXCAVATIONSLOPE 0 50",
      "STONESLOPEINTERMEDLEFT 2"},
     {"STONEEXCAVATIONSLOPE 0.0000 50.0000", "STONESLOPEINTERMEDLEFT 2.000",
      "STONEEXCAVATIONSLOPE 100.0000 200.0000", "STONESLOPESIDERIGHT 1.500",
      "EXCAVATIONSLOPERIGHT 0.250"}},
    // A row of six numbers reads its last numbers at their marks.
    {"DEEPROCKBLASTS",
     {" 20 30 1 2 3 4", " 0 10 1 2 3 4 5 6 7 8 9"},
     {" 0.000 10.000 1.000 2.000 3.000 4 5.000 6 7 8 9",
      " 20.000 30.000 1.000 2.000 3.000 4 -99999.000 -99999 -99999 -99999 0"}},
    {"FILLDITCHES", {" 1 2", ":RIGHTSIDE", " 5 6"}, {":RIGHTSIDE", " 5.000 6.000"}},
    {"REMOVALTOPSOILS", {" 0 100 3 4 0.5"}, {" 0.000 100.000 3 4 0.500 -99999.000 0"}},
    {"UNSUITABLESOILS", {" 5 15 2", " 0 5"}, {" 0.000 5.000 0", " 5.000 15.000 2"}},
    {"SOILCUTPLASTERS", {" 0 10 0.1"}, {" 0.000 10.000 0.100 0.000"}},
    // A landscaping before a side keyword is dropped with its rows; one
    // without a chainage is kept without its rows; any other line ends one.
    {"LANDSCAPINGS",
     {":LANDSCAPING 5 1 2 3", " 1 2 3", ":RIGHTSIDE", ":LANDSCAPING 20 1 2 0.5", " 1 2 3",
      ":LANDSCAPING 10 3 4 1.5", " 4 5", "UNKNOWN", " 7 8 9", ":LANDSCAPING -99999 0 0 0", " 1 1 1",
      ":LEFTSIDE", ":LANDSCAPING 0 0 0 0"},
     {":LEFTSIDE", ":LANDSCAPING 0.0000 0 0 0.000", ":RIGHTSIDE",
      ":LANDSCAPING -99999.0000 0 0 0.000", ":LANDSCAPING 10.0000 3 4 1.500", " 4.000 5.000 0.000",
      ":LANDSCAPING 20.0000 1 2 0.500", " 1.000 2.000 3.000"}},
};

}  // namespace

TEST(ChainRangeRecords, EachSectionReadsAndIsWrittenBackInTheModelsOrder) {
  for (const SectionRewrite& c : kCases) {
    EXPECT_EQ(sSectionWrittenBack(c.Name, c.Read, c.Version), sCrLf(c.Written))
        << c.Name << " v" << c.Version;
  }
}

TEST(ChainRangeRecords, ASectionWithoutRowsStoresAnEmptyTableAndIsNotWritten) {
  ModelPtr model = ReadModel(sModelFileOf(13, {{"FILLDITCHES", sCrLf({" 1 2"})}}));
  ASSERT_NE(model, nullptr);
  RmChainRangeTable* table = RmSurfGenGet<kRmFillDitchesSlot>(RmModelGetSurfGen(model.get()));
  ASSERT_NE(table, nullptr);
  EXPECT_FALSE(boRmChainRangeTableHasRows(table));
  EXPECT_EQ(sSectionBody(sWrittenModel(model.get()), "FILLDITCHES"), "<none>");
}
