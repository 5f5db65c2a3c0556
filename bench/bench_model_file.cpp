#include "bench/bench_model_file.h"

#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <random>

#include "model_file/records/frame/model_write.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"
#include "road_model/codes/pcode.h"
#include "road_model/names/mass_types.h"
#include "road_model/sections/section_masses.h"
#include "road_model/sections/section_set.h"

namespace {

constexpr double kSectionSpacing = 10.0;

// A value rounded to four decimals, as the file holds it.
double dFourDecimals(double value) { return std::round(value * 10000.0) / 10000.0; }

// Half the layers are theoretical and coded outward from the centre, half
// physical without codes.
RmLayerId LayerIdAt(int index) {
  return index % 2 == 0 ? RmLayerIdMake(kRmLayerTheoretical, index / 2)
                        : RmLayerIdMake(kRmLayerPhysical, index / 2 + 1);
}

void vAddLayer(RmSection* section, int index, int points, std::mt19937* random) {
  RmLayer* layer = RmLayerAdd(section, LayerIdAt(index));
  if (!layer) return;
  bool coded = layer->Id.Type == kRmLayerTheoretical;
  std::uniform_real_distribution<double> jitter(-0.05, 0.05);
  double base = 100.0 + section->Chain * 0.01 - index * 0.35;
  double width = 29.0;
  for (int i = 0; i < points; ++i) {
    double x = dFourDecimals(-width / 2.0 + width * i / (points - 1) + jitter(*random));
    double z = dFourDecimals(base - std::fabs(x) * 0.03 + jitter(*random));
    int side = x < 0.0 ? kRmSideLeft : kRmSideRight;
    int distance = std::abs(i - points / 2);
    int pcode = coded ? iRmPcodeBuildSide(1 + distance / 10, 1 + distance % 10, 0, side) : 0;
    RmPoint* point = RmPointAdd(layer, nullptr, x, z, pcode);
    if (!point) return;
    if (i % 7 == 3) point->Radius = static_cast<float>(dFourDecimals(250.0 + i));
    if (i % 11 == 5) vRmPointSetMark(point, 1 + i % 3);
  }
}

void vAddSection(RmSectionSet* set, int index, const BenchModelShape& shape,
                 std::mt19937* random) {
  double chain = index * kSectionSpacing;
  RmSection* section = RmSectionAdd(set, nullptr, chain);
  if (!section) return;
  section->ClX = dFourDecimals(500000.0 + chain * 0.8);
  section->ClY = dFourDecimals(6600000.0 + chain * 0.6);
  section->LeftDist = 20.0f;
  section->RightDist = 20.0f;
  section->Direction = -0.643501;
  if (index % 3 == 0) vRmSectionSetClipDist(section, kRmSideLeft, true, 17.5);
  if (shape.Locked) vRmSectionSetFlag(section, kRmSectionLocked, true);
  const int masses = shape.Locked ? kBenchMassTypes : 2;
  for (int mass = 1; mass <= masses; ++mass) {
    RmMass* added = RmMassAdd(section, mass);
    if (added) added->Area = dFourDecimals(10.0 * mass + index % 17 * 0.1234);
  }
  for (int layer = 0; layer < shape.LayersPerSection; ++layer) {
    vAddLayer(section, layer, shape.PointsPerLayer, random);
  }
}

void vAddLayers(RmLayerList* list, std::initializer_list<int> indices) {
  for (int index : indices) RmLayerListAdd(list, LayerIdAt(index));
}

// Three areas between layers (one upper group of two layers), the length of
// the top layer and a value composed of the areas. Layer k lies 0.35 m
// below layer k - 1.
RmMassTypes* BenchMassTypesCreate() {
  RmMassTypes* types = RmMassTypesCreate(kRmMassTypesCross);
  RmMassType* cut = RmMassTypeAdd(types, 1);
  vAddLayers(&cut->FromLayers, {0});
  vAddLayers(&cut->ToLayers, {1});
  RmMassType* deep = RmMassTypeAdd(types, 2);
  vAddLayers(&deep->FromLayers, {2});
  vAddLayers(&deep->ToLayers, {5});
  RmMassType* grouped = RmMassTypeAdd(types, 3);
  vAddLayers(&grouped->FromLayers, {6, 7});
  vAddLayers(&grouped->ToLayers, {9});
  RmMassType* top = RmMassTypeAdd(types, 4);
  top->CalcType = 1;
  vAddLayers(&top->AreaLayers, {0});
  RmMassType* composed = RmMassTypeAdd(types, 5);
  composed->ComposedType = 2;
  vRmMassNumbersAdd(&composed->FromMasses, 1);
  vRmMassNumbersAdd(&composed->FromMasses, 2);
  vRmMassNumbersAdd(&composed->ToMasses, 3);
  return types;
}

}  // namespace

RmModel* RmBenchModelCreate(const BenchModelShape& shape) {
  RmModel* model = RmModelCreate();
  if (!model) return nullptr;
  RmSectionSet* set = RmModelGetOrCreateCrossSections(model);
  std::mt19937 random(20240601);
  for (int index = 0; set && index < shape.Sections; ++index) {
    vAddSection(set, index, shape, &random);
  }
  if (shape.MassTypes) vRmModelSetCSectMassTypes(model, BenchMassTypesCreate());
  return model;
}

bool boRmBenchModelWrite(const char* path, const BenchModelShape& shape) {
  RmModel* model = RmBenchModelCreate(shape);
  if (!model) return false;
  bool written = boRmModelWrite(model, path);
  vRmModelDelete(model);
  return written;
}
