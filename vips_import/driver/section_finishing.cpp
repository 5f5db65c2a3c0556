#include "vips_import/driver/section_finishing.h"

#include <cmath>

#include "road_model/model/model_parts.h"
#include "road_model/sections/layer_transform.h"
#include "road_model/model/model.h"
#include "road_model/model/model_lines.h"
#include "road_model/params/sect_params.h"
#include "road_model/sections/section_placing.h"

namespace {

// The layer types whose reach makes the width of a section: the second
// physical kind, then the second theoretical kind.
constexpr uint32_t kWidthLayerTypes[] = {kRmLayerPhysical2, kRmLayerTheoretical2};

// A metre of room beyond the outermost point of a layer.
constexpr double kRoom = 1.0;

}  // namespace

void vVipsClearSections(RmModel* model) {
  vRmSectionSetClear(RmModelGetCrossSections(model));
  vRmSectionSetClear(RmModelGetLongSections(model));
}

void vVipsFitSectionsToMainLine(RmModel* model) {
  RmSectParams* params = RmModelGetSectParams(model);
  RmSectionSet* set = RmModelGetCrossSections(model);
  if (!params || !set) return;
  bool anyLayer = false;
  double smallest = 0.0;
  double greatest = 0.0;
  for (const RmSection* section = RmSectionsGetFirst(set); section; section = section->Next) {
    for (uint32_t type : kWidthLayerTypes) {
      ViExtent extent;
      if (!boRmSectionLayerExtent(section, &extent, type)) continue;
      smallest = anyLayer ? std::fmin(smallest, extent.dMinX) : extent.dMinX;
      greatest = anyLayer ? std::fmax(greatest, extent.dMaxX) : extent.dMaxX;
      anyLayer = true;
    }
  }
  if (anyLayer) {
    params->DistLeft = -std::floor(smallest - kRoom);
    params->DistRight = std::ceil(greatest + kRoom);
  }
  const RmLine* mainLine = RmModelGetCenterLine(model);
  if (!mainLine) return;
  for (RmSection* section = RmSectionsGetFirst(set); section; section = section->Next) {
    boRmSectionPlaceOnLine(section, mainLine, params);
  }
}
