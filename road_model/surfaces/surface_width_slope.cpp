#include "road_model/surfaces/surface_width_slope.h"

#include <cmath>

#include "base/numbers.h"
#include "road_model/lines/plan_lines.h"
#include "road_model/model/model.h"
#include "road_model/model/model_lines.h"
#include "road_model/model/model_parts.h"
#include "road_model/sections/layer.h"
#include "road_model/sections/section.h"
#include "road_model/surfaces/section_line_crossing.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/surfaces/surface_groups.h"
#include "road_model/surfaces/surface_values.h"
#include "road_model/surfaces/surfaces.h"
#include "road_model/surfaces/tilt.h"
#include "road_model/tables/string_lines.h"
#include "road_model/tables/surface_border_lines.h"

namespace {

// Models of this CALCMODE build their surfaces from string lines.
constexpr int kCalcModeStringLines = 3;

int iSideOf(const RmSurface* surface) { return surface->Number < 0 ? 1 : 2; }

// The line that the surface's outer edge follows at the chainage, or null.
const RmLine* EdgeLine(const RmModel* model, const RmSurfaceGroup* group,
                       const RmSurface* surface, double chain) {
  if (model->CalcMode == kCalcModeStringLines) {
    const RmStringLines* stringLines =
        RmSurfGenGet<kRmStringLinesSlot>(RmModelGetSurfGen(model));
    const RmLines* lines = RmStringLineGetLines(RmStringLineFind(stringLines, group->Id));
    if (const RmLine* line = RmLinesFindByPcode(lines, surface->Number)) return line;
  }
  const RmSurfaceBorderLine* border =
      RmSurfaceBorderLineFind(group->BorderLines, surface->Number, chain);
  return border ? RmLinesFindById(RmModelGetLines(model), border->LineId) : nullptr;
}

// The surface's values of one row type, or its width to the line that it
// follows.
int iAsk(const RmModel* model, const RmSurfaceGroup* group, const RmSurface* surface,
         const RmSection* section, const RmSurfaceEdge* edge, int rowType, double* width,
         double* slope, int* extra) {
  *extra = 0;
  int found = iRmSurfaceValuesAt(surface, section->Chain, width, slope, rowType);
  *width = dRmTiltWidth(*width);
  *slope = dRmTiltSlope(*slope);
  const RmLine* line = edge ? EdgeLine(model, group, surface, section->Chain) : nullptr;
  double offset;
  if (line && boRmSectionLineCrossing(section, line, iSideOf(surface), &offset)) {
    *width = std::fabs(offset - edge->Offset);
    *extra = 1;
    found = 1;
  }
  return found;
}

bool boHasSecondTheoreticalZero(const RmSection* section) {
  return RmLayerFind(section, RmLayerIdMake(kRmLayerTheoretical2, 0)) != nullptr;
}

}  // namespace

int iRmSurfaceWidthAndSlope(const RmModel* model, const RmSurfaceGroup* group,
                            const RmSurface* surface, const RmSection* section,
                            RmSurfaceEdge* edge, double* width, double* slope, int* extra) {
  double unusedWidth;
  double unusedSlope;
  int unusedExtra;
  if (!width) width = &unusedWidth;
  if (!slope) slope = &unusedSlope;
  if (!extra) extra = &unusedExtra;
  *width = kNullNumber;
  *slope = kNullNumber;
  *extra = 0;
  if (!model || !group || !surface || !section) return 0;

  int found = 0;
  if (boRmSurfaceBreakValuesAt(surface, section->Chain, width, slope)) {
    *width = dRmTiltWidth(*width);
    *slope = dRmTiltSlope(*slope);
    found = 1;
  } else {
    if (!boHasSecondTheoreticalZero(section) && boRmSurfaceIsBreakAt(surface, section->Chain)) {
      found = iAsk(model, group, surface, section, edge, 1, width, slope, extra);
    }
    if (!found) found = iAsk(model, group, surface, section, edge, 0, width, slope, extra);
  }
  if (found && edge && boIsPresent(*width)) {
    edge->Offset += iSideOf(surface) == 1 ? -*width : *width;
    if (boIsPresent(*slope)) edge->Height += *width * *slope;
  }
  return found;
}
