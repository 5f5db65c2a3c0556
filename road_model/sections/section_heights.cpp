#include "road_model/sections/section_heights.h"

#include <atomic>

#include "road_model/sections/section_center_height.h"

namespace {

std::atomic<RmSectionHeightsSource> installedSource{boRmCrossSectionHeights};

}  // namespace

RmSectionHeightsSource pfnRmSetSectionHeightsSource(RmSectionHeightsSource source) {
  return installedSource.exchange(source);
}

bool boRmGetSectionHeights(const RmModel* model, double chain, RmSectionHeights* heights) {
  RmSectionHeightsSource source = installedSource.load();
  if (!source || !model || !heights) return false;
  *heights = RmSectionHeights{};
  return source(model, chain, heights);
}
