// Row kinds at a chainage from the branch table: lower-case kinds change
// gradually between two entries, upper-case kinds hold; nothing before the
// first entry of the type.
#include "road_model/chain_data/chain_values.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "road_model/chain_data/chain_data.h"
#include "road_model/params/nrm_params.h"

namespace {

struct ParamsDeleter {
  void operator()(RmNrmParams* params) const { vNrmParamsDelete(&params); }
};
using ParamsPtr = std::unique_ptr<RmNrmParams, ParamsDeleter>;

struct Row {
  double X, Y;
  char Kind;
};

void AddEntry(RmNrmParams* params, double chain, int type, const std::vector<Row>& rows) {
  NrmBranch* branch = pNrmParamsAddBranch(params, chain, type);
  for (const Row& row : rows) vNrmBranchAddRow(branch, row.X, row.Y, iRmChainKeyIndex(row.Kind));
}

std::vector<Row> RowsOf(const NrmBranch* branch) {
  std::vector<Row> rows;
  for (auto* row = ListFirst<NrmBranchRow>(&branch->rows); row; row = row->next) {
    rows.push_back({row->x, row->y, cRmChainKeyChar(row->code)});
  }
  return rows;
}

}  // namespace

TEST(ChainValues, LowerCaseKindsInterpolateAndUpperCaseKindsHold) {
  ParamsPtr params(pNrmParamsCreate());
  // Out of chainage order, and an entry of another type between them.
  AddEntry(params.get(), 200.0, 7,
           {{10.0, 4.0, 'w'}, {20.0, 8.0, 'S'}, {30.0, 1.0, 'e'}, {5.0, 5.0, 'd'}});
  AddEntry(params.get(), 150.0, 8, {{99.0, 99.0, 'w'}});
  AddEntry(params.get(), 100.0, 7, {{0.0, 2.0, 'w'}, {10.0, 6.0, 'S'}, {50.0, 3.0, 'd'}});

  EXPECT_EQ(RmChainValueAt(params.get(), 7, 99.9), nullptr);  // before the first entry
  EXPECT_EQ(RmChainValueAt(params.get(), 9, 500.0), nullptr);

  const NrmBranch* at = RmChainValueAt(params.get(), 7, 125.0);
  ASSERT_NE(at, nullptr);
  EXPECT_DOUBLE_EQ(at->BRCHAIN, 125.0);
  EXPECT_EQ(at->branchClass, 7);
  std::vector<Row> rows = RowsOf(at);
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_DOUBLE_EQ(rows[0].X, 2.5);  // w: a quarter of the way
  EXPECT_DOUBLE_EQ(rows[0].Y, 2.5);
  EXPECT_DOUBLE_EQ(rows[1].X, 10.0);  // S holds
  EXPECT_DOUBLE_EQ(rows[1].Y, 6.0);
  EXPECT_DOUBLE_EQ(rows[2].X, 50.0);  // d against e: kinds differ, it holds
  EXPECT_EQ(rows[2].Kind, 'd');

  // Behind the last entry its rows hold; the cache is refilled, not grown.
  rows = RowsOf(RmChainValueAt(params.get(), 7, 300.0));
  ASSERT_EQ(rows.size(), 4u);
  EXPECT_DOUBLE_EQ(rows[0].X, 10.0);
  EXPECT_EQ(rows[3].Kind, 'd');
}
