#include "vips_import/readers/theoretical_profiles.h"

#include <cmath>
#include <vector>

#include "design_model/design_model.h"
#include "road_model/codes/pcode.h"
#include "road_model/model/model_parts.h"
#include "road_model/sections/section_cursor.h"
#include "road_model/sections/section_set.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/surfaces/surface_groups.h"
#include "road_model/surfaces/surface_ref_heights.h"
#include "vips_import/driver/import_log.h"
#include "vips_import/driver/version_labels.h"
#include "vips_import/readers/section_layers.h"
#include "vips_import/readers/theoretical_layers.h"

namespace {

using NpDesignModel::CRModelSection;
using NpDesignModel::CRPoint;

constexpr RmLayerId kSurfaceGroupLayer = {1, 0};
constexpr int kRailway = 2;
// Sections this close in chainage are one.
constexpr double kSameChain = 0.00001;
// From this model version on the design splits its soddings by kind.
constexpr double kSplitSoddingsVersion = 10.0;

// The edge reinforcement's name, which the closed drainages carry too.
const char kEdgeReinforcement[] = "Kantforsterkning";
const char kRoadBed[] = "Trau";

// The cross section at `chain`: the one that stands there, or a new one in
// its place by chainage (in front of the first section at it or beyond).
RmSection* SectionAt(RmSectionSet* set, double chain, RmModel* model, RmSectionCursor* cursor) {
  RmSection* found = RmSectionCursorFindFirstFrom(set, cursor, chain);
  if (!found || std::fabs(found->Chain - chain) >= kSameChain) {
    found = VipsAddSection(set, found, chain, model);
  }
  return found;
}

// The designed lines of one section besides its surface line and pavement.
void vReadPlainLines(const NpDesignModel::CInData* in, const CRModelSection* ms, RmModel* model,
                     RmSection* section, double ref, const RmLayer* surface) {
  auto read = [&](const std::vector<const CRPoint*>& points, int number, int side,
                  const char* name) {
    vVipsReadPointLayer(in, points, number, model, section, ref, side, name, surface);
  };
  read(ms->GetDeepBlastings(), 2, 0, "");
  read(ms->GetLandscapingsLeft(), 10, kRmSideLeft, "");
  read(ms->GetLandscapingsRight(), 10, kRmSideRight, "");
  const bool split =
      VipsModelVersion >= kSplitSoddingsVersion &&
      boVipsReadSplitSoddings(in, ms->GetSplitSoddings(), model, section, ref, surface);
  if (!split) {
    read(ms->GetSoddingsLeft(), 9, kRmSideLeft, "");
    read(ms->GetSoddingsRight(), 9, kRmSideRight, "");
  }
  read(ms->GetRemovalBed(), 12, 0, "");
  read(ms->GetEdgeReinforcesLeft(), 900, kRmSideLeft, kEdgeReinforcement);
  read(ms->GetEdgeReinforcesRight(), 900, kRmSideRight, kEdgeReinforcement);
  int count = 0;
  for (const NpDesignModel::CRClosedDrainage* drainage : ms->GetClosedDrainages()) {
    read(drainage->GetPoints(), 40 + ++count, kRmSideRight, kEdgeReinforcement);
  }
  read(ms->GetRoadBed(), 1, 0, kRoadBed);
}

}  // namespace

void vVipsReadTheoreticalProfiles(const NpDesignModel::CResultData* res,
                                  const NpDesignModel::CInData* in, std::FILE* log,
                                  RmModel* model, RmSurfGen* surfGen, int modelType) {
  vVipsLogPrint(log, "Leser teoretiske profiler\n");
  if (!res || !model) return;
  RmSectionSet* set = RmModelGetOrCreateCrossSections(model);
  RmModelGetOrCreateLayerNames(model);
  if (!set) return;

  RmSurfaceGroup* group = modelType == kRailway
                              ? RmSurfaceGroupFind(RmSurfGenGet<kRmSurfaceGroupsSlot>(surfGen),
                                                   kSurfaceGroupLayer)
                              : nullptr;
  RmSurfaceRefHeights* heights = nullptr;
  if (group) heights = group->RefHeights ? group->RefHeights : RmSurfaceRefHeightsCreate();

  // The design's sections mostly come by rising chainage.
  RmSectionCursor cursor;
  for (const NpDesignModel::CRResultSection* source : res->GetSections()) {
    const CRModelSection* ms = source->GetModel();
    const double ref = ms->GetRefElevation();
    const double chain = source->GetChainage();
    RmSection* section = SectionAt(set, chain, model, &cursor);
    if (!section) break;
    if (heights) {
      if (RmSurfaceRefHeight* row = RmSurfaceRefHeightAdd(heights, chain)) {
        row->Height = static_cast<float>(-ms->GetRailwayRefElevation());
      }
    }
    const RmLayer* surface = VipsReadSurfaceLine(in, ms, model, section, ref);
    for (const NpDesignModel::CRPavementLayer* pavement : ms->GetPavementLayers()) {
      const int number = iVipsPavementLayerNumber(pavement->GetLayerType());
      if (number == -2) continue;
      vVipsReadPavementLayer(in, pavement->GetLayerPoints(), number, model, section, ref,
                             surface);
    }
    vReadPlainLines(in, ms, model, section, ref, surface);
  }

  if (!group) return;
  vRmSurfaceRefHeightsThin(&heights);
  group->RefHeights = heights;
  if (heights) {
    vVipsLogPrint(log,
                  "H\xF8yde differanser for jernbaneprosjekt importert som referanseh\xF8yde "
                  "tabell\n");
  }
}
