#include "road_model/params/road_class_parameters.h"

#include <new>

RmRoadClassParameters* RmRoadClassParametersCreate() {
  RmRoadClassParameters* params = new (std::nothrow) RmRoadClassParameters;
  if (!params) return nullptr;
  params->AddProfileSpeedLimit.resize(kRmProfileSpeedLimitCount);
  params->SuperElevation.resize(kRmSuperElevationCount);
  return params;
}

void vRmRoadClassParametersDelete(RmRoadClassParameters** params) {
  if (!params || !*params) return;
  delete *params;
  *params = nullptr;
}

void vRmRoadClassParametersCopy(RmRoadClassParameters* to, const RmRoadClassParameters* from) {
  if (to && from && to != from) *to = *from;
}
