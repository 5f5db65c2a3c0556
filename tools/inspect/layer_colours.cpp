#include "tools/inspect/layer_colours.h"

#include <cstddef>

namespace {

constexpr const char* kTerrain = "#5a7d2a";
constexpr const char* kEarth[] = {"#8b5a2b", "#b8860b", "#a0522d", "#6b4423", "#cd853f",
                                  "#8f7a4a"};
constexpr const char* kDesign[] = {"#1f4e79", "#5b6770", "#2e75b6", "#404040", "#4a90c2",
                                   "#7f8c99"};
constexpr const char* kOther = "#999999";

template <std::size_t N>
const char* sPick(const char* const (&colours)[N], int number) {
  return colours[static_cast<std::size_t>(number < 0 ? -number : number) % N];
}

}  // namespace

const char* sLayerColour(RmLayerId id) {
  switch (id.Type) {
    case kRmLayerTheoretical:
      // Theoretical layer 0 is the terrain surface.
      if (id.Number == 0) return kTerrain;
      return sPick(kDesign, id.Number);
    case kRmLayerTheoretical2:
    case kRmLayerTheoreticalLike:
      return sPick(kDesign, id.Number);
    case kRmLayerPhysical:
    case kRmLayerPhysical2:
      return sPick(kEarth, id.Number);
    default:
      return kOther;
  }
}
