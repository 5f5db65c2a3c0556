#include "road_model/sections/layer_relations.h"

#include "road_model/names/layer_names.h"
#include "road_model/model/model.h"

namespace {

// The physical numbers and categories that a derived physical layer stands
// for: numbers from `low` to `high`, categories from `lowCategory` to
// `highCategory`.
struct DerivedGroup {
  int derived;
  int low, high;
  int lowCategory, highCategory;
};

constexpr DerivedGroup kPhysicalGroups[] = {
    {80, 1, 5, 1, 1},   {81, 6, 10, 2, 2},  {82, 11, 15, 3, 3}, {83, 16, 20, 4, 4},
    {84, 21, 25, 5, 5}, {96, 1, 15, 1, 3},  {97, 1, 10, 1, 2},
};

bool boPhysicalSourceOf(int derived, int number, int category) {
  if (derived == 98 || derived == 99) return true;
  for (const DerivedGroup& group : kPhysicalGroups) {
    if (group.derived != derived) continue;
    return (number >= group.low && number <= group.high) ||
           (category >= group.lowCategory && category <= group.highCategory);
  }
  return false;
}

}  // namespace

RmLayerId RmLayerIdForCalc(const RmModel* model, RmLayerId id) {
  if (!model) return id;
  if (RmLayerIdIsTheoretical(id)) id.Type = static_cast<uint32_t>(model->CalcTheo);
  else if (RmLayerIdIsPhysical(id)) id.Type = static_cast<uint32_t>(model->CalcPhys);
  return id;
}

bool boRmLayerDerivedFrom(RmLayerId derived, RmLayerId source, const RmLayerNames* layerNames) {
  if (source.Type != derived.Type || boRmLayerIsDerived(source)) return false;
  const RmLayerName* record = RmLayerNameFind(layerNames, source);
  if (record && record->Priority == -1) return false;
  if (RmLayerIdIsPhysical(derived)) {
    return boPhysicalSourceOf(derived.Number, source.Number, record ? record->Category : 0);
  }
  if (RmLayerIdIsTheoretical(derived)) return derived.Number != 97;
  return false;
}
