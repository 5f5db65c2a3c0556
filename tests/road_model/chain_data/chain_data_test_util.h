// Chain data for the chain data tests: an owner, and rows at plan points.
#pragma once

#include <cstring>
#include <memory>

#include "road_model/chain_data/chain_data.h"

struct ChainDataDeleter {
  void operator()(RmChainData* data) const { vRmChainDataDelete(&data); }
};
using ChainDataPtr = std::unique_ptr<RmChainData, ChainDataDeleter>;

// A row of the line at (x, y) with this code ('#' first: hidden).
inline RmChainDataRow* AddRow(RmChainDataLine* line, double x, double y, const char* code = "") {
  RmChainDataRow* row = RmChainDataRowAdd(line);
  row->X = x;
  row->Y = y;
  std::strncpy(row->Code, code, sizeof row->Code - 1);
  return row;
}
