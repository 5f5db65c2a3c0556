#include "vips_import/readers/misc_layers.h"

#include <cstdint>
#include <string>
#include <vector>

#include "design_model/design_model.h"
#include "road_model/codes/layer_id.h"
#include "road_model/codes/layer_texts.h"
#include "road_model/model/model_parts.h"
#include "road_model/sections/layer.h"
#include "road_model/sections/section_cursor.h"
#include "road_model/sections/section_set.h"
#include "vips_import/driver/import_log.h"
#include "vips_import/readers/physical_profiles.h"
#include "vips_import/readers/section_layers.h"

namespace {

using NpDesignModel::CInData;
using NpDesignModel::CRObject;
using NpDesignModel::CRPoint;
using NpDesignModel::CRTerrainSection;

// The level and code of the objects that are taken.
constexpr int32_t kMiscLevel = 999;
constexpr char16_t kMiscCode[] = u"T";

// The points of the taken objects of a terrain section, one object behind
// the other.
std::vector<const CRPoint*> MiscPoints(const CRTerrainSection* terrain) {
  std::vector<const CRPoint*> points;
  const std::vector<const CRObject*> objects = terrain->GetObjects();
  for (const CRObject* object : objects) {
    if (object->GetLevel() != kMiscLevel || object->GetCode() != kMiscCode) continue;
    const std::vector<const CRPoint*> own = object->GetPoints();
    points.insert(points.end(), own.begin(), own.end());
  }
  return points;
}

void vReadSection(const CRTerrainSection* terrain, const CInData* in, RmModel* model,
                  RmSection* section) {
  const std::vector<CRTerrainSection::MaterialEnums> materials = terrain->GetMaterials();
  if (materials.empty()) return;
  const std::vector<const CRPoint*> points = MiscPoints(terrain);
  for (CRTerrainSection::MaterialEnums material : materials) {
    const RmLayerId id = RmLayerIdMake(kRmLayerShortTextOnly, material);
    if (RmLayer* older = RmLayerFind(section, id)) vRmLayerRemove(section, older);
    if (points.empty()) continue;
    const char* name = sRmLayerIdDefaultName(RmLayerIdMake(kRmLayerPhysical2, material));
    RmLayer* layer = VipsGetOrCreateLayer(model, section, id, name, in);
    if (!layer) continue;
    for (const CRPoint* point : points) {
      const float offset = static_cast<float>(point->GetDistance());
      if (!RmPointAdd(layer, nullptr, offset, static_cast<float>(point->GetElevation()), 0)) {
        break;
      }
    }
  }
}

}  // namespace

void vVipsReadMiscLayers(const NpDesignModel::CResultData* res, const CInData* in,
                         std::FILE* log, RmModel* model) {
  if (!model) return;
  vVipsLogPrint(log, "Leser \"Vips diverse\" lag, ikke brukt under bygging.\n");
  RmSectionSet* set = RmModelGetOrCreateCrossSections(model);
  if (set && res) {
    const std::vector<const NpDesignModel::CRResultSection*> sections = res->GetSections();
    // The design's sections mostly come by rising chainage.
    RmSectionCursor cursor;
    for (const NpDesignModel::CRResultSection* source : sections) {
      RmSection* section = RmSectionCursorFindAtChain(set, &cursor, source->GetChainage());
      if (section) vReadSection(source->GetTerrain(), in, model, section);
    }
  }
  vVipsRebuildLongSections(model);
}
