#include "vips_import/readers/closed_drainages.h"

#include <cstdlib>
#include <vector>

#include "design_model/design_model.h"
#include "road_model/codes/layer_id.h"
#include "road_model/model/model_parts.h"
#include "road_model/names/layer_names.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/tables/closed_ditches.h"
#include "vips_import/driver/import_log.h"

namespace {

using NpDesignModel::CIClosedDrainage;
using NpDesignModel::CIClosedDrainageSection;

// The layers of the closed drainages: type 1, numbers from 41 on.
constexpr uint32_t kDrainageLayerType = 1;
constexpr int32_t kDrainageLayerBase = 40;
// The chainage of the section that marks a gap in a ditch.
constexpr double kGapChain = -99999.0;

RmClosedDitchSection* AppendSection(RmClosedDitch* ditch, double chain, int32_t mode) {
  RmClosedDitchSection* section = RmClosedDitchSectionAdd(ditch, nullptr);
  if (section) {
    section->Chain = chain;
    section->ElevationMode = mode;
  }
  return section;
}

void vCopyPoints(const CIClosedDrainageSection* source, RmClosedDitchSection* section) {
  std::vector<const NpDesignModel::CIClosedDrainagePoint*> points = source->GetPoints();
  for (const NpDesignModel::CIClosedDrainagePoint* given : points) {
    RmClosedDitchPoint* point = RmClosedDitchPointAdd(section);
    if (!point) return;
    point->Distance = given->GetDistance();
    point->Elevation = given->GetElevation();
  }
}

// The sections of one drainage into `ditch`; returns their number.
int iReadSections(const CIClosedDrainage* drainage, RmClosedDitch* ditch) {
  int count = 0;
  const CIClosedDrainageSection* next = nullptr;
  for (const CIClosedDrainageSection* source = drainage->FirstSection(); source; source = next) {
    next = drainage->NextSectionOf(source);
    int32_t mode = source->GetElevationMode();
    vCopyPoints(source, AppendSection(ditch, source->GetChainage(), iVipsElevationMode(mode)));
    ++count;
    if (next && mode < 0) AppendSection(ditch, kGapChain, 0);
  }
  return count;
}

}  // namespace

int32_t iVipsElevationMode(int32_t mode) {
  int32_t magnitude = std::abs(mode);
  return magnitude < 100 ? magnitude : magnitude / 100;
}

int iVipsReadClosedDrainages(const NpDesignModel::CInData* in, std::FILE* log, RmModel* model) {
  RmSurfGen* surfGen = RmModelGetSurfGen(model);
  RmClosedDitches* table = RmClosedDitchesCreate();
  if (surfGen) vRmSurfGenSet<kRmClosedDitchesSlot>(surfGen, table);
  vVipsLogPrint(log, "Leser tabell: Lukkede gr\xF8" "fter \n");
  int count = 0;
  if (in && table) {
    std::vector<const CIClosedDrainage*> drainages = in->GetClosedDrainages();
    int32_t number = kDrainageLayerBase;
    for (const CIClosedDrainage* drainage : drainages) {
      ++number;
      if (!drainage->FirstSection()) continue;
      RmLayerId id = RmLayerIdMake(kDrainageLayerType, number);
      RmClosedDitch* ditch = RmClosedDitchAdd(table, id);
      if (!ditch) break;
      if (surfGen) vRmLayerNameEnsure(RmModelGetOrCreateLayerNames(model), id);
      count += iReadSections(drainage, ditch);
    }
  }
  if (!surfGen) vRmClosedDitchesDelete(&table);
  return count;
}
