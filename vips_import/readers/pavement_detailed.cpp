#include "vips_import/readers/pavement_detailed.h"

#include <cmath>
#include <cstdlib>
#include <vector>

#include "base/numbers.h"
#include "design_model/design_model.h"
#include "road_model/codes/layer_id.h"
#include "road_model/codes/pcode.h"
#include "road_model/model/model_parts.h"
#include "road_model/names/layer_names.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/tables/vips_special_gradings.h"
#include "vips_import/driver/import_log.h"
#include "vips_import/readers/surface_code.h"
#include "vips_import/readers/theoretical_layers.h"

namespace {

using NpDesignModel::CIDetailedPavementLayer;
using NpDesignModel::CIDetailedPavementSurface;
using NpDesignModel::CIDetailedPavementSurfaceSection;

// The design's marks: no value, no row, and the end of the road.
constexpr double kDesignNoValue = 999999.0;
constexpr double kDesignRoadEnd = 999998.0;
// The layer type that the detailed description has no entry for.
constexpr int kSkippedLayerType = 29;
// The layer number whose first surface of a side counts its width method
// from 1.
constexpr int kShiftedMethodNumber = 10;
// The minimum thickness code of layer number 2: that of this decimal.
constexpr double kMinThickDecimal = 2.9999;

bool boDesignNone(double value) { return boEqual(value, kDesignNoValue); }
double dValue(double value) { return boDesignNone(value) ? kNullNumber : value; }

// Fills a row whose chainage is given.
void vReadRowValues(const CIDetailedPavementSurfaceSection* source, RmVipsGradingRow* row,
                    int number, bool first) {
  row->Height = dValue(source->GetElevation());
  const int method = source->GetWidthMethod();
  enum { kWidth, kSurface, kAlignment } branch;
  if (number == kShiftedMethodNumber && first) {
    row->WidthMethod = method - 1;
    branch = row->WidthMethod == 3 ? kSurface : kWidth;
  } else {
    row->WidthMethod = method;
    branch = method == 0 ? kWidth : (method == 1 || method == 2) ? kSurface : kAlignment;
  }
  if (branch == kWidth) {
    row->Width = dValue(source->GetWidth());
  } else if (branch == kSurface) {
    double decimal = source->GetWidthSurfNo().GetDecimal();
    row->WidthPcode = boDesignNone(decimal) ? kNullInteger : iVipsSurfaceCode(decimal);
  } else {
    int32_t id = source->GetWidthAlignId();
    row->AlignmentId = boDesignNone(static_cast<double>(id)) ? kNullInteger : id;
  }
  row->WidthOffset = dValue(source->GetWidthOffset());

  // A slope taken from a surface holds that surface's decimal number.
  const int slopeMethod = source->GetSlopeMethod();
  const double slopeDecimal = source->GetSlopeSurfNo().GetDecimal();
  if ((slopeMethod == 1 || slopeMethod == 2) && !boDesignNone(slopeDecimal)) {
    row->Slope = std::atof(sRmPcodeToText(iVipsSurfaceCode(slopeDecimal)));
  } else {
    row->Slope = dValue(source->GetSlope());
  }
  const int magnitude = std::abs(slopeMethod);
  row->SlopeMethod = magnitude == 100 ? 0 : magnitude == 200 ? 1 : slopeMethod;
  row->BeamSlope = dValue(source->GetBeamSlope());
}

void vReadRow(const CIDetailedPavementSurfaceSection* source, RmVipsGradingSurface* surface,
              int number, bool first) {
  double chain = source->GetChainage();
  if (!boDesignNone(chain)) {
    RmVipsGradingRow* row = RmVipsGradingRowAdd(surface);
    if (row) {
      if (chain <= kPresentAbove) chain += 2.0;
      if (boEqual(chain, kDesignRoadEnd)) chain = kNullNumber;
      row->Chain = chain;
      // A row at no chainage keeps no value in any field.
      if (boIsPresent(chain)) vReadRowValues(source, row, number, first);
    }
  }
  if (source->IsEndSurfaceAfterThis()) RmVipsGradingRowAdd(surface);
}

void vReadSide(const std::vector<const CIDetailedPavementSurface*>& surfaces, ListHead* side,
               int number) {
  bool first = true;
  for (const CIDetailedPavementSurface* source : surfaces) {
    RmVipsGradingSurface* surface = RmVipsGradingSurfaceAdd(side);
    if (!surface) continue;
    if (source->IsEndSurface()) surface->Surface = 1;
    for (const CIDetailedPavementSurfaceSection* row : source->GetSections()) {
      vReadRow(row, surface, number, first);
    }
    first = false;
  }
}

}  // namespace

void vVipsReadDetailedPavement(const NpDesignModel::CInData* in, std::FILE* log, RmModel* model) {
  RmSurfGen* gen = RmModelGetSurfGen(model);
  RmVipsSpecialGradings* table = gen ? RmVipsSpecialGradingsCreate() : nullptr;
  if (!table) return;
  vRmSurfGenSet<kRmVipsSpecialGradingsSlot>(gen, table);
  RmLayerNames* names = RmModelGetOrCreateLayerNames(model);
  if (!in) return;
  bool logged = false;
  for (const CIDetailedPavementLayer* layer : in->GetDetailedPvmtLayers()) {
    const int type = layer->GetLayerType();
    if (type == kSkippedLayerType) continue;
    const int number = iVipsPavementLayerNumber(type);
    const RmLayerId id = RmLayerIdMake(kRmLayerTheoretical, number);
    if (!boRmLayerIdValid(id)) continue;
    RmVipsSpecialGrading* entry = RmVipsSpecialGradingAdd(table, id);
    if (!entry) continue;
    if (number == kRmVipsMinThickLayerNumber) {
      entry->MinThickLeftPcode = iVipsSurfaceCode(-kMinThickDecimal);
      entry->MinThickRightPcode = iVipsSurfaceCode(kMinThickDecimal);
    }
    if (!logged) vVipsLogPrint(log, "Leser tabell: Avansert overbygning\n");
    logged = true;
    vRmLayerNameEnsure(names, id);
    vReadSide(layer->GetSurfacesLeft(), &entry->Left, number);
    vReadSide(layer->GetSurfacesRight(), &entry->Right, number);
  }
}
