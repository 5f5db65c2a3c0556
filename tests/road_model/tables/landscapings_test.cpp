#include "road_model/tables/landscapings.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/support/owned.h"

namespace {

using Table = Owned<RmLandscapings, vRmLandscapingsDelete>;

std::vector<double> Chains(const ListHead* list) {
  std::vector<double> chains;
  for (RmLandscaping* item = RmLandscapingsGetFirst(list); item;
       item = RmLandscapingGetNext(item)) {
    chains.push_back(item->Chain);
  }
  return chains;
}

TEST(Landscapings, GoInByChainageSortStablyAndAreFoundAtTheirChainage) {
  Table table(RmLandscapingsCreate());
  EXPECT_FALSE(boRmLandscapingsHasRows(table));
  EXPECT_EQ(RmLandscapingsGetSide(table, 0), nullptr);
  ListHead* right = RmLandscapingsGetRight(table);
  RmLandscaping* later = RmLandscapingAdd(right, 20.0);
  RmLandscaping* first = RmLandscapingAdd(right, 10.0);
  RmLandscaping* behind = RmLandscapingAdd(right, 20.0);
  EXPECT_EQ(Chains(right), (std::vector<double>{10.0, 20.0, 20.0}));
  EXPECT_EQ(iRmLandscapingGetIndex(right, behind), 2);
  EXPECT_EQ(behind->Integers[1], -99999);
  EXPECT_EQ(behind->Real, -99999.0);
  EXPECT_TRUE(boRmLandscapingsHasRows(table));
  EXPECT_FALSE(RmLandscapingsGetFirst(RmLandscapingsGetLeft(table)));

  RmLandscaping* near = RmLandscapingAddBefore(right, first);
  near->Chain = 10.000001;
  RmLandscapingAddBefore(right, nullptr)->Chain = 5.0;
  vRmLandscapingsSort(right);
  EXPECT_EQ(Chains(right), (std::vector<double>{5.0, 10.000001, 10.0, 20.0, 20.0}));
  EXPECT_EQ(iRmLandscapingGetIndex(right, later), 3);
  EXPECT_EQ(RmLandscapingsGetFirst(right)->Next->Prev, RmLandscapingsGetFirst(right));
  EXPECT_EQ(RmLandscapingFindAt(right, 10.0), near);
  EXPECT_EQ(RmLandscapingFindAt(right, 20.000009), later);
  EXPECT_EQ(RmLandscapingFindAt(right, 15.0), nullptr);
}

TEST(Landscapings, ACopyHasRowsOfItsOwn) {
  Table source(RmLandscapingsCreate());
  RmLandscaping* item = RmLandscapingAdd(RmLandscapingsGetLeft(source), 100.0);
  RmLandscapingRow* row = RmLandscapingRowAdd(item);
  EXPECT_EQ(row->Values[2], -99999.0);
  row->Values[0] = 1.5;
  RmLandscapingRowAdd(item)->Values[0] = 2.5;
  Table copy(RmLandscapingsCreate());
  RmLandscapingAdd(RmLandscapingsGetRight(copy), 7.0);
  vRmLandscapingsCopy(copy, source);
  EXPECT_FALSE(RmLandscapingsGetFirst(RmLandscapingsGetRight(copy)));
  RmLandscaping* copied = RmLandscapingsGetFirst(RmLandscapingsGetLeft(copy));
  ASSERT_NE(copied, nullptr);
  RmLandscapingRow* copiedRow = RmLandscapingRowsGetFirst(copied);
  ASSERT_NE(copiedRow, row);
  EXPECT_EQ(copiedRow->Values[0], 1.5);
  EXPECT_EQ(RmLandscapingRowGetNext(copiedRow)->Values[0], 2.5);
  EXPECT_EQ(RmLandscapingRowGetNext(RmLandscapingRowGetNext(copiedRow)), nullptr);
}

}  // namespace
