// Hand-made sections and mass types for the tests of the mass calculation,
// and the area and centroid of an expected polygon by the shoelace formula.
#pragma once

#include <initializer_list>
#include <utility>
#include <vector>

#include "road_model/names/mass_types.h"
#include "road_model/sections/section.h"
#include "road_model/sections/section_masses.h"

using Points = std::vector<std::pair<double, double>>;

// Adds the layer of file number `fileId` (type + 10 * number).
inline void AddLayer(RmSection* section, int fileId, const Points& points) {
  RmLayer* layer = RmLayerAdd(section, RmLayerIdFromFile(fileId));
  for (const auto& [x, z] : points) RmPointAdd(layer, nullptr, x, z, 0);
}

inline void AddLayers(RmLayerList* list, std::initializer_list<int> fileIds) {
  for (int id : fileIds) RmLayerListAdd(list, RmLayerIdFromFile(id));
}

// A mass type of the list between the upper and the lower layers.
inline RmMassType* AddBetween(RmMassTypes* types, int number, std::initializer_list<int> upper,
                              std::initializer_list<int> lower, int calcType = 0) {
  RmMassType* type = RmMassTypeAdd(types, number);
  type->CalcType = calcType;
  AddLayers(&type->FromLayers, upper);
  AddLayers(&type->ToLayers, lower);
  return type;
}

struct Shoelace {
  double Area;
  double CentroidX;
};

// Signed area and centroid x of the rings, each closing by itself.
inline Shoelace ShoelaceOf(const std::vector<Points>& rings) {
  double area = 0.0;
  double moment = 0.0;
  for (const Points& ring : rings) {
    for (size_t k = 0; k < ring.size(); ++k) {
      const auto& [x0, y0] = ring[k];
      const auto& [x1, y1] = ring[(k + 1) % ring.size()];
      const double cross = x0 * y1 - x1 * y0;
      area += cross / 2.0;
      moment += (x0 + x1) * cross / 6.0;
    }
  }
  return {area, area != 0.0 ? moment / area : 0.0};
}
