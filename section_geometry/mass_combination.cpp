#include "section_geometry/mass_combination.h"

#include "geometry/line.h"
#include "road_model/names/mass_types.h"
#include "road_model/sections/section_masses.h"

namespace {

// A mass never takes a part of itself.
void vAddMasses(const RmSection* section, const RmMass* self, const RmMassNumbers& numbers,
                double sign, double* value, double* moment) {
  for (int32_t k = 0; k < numbers.Count; ++k) {
    const RmMass* part = RmMassFind(section, numbers.Numbers[k]);
    if (!part || part == self) continue;
    *value += sign * part->Area;
    *moment += sign * part->Area * part->CentroidOffset;
  }
}

}  // namespace

void vMassCombine(const RmSection* section, const RmMassType* massType, RmMass* mass) {
  if (!section || !massType || !mass) return;
  double value = 0.0;
  double moment = 0.0;
  if (massType->FromMasses.Count == 0 && massType->ToMasses.Count == 0) {
    const int32_t base = massType->BaseMassId;
    const RmMassNumbers numbers{const_cast<int32_t*>(&base), 1};
    vAddMasses(section, mass, numbers, 1.0, &value, &moment);
  } else {
    vAddMasses(section, mass, massType->FromMasses, 1.0, &value, &moment);
    vAddMasses(section, mass, massType->ToMasses, -1.0, &value, &moment);
  }
  mass->Area = value;
  mass->CentroidOffset = value != 0.0 ? moment / value : 0.0;
  vLiLineDelete(&mass->ExactLine);
  vLiLineDelete(&mass->ApproxLine);
}
