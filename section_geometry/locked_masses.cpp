#include "section_geometry/locked_masses.h"

#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"
#include "road_model/sections/section_set.h"
#include "section_geometry/mass_compute.h"

namespace {

// Returns whether a section was locked.
bool boComputeLocked(RmModel* model, RmSectionSet* set, const RmMassTypes* massTypes) {
  bool any = false;
  for (RmSection* section = RmSectionsGetFirst(set); section; section = section->Next) {
    if (!boRmSectionGetFlag(section, kRmSectionLocked)) continue;
    any = true;
    if (!massTypes) continue;
    vRmSectionSetFlag(section, kRmSectionLocked, false);
    vSectionMassesRecalculate(model, section, massTypes);
    vRmSectionSetFlag(section, kRmSectionLocked, true);
  }
  return any;
}

}  // namespace

void vRmModelComputeLockedMasses(RmModel* model) {
  if (!model) return;
  boComputeLocked(model, RmModelGetCrossSections(model), RmModelGetCSectMassTypes(model));
  boComputeLocked(model, RmModelGetLongSections(model), RmModelGetLSectMassTypes(model));
}

void vRmModelRebuildLockedSections(RmModel* model) {
  if (!model) return;
  if (boComputeLocked(model, RmModelGetCrossSections(model), RmModelGetCSectMassTypes(model))) {
    vRmModelSetDirty(model, true);
  }
}
