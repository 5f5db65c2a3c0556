#include "vips_import/driver/free_surfaces.h"

#include "road_model/codes/pcode.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/surfaces/surface_groups.h"
#include "road_model/surfaces/surfaces.h"
#include "road_model/tables/surface_border_lines.h"

namespace {

constexpr RmLayerId kSurfaceGroupLayer = {1, 0};

}  // namespace

void vVipsAddFreeSurfaces(RmSurfGen* surfGen) {
  RmSurfaceGroup* group =
      RmSurfaceGroupFind(RmSurfGenGet<kRmSurfaceGroupsSlot>(surfGen), kSurfaceGroupLayer);
  if (!group) return;
  for (const RmSurfaceBorderLine* row = RmSurfaceBorderLinesGetFirst(group->BorderLines); row;
       row = RmSurfaceBorderLineGetNext(row)) {
    if (row->FreeSurface == kRmPcodeSentinel || RmSurfaceFind(group, row->FreeSurface)) continue;
    RmSurfaceAdd(group, row->FreeSurface);
  }
}
