#include "vips_import/readers/physical_profiles.h"

#include <cstddef>
#include <vector>

#include "base/numbers.h"
#include "design_model/design_model.h"
#include "road_model/codes/layer_id.h"
#include "road_model/model/model_parts.h"
#include "road_model/sections/layer.h"
#include "road_model/sections/long_section.h"
#include "road_model/sections/section_set.h"
#include "vips_import/driver/import_log.h"
#include "vips_import/readers/section_layers.h"

namespace {

using NpDesignModel::CInData;
using NpDesignModel::CRLayerElevations;
using NpDesignModel::CRTerrainSection;

// One column of the terrain, its heights relative to the terrain's base.
struct TerrainColumn {
  double distance;
  double surface;
  std::vector<double> subSurfaces;
};

// The absolute height of the material at `place` (0 the top one) in the
// column; no height when the column stops above that material.
double dMaterialHeight(const TerrainColumn& column, size_t place, double base) {
  if (place == 0) return column.surface + base;
  if (column.subSurfaces.size() < place) return kNullNumber;
  return column.subSurfaces[place - 1] + base;
}

// The terrain layers of one section. The columns are read once, since the
// design hands out fresh lists on every call.
void vReadTerrain(const CRTerrainSection* terrain, const CInData* in, RmModel* model,
                  RmSection* section) {
  const double base = terrain->GetElevation();
  const std::vector<CRTerrainSection::MaterialEnums> materials = terrain->GetMaterials();
  if (materials.empty()) return;
  const std::vector<const CRLayerElevations*> sourceColumns = terrain->GetLayerElevations();
  std::vector<TerrainColumn> columns;
  columns.reserve(sourceColumns.size());
  for (const CRLayerElevations* column : sourceColumns) {
    columns.push_back({column->GetDistance(), column->GetSurface(), column->GetSubSurfaces()});
  }
  for (size_t place = 0; place < materials.size(); ++place) {
    const RmLayerId id = RmLayerIdMake(kRmLayerPhysical2, materials[place]);
    if (RmLayer* older = RmLayerFind(section, id)) vRmLayerRemove(section, older);
    if (columns.empty()) continue;
    RmLayer* layer = VipsGetOrCreateLayer(model, section, id, "", in);
    if (!layer) continue;
    for (const TerrainColumn& column : columns) {
      const float offset = static_cast<float>(column.distance);
      if (!RmPointAdd(layer, nullptr, offset, dMaterialHeight(column, place, base), 0)) break;
    }
  }
}

}  // namespace

void vVipsReadPhysicalProfiles(const NpDesignModel::CResultData* res, const CInData* in,
                               std::FILE* log, RmModel* model) {
  if (!model) return;
  vVipsLogPrint(log, "Leser fysiske profiler\n");
  RmSectionSet* set = RmModelGetCrossSections(model);
  if (set) {
    vRmSectionSetClear(set);
  } else {
    set = RmModelGetOrCreateCrossSections(model);
  }
  if (set && res) {
    const std::vector<const NpDesignModel::CRResultSection*> sections = res->GetSections();
    for (const NpDesignModel::CRResultSection* source : sections) {
      RmSection* section = VipsAddSection(set, nullptr, source->GetChainage(), model);
      if (section) vReadTerrain(source->GetTerrain(), in, model, section);
    }
  }
  vVipsRebuildLongSections(model);
}

void vVipsRebuildLongSections(RmModel* model) {
  vRmModelSetLongSections(model, nullptr);
  RmSectionSet* longSections = RmSectionSetBuildLongSection(RmModelGetCrossSections(model));
  if (longSections) vRmModelSetLongSections(model, longSections);
}
