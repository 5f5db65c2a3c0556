#include "vips_import/readers/theoretical_layers.h"

#include <algorithm>
#include <cmath>

#include "base/numbers.h"
#include "design_model/design_model.h"
#include "road_model/codes/layer_codes.h"
#include "road_model/codes/pcode.h"
#include "road_model/sections/layer.h"
#include "road_model/sections/section.h"
#include "vips_import/readers/section_layers.h"
#include "vips_import/readers/surface_code.h"
#include "vips_import/readers/surface_reconciliation.h"

namespace {

using NpDesignModel::CRPoint;

// The design's mark of a value that is not there.
constexpr double kDesignNoValue = 999999.0;
// A point of a designed line takes the code and mark of the surface line's
// point at its offset within this.
constexpr double kSameOffset = 0.00001;

RmLayerId Theoretical(int number) { return RmLayerIdMake(kRmLayerTheoretical2, number); }

struct PavementNumber {
  int layerType;
  int number;
};

constexpr PavementNumber kPavementNumbers[] = {
    {1, 50}, {2, 51}, {3, 52}, {11, 60}, {12, 61}, {13, 62}, {21, 70},
    {22, 71}, {23, 72}, {29, 73}, {40, 73}, {30, 2}, {50, 10},
};

// The layer number of a split sodding's kind, or -1 for a kind not read.
int iSoddingLayerNumber(int id) {
  if (id >= 1 && id <= 4) return 5;
  if (id == 51) return 9;
  if (id == 91 || id == 92) return 13;
  return -1;
}

// The surface line's points of one side, from the centre outward.
void vReadSurfaceSide(const NpDesignModel::CInData* in,
                      const std::vector<const NpDesignModel::CRSurfacePoint*>& points, int side,
                      RmModel* model, RmSection* section, double refElevation, RmLayer** layer) {
  RmPoint* inner = nullptr;
  int previousCode = kRmPcodeNone;
  bool first = true;
  for (const NpDesignModel::CRSurfacePoint* source : points) {
    const NpDesignModel::CSurfaceNumber number = source->GetSurfaceNumber();
    int code = iVipsSurfaceCode(number.GetDecimal());
    if (number.HasSerialNumber()) {
      code = iRmPcodeBuildSide(iRmPcodeFamily(code), iRmPcodeGroup(code),
                               static_cast<int>(std::min<uint32_t>(number.GetSerialNumber(), 99)),
                               side);
    }
    if (!*layer) *layer = VipsGetOrCreateLayer(model, section, Theoretical(0), nullptr, in);
    if (!*layer) return;
    const CRPoint* point = source->GetPoint();
    const double x = point->GetDistance();
    const double z = dVipsPointHeight(point, refElevation);
    if (side == kRmSideLeft) {
      // Each left point goes in front of the one before it.
      inner = RmPointAdd(*layer, inner, x, z, code);
      if (!inner) return;
    } else {
      RmPointAdd(*layer, nullptr, x, z, first ? kRmPcodeNone : previousCode);
    }
    previousCode = code;
    first = false;
  }
}

}  // namespace

double dVipsPointHeight(const CRPoint* point, double refElevation) {
  const double elevation = point->GetElevation();
  const double offset = static_cast<double>(static_cast<float>(point->GetDistance()));
  if (std::fabs(elevation - kDesignNoValue) < kSameOffset ||
      std::fabs(offset - kDesignNoValue) < kSameOffset) {
    return kNullNumber;
  }
  return static_cast<double>(static_cast<float>(elevation + refElevation));
}

RmLayer* VipsReadSurfaceLine(const NpDesignModel::CInData* in,
                             const NpDesignModel::CRModelSection* modelSection, RmModel* model,
                             RmSection* section, double refElevation) {
  if (!modelSection || !section) return nullptr;
  RmLayer* layer = nullptr;
  vReadSurfaceSide(in, modelSection->GetSurfacesLeft(), kRmSideLeft, model, section,
                   refElevation, &layer);
  vReadSurfaceSide(in, modelSection->GetSurfacesRight(), kRmSideRight, model, section,
                   refElevation, &layer);
  if (layer) vVipsReconcileSurfaceLine(model, section, layer);
  return layer;
}

int iVipsPavementLayerNumber(int layerType) {
  for (const PavementNumber& entry : kPavementNumbers) {
    if (entry.layerType == layerType) return entry.number;
  }
  return -2;
}

void vVipsReadPavementLayer(const NpDesignModel::CInData* in,
                            const std::vector<const NpDesignModel::CRLayerPoint*>& layerPoints,
                            int number, RmModel* model, RmSection* section, double refElevation,
                            const RmLayer* surfaceLayer) {
  RmLayer* layer = RmLayerFind(section, Theoretical(number));
  for (const NpDesignModel::CRLayerPoint* source : layerPoints) {
    if (!layer) layer = VipsGetOrCreateLayer(model, section, Theoretical(number), nullptr, in);
    if (!layer) return;
    const CRPoint* point = source->GetPoint();
    RmPoint* added = RmPointAdd(layer, nullptr, point->GetDistance(),
                                dVipsPointHeight(point, refElevation),
                                iVipsSurfaceCode(source->GetSurfaceNumber().GetDecimal()));
    if (!added) return;
  }
  if (surfaceLayer) vRmLayerCodesFromLine(layer, surfaceLayer, kSameOffset);
}

void vVipsReadPointLayer(const NpDesignModel::CInData* in,
                         const std::vector<const CRPoint*>& points, int number, RmModel* model,
                         RmSection* section, double refElevation, int side, const char* name,
                         const RmLayer* surfaceLayer) {
  RmLayer* layer = RmLayerFind(section, Theoretical(number));
  const RmPoint* leftEnd = layer ? RmPointsGetLast(layer) : nullptr;
  if (side == kRmSideRight && leftEnd && !points.empty()) {
    RmPointAdd(layer, nullptr, leftEnd->X, kNullNumber, kRmPcodeNone);
  }
  for (const CRPoint* point : points) {
    if (!layer) layer = VipsGetOrCreateLayer(model, section, Theoretical(number), name, in);
    if (!layer) return;
    if (!RmPointAdd(layer, nullptr, point->GetDistance(), dVipsPointHeight(point, refElevation),
                    kRmPcodeNone)) {
      return;
    }
  }
  if (surfaceLayer) vRmLayerCodesFromLine(layer, surfaceLayer, kSameOffset);
}

bool boVipsReadSplitSoddings(const NpDesignModel::CInData* in,
                             const std::vector<const NpDesignModel::CRSplitSodding*>& soddings,
                             RmModel* model, RmSection* section, double refElevation,
                             const RmLayer* surfaceLayer) {
  for (const NpDesignModel::CRSplitSodding* sodding : soddings) {
    const int number = iSoddingLayerNumber(sodding->GetID());
    if (number < 0) continue;
    vVipsReadPointLayer(in, sodding->GetPoints(), number, model, section, refElevation,
                        kRmSideRight, "", surfaceLayer);
  }
  return !soddings.empty();
}
