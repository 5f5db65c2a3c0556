#include "road_model/sections/long_section.h"

#include "base/numbers.h"
#include "road_model/sections/layer.h"
#include "road_model/sections/layer_heights.h"
#include "road_model/sections/section_set.h"

namespace {

// Adds to `longSection`, at the end and in the order of first sight, a layer
// for every terrain layer id of the cross sections that it does not hold.
bool boAddTerrainLayers(RmSection* longSection, const RmSectionSet* crossSections) {
  for (const RmSection* section = RmSectionsGetFirst(crossSections); section;
       section = section->Next) {
    for (const RmLayer* layer = RmSectionLayersGetFirst(section); layer; layer = layer->Next) {
      if (layer->Id.Type != kRmLayerPhysical2 || RmLayerFind(longSection, layer->Id)) continue;
      if (!RmLayerAddAt(longSection, nullptr, layer->Id)) return false;
    }
  }
  return true;
}

// The height of layer `id` of a cross section at the centre line.
double dCenterHeight(const RmSection* section, RmLayerId id) {
  const RmLayer* layer = RmLayerFind(section, id);
  return layer ? dRmLayerHeightAt(layer, 0.0) : kNullNumber;
}

}  // namespace

RmSectionSet* RmSectionSetBuildLongSection(const RmSectionSet* crossSections) {
  const RmSection* first = RmSectionsGetFirst(crossSections);
  if (!first) return nullptr;
  RmSectionSet* set = RmSectionSetCreate();
  if (!set) return nullptr;
  set->Kind = kRmLongSections;
  RmSection* longSection = RmSectionAdd(set, nullptr, first->Chain);
  if (!longSection || !boAddTerrainLayers(longSection, crossSections)) {
    vRmSectionSetDelete(&set);
    return nullptr;
  }
  for (const RmSection* section = first; section; section = section->Next) {
    const double offset = section->Chain - first->Chain;
    for (RmLayer* layer = RmSectionLayersGetFirst(longSection); layer; layer = layer->Next) {
      if (!RmPointAdd(layer, nullptr, offset, dCenterHeight(section, layer->Id), 0)) {
        vRmSectionSetDelete(&set);
        return nullptr;
      }
    }
  }
  return set;
}
