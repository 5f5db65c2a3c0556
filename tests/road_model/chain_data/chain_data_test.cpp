// Chain data lines and rows: the row kind keys, the fields of a row, the
// offsets in exact 3D mode, the walk over visible rows and the mitred offset
// at a row.
#include "road_model/chain_data/chain_data.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <string>

#include "road_model/chain_data/chain_data_heights.h"
#include "road_model/chain_data/chain_data_types.h"
#include "tests/road_model/chain_data/chain_data_test_util.h"

TEST(ChainData, KeyCharactersAndIndexes) {
  EXPECT_EQ(iRmChainKeyIndex('S'), 1);
  EXPECT_EQ(iRmChainKeyIndex('c'), 13);
  EXPECT_EQ(iRmChainKeyIndex(' '), 0);
  EXPECT_EQ(iRmChainKeyIndex('x'), 0);
  EXPECT_EQ(cRmChainKeyChar(6), 'w');
  EXPECT_EQ(cRmChainKeyChar(13), 'c');
  EXPECT_EQ(cRmChainKeyChar(14), ' ');
  EXPECT_EQ(cRmChainKeyChar(-1), ' ');
}

TEST(ChainData, FieldsOutsideTheLineReadEmptyAndLongTextsAreCut) {
  ChainDataPtr data(RmChainDataCreate());
  RmChainDataLine* line = RmChainDataLineAdd(data.get(), nullptr, 101, 2);
  RmChainDataRow* row = RmChainDataRowAdd(line);
  vRmChainDataRowSetField(line, row, 1, std::string(45, 'x').c_str());
  vRmChainDataRowSetField(line, row, 0, "12.5");
  vRmChainDataRowSetField(line, row, 2, "beyond");

  EXPECT_EQ(std::string(sRmChainDataRowGetField(line, row, 1)), std::string(39, 'x'));
  EXPECT_DOUBLE_EQ(dRmChainDataRowGetFieldValue(line, row, 0), 12.5);
  EXPECT_STREQ(sRmChainDataRowGetField(line, row, 2), "");
  EXPECT_DOUBLE_EQ(dRmChainDataRowGetFieldValue(line, row, 2), 0.0);
  EXPECT_STREQ(sRmChainDataRowGetField(line, row, -1), "");
}

TEST(ChainData, ExactThreeDModeHidesTheOffsetsAndKeepsThem) {
  ChainDataPtr data(RmChainDataCreate());
  RmChainDataRow* row = AddRow(RmChainDataLineAdd(data.get(), nullptr, 1, 0), 10.0, 20.0);
  vRmChainDataRowSetOffsX(data.get(), row, 1.5);
  vRmChainDataRowSetOffsY(data.get(), row, -2.0);
  EXPECT_DOUBLE_EQ(dRmChainDataRowPlanX(data.get(), row), 11.5);
  EXPECT_DOUBLE_EQ(dRmChainDataRowPlanY(data.get(), row), 18.0);

  data->Exact3dMode = 1;
  vRmChainDataRowSetOffsX(data.get(), row, 9.0);
  EXPECT_DOUBLE_EQ(dRmChainDataRowGetOffsX(data.get(), row), 0.0);
  EXPECT_DOUBLE_EQ(dRmChainDataRowPlanY(data.get(), row), 20.0);
  EXPECT_FLOAT_EQ(row->OffsLeft, 1.5f);
  EXPECT_FLOAT_EQ(row->OffsRight, -2.0f);
}

TEST(ChainData, CopyKeepsSettingsLinesAndFields) {
  ChainDataPtr data(RmChainDataCreate());
  data->CorridorWidth = 4.0;
  data->ExpandEnd = 2.0;
  RmChainDataLine* line = RmChainDataLineAdd(data.get(), nullptr, 111, 1);
  vRmChainDataLineSetInfoType(line, 2);
  vRmChainDataRowSetField(line, AddRow(line, 1.0, 2.0), 0, "Skilt");
  ChainDataPtr copy(RmChainDataCreate());
  vRmChainDataCopy(copy.get(), data.get());

  EXPECT_DOUBLE_EQ(copy->MaxClDeviation, 0.05);
  EXPECT_DOUBLE_EQ(copy->CorridorWidth, 4.0);
  EXPECT_DOUBLE_EQ(copy->ExpandEnd, 2.0);
  RmChainDataLine* copied = RmChainDataLineFindWithInfo(copy.get());
  ASSERT_NE(copied, nullptr);
  EXPECT_EQ(copied->Type, 111);
  EXPECT_STREQ(sRmChainDataRowGetField(copied, ListFirst<RmChainDataRow>(&copied->Rows), 0),
               "Skilt");
}

TEST(ChainData, HiddenRowsAreSkippedAndHaveNoOffset) {
  ChainDataPtr data(RmChainDataCreate());
  RmChainDataLine* line = RmChainDataLineAdd(data.get(), nullptr, 1, 0);
  RmChainDataRow* first = AddRow(line, 0.0, 0.0);
  RmChainDataRow* hidden = AddRow(line, 5.0, 5.0, "#a");
  RmChainDataRow* corner = AddRow(line, 10.0, 0.0);
  RmChainDataRow* last = AddRow(line, 10.0, 10.0);

  EXPECT_EQ(RmChainDataRowNextVisible(first), corner);
  EXPECT_EQ(RmChainDataRowPrevVisible(corner), first);
  double dx = 1.0, dy = 1.0;
  vRmChainDataRowOffsetVector(&dx, &dy, hidden, 2.0);
  EXPECT_EQ(dx, 0.0);
  EXPECT_EQ(dy, 0.0);

  // The ends shift square to their piece, to the right for a positive
  // distance.
  vRmChainDataRowOffsetVector(&dx, &dy, first, 2.0);
  EXPECT_NEAR(dx, 0.0, 1e-12);
  EXPECT_NEAR(dy, -2.0, 1e-12);
  vRmChainDataRowOffsetVector(&dx, &dy, last, 2.0);
  EXPECT_NEAR(dx, 2.0, 1e-12);
  EXPECT_NEAR(dy, 0.0, 1e-12);
  // A left turn of a right angle: the outer corner of the mitre.
  vRmChainDataRowOffsetVector(&dx, &dy, corner, 2.0);
  EXPECT_NEAR(dx, 2.0, 1e-12);
  EXPECT_NEAR(dy, -2.0, 1e-12);
}

TEST(ChainData, ATurnBackMovesBackByTheDistance) {
  ChainDataPtr data(RmChainDataCreate());
  RmChainDataLine* line = RmChainDataLineAdd(data.get(), nullptr, 1, 0);
  AddRow(line, 0.0, 0.0);
  RmChainDataRow* turn = AddRow(line, 10.0, 0.0);
  AddRow(line, 0.0, 0.0);
  double dx = 0.0, dy = 0.0;
  vRmChainDataRowOffsetVector(&dx, &dy, turn, 2.0);
  EXPECT_NEAR(dx, -2.0, 1e-12);
  EXPECT_NEAR(dy, -2.0, 1e-12);
}

TEST(ChainData, HeightRangeCountsFieldsOfRailsAndSkipsMarks) {
  ChainDataPtr data(RmChainDataCreate());
  RmChainDataTypes types;
  types.Types = {RmChainDataTypeDefaults(101), RmChainDataTypeDefaults(119)};
  RmChainDataLine* rail = RmChainDataLineAdd(data.get(), nullptr, 101, 2);
  RmChainDataLine* mark = RmChainDataLineAdd(data.get(), nullptr, 119, 0);
  RmChainDataRow* row = AddRow(rail, 0.0, 0.0);
  row->Chain = 10.0;
  row->Z = 5.0;
  vRmChainDataRowSetField(rail, row, 0, "6.5");
  vRmChainDataRowSetField(rail, row, 1, "4.25");
  RmChainDataRow* outside = AddRow(rail, 0.0, 0.0);
  outside->Chain = 30.0;
  outside->Z = 100.0;
  RmChainDataRow* skipped = AddRow(mark, 0.0, 0.0);
  skipped->Chain = 12.0;
  skipped->Z = -50.0;

  double min = 0.0, max = 0.0;
  ASSERT_TRUE(boRmChainDataHeightRange(&types, data.get(), RmChainRange{0.0, 20.0}, &min, &max));
  EXPECT_DOUBLE_EQ(min, 4.25);
  EXPECT_DOUBLE_EQ(max, 6.5);
  EXPECT_FALSE(boRmChainDataHeightRange(&types, data.get(), RmChainRange{11.0, 20.0}, &min, &max));
}
