#include "vips_import/readers/pavement.h"

#include <vector>

#include "base/numbers.h"
#include "design_model/design_model.h"
#include "road_model/codes/pcode.h"
#include "road_model/lines/plan_lines.h"
#include "road_model/model/model_lines.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/tables/pavement.h"
#include "road_model/tables/pavement_packages.h"
#include "vips_import/driver/import_log.h"
#include "vips_import/readers/pavement_templates.h"

namespace {

// The design's mark of a thickness that is not given.
constexpr double kDesignNoValue = 999999.0;
// Layer positions at which a zero thickness counts as not given too.
constexpr int kZeroCountsAt[] = {5, 8};

void vReadSections(const std::vector<const NpDesignModel::CIPavementSection*>& rows,
                   RmPavement* pavement, int kind) {
  for (const NpDesignModel::CIPavementSection* row : rows) {
    RmPavementSectionAppend(pavement, row->GetFromChainage(), row->GetToChainage(),
                            row->GetPavementTemplateId(), kind);
  }
}

bool boThicknessNotGiven(const RmPavementSurface* surface) {
  for (int i = 0; i < kRmPavementPositions; ++i) {
    double value = surface->Thickness[i];
    if (value == kDesignNoValue) continue;
    bool zeroCounts = i == kZeroCountsAt[0] || i == kZeroCountsAt[1];
    if (zeroCounts && boEqual(value, 0.0)) continue;
    return false;
  }
  return true;
}

// The surface of family 0 on the side nearest the centre: the greatest
// negative code on the left (side 1), the smallest other code on the right.
RmPavementSurface* InnermostSurface(const RmPavementPackage* package, int side) {
  RmPavementSurface* found = nullptr;
  for (RmPavementSurface* surface = RmPavementSurfacesGetFirst(package); surface;
       surface = surface->Next) {
    if (iRmPcodeFamily(surface->Number) != 0 || (surface->Number < 0) != (side == 1)) continue;
    if (!found || (side == 1 ? surface->Number > found->Number : surface->Number < found->Number)) {
      found = surface;
    }
  }
  return found;
}

void vRemoveEmptyInnerSurfaces(RmPavement* pavement) {
  for (RmPavementPackage* package = RmPavementPackagesGetFirst(pavement); package;
       package = package->Next) {
    for (int side : {1, 2}) {
      RmPavementSurface* surface;
      while ((surface = InnermostSurface(package, side)) && boThicknessNotGiven(surface)) {
        vRmPavementSurfaceRemove(package, surface);
      }
    }
  }
}

}  // namespace

int iVipsReadPavement(const NpDesignModel::CInData* in, std::FILE* log, const RmModel* model,
                      RmSurfGen* surfGen, int* rehabUsed) {
  RmPavement* pavement = RmPavementCreate();
  vVipsLogPrint(log, "Leser tabell: Overbygning\n");
  if (surfGen) {
    surfGen->SuperstructureMode = 0;
    vRmSurfGenSet<kRmPavementSlot>(surfGen, pavement);
  }
  if (in && pavement) {
    vReadSections(in->GetPvmtSectionsSoil(), pavement, kRmPavementSoil);
    vReadSections(in->GetPvmtSectionsRock(), pavement, kRmPavementRock);
    vVipsReadPavementTemplates(in, pavement, rehabUsed);
    vVipsReadSubGrades(in, model, pavement);
    vRemoveEmptyInnerSurfaces(pavement);
  }
  if (!surfGen) vRmPavementDelete(&pavement);
  return 0;
}

void vVipsReadSubGrades(const NpDesignModel::CInData* in, const RmModel* model,
                        RmPavement* pavement) {
  RmPavementAppearings* list = RmPavementGetOrCreateAppearings(pavement);
  if (!in || !list) return;
  const RmLine* mainLine = RmModelGetCenterLine(model);
  const double start = mainLine ? dRmLineGetStartChain(mainLine) : 0.0;
  RmPavementAppearing* last = nullptr;
  for (const NpDesignModel::CISubGrade* row : in->GetSubGrades()) {
    const double chain = row->GetChainage();
    const int type = row->GetGivenType() == 1 ? 1 : 0;
    if (last && last->Number == type) {
      last->Range.High = chain;
      continue;
    }
    RmPavementAppearing* added =
        RmPavementAppearingAdd(list, last ? last->Range.High : start, chain, type);
    if (added) last = added;
  }
}
