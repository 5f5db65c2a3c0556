#include "road_model/sections/section_side_limit.h"

#include "base/numbers.h"
#include "road_model/codes/pcode.h"
#include "road_model/lines/plan_lines.h"
#include "road_model/model/model.h"
#include "road_model/model/model_lines.h"
#include "road_model/model/model_parts.h"
#include "road_model/sections/layer.h"
#include "road_model/sections/layer_sides.h"
#include "road_model/sections/section.h"
#include "road_model/surfaces/section_line_crossing.h"
#include "road_model/tables/side_boundaries.h"

namespace {

constexpr float kNoLimit = static_cast<float>(kNullNumber);

}  // namespace

float fRmSectionSideLimit(const RmModel* model, const RmSection* section, int side) {
  if (!model || !section) return kNoLimit;
  const RmSideBoundaryList* list =
      RmSideBoundariesGetSide(RmModelGetSideBoundaries(model), side);
  if (!list) return kNoLimit;
  int32_t code = kNullInteger;
  double distance = kNullNumber;
  int32_t lineId = kNullInteger;
  iRmSideBoundaryAt(list, section->Chain, &code, &distance, &lineId);

  if (boIsPresent(lineId)) {
    const RmLine* line = RmLinesFindById(RmModelGetLines(model), lineId);
    double offset = 0.0;
    if (!line || !boRmSectionLineCrossing(section, line, side, &offset)) return kNoLimit;
    return static_cast<float>(offset);
  }
  if (code == kRmPcodeSentinel) {
    if (!boIsPresent(distance)) return kNoLimit;
    return static_cast<float>(side == kRmSideLeft ? -distance : distance);
  }
  if (!boIsPresent(distance)) distance = 0.0;
  RmLayerId surfaceId =
      RmLayerIdMake(static_cast<uint32_t>(iRmModelGetCalcTheo(model)), 0);
  const RmLayer* layer = RmLayerFind(section, surfaceId);
  const RmPoint* point = layer ? RmPointFindCodeOnSide(layer, code, iRmPcodeSide(code)) : nullptr;
  if (!point) return kNoLimit;
  return static_cast<float>(side == kRmSideLeft ? point->X - distance : point->X + distance);
}
