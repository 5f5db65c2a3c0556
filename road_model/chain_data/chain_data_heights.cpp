#include "road_model/chain_data/chain_data_heights.h"

#include <algorithm>
#include <limits>

#include "road_model/chain_data/chain_data.h"
#include "road_model/chain_data/chain_data_types.h"

namespace {

int iInfoTypeOf(const RmChainDataTypes* types, const RmChainDataLine* line) {
  const RmChainDataType* type = RmChainDataTypeFind(types, line->Type);
  return type ? type->InfoType : line->InfoType;
}

}  // namespace

bool boRmChainDataHeightRange(const RmChainDataTypes* types, const RmChainData* data,
                              RmChainRange range, double* min, double* max) {
  if (!data) return false;
  double low = std::numeric_limits<double>::max();
  double high = std::numeric_limits<double>::lowest();
  auto take = [&](double height) {
    low = std::min(low, height);
    high = std::max(high, height);
  };
  for (auto* line = ListFirst<RmChainDataLine>(&data->Lines); line; line = line->Next) {
    int infoType = iInfoTypeOf(types, line);
    if (infoType == 3) continue;
    for (auto* row = ListFirst<RmChainDataRow>(&line->Rows); row; row = row->Next) {
      if (row->Chain < range.Low || row->Chain > range.High) continue;
      take(row->Z);
      if (infoType == 1) {
        take(dRmChainDataRowGetFieldValue(line, row, 0));
        take(dRmChainDataRowGetFieldValue(line, row, 1));
      }
    }
  }
  if (low > high) return false;
  if (min) *min = low;
  if (max) *max = high;
  return true;
}
