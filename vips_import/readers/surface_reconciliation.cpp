#include "vips_import/readers/surface_reconciliation.h"

#include <cmath>
#include <cstdlib>

#include "base/numbers.h"
#include "road_model/codes/pcode.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"
#include "road_model/sections/layer.h"
#include "road_model/sections/layer_lookup.h"
#include "road_model/sections/layer_sides.h"
#include "road_model/sections/section.h"
#include "road_model/sections/section_set.h"
#include "road_model/sections/section_side_limit.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/surfaces/surface_groups.h"
#include "road_model/surfaces/surface_width_slope.h"
#include "road_model/surfaces/surfaces.h"
#include "road_model/surfaces/tilt.h"
#include "road_model/tables/chain_range_table.h"
#include "vips_import/readers/surface_descriptions.h"

namespace {

constexpr RmLayerId kSurfaceGroupLayer = {1, 0};
constexpr RmLayerId kSurfaceLine = {kRmLayerTheoretical2, 0};
// The theoretical type that the checks read the surface line as.
constexpr int kCheckCalcTheo = 3;

// A piece narrower than this is no surface.
constexpr double kLeastWidth = 0.001;
// How far the line may deviate from the descriptions.
constexpr double kWidthTolerance = 0.002;
constexpr double kRiseTolerance = 0.001;
constexpr double kSlopeTolerance = 0.001;
constexpr double kSameChain = 0.00001;

int iFamily(int code) { return iRmPcodeFamily(code); }

// The surface of the group next beyond `surface` on `side` by number.
const RmSurface* NextOutward(const RmSurfaceGroup* group, const RmSurface* surface, int side) {
  const RmSurface* next = nullptr;
  for (const RmSurface* other = RmSurfacesGetFirst(group); other; other = other->Next) {
    bool beyond = side == kRmSideLeft ? other->Number < surface->Number
                                      : other->Number > surface->Number;
    if (!beyond) continue;
    if (!next || std::abs(other->Number) < std::abs(next->Number)) next = other;
  }
  return next;
}

// Whether a ditch whose slope agrees with the descriptions is to be
// checked on: only where a ditch surface beyond it falls.
bool boDitchBeyondFalls(const VipsSurfaceCheck& check, const RmSurface* surface,
                        const RmPoint* inner) {
  const RmPoint* from = RmPointGetOutward(inner, check.side);
  RmSurfaceEdge edge{from ? from->X : inner->X, check.running};
  for (const RmSurface* next = NextOutward(check.group, surface, check.side);
       next && iFamily(next->Number) == 4; next = NextOutward(check.group, next, check.side)) {
    double width = kNullNumber;
    double slope = kNullNumber;
    if (iRmSurfaceWidthAndSlope(check.model, check.group, next, check.section, &edge, &width,
                                &slope, nullptr) &&
        boIsPresent(slope) && slope < 0.0) {
      return true;
    }
  }
  return false;
}

// Whether the chainage lies in a row of minimum ditch depths.
bool boMinDitchDepthAt(const RmModel* model, double chain) {
  const RmChainRangeTable* table =
      RmSurfGenGet<kRmMinDitchDepthsSlot>(RmModelGetSurfGen(model));
  return table && RmChainRangeFindAt(RmChainRangeTableGetRows(table), chain);
}

// A break row with these values in front of `before` (null: at the end).
void vAddBreakRow(RmSurface* surface, RmSurfaceRow* before, double chain, double width,
                  double slope) {
  RmSurfaceRow* row = RmSurfaceRowAddBefore(surface, before, chain);
  if (!row) return;
  row->RowType = 1;
  row->Width = width;
  row->Slope = slope;
}

// The break row of the line's values at its place by chainage, for a
// surface that the descriptions do not predict.
void vAddUnpredicted(RmSurface* surface, double chain, double width, double slope) {
  if (surface) vAddBreakRow(surface, RmSurfaceRowFindFrom(surface, chain), chain, width, slope);
}

}  // namespace

void vVipsReconcileSurfaceLine(RmModel* model, const RmSection* section, const RmLayer* layer) {
  RmSurfaceGroup* group = RmSurfaceGroupFind(
      RmSurfGenGet<kRmSurfaceGroupsSlot>(RmModelGetSurfGen(model)), kSurfaceGroupLayer);
  if (!group || !section || !layer) return;
  const int calcTheo = iRmModelGetCalcTheo(model);
  vRmModelSetCalcTheo(model, kCheckCalcTheo);
  vRmTiltBegin(section);
  for (int side : {kRmSideLeft, kRmSideRight}) {
    const float limit = fRmSectionSideLimit(model, section, side);
    const RmPoint* stop = boIsPresent(limit) ? RmPointFindXFromSide(layer, limit, side) : nullptr;
    VipsSurfaceCheck check{model, section, layer, group, side, 0.0};
    for (const RmPoint* point = RmPointGetSideStartAuto(layer, side); point && point != stop;
         point = RmPointGetOutward(point, side)) {
      if (iRmPcodeGroup(iRmPointGetPcode(point)) != 0) vVipsSurfacePointCheck(check, point);
    }
  }
  vRmTiltEnd();
  vVipsSurfaceEndCheck(model, section, layer, group);
  vRmModelSetCalcTheo(model, calcTheo);
}

void vVipsSurfacePointCheck(VipsSurfaceCheck& check, const RmPoint* point) {
  const int code = iRmPointGetPcode(point);
  const RmPoint* inner = code < 0 ? point->Next : point->Prev;
  double width = 0.0;
  double slope = kNullNumber;
  if (inner) {
    width = std::fabs(static_cast<double>(point->X) - inner->X);
    if (boRmPointHasHeight(point) && boRmPointHasHeight(inner) && width > 0.0) {
      slope = (static_cast<double>(point->Z) - inner->Z) / width;
    }
  }
  vVipsSurfaceRowCheck(check, code, width, slope);
}

void vVipsSurfaceRowCheck(VipsSurfaceCheck& check, int code, double width, double slope) {
  if (width < kLeastWidth) return;
  const double chain = check.section->Chain;
  RmSurface* surface = RmSurfaceFind(check.group, code);
  const RmPoint* inner = RmPointFindCodeOnSide(check.layer, code, check.side);
  if (inner && iRmPointGetPcode(inner) == code) inner = RmPointGetInward(inner, check.side);
  if (!inner) return vAddUnpredicted(surface, chain, width, slope);

  RmSurfaceEdge edge{inner->X, check.running};
  double w = kNullNumber;
  double s = kNullNumber;
  if (!iRmSurfaceWidthAndSlope(check.model, check.group, surface, check.section, &edge, &w, &s,
                               nullptr)) {
    return vAddUnpredicted(surface, chain, width, slope);
  }
  check.running = edge.Height;

  const int family = iFamily(code);
  // Ditches and slopes may grow beyond the line.
  if (family >= 5 && family <= 7 && w > width) return;
  if (family >= 4) {
    if (!boIsPresent(w)) return;
    if (family == 4) {
      const RmPoint* ditchEnd = RmPointFindCodeOnSide(
          check.layer, iRmPcodeBuildSide(4, 99, 99, check.side), check.side);
      if (ditchEnd && iRmPointGetPcode(ditchEnd) == code && w > width) return;
    }
  }
  if (boIsPresent(w) && boIsPresent(s)) {
    const bool changed = std::fabs(width - w) > kWidthTolerance ||
                         std::fabs(width * slope - w * s) > kRiseTolerance;
    if (family == 4 && boMinDitchDepthAt(check.model, chain) &&
        std::fabs(slope - s) < kSlopeTolerance && !boDitchBeyondFalls(check, surface, inner)) {
      return;
    }
    if (!changed) return;
  }

  RmSurfaceRow* before = RmSurfaceRowFindFrom(surface, chain);
  if (before && std::fabs(before->Chain - chain) < kSameChain && before->Next) {
    before = before->Next;
  }
  vAddBreakRow(surface, before, chain, width, slope);
}

void vVipsSurfaceEndCheck(RmModel* model, const RmSection* section, const RmLayer* layer,
                          RmSurfaceGroup* group) {
  const RmSection* previous = section ? RmSectionsGetPrev(section) : nullptr;
  const RmLayer* earlier = previous ? RmLayerFind(previous, kSurfaceLine) : nullptr;
  if (!earlier || !group) return;
  const double chain = section->Chain;
  for (const RmPoint* point = RmPointsGetFirst(earlier); point; point = point->Next) {
    const int code = iRmPointGetPcode(point);
    if (iFamily(code) >= 4 || iRmPcodeGroup(code) == 0) continue;
    RmSurface* surface = RmSurfaceFind(group, code);
    if (!surface || RmPointFindCode(layer, code)) continue;

    RmSurfaceRow* row = RmSurfaceRowFindFrom(surface, chain);
    if (!row || !row->Prev || !boRmSurfaceRowHasValue(row->Prev)) continue;
    if (boVipsSurfaceRowEquals(row, chain, 0.0, 0.0)) continue;
    if (!boIsPresent(row->Slope) && !(boIsPresent(row->Width) && row->Width > kLeastWidth)) {
      continue;
    }
    const RmPoint* inner = RmPointGetInward(point, iRmPcodeSide(code));
    RmSurfaceEdge edge{inner ? inner->X : point->X, 0.0};
    double width = kNullNumber;
    vRmTiltBegin(section);
    const int found = iRmSurfaceWidthAndSlope(model, group, surface, section, &edge, &width,
                                              nullptr, nullptr);
    vRmTiltEnd();
    if (found && std::fabs(width) < kSameChain) continue;
    vAddBreakRow(surface, row, chain, 0.0, 0.0);
  }
}
