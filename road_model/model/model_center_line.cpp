#include "road_model/model/model_center_line.h"

#include "road_model/model/model.h"
#include "road_model/model/model_lines.h"
#include "road_model/model/model_parts.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/tables/string_lines.h"

namespace {

// Models of this CALCMODE build their surfaces from string lines.
constexpr int kCalcModeStringLines = 3;

}  // namespace

RmLine* RmModelGetCenterLineFor(const RmModel* model, RmLayerId id) {
  if (!model) return nullptr;
  if (model->CalcMode == kCalcModeStringLines) {
    const RmStringLines* stringLines = RmSurfGenGet<kRmStringLinesSlot>(RmModelGetSurfGen(model));
    RmLine* line = RmLinesGetCenterLine(RmStringLineGetLines(RmStringLineFind(stringLines, id)));
    if (line) return line;
  }
  return RmModelGetCenterLine(model);
}
