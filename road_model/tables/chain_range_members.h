// The members of the chain range family: for each, the kind that describes
// it and the values struct of one row, the fields after the row's range.
// A row's values are read and written as the whole struct
// (vRmChainRangeGetRow, vRmChainRangeSetRow); a field that was not given
// holds -99999.0 or -99999 unless the kind says otherwise.
//
// The fine meaning of the deep rock blast and soil cut plaster fields is the
// section builder's; the tables store and carry them by position.
#pragma once

#include <cstdint>

#include "road_model/tables/chain_range_kind.h"

extern const RmChainRangeKind kRmRockBenches;
extern const RmChainRangeKind kRmMinDitchDepths;
extern const RmChainRangeKind kRmStoneExcavationSlopes;
extern const RmChainRangeKind kRmDeepRockBlasts;
extern const RmChainRangeKind kRmFillDitches;
extern const RmChainRangeKind kRmRemovalTopsoils;
extern const RmChainRangeKind kRmUnsuitableSoils;
extern const RmChainRangeKind kRmSoilCutPlasters;

// Rock benches, left and right. The table field MinSlopeBuild is at this
// index of the table's values.
inline constexpr int kRmMinSlopeBuild = 0;
struct RmRockBench {
  static constexpr const RmChainRangeKind* Kind = &kRmRockBenches;
  double MinWidth;
  double AdditionalWidth;
  double MinHeight;
  double Slope;
};

struct RmMinDitchDepth {
  static constexpr const RmChainRangeKind* Kind = &kRmMinDitchDepths;
  double MinDepthLeft;
  double MinDepthRight;
};

struct RmStoneExcavationSlope {
  static constexpr const RmChainRangeKind* Kind = &kRmStoneExcavationSlopes;
  double StoneSlopeSideLeft;
  double StoneSlopeSideRight;
  double StoneSlopeIntermedLeft;
  double StoneSlopeIntermedRight;
  double ExcavationSlopeLeft;
  double ExcavationSlopeRight;
};

// A new row holds Integer1 1, Integer5 0, the others absent.
struct RmDeepRockBlast {
  static constexpr const RmChainRangeKind* Kind = &kRmDeepRockBlasts;
  double Real1;
  double Real2;
  double Real3;
  int32_t Integer1;
  double Real4;
  int32_t Integer2;
  int32_t Integer3;
  int32_t Integer4;
  int32_t Integer5;
};

// Fill ditches, left and right, have no values: a row's range alone says
// that the fill has a ditch there.

struct RmRemovalTopsoil {
  static constexpr const RmChainRangeKind* Kind = &kRmRemovalTopsoils;
  int32_t CutCode;
  int32_t FillCode;
  double CutSlope;
  double FillSlope;
  int32_t Criteria;
  double MinFillHeight;
  double MaxTerrainSlope;
};

struct RmUnsuitableSoil {
  static constexpr const RmChainRangeKind* Kind = &kRmUnsuitableSoils;
  int32_t DesignMode;
};

struct RmSoilCutPlaster {
  static constexpr const RmChainRangeKind* Kind = &kRmSoilCutPlasters;
  double Real1;
  double Real2;
};
