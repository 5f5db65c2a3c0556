// A row following its type (label placement and field defaults) and the
// near-line test with its two radii.
#include <gtest/gtest.h>

#include <cstring>
#include <memory>

#include "road_model/chain_data/chain_data.h"
#include "road_model/chain_data/chain_data_apply.h"
#include "road_model/chain_data/chain_data_near_line.h"
#include "road_model/chain_data/chain_data_types.h"
#include "tests/road_model/chain_data/chain_data_test_util.h"

TEST(ChainDataRules, ARowTakesThePlanLabelPlacementAndTheFieldDefaultsOfItsType) {
  ChainDataPtr data(RmChainDataCreate());
  RmChainDataLine* line = RmChainDataLineAdd(data.get(), nullptr, 101, 3);
  RmChainDataRow* row = AddRow(line, 0.0, 0.0);
  vRmChainDataRowSetField(line, row, 0, "old");
  vRmChainDataRowSetField(line, row, 2, "old");

  RmChainDataType type = RmChainDataTypeDefaults(101);
  type.PlanDraw.TextDx = 2.0f;
  type.PlanDraw.TextDy = -1.0f;
  type.PlanDraw.TextRot = 90.0f;
  type.PlanDraw.TextH = 2.5f;
  type.SectionDraw.TextH = 7.0f;
  type.FieldCount = 2;
  type.FieldKinds[0] = kRmChainFieldText;
  type.FieldKinds[1] = kRmChainFieldNumber;

  vRmChainDataRowApplyType(line, row, &type);
  EXPECT_FLOAT_EQ(row->Offs[0], 2.0f);
  EXPECT_FLOAT_EQ(row->Offs[1], -1.0f);
  EXPECT_FLOAT_EQ(row->Offs[2], 90.0f);
  EXPECT_FLOAT_EQ(row->Offs[3], 2.5f);
  EXPECT_STREQ(sRmChainDataRowGetField(line, row, 0), "old");  // fields untouched

  vRmChainDataRowApplyFields(line, row, &type);
  EXPECT_STREQ(sRmChainDataRowGetField(line, row, 0), "");
  EXPECT_STREQ(sRmChainDataRowGetField(line, row, 1), "0");
  EXPECT_STREQ(sRmChainDataRowGetField(line, row, 2), "");  // the type has no such field
}

TEST(ChainDataRules, NearTheLineWithinHalfAMetreOfARowOrATenthOfTheLine) {
  ChainDataPtr data(RmChainDataCreate());
  RmChainDataLine* line = RmChainDataLineAdd(data.get(), nullptr, 101, 0);
  AddRow(line, 0.0, 0.0);
  AddRow(line, 5.0, 5.0, "#hidden");
  AddRow(line, 10.0, 0.0);
  RmChainDataRow* member = AddRow(line, 10.0, 0.05);  // itself left out
  RmChainDataLine* others = RmChainDataLineAdd(data.get(), nullptr, 102, 0);

  struct Case {
    double x, y;
    bool near;
  } const kCases[] = {
      {0.3, 0.35, true},   // 0.46 from a row
      {5.0, 0.09, true},   // beside the line between rows
      {5.0, 0.11, false},  // too far from the line, and the hidden row does not count
      {5.0, 5.0, false},   // near the hidden row only
      {-0.4, 0.2, true},   // beyond the line's end, near its first row
      {-0.6, 0.0, false},
  };
  for (const Case& test : kCases) {
    RmChainDataRow* probe = AddRow(others, test.x, test.y);
    EXPECT_EQ(boRmChainDataRowNearLine(line, probe), test.near) << test.x << " " << test.y;
  }
  EXPECT_TRUE(boRmChainDataRowNearLine(line, member));  // 0.05 from the row at (10, 0)
  std::strcpy(member->Code, "#");
  EXPECT_FALSE(boRmChainDataRowNearLine(line, member));
}
