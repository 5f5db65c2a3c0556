#include "road_model/params/sect_params.h"

#include <cstdlib>

#include "base/text.h"

namespace {

// Five degrees.
constexpr double kDefaultTightenAngle = 0.08726646259971647;

}  // namespace

RmSectParams* RmSectParamsCreate() {
  auto* params = static_cast<RmSectParams*>(std::calloc(1, sizeof(RmSectParams)));
  if (!params) return nullptr;
  params->Interval = 10.0;
  params->TightenAngle = kDefaultTightenAngle;
  params->MaxCircleDevXY = 0.1;
  params->MaxCircleDevZ = 0.0;
  params->DistLeft = 20.0;
  params->DistRight = 20.0;
  params->All = 1;
  params->ChainStart = 0.0;
  params->ChainEnd = 0.0;
  params->Flags = 3;
  return params;
}

void vRmSectParamsDelete(RmSectParams** params) {
  if (!params || !*params) return;
  vHeapFree(&(*params)->AppLayer);
  std::free(*params);
  *params = nullptr;
}

void vRmSectParamsCopy(RmSectParams* to, const RmSectParams* from) {
  if (!to || !from || to == from) return;
  char* appLayer = to->AppLayer;
  *to = *from;
  to->AppLayer = appLayer;
  sHeapSet(&to->AppLayer, from->AppLayer);
}

const char* sRmSectParamsGetAppLayer(const RmSectParams* params) {
  return params ? sOrEmpty(params->AppLayer) : "";
}

void vRmSectParamsSetAppLayer(RmSectParams* params, const char* appLayer) {
  if (params) sHeapSet(&params->AppLayer, appLayer);
}
