#include "section_geometry/mass_box.h"

#include "road_model/names/mass_types.h"
#include "road_model/sections/section.h"
#include "section_geometry/tolerances.h"

namespace {

bool boAddLayer(const RmLayer* layer, ViExtent* box) {
  bool any = false;
  for (const RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
    if (!(point->Z > kSgHeightGiven)) continue;
    vViExtentAddPoint(box, point->X, point->Z);
    any = true;
  }
  return any;
}

void vAddList(const RmSection* section, const RmLayerList* list, ViExtent* box) {
  for (const RmLayerListEntry* entry = RmLayerListGetFirst(list); entry; entry = entry->Next) {
    boAddLayer(RmLayerFind(section, entry->Id), box);
  }
}

bool boListPresent(const RmSection* section, const RmLayerList* list) {
  for (const RmLayerListEntry* entry = RmLayerListGetFirst(list); entry; entry = entry->Next) {
    if (!RmLayerFind(section, entry->Id)) return false;
  }
  return true;
}

}  // namespace

bool boMassLayersPresent(const RmSection* section, const RmMassType* massType) {
  return boListPresent(section, &massType->FromLayers) &&
         boListPresent(section, &massType->ToLayers) &&
         boListPresent(section, &massType->AreaLayers);
}

bool boMassBox(const RmSection* section, const RmMassType* massType, ViExtent* box) {
  vViExtentClear(box);
  vAddList(section, &massType->FromLayers, box);
  vAddList(section, &massType->ToLayers, box);
  vAddList(section, &massType->AreaLayers, box);
  if (massType->ExtentAllTheo != 0) {
    for (const RmLayer* layer = RmSectionLayersGetFirst(section); layer; layer = layer->Next) {
      if (iRmLayerGetType(layer) == kRmLayerTheoretical) boAddLayer(layer, box);
    }
  }
  if (boViExtentIsEmpty(*box)) return false;
  box->dMinY -= kSgBoxMargin;
  box->dMaxY += kSgBoxMargin;
  if (boRmLayerIdValid(massType->RestrictionLayer)) {
    ViExtent limit;
    vViExtentClear(&limit);
    if (!boAddLayer(RmLayerFind(section, massType->RestrictionLayer), &limit)) return false;
    box->dMinX = limit.dMinX - dRmMassTypeGetResLayerExt(massType, 1);
    box->dMaxX = limit.dMaxX + dRmMassTypeGetResLayerExt(massType, 2);
  }
  return box->dMinX < box->dMaxX;
}
