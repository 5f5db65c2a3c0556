// The chain range tables, one suite over every member of the family: what
// differs between members is their kind, so each case runs on each kind.
#include "road_model/tables/chain_range_table.h"

#include <gtest/gtest.h>

#include <vector>

#include "road_model/tables/chain_range_members.h"
#include "tests/support/owned.h"

namespace {

using Table = Owned<RmChainRangeTable, vRmChainRangeTableDelete>;

// The list that a case works on: the one list, or the right one of a
// two-sided table (the left one is tried by the copy).
RmChainRangeList* WorkList(const RmChainRangeTable* table) {
  return table->Kind->Sides == 2 ? RmChainRangeTableGetRight(table)
                                 : RmChainRangeTableGetRows(table);
}

// A distinct value for each field of a row, whole so that integers hold it.
double dFieldValue(int row, size_t field) { return 100.0 * (row + 1) + field; }

RmChainRangeRow* AddRow(RmChainRangeList* list, double from, double to, int tag) {
  RmChainRangeRow* row = RmChainRangeAdd(list, from);
  vRmChainRangeSetRange(row, from, to);
  for (size_t f = 0; f < list->Kind->Fields.size(); ++f) {
    vRmChainRangeRowSetField(row, list->Kind->Fields[f], dFieldValue(tag, f));
  }
  return row;
}

std::vector<double> Starts(const RmChainRangeList* list) {
  std::vector<double> starts;
  for (RmChainRangeRow* row = RmChainRangeGetFirst(list); row; row = RmChainRangeGetNext(row)) {
    starts.push_back(row->Range.Low);
  }
  return starts;
}

class ChainRangeTables : public testing::TestWithParam<const RmChainRangeKind*> {};

TEST_P(ChainRangeTables, ANewTableHasTheListsOfItsSidesAndNoRows) {
  const RmChainRangeKind* kind = GetParam();
  RmChainRangeTable* table = RmChainRangeTableCreate(kind);
  ASSERT_NE(table, nullptr);
  bool sided = kind->Sides == 2;
  EXPECT_EQ(RmChainRangeTableGetRows(table) != nullptr, !sided);
  EXPECT_EQ(RmChainRangeTableGetLeft(table) != nullptr, sided);
  EXPECT_EQ(RmChainRangeTableGetRight(table) != nullptr, sided);
  if (sided) {
    EXPECT_NE(RmChainRangeTableGetLeft(table), RmChainRangeTableGetRight(table));
  }
  EXPECT_FALSE(boRmChainRangeTableHasRows(table));
  for (size_t i = 0; i < kind->TableFields.size(); ++i) {
    EXPECT_EQ(dRmChainRangeTableGetValue(table, static_cast<int>(i)), kind->TableFields[i].Default);
  }
  RmChainRangeAddBefore(WorkList(table), nullptr);
  EXPECT_TRUE(boRmChainRangeTableHasRows(table));
  vRmChainRangeTableDelete(&table);
  EXPECT_EQ(table, nullptr);
  vRmChainRangeTableDelete(&table);
}

TEST_P(ChainRangeTables, RowsGoInByRangeStartAndHoldTheNewRowValues) {
  Table table(RmChainRangeTableCreate(GetParam()));
  RmChainRangeList* list = WorkList(table);
  RmChainRangeRow* second = RmChainRangeAdd(list, 20.0);
  RmChainRangeRow* first = RmChainRangeAdd(list, 10.0);
  RmChainRangeRow* behind = RmChainRangeAdd(list, 20.0);
  RmChainRangeRow* last = RmChainRangeAddBefore(list, nullptr);
  RmChainRangeRow* front = RmChainRangeAddBefore(list, first);
  EXPECT_EQ(Starts(list), (std::vector<double>{0.0, 10.0, 20.0, 20.0, 0.0}));
  EXPECT_EQ(iRmChainRangeGetIndex(list, front), 0);
  EXPECT_EQ(iRmChainRangeGetIndex(list, second), 2);
  EXPECT_EQ(iRmChainRangeGetIndex(list, behind), 3);
  EXPECT_EQ(iRmChainRangeGetIndex(list, last), 4);
  EXPECT_EQ(iRmChainRangeGetIndex(list, nullptr), -1);
  EXPECT_EQ(second->Range.High, 0.0);
  for (const RmChainRangeField& field : GetParam()->Fields) {
    EXPECT_EQ(dRmChainRangeRowGetField(behind, field), field.Absent) << field.Name;
    EXPECT_EQ(dRmChainRangeRowGetField(front, field), field.Absent) << field.Name;
  }
}

TEST_P(ChainRangeTables, SortKeepsNearStartsInOrderAndLookupsIncludeBothEnds) {
  Table table(RmChainRangeTableCreate(GetParam()));
  RmChainRangeList* list = WorkList(table);
  RmChainRangeRow* late = AddRow(list, 30.0, 40.0, 0);
  RmChainRangeRow* early = AddRow(list, 10.0, 20.0, 1);
  RmChainRangeRow* near = RmChainRangeAddBefore(list, early);
  vRmChainRangeSetRange(near, 10.000001, 15.0);
  RmChainRangeRow* reversed = AddRow(list, 50.0, 45.0, 2);  // kept as it is
  vRmChainRangeSetRange(RmChainRangeAddBefore(list, nullptr), 5.0, 6.0);
  vRmChainRangeSort(list);
  EXPECT_EQ(Starts(list), (std::vector<double>{5.0, 10.000001, 10.0, 30.0, 50.0}));
  EXPECT_EQ(list->Rows.last, reversed);
  EXPECT_EQ(RmChainRangeGetFirst(list)->Next->Prev, RmChainRangeGetFirst(list));
  EXPECT_EQ(RmChainRangeFindAt(list, 10.000001), near);
  EXPECT_EQ(RmChainRangeFindAt(list, 20.0), early);
  EXPECT_EQ(RmChainRangeFindAt(list, 30.0), late);
  EXPECT_EQ(RmChainRangeFindAt(list, 40.0), late);
  EXPECT_EQ(RmChainRangeFindAt(list, 25.0), nullptr);
  EXPECT_EQ(RmChainRangeFindAt(list, 47.0), nullptr);
  for (size_t f = 0; f < GetParam()->Fields.size(); ++f) {
    EXPECT_EQ(dRmChainRangeRowGetField(early, GetParam()->Fields[f]), dFieldValue(1, f));
  }
}

TEST_P(ChainRangeTables, ACopyIsDeepAndTakesTheKind) {
  Table source(RmChainRangeTableCreate(GetParam()));
  RmChainRangeList* first = &source->Lists[0];
  RmChainRangeList* second = &source->Lists[1];
  AddRow(first, 1.0, 2.0, 0);
  AddRow(first, 3.0, 4.0, 1);
  if (GetParam()->Sides == 2) AddRow(second, 5.0, 6.0, 2);
  vRmChainRangeTableSetValue(source, 0, 1.25);
  const RmChainRangeKind* other = GetParam() == &kRmRockBenches ? &kRmFillDitches : &kRmRockBenches;
  Table copy(RmChainRangeTableCreate(other));
  AddRow(&copy->Lists[0], 9.0, 9.5, 3);
  vRmChainRangeTableCopy(copy, source);
  ASSERT_EQ(copy->Kind, GetParam());
  EXPECT_EQ(Starts(&copy->Lists[0]), (std::vector<double>{1.0, 3.0}));
  EXPECT_EQ(Starts(&copy->Lists[1]), Starts(second));
  RmChainRangeRow* row = RmChainRangeGetNext(RmChainRangeGetFirst(&copy->Lists[0]));
  for (size_t f = 0; f < GetParam()->Fields.size(); ++f) {
    EXPECT_EQ(dRmChainRangeRowGetField(row, GetParam()->Fields[f]), dFieldValue(1, f));
  }
  EXPECT_EQ(dRmChainRangeTableGetValue(copy, 0), dRmChainRangeTableGetValue(source, 0));
  vRmChainRangeSetRange(row, 7.0, 8.0);
  EXPECT_EQ(Starts(first), (std::vector<double>{1.0, 3.0}));
}

INSTANTIATE_TEST_SUITE_P(Members, ChainRangeTables,
                         testing::Values(&kRmRockBenches, &kRmMinDitchDepths,
                                         &kRmStoneExcavationSlopes, &kRmDeepRockBlasts,
                                         &kRmFillDitches, &kRmRemovalTopsoils, &kRmUnsuitableSoils,
                                         &kRmSoilCutPlasters),
                         [](const testing::TestParamInfo<const RmChainRangeKind*>& info) {
                           return std::string(info.param->Name);
                         });

TEST(ChainRangeTables, RowValuesGoInAndOutAsTheMembersStructOnly) {
  Table blasts(RmChainRangeTableCreate(&kRmDeepRockBlasts));
  RmChainRangeList* list = RmChainRangeTableGetRows(blasts);
  RmChainRangeRow* row = RmChainRangeAdd(list, 5.0);
  RmDeepRockBlast fresh{};
  vRmChainRangeGetRow(list, row, &fresh);
  EXPECT_EQ(fresh.Integer1, 1);
  EXPECT_EQ(fresh.Real4, -99999.0);
  EXPECT_EQ(fresh.Integer4, -99999);
  EXPECT_EQ(fresh.Integer5, 0);
  RmDeepRockBlast values{1.5, 2.5, 3.5, 4, 5.5, 6, 7, 8, 9};
  vRmChainRangeSetRow(list, row, values);
  RmRockBench wrongKind{1.0, 2.0, 3.0, 4.0};
  vRmChainRangeSetRow(list, row, wrongKind);
  RmDeepRockBlast back{};
  vRmChainRangeGetRow(list, row, &back);
  EXPECT_EQ(back.Real3, 3.5);
  EXPECT_EQ(back.Real4, 5.5);
  EXPECT_EQ(back.Integer5, 9);
  EXPECT_EQ(dRmChainRangeRowGetField(row, kRmDeepRockBlasts.Fields[8]), 9.0);
}

}  // namespace
