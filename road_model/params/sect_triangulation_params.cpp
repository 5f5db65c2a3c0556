#include "road_model/params/sect_triangulation_params.h"

#include <cstdlib>

RmSectTriangulationParams* RmSectTriangulationParamsCreate() {
  auto* params = static_cast<RmSectTriangulationParams*>(
      std::calloc(1, sizeof(RmSectTriangulationParams)));
  if (!params) return nullptr;
  params->ChainDepth = 0.5;
  params->MaxEdgeLen = 5.0;
  params->MinPointDist = 0.005;
  params->Method = 0;
  params->SideOffsetCL = 0.0;
  params->HeightOffsetCL = 2.0;
  return params;
}

void vRmSectTriangulationParamsDelete(RmSectTriangulationParams** params) {
  if (!params || !*params) return;
  std::free(*params);
  *params = nullptr;
}

void vRmSectTriangulationParamsCopy(RmSectTriangulationParams* to,
                                    const RmSectTriangulationParams* from) {
  if (to && from) *to = *from;
}
