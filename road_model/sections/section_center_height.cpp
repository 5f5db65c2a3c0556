#include "road_model/sections/section_center_height.h"

#include "base/numbers.h"
#include "road_model/sections/layer_heights.h"
#include "road_model/model/model.h"

namespace {

// The groups of physical layer numbers in the order in which the centre
// height is looked for: the topmost group first.
struct NumberRange {
  int First;
  int Last;
};
constexpr NumberRange kCenterSearchOrder[] = {{21, 25}, {16, 20}, {11, 15}, {1, 10}};

}  // namespace

double dRmSectionGetCenterHeight(const RmModel* model, const RmSection* section) {
  if (!section) return kNullNumber;
  uint32_t type = model ? static_cast<uint32_t>(model->CalcPhys) : kRmLayerPhysical;
  for (const NumberRange& range : kCenterSearchOrder) {
    for (int number = range.First; number <= range.Last; ++number) {
      const RmLayer* layer = RmLayerFind(section, RmLayerIdMake(type, number));
      if (!layer) continue;
      double height = dRmLayerHeightAt(layer, 0.0);
      if (boIsPresent(height)) return height;
    }
  }
  return kNullNumber;
}

bool boRmCrossSectionHeights(const RmModel* model, double chain, RmSectionHeights* heights) {
  const RmSectionSet* set = model ? model->CrossSections : nullptr;
  if (!set || !heights) return false;
  const RmSection* next = RmSectionsFindFirstFrom(set, chain);
  if (!next) return true;
  heights->HasNext = true;
  heights->NextChain = next->Chain;
  heights->NextHeight = dRmSectionGetCenterHeight(model, next);
  if (const RmSection* previous = next->Prev) {
    heights->HasPrevious = true;
    heights->PreviousChain = previous->Chain;
    heights->PreviousHeight = dRmSectionGetCenterHeight(model, previous);
  }
  return true;
}
