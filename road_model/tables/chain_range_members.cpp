#include "road_model/tables/chain_range_members.h"

#include <cstddef>

#include "base/numbers.h"

namespace {

// A field of values struct V by its member name, with the value a new row
// holds.
#define RM_REAL_FIELD(V, member, absent) \
  RmChainRangeField { #member, RmChainFieldType::kReal, offsetof(V, member), absent }
#define RM_INTEGER_FIELD(V, member, absent) \
  RmChainRangeField { #member, RmChainFieldType::kInteger, offsetof(V, member), absent }

constexpr RmChainRangeField kRockBenchFields[] = {
    RM_REAL_FIELD(RmRockBench, MinWidth, kNullNumber),
    RM_REAL_FIELD(RmRockBench, AdditionalWidth, kNullNumber),
    RM_REAL_FIELD(RmRockBench, MinHeight, kNullNumber),
    RM_REAL_FIELD(RmRockBench, Slope, kNullNumber),
};
constexpr RmChainRangeTableField kRockBenchTableFields[] = {{"MinSlopeBuild", kNullNumber}};

constexpr RmChainRangeField kMinDitchDepthFields[] = {
    RM_REAL_FIELD(RmMinDitchDepth, MinDepthLeft, kNullNumber),
    RM_REAL_FIELD(RmMinDitchDepth, MinDepthRight, kNullNumber),
};

constexpr RmChainRangeField kStoneExcavationSlopeFields[] = {
    RM_REAL_FIELD(RmStoneExcavationSlope, StoneSlopeSideLeft, kNullNumber),
    RM_REAL_FIELD(RmStoneExcavationSlope, StoneSlopeSideRight, kNullNumber),
    RM_REAL_FIELD(RmStoneExcavationSlope, StoneSlopeIntermedLeft, kNullNumber),
    RM_REAL_FIELD(RmStoneExcavationSlope, StoneSlopeIntermedRight, kNullNumber),
    RM_REAL_FIELD(RmStoneExcavationSlope, ExcavationSlopeLeft, kNullNumber),
    RM_REAL_FIELD(RmStoneExcavationSlope, ExcavationSlopeRight, kNullNumber),
};

constexpr RmChainRangeField kDeepRockBlastFields[] = {
    RM_REAL_FIELD(RmDeepRockBlast, Real1, kNullNumber),
    RM_REAL_FIELD(RmDeepRockBlast, Real2, kNullNumber),
    RM_REAL_FIELD(RmDeepRockBlast, Real3, kNullNumber),
    RM_INTEGER_FIELD(RmDeepRockBlast, Integer1, 1),
    RM_REAL_FIELD(RmDeepRockBlast, Real4, kNullNumber),
    RM_INTEGER_FIELD(RmDeepRockBlast, Integer2, kNullInteger),
    RM_INTEGER_FIELD(RmDeepRockBlast, Integer3, kNullInteger),
    RM_INTEGER_FIELD(RmDeepRockBlast, Integer4, kNullInteger),
    RM_INTEGER_FIELD(RmDeepRockBlast, Integer5, 0),
};

constexpr RmChainRangeField kRemovalTopsoilFields[] = {
    RM_INTEGER_FIELD(RmRemovalTopsoil, CutCode, kNullInteger),
    RM_INTEGER_FIELD(RmRemovalTopsoil, FillCode, kNullInteger),
    RM_REAL_FIELD(RmRemovalTopsoil, CutSlope, kNullNumber),
    RM_REAL_FIELD(RmRemovalTopsoil, FillSlope, kNullNumber),
    RM_INTEGER_FIELD(RmRemovalTopsoil, Criteria, kNullInteger),
    RM_REAL_FIELD(RmRemovalTopsoil, MinFillHeight, kNullNumber),
    RM_REAL_FIELD(RmRemovalTopsoil, MaxTerrainSlope, kNullNumber),
};

constexpr RmChainRangeField kUnsuitableSoilFields[] = {
    RM_INTEGER_FIELD(RmUnsuitableSoil, DesignMode, kNullInteger),
};

constexpr RmChainRangeField kSoilCutPlasterFields[] = {
    RM_REAL_FIELD(RmSoilCutPlaster, Real1, kNullNumber),
    RM_REAL_FIELD(RmSoilCutPlaster, Real2, kNullNumber),
};

#undef RM_REAL_FIELD
#undef RM_INTEGER_FIELD

}  // namespace

const RmChainRangeKind kRmRockBenches = {"RockBenches", 2, sizeof(RmRockBench), kRockBenchFields,
                                         kRockBenchTableFields};
const RmChainRangeKind kRmMinDitchDepths = {
    "MinDitchDepths", 1, sizeof(RmMinDitchDepth), kMinDitchDepthFields, {}};
const RmChainRangeKind kRmStoneExcavationSlopes = {
    "StoneExcavationSlopes", 1, sizeof(RmStoneExcavationSlope), kStoneExcavationSlopeFields, {}};
const RmChainRangeKind kRmDeepRockBlasts = {
    "DeepRockBlasts", 1, sizeof(RmDeepRockBlast), kDeepRockBlastFields, {}};
const RmChainRangeKind kRmFillDitches = {"FillDitches", 2, 0, {}, {}};
const RmChainRangeKind kRmRemovalTopsoils = {
    "RemovalTopsoils", 1, sizeof(RmRemovalTopsoil), kRemovalTopsoilFields, {}};
const RmChainRangeKind kRmUnsuitableSoils = {
    "UnsuitableSoils", 1, sizeof(RmUnsuitableSoil), kUnsuitableSoilFields, {}};
const RmChainRangeKind kRmSoilCutPlasters = {
    "SoilCutPlasters", 1, sizeof(RmSoilCutPlaster), kSoilCutPlasterFields, {}};
