#include "vips_import/readers/section_layers.h"

#include <string>
#include <vector>

#include "design_model/design_model.h"
#include "road_model/model/model.h"
#include "road_model/model/model_lines.h"
#include "road_model/model/model_parts.h"
#include "road_model/names/layer_names.h"
#include "road_model/sections/layer.h"
#include "road_model/sections/section_placing.h"
#include "road_model/sections/section_set.h"
#include "vips_import/readers/wide_text.h"

namespace {

bool boIsTerrain(RmLayerId id) {
  return id.Type == kRmLayerPhysical || id.Type == kRmLayerPhysical2;
}

// The design's name of the sub-surface material of this layer's number
// (materials count from 1); empty when it has none.
std::string sMaterialName(const NpDesignModel::CInData* in, RmLayerId id) {
  if (!in || !boIsTerrain(id) || id.Number < 1) return {};
  const std::vector<std::u16string> materials = in->GetSubSurfaceMaterials();
  if (materials.size() < static_cast<size_t>(id.Number)) return {};
  return sVipsNarrow(materials[static_cast<size_t>(id.Number) - 1]);
}

}  // namespace

RmSection* VipsAddSection(RmSectionSet* set, RmSection* before, double chain, RmModel* model) {
  RmSection* section = RmSectionAdd(set, before, chain);
  const RmLine* mainLine = RmModelGetCenterLine(model);
  const RmSectParams* params = RmModelGetSectParams(model);
  if (section && mainLine && params) boRmSectionPlaceOnLine(section, mainLine, params);
  return section;
}

RmLayer* VipsGetOrCreateLayer(RmModel* model, RmSection* section, RmLayerId layerId,
                              const char* name, const NpDesignModel::CInData* in) {
  if (!model || !section) return nullptr;
  RmLayerNames* names = RmModelGetOrCreateLayerNames(model);
  std::string candidate;
  bool given = false;
  if (name && *name) {
    candidate = name;
    given = true;
  } else if (const char* registered = sRmLayerNameGetName(names, layerId)) {
    candidate = registered;
  }
  if (candidate.empty()) {
    candidate = sMaterialName(in, layerId);
    given = !candidate.empty();
  }
  if (candidate.empty()) return RmLayerAddNamed(section, layerId, names);
  RmLayer* layer = RmLayerFind(section, layerId);
  if (!layer) layer = RmLayerAdd(section, layerId);
  if (layer && given) RmLayerNameSet(names, layerId, candidate.c_str());
  return layer;
}
