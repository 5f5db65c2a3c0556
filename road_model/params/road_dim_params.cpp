#include "road_model/params/road_dim_params.h"

#include <cstdlib>

#include "base/text.h"

RmRoadDimParams* RmRoadDimParamsCreate() {
  return static_cast<RmRoadDimParams*>(std::calloc(1, sizeof(RmRoadDimParams)));
}

void vRmRoadDimParamsDelete(RmRoadDimParams** params) {
  if (!params || !*params) return;
  std::free(*params);
  *params = nullptr;
}

void vRmRoadDimParamsCopy(RmRoadDimParams* to, const RmRoadDimParams* from) {
  if (to && from) *to = *from;
}

bool boRmRoadDimParamsIsOldForm(const RmRoadDimParams* params, const char* market) {
  return params && params->ClassVersion == 0 && iCompareNoCase(market, "Nor") == 0;
}
