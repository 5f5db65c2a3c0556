// Helpers of the layer and section tests: models and free sections that
// delete themselves, free layers made from rows of points, and the offsets,
// heights and codes of a layer as vectors.
#pragma once

#include <initializer_list>
#include <memory>
#include <vector>

#include "road_model/sections/layer.h"
#include "road_model/model/model.h"
#include "tests/support/model_ptr.h"
#include "road_model/sections/section.h"


struct SectionDeleter {
  void operator()(RmSection* section) const { vRmSectionDeleteFree(section); }
};
using SectionPtr = std::unique_ptr<RmSection, SectionDeleter>;

struct LayerDeleter {
  void operator()(RmLayer* layer) const { vRmLayerDeleteFree(layer); }
};
using LayerPtr = std::unique_ptr<RmLayer, LayerDeleter>;

// One point: offset, height, PCODE, and optionally radius and mark.
struct PointRow {
  double X;
  double Z;
  int Pcode = 0;
  double Radius = 0.0;
  int Mark = 0;
};

inline constexpr double kGap = -99999.0;

inline void vAddRows(RmLayer* layer, std::initializer_list<PointRow> rows) {
  for (const PointRow& row : rows) {
    RmPoint* point = RmPointAdd(layer, nullptr, row.X, row.Z, row.Pcode);
    point->Radius = static_cast<float>(row.Radius);
    vRmPointSetMark(point, row.Mark);
  }
}

inline LayerPtr MakeLayer(RmLayerId id, std::initializer_list<PointRow> rows) {
  LayerPtr layer(RmLayerCreateFree());
  layer->Id = id;
  vAddRows(layer.get(), rows);
  return layer;
}

// One value of every point of the layer, from the first.
template <typename Value>
std::vector<Value> Column(const RmLayer* layer, Value (*of)(const RmPoint*)) {
  std::vector<Value> values;
  for (const RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
    values.push_back(of(point));
  }
  return values;
}
inline std::vector<double> Offsets(const RmLayer* layer) {
  return Column<double>(layer, [](const RmPoint* point) -> double { return point->X; });
}
inline std::vector<double> Heights(const RmLayer* layer) {
  return Column<double>(layer, [](const RmPoint* point) -> double { return point->Z; });
}
inline std::vector<int> Codes(const RmLayer* layer) { return Column(layer, iRmPointGetPcode); }

// The points of the layer from its first, by index.
inline RmPoint* At(const RmLayer* layer, int index) {
  RmPoint* point = RmPointsGetFirst(layer);
  while (point && index-- > 0) point = point->Next;
  return point;
}
