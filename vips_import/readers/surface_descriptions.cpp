#include "vips_import/readers/surface_descriptions.h"

#include <cmath>
#include <string>
#include <vector>

#include "base/numbers.h"
#include "design_model/design_model.h"
#include "road_model/model/model_parts.h"
#include "road_model/names/layer_names.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/surfaces/surface_groups.h"
#include "road_model/surfaces/surfaces.h"
#include "vips_import/driver/import_log.h"
#include "vips_import/readers/surface_code.h"
#include "vips_import/readers/wide_text.h"

namespace {

using NpDesignModel::CIModelSettings;

// The layer whose surface group the design describes.
constexpr RmLayerId kSurfaceLayer = {1, 0};

// Chainages at or below this are the model's mark of none, moved out of its
// way.
constexpr double kLowestChain = -99998.0;
constexpr double kLowChainShift = 2.0;
// The design's marks of a value that is not there.
constexpr double kDesignNoValue = 999999.0;
constexpr double kDesignNoValueToo = 999998.0;
// The design gives its vertical offset in millimetres, upward; the group's
// reference height is in metres, downward.
constexpr double kOffsetToHeight = -0.001;
// Rows closer than this in each value say the same.
constexpr double kRowEqual = 0.0005;

struct BuildSwitch {
  bool (CIModelSettings::*is)() const;
  uint32_t bit;
};

// The switches, in the order in which they are taken.
constexpr BuildSwitch kBuildSwitches[] = {
    {&CIModelSettings::IsTopSoilAndVegetationRemoval, 1},
    {&CIModelSettings::IsSoftSpotRemoval, 2},
    {&CIModelSettings::IsMinDitchDepthControl, 8},
    {&CIModelSettings::IsRockShelf, 16},
    {&CIModelSettings::IsDeepBlasting, 32},
    {&CIModelSettings::IsDetailedPavementDescription, 128},
    {&CIModelSettings::IsClosedDrainage1, 256},
    {&CIModelSettings::IsClosedDrainage2, 512},
    {&CIModelSettings::IsClosedDrainage3, 1024},
    {&CIModelSettings::IsSodding, 2048},
    {&CIModelSettings::IsLandscapingLeft, 4096},
    {&CIModelSettings::IsLandscapingRight, 8192},
    {&CIModelSettings::IsMinPavementThicknessControl, 16384},
    {&CIModelSettings::IsRehabAdjustToExistingRoad, 32768},
    {&CIModelSettings::IsGradualChangingLayers, 64},
    {&CIModelSettings::IsInnerSlope, 4},
};

double dOrNone(double value) { return boEqual(value, kDesignNoValue) ? kNullNumber : value; }

// The rows of one surface of the design, as the model keeps them.
void vReadRows(const NpDesignModel::CISurface* source, RmSurface* surface) {
  for (const NpDesignModel::CISurfaceSection* described : source->GetDescriptions()) {
    double chain = described->GetChainage();
    double width = dOrNone(described->GetWidth());
    double slope = dOrNone(described->GetSlope());
    if (chain <= kLowestChain) chain += kLowChainShift;
    RmSurfaceRow* last = RmSurfaceRowsGetLast(surface);
    if (chain == kDesignNoValue || chain == kDesignNoValueToo) {
      if (!last) continue;
      chain = width = slope = kNullNumber;
    }
    if (last && boVipsSurfaceRowEquals(last, chain, width, slope)) continue;
    RmSurfaceRow* row = RmSurfaceRowAddBefore(surface, nullptr, chain);
    if (!row) return;
    row->RowType = 0;
    row->Width = width;
    row->Slope = slope;
  }
}

}  // namespace

void vVipsReadModelSettings(const NpDesignModel::CInData* in, std::FILE* log, RmSurfGen* surfGen) {
  vVipsLogPrint(log, "Leser: Bygg innstillinger\n");
  const CIModelSettings* settings = in ? in->GetModelSettings() : nullptr;
  if (!settings || !surfGen) return;
  for (const BuildSwitch& entry : kBuildSwitches) {
    vRmSurfGenSetBuildFlag(surfGen, entry.bit, (settings->*entry.is)());
  }
}

int iVipsReadSurfaces(const NpDesignModel::CInData* in, std::FILE* log, RmModel* model,
                      RmSurfGen* surfGen) {
  if (!in) return 0;
  const NpDesignModel::CSurfaceNumber reference = in->GetElevationReferenceSurface();
  const NpDesignModel::CIRailwayParameters* railway = in->GetRailwayParams();
  RmLayerNames* names = model ? RmModelGetOrCreateLayerNames(model) : nullptr;
  vVipsLogPrint(log, "Leser tabell: Overflate beskrivelser\n");
  const double height = (railway ? railway->GetVerticalOffset() : 0.0) * kOffsetToHeight;
  if (height > 0.0) {
    vVipsLogPrint(log,
                  "  Vertikalkurvatur offset lagt til \"Referanse h\xF8yde\" feltet i "
                  "flatebeskrivelsen\n");
  }
  if (names) vRmLayerNameEnsure(names, kSurfaceLayer);
  if (!surfGen) return 0;

  RmSurfaceGroups* groups = RmSurfaceGroupsCreate();
  vRmSurfGenSet<kRmSurfaceGroupsSlot>(surfGen, groups);
  RmSurfaceGroup* group = groups ? RmSurfaceGroupsAdd(groups, kSurfaceLayer) : nullptr;
  if (!group) return 0;
  group->RefSurf = iVipsSurfaceCode(reference.GetDecimal());
  group->RefHeight = static_cast<float>(height);

  int count = 0;
  for (const NpDesignModel::CISurface* source : in->GetSurfaces()) {
    RmSurface* surface =
        RmSurfaceAddAt(group, nullptr, iVipsSurfaceCode(source->GetSurfaceNumber().GetDecimal()));
    if (!surface) break;
    ++count;
    const std::string name = sVipsNarrow(source->GetName());
    vRmSurfaceSetDescr(surface, name.c_str());
    vReadRows(source, surface);
  }
  vVipsTrimSurfaces(group);
  return count;
}

bool boVipsRowHasValue(const RmSurfaceRow* row) {
  return boIsPresent(row->Chain) || boIsPresent(row->Width) || boIsPresent(row->Slope);
}

void vVipsTrimSurfaceRows(RmSurface* surface) {
  while (RmSurfaceRow* row = RmSurfaceRowsGetFirst(surface)) {
    if (boVipsRowHasValue(row)) break;
    vRmSurfaceRowDelete(surface, row);
  }
  while (RmSurfaceRow* row = RmSurfaceRowsGetLast(surface)) {
    if (boVipsRowHasValue(row)) break;
    vRmSurfaceRowDelete(surface, row);
  }
}

void vVipsTrimSurfaces(RmSurfaceGroup* group) {
  for (RmSurface* surface = RmSurfacesGetFirst(group); surface; surface = surface->Next) {
    vVipsTrimSurfaceRows(surface);
  }
}

bool boVipsSurfaceRowEquals(const RmSurfaceRow* row, double chain, double width, double slope) {
  return row && std::fabs(row->Chain - chain) < kRowEqual &&
         std::fabs(row->Width - width) < kRowEqual && std::fabs(row->Slope - slope) < kRowEqual;
}
