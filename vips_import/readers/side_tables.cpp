#include "vips_import/readers/side_tables.h"

#include <vector>

#include "base/numbers.h"
#include "design_model/design_model.h"
#include "road_model/codes/pcode.h"
#include "road_model/model/model_parts.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/surfaces/surface_groups.h"
#include "road_model/tables/side_boundaries.h"
#include "road_model/tables/surface_border_lines.h"
#include "vips_import/driver/import_log.h"
#include "vips_import/readers/surface_code.h"

namespace {

using NpDesignModel::CInData;

constexpr double kModelNoValue = -99999.0;
// Chainages at or below this are the model's mark of none, moved out of its
// way.
constexpr double kLowestChain = -99998.0;
constexpr double kLowChainShift = 2.0;
// The design's marks of a boundary that is not there.
constexpr double kDesignNoValue = 999999.0;
constexpr double kDesignNoValueToo = 999998.0;

// The layer of the surface group that the border lines of the design
// belong to.
constexpr RmLayerId kFirstSurfaceGroup = {1, 0};

// The design's 0 is the model's none.
int32_t iOrAbsent(int32_t value) { return value == 0 ? kRmPcodeSentinel : value; }

int iReadBoundarySide(const std::vector<const NpDesignModel::CISurfaceBoundary*>& rows,
                      RmSideBoundaryList* list) {
  for (const NpDesignModel::CISurfaceBoundary* source : rows) {
    RmSideBoundary* row = RmSideBoundaryAddBefore(list, nullptr);
    if (!row) break;
    double chain = source->GetChainage();
    double distance = source->GetDistance();
    if (chain <= kLowestChain) chain += kLowChainShift;
    if (boEqual(chain, kDesignNoValue) || boEqual(chain, kDesignNoValueToo)) {
      chain = kModelNoValue;
      distance = kModelNoValue;
    }
    row->Chain = chain;
    row->Distance = distance;
    row->Code = iOrAbsent(iVipsSurfaceCode(source->GetSurfaceNumber().GetDecimal()));
    row->LineId = iOrAbsent(source->GetAlignmentId());
  }
  return static_cast<int>(rows.size());
}

}  // namespace

int iVipsReadSurfaceBoundaries(const CInData* in, std::FILE* log, RmModel* model) {
  RmSideBoundaries* table = RmSideBoundariesCreate();
  vRmModelSetSideBoundaries(model, table);
  vVipsLogPrint(log, "Leser tabell: Sideavgrensning\n");
  int count = 0;
  if (in && table) {
    count = iReadBoundarySide(in->GetSurfaceBoundariesLeft(), RmSideBoundariesGetLeft(table));
    count += iReadBoundarySide(in->GetSurfaceBoundariesRight(), RmSideBoundariesGetRight(table));
  }
  if (!model) vRmSideBoundariesDelete(&table);
  return count;
}

void vVipsReadSurfaceEdgeAlignments(const CInData* in, std::FILE* log, RmSurfGen* surfGen) {
  RmSurfaceGroups* groups = RmSurfGenGet<kRmSurfaceGroupsSlot>(surfGen);
  RmSurfaceGroup* group = RmSurfaceGroupFind(groups, kFirstSurfaceGroup);
  if (!group) return;
  vRmSurfaceBorderLinesDelete(&group->BorderLines);
  group->BorderLines = RmSurfaceBorderLinesCreate();
  vVipsLogPrint(log, "Leser tabell: Flateavgrensningslinjer\n");
  if (!in || !group->BorderLines) return;

  std::vector<const NpDesignModel::CISurfaceEdgeAlignment*> rows = in->GetSurfaceEdgeAlignments();
  for (const NpDesignModel::CISurfaceEdgeAlignment* source : rows) {
    double surface = source->GetSurfaceNumber().GetDecimal();
    double freeSurface = source->GetFreeSurfaceNumber().GetDecimal();
    if (boEqual(freeSurface, 0.0)) freeSurface = surface;
    RmSurfaceBorderLine* row = RmSurfaceBorderLineAdd(
        group->BorderLines, iVipsSurfaceCode(surface), source->GetFromChainage());
    if (!row) break;
    row->Range.High = source->GetToChainage();
    row->Method = source->GetMethod();
    row->LineId = iOrAbsent(source->GetAlignmentId());
    row->FreeSurface = iVipsSurfaceCode(freeSurface);
  }
}
