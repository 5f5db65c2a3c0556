#include "road_model/tables/special_gradings.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

struct GradingsDeleter {
  void operator()(RmSpecialGradings* table) const { vRmSpecialGradingsDelete(&table); }
};
using GradingsPtr = std::unique_ptr<RmSpecialGradings, GradingsDeleter>;

// "chain:codeFrom>codeTo,... " for every chainage.
std::string sTable(const RmSpecialGradings* table) {
  std::string text;
  for (const RmSpecialGradingChain* chain = RmSpecialGradingChainsGetFirst(table); chain;
       chain = RmSpecialGradingChainGetNext(chain)) {
    text += std::to_string(static_cast<int>(dRmSpecialGradingChainGet(chain))) + ":";
    for (const RmSpecialGradingRow* row = RmSpecialGradingRowsGetFirst(chain); row;
         row = RmSpecialGradingRowGetNext(row)) {
      text += std::to_string(iRmSpecialGradingRowGetCodeFrom(row)) + ">" +
              std::to_string(iRmSpecialGradingRowGetCodeTo(row)) + ",";
    }
    text += " ";
  }
  return text;
}

RmSpecialGradingRow* AddRow(RmSpecialGradingChain* chain, int from, int to) {
  RmSpecialGradingRow* row = RmSpecialGradingRowAdd(chain);
  vRmSpecialGradingRowSetCodeFrom(row, from);
  vRmSpecialGradingRowSetCodeTo(row, to);
  return row;
}

int32_t iNegate(int32_t code) { return -code; }

}  // namespace

TEST(SpecialGradings, ChainagesStaySortedAndACopyOwnsItsRows) {
  GradingsPtr table(RmSpecialGradingsCreate());
  RmSpecialGradingChain* second = RmSpecialGradingChainAddSorted(table.get(), 200.0);
  RmSpecialGradingChain* first = RmSpecialGradingChainAddSorted(table.get(), 100.0);
  // An equal chainage goes behind the one already there.
  RmSpecialGradingChain* tie = RmSpecialGradingChainAddSorted(table.get(), 100.0);
  EXPECT_FALSE(boRmSpecialGradingsHasRows(table.get()));
  AddRow(first, 30101, 30201);
  AddRow(first, 30102, 30202);
  AddRow(second, -30101, -30301);
  AddRow(tie, 5, 6);
  EXPECT_TRUE(boRmSpecialGradingsHasRows(table.get()));
  EXPECT_EQ(sTable(table.get()), "100:30101>30201,30102>30202, 100:5>6, 200:-30101>-30301, ");

  GradingsPtr copy(RmSpecialGradingsCreate());
  RmSpecialGradingChainAddSorted(copy.get(), 7.0);
  vRmSpecialGradingsCopy(copy.get(), table.get());
  vRmSpecialGradingChainRemove(table.get(), tie);
  vRmSpecialGradingsMapCodes(copy.get(), iNegate);
  EXPECT_EQ(sTable(table.get()), "100:30101>30201,30102>30202, 200:-30101>-30301, ");
  EXPECT_EQ(sTable(copy.get()), "100:-30101>-30201,-30102>-30202, 100:-5>-6, 200:30101>30301, ");

  RmSpecialGradings* gone = table.release();
  vRmSpecialGradingsDelete(&gone);
  EXPECT_EQ(gone, nullptr);
  vRmSpecialGradingsDelete(&gone);
  EXPECT_FALSE(boRmSpecialGradingsHasRows(nullptr));
}

TEST(SpecialGradings, ANewChainageHasNoNumberAndANewRowIsZero) {
  GradingsPtr table(RmSpecialGradingsCreate());
  RmSpecialGradingChain* chain = RmSpecialGradingChainAdd(table.get(), nullptr);
  EXPECT_EQ(dRmSpecialGradingChainGet(chain), -99999.0);
  RmSpecialGradingRow* row = RmSpecialGradingRowAdd(chain);
  EXPECT_EQ(iRmSpecialGradingRowGetCodeFrom(row), 0);
  EXPECT_EQ(dRmSpecialGradingRowGetDistFrom(row), 0.0);
  EXPECT_EQ(iRmSpecialGradingRowGetCodeTo(row), 0);
  EXPECT_EQ(dRmSpecialGradingRowGetDistTo(row), 0.0);
}
