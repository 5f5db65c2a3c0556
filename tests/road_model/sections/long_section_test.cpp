// The long section drawn from the cross sections: terrain layers only, in
// the order of first sight, one point per cross section.
#include <gtest/gtest.h>

#include "road_model/sections/layer.h"
#include "road_model/sections/long_section.h"
#include "road_model/sections/section_set.h"

TEST(LongSection, TerrainAtTheCentreLineByChainageFromTheFirstSection) {
  RmSectionSet* cross = RmSectionSetCreate();
  EXPECT_EQ(RmSectionSetBuildLongSection(cross), nullptr);

  RmSection* first = RmSectionAdd(cross, nullptr, 200.0);
  RmLayer* rock = RmLayerAdd(first, RmLayerIdMake(4, 6));
  RmPointAdd(rock, nullptr, -0.0005, 12.0, 0);  // within 0.001 of the centre
  RmPointAdd(RmLayerAdd(first, RmLayerIdMake(3, 0)), nullptr, 0.0, 20.0, 0);
  RmSection* second = RmSectionAdd(cross, nullptr, 212.5);
  RmLayer* top = RmLayerAdd(second, RmLayerIdMake(4, 1));
  RmPointAdd(top, nullptr, -2.0, 14.0, 0);
  RmPointAdd(top, nullptr, 2.0, 16.0, 0);
  rock = RmLayerAdd(second, RmLayerIdMake(4, 6));
  RmPointAdd(rock, nullptr, -2.0, 10.0, 0);
  RmPointAdd(rock, nullptr, 2.0, -99999.0, 0);  // no height to interpolate to

  RmSectionSet* set = RmSectionSetBuildLongSection(cross);
  ASSERT_NE(set, nullptr);
  EXPECT_EQ(set->Kind, kRmLongSections);
  ASSERT_EQ(iRmSectionsGetCount(set), 1);
  const RmSection* section = RmSectionsGetFirst(set);
  EXPECT_EQ(section->Chain, 200.0);
  const struct {
    int number;
    double heights[2];
  } kLayers[] = {{6, {12.0, -99999.0}}, {1, {-99999.0, 15.0}}};
  const RmLayer* layer = RmSectionLayersGetFirst(section);
  for (const auto& expected : kLayers) {
    ASSERT_NE(layer, nullptr);
    EXPECT_EQ(layer->Id.Type, 4u);
    EXPECT_EQ(layer->Id.Number, expected.number);
    ASSERT_EQ(iRmPointsGetCount(layer), 2);
    const RmPoint* point = RmPointsGetFirst(layer);
    for (double offset : {0.0, 12.5}) {
      EXPECT_EQ(point->X, offset);
      EXPECT_EQ(point->Z, expected.heights[offset == 0.0 ? 0 : 1]) << expected.number;
      point = point->Next;
    }
    layer = layer->Next;
  }
  EXPECT_EQ(layer, nullptr);
  vRmSectionSetDelete(&set);
  vRmSectionSetDelete(&cross);
}
