// The free surfaces that border lines hand over to join surface group 1.
#include <gtest/gtest.h>

#include <vector>

#include "road_model/surfaces/surf_gen.h"
#include "road_model/surfaces/surface_groups.h"
#include "road_model/surfaces/surfaces.h"
#include "road_model/tables/surface_border_lines.h"
#include "vips_import/driver/free_surfaces.h"

TEST(FreeSurfaces, EachMissingFreeSurfaceIsAddedOnceInItsPlace) {
  RmSurfGen* gen = RmSurfGenCreate();
  vVipsAddFreeSurfaces(gen);  // no group: nothing to do
  RmSurfaceGroups* groups = RmSurfaceGroupsCreate();
  vRmSurfGenSet<kRmSurfaceGroupsSlot>(gen, groups);
  RmSurfaceGroup* group = RmSurfaceGroupsAdd(groups, RmLayerIdMake(1, 0));
  for (int number : {-10100, 10100, 50100}) RmSurfaceAdd(group, number);
  vVipsAddFreeSurfaces(gen);  // no border lines
  group->BorderLines = RmSurfaceBorderLinesCreate();
  for (int freeSurface : {40200, 10100, -99999, 40200, -40200}) {
    RmSurfaceBorderLineAdd(group->BorderLines, 10100, 0.0)->FreeSurface = freeSurface;
  }

  vVipsAddFreeSurfaces(gen);
  std::vector<int> numbers;
  for (RmSurface* surface = RmSurfacesGetFirst(group); surface; surface = surface->Next) {
    numbers.push_back(surface->Number);
  }
  EXPECT_EQ(numbers, (std::vector<int>{-40200, -10100, 10100, 40200, 50100}));
  vRmSurfGenDelete(&gen);
}
