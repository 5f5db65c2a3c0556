// Changes to whole layers: gaps brought into their normal form, filtered
// copies, code numbering and order, transforms and the layer as a line.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "geometry/line_measure.h"
#include "road_model/codes/layer_codes.h"
#include "road_model/sections/layer_gaps.h"
#include "road_model/sections/layer_transform.h"
#include "road_model/sections/section.h"
#include "tests/road_model/layer_test_util.h"

namespace {

const RmLayerId kPhysical = RmLayerIdMake(2, 1);
const RmLayerId kTheoretical = RmLayerIdMake(1, 0);

std::vector<double> NormalisedOffsets(std::initializer_list<PointRow> rows) {
  LayerPtr layer = MakeLayer(kPhysical, rows);
  vRmLayerNormalizeGaps(layer.get());
  return Offsets(layer.get());
}

// The offsets of the points with a height, and of the gaps as -100 - x.
std::vector<double> Shape(const RmLayer* layer) {
  return Column<double>(layer, [](const RmPoint* point) -> double {
    return boRmPointHasHeight(point) ? point->X : -100.0 - point->X;
  });
}

}  // namespace

TEST(LayerGaps, NormalisationDropsLonePointsAndRepeatedOrOuterGaps) {
  using Offsets = std::vector<double>;
  // A lone point between gaps draws nothing.
  EXPECT_EQ(NormalisedOffsets({{0, kGap}, {1, 5}, {2, kGap}}), Offsets{});
  EXPECT_EQ(NormalisedOffsets({{1, 5}}), Offsets{});
  // Runs of gaps shrink to one; gaps at the ends go.
  EXPECT_EQ(NormalisedOffsets({{0, 1}, {1, 1}, {2, kGap}, {3, kGap}, {4, kGap}, {5, 1}, {6, 1}}),
            (Offsets{0, 1, 2, 5, 6}));
  EXPECT_EQ(NormalisedOffsets({{0, kGap}, {1, 1}, {2, 1}, {3, kGap}}), (Offsets{1, 2}));
  // A lone point inside goes with the gap in front of it; a lone last point
  // goes with the gaps before it.
  EXPECT_EQ(NormalisedOffsets({{0, 1}, {1, 1}, {2, kGap}, {3, 1}, {4, kGap}, {5, 1}, {6, 1}}),
            (Offsets{0, 1, 4, 5, 6}));
  EXPECT_EQ(NormalisedOffsets({{0, 1}, {1, 1}, {2, kGap}, {3, 1}}), (Offsets{0, 1}));
  // A gap on a vertical piece goes; with equal heights on both sides the
  // point behind it goes too.
  EXPECT_EQ(NormalisedOffsets({{0, 0}, {1, 5}, {1, kGap}, {1, 7}, {2, 7}}),
            (Offsets{0, 1, 1, 2}));
  LayerPtr same = MakeLayer(kPhysical, {{0, 0}, {1, 5}, {1, kGap}, {1, 5}, {2, 7}});
  vRmLayerNormalizeGaps(same.get());
  EXPECT_EQ(Heights(same.get()), (std::vector<double>{0, 5, 7}));

  LayerPtr trimmed = MakeLayer(kPhysical, {{0, kGap}, {1, kGap}, {2, 1}, {3, kGap}, {4, 1},
                                           {5, kGap}});
  EXPECT_EQ(iRmLayerTrimGaps(trimmed.get()), 1);
  EXPECT_EQ(Shape(trimmed.get()), (std::vector<double>{2, -103, 4}));
  EXPECT_EQ(iRmLayerTrimGaps(trimmed.get()), 0);
  EXPECT_EQ(iRmLayerTrimGaps(nullptr), 0);
}

TEST(LayerFilters, ACodeFilterKeepsTheInnerBorderPointOfEachRun) {
  // On the right the border point lies before the run, on the left after.
  LayerPtr right = MakeLayer(kTheoretical, {{0, 1, 0}, {1, 1, 10100}, {2, 1, 20100},
                                            {3, 1, 30100}, {4, 1, 40100}});
  LayerPtr kept = LayerPtr(RmLayerFilterByCode(right.get(), "2.01:3.01"));
  EXPECT_EQ(kept->Id.Number, kTheoretical.Number);
  EXPECT_EQ(Codes(kept.get()), (std::vector<int>{10100, 20100, 30100}));

  LayerPtr left = MakeLayer(kTheoretical, {{-4, 1, -40100}, {-3, 1, -30100}, {-2, 1, -20100},
                                           {-1, 1, -10100}, {0, 1, 0}});
  kept = LayerPtr(RmLayerFilterByCode(left.get(), "-3.01:-2.01"));
  EXPECT_EQ(Codes(kept.get()), (std::vector<int>{-30100, -20100, -10100}));

  // Two runs on one side: a gap between them.
  LayerPtr runs = MakeLayer(kTheoretical, {{1, 1, 10100}, {2, 1, 20100}, {3, 1, 30100},
                                           {4, 1, 40100}, {5, 1, 50100}, {6, 1, 60100},
                                           {7, 1, 70100}});
  kept = LayerPtr(RmLayerFilterByCode(runs.get(), "1.01:2.01,5.01:6.01"));
  EXPECT_EQ(Shape(kept.get()), (std::vector<double>{1, 2, -103, 4, 5, 6}));
  // An empty filter keeps everything.
  kept = LayerPtr(RmLayerFilterByCode(runs.get(), ""));
  EXPECT_EQ(iRmPointsGetCount(kept.get()), 7);
  EXPECT_EQ(RmLayerFilterByCode(nullptr, ""), nullptr);
}

TEST(LayerFilters, MarkAndValidityFilters) {
  LayerPtr layer = MakeLayer(kPhysical, {{0, 1, 0, 0, 2}, {1, 1, 0, 0, 2}, {2, 1, 0, 0, 0},
                                         {3, 1, 0, 0, 0}, {4, 1, 0, 0, 0}, {5, 1, 0, 0, 2},
                                         {6, 1, 0, 0, 2}});
  LayerPtr kept = LayerPtr(RmLayerFilterByMark(layer.get(), "2"));
  EXPECT_EQ(Shape(kept.get()), (std::vector<double>{0, 1, 2, -103, 4, 5, 6}));
  kept = LayerPtr(RmLayerFilterByMark(layer.get(), ""));
  EXPECT_EQ(iRmPointsGetCount(kept.get()), 7);
  // The mark filter first, then the code filter on what it kept.
  kept = LayerPtr(RmLayerFilterByCodeAndMark(layer.get(), "2", "0"));
  EXPECT_EQ(Shape(kept.get()), (std::vector<double>{0, 1, 2, -103, 4, 5, 6}));

  LayerPtr mixed = MakeLayer(kPhysical, {{0, 1, 10100}, {1, kGap, 10100}, {2, 1, 10100},
                                         {3, 1, 20100}, {4, 1, 10100}, {5, kGap, 10100}});
  kept = LayerPtr(RmLayerFilterValid(mixed.get(), "1.01"));
  EXPECT_EQ(Shape(kept.get()), (std::vector<double>{0, -101, 2, -103, 4}));
}

TEST(LayerCodes, RenumberingCountsOutwardFromTheCentreAndFollowsAReference) {
  LayerPtr layer = MakeLayer(kTheoretical, {{-2, 1, 0, 0, 1}, {-1, 1}, {0, 1}, {1, 1}, {2, 1}});
  vRmLayerRenumber(layer.get(), nullptr, 0.001);
  EXPECT_EQ(Codes(layer.get()), (std::vector<int>{-3, -2, 1, 2, 3}));
  // Each point takes its inner neighbour's mark.
  EXPECT_EQ(iRmPointGetMark(At(layer.get(), 0)), 0);

  LayerPtr reference = MakeLayer(kTheoretical, {{1.0005, 0, 20100, 0, 1}});
  vRmLayerRenumber(layer.get(), reference.get(), 0.001);
  EXPECT_EQ(Codes(layer.get()), (std::vector<int>{-3, -2, 1, 20100, 20101}));
  EXPECT_EQ(iRmPointGetMark(At(layer.get(), 4)), 1);

  // Without a point at the centre or right of it: the last point, on the
  // left.
  LayerPtr left = MakeLayer(kTheoretical, {{-2, 1}, {-1, 1}});
  vRmLayerRenumber(left.get(), nullptr, 0.001);
  EXPECT_EQ(Codes(left.get()), (std::vector<int>{-2, -1}));
}

TEST(LayerCodes, CodeOrderRisesOutwardOnEachSideOrAroundAClosedOutline) {
  LayerPtr open = MakeLayer(kTheoretical, {{-2, 0, -50}, {-1, 0, -100}, {0, 0, 0}, {1, 0, 300},
                                           {2, 0, 200}, {3, 0, 400}});
  vRmLayerEnforceCodeOrder(open.get());
  EXPECT_EQ(Codes(open.get()), (std::vector<int>{-101, -100, 0, 300, 301, 400}));

  LayerPtr closed = MakeLayer(kTheoretical, {{0, 0, 5}, {2, 0, 3}, {2, 2, 7}, {0, 0, 7}});
  vRmLayerEnforceCodeOrder(closed.get());
  EXPECT_EQ(Codes(closed.get()), (std::vector<int>{5, 6, 7, 8}));

  LayerPtr sequence = MakeLayer(kPhysical, {{0, 1}, {1, 1}, {2, 1}});
  vRmLayerCodesSequential(sequence.get());
  EXPECT_EQ(Codes(sequence.get()), (std::vector<int>{10100, 10200, 10300}));
  LayerPtr runs = MakeLayer(kPhysical, {{0, 1}, {1, 1}, {2, kGap}, {3, 1}, {4, 1}});
  vRmLayerCodesByRun(runs.get());
  EXPECT_EQ(Codes(runs.get()), (std::vector<int>{10100, 10101, 0, 20100, 20101}));
}

TEST(LayerTransform, HeightsAndOffsetsMoveAndGapsStayGaps) {
  LayerPtr layer = MakeLayer(kPhysical, {{0, 1}, {1, kGap}, {2, 3}});
  vRmLayerTransform(layer.get(), kRmLayerRaise, 0.5);
  EXPECT_EQ(Heights(layer.get()), (std::vector<double>{1.5, kGap, 3.5}));
  vRmLayerTransform(layer.get(), kRmLayerShift, -1.0);
  EXPECT_EQ(Offsets(layer.get()), (std::vector<double>{-1, 0, 1}));
  vRmLayerTransform(layer.get(), 4, 10.0);  // no such transform
  EXPECT_EQ(Offsets(layer.get()), (std::vector<double>{-1, 0, 1}));
}

TEST(LayerTransform, AParallelKeepsCodesAndClosedOutlinesStayClosed) {
  LayerPtr open = MakeLayer(kPhysical, {{0, 0, 10100}, {10, 0, 10200, 0, 2}});
  vRmLayerTransform(open.get(), kRmLayerParallel, 1.0);
  // To the right of the direction of travel, which here is down.
  EXPECT_EQ(Offsets(open.get()), (std::vector<double>{0, 10}));
  EXPECT_EQ(Heights(open.get()), (std::vector<double>{-1, -1}));
  EXPECT_EQ(Codes(open.get()), (std::vector<int>{10100, 10200}));
  EXPECT_EQ(iRmPointGetMark(At(open.get(), 1)), 2);

  // A square run anticlockwise grows outward.
  LayerPtr ring = MakeLayer(kPhysical, {{0, 0, 1}, {2, 0, 2}, {2, 2, 3}, {0, 2, 4},
                                        {0, 0, 5, 0, 3}});
  vRmLayerTransform(ring.get(), kRmLayerParallel, 0.5);
  EXPECT_EQ(Offsets(ring.get()), (std::vector<double>{-0.5, 2.5, 2.5, -0.5, -0.5}));
  EXPECT_EQ(Heights(ring.get()), (std::vector<double>{-0.5, -0.5, 2.5, 2.5, -0.5}));
  EXPECT_EQ(iRmPointGetPcode(RmPointsGetLast(ring.get())), 5);
  EXPECT_EQ(iRmPointGetMark(RmPointsGetLast(ring.get())), 3);
}

TEST(LayerTransform, ALayerAsALineBreaksAtGapsAndCarriesArcsAndCodes) {
  LayerPtr layer = MakeLayer(kPhysical, {{0, 0, 10100, 0, 1}, {1, kGap}, {2, 0, 20100},
                                         {4, 0, 30100, 1.25}});
  LiLine* line = RmLayerToLine(layer.get(), true);
  ASSERT_NE(line, nullptr);
  ASSERT_EQ(iLiLineGetElmCount(line), 3);
  // The move and the arc are the pieces of the points where they start.
  EXPECT_EQ(LiElmGetType(line, 0), kLiElmInvisible);
  EXPECT_EQ(LiElmGetType(line, 1), kLiElmArc2p);
  EXPECT_EQ(dLiElmGetRadius(line, 1), 1.25);
  EXPECT_EQ(iLiElmGetData(line, 0, 0), 10100);
  EXPECT_EQ(iLiElmGetData(line, 0, 1), 1);
  EXPECT_EQ(iLiElmGetData(line, 2, 0), 30100);

  // Back into points: a gap in front of the second part, the radius in the
  // point that holds it.
  LayerPtr back = MakeLayer(kPhysical, {});
  vRmLayerSetFromLine(back.get(), line);
  vLiLineDelete(&line);
  EXPECT_EQ(Shape(back.get()), (std::vector<double>{0, -102, 2, 4}));
  EXPECT_EQ(RmPointsGetLast(back.get())->Radius, 1.25f);
  EXPECT_EQ(iRmPointGetMark(RmPointsGetFirst(back.get())), 1);

  // Without arcs, straights; one point alone makes no line.
  line = RmLayerToLine(layer.get(), false);
  EXPECT_EQ(LiElmGetType(line, 2), kLiElmStraight);
  vLiLineDelete(&line);
  LayerPtr lone = MakeLayer(kPhysical, {{0, kGap}, {1, 1}});
  EXPECT_EQ(RmLayerToLine(lone.get(), true), nullptr);
}

TEST(LayerTransform, TheExtentOfLayersOfATypeTakesArcsAlong) {
  RmSection* section = RmSectionCreateFree();
  vAddRows(RmLayerAdd(section, RmLayerIdMake(4, 1)), {{-3, 0}, {-1, 0, 0, 1.25}});
  vAddRows(RmLayerAdd(section, RmLayerIdMake(4, 2)), {{5, 0}});
  vAddRows(RmLayerAdd(section, RmLayerIdMake(2, 1)), {{-40, 9}, {40, 9}});
  ViExtent extent;
  ASSERT_TRUE(boRmSectionLayerExtent(section, &extent, 4));
  EXPECT_EQ(extent.dMinX, -3.0);
  EXPECT_EQ(extent.dMaxX, 5.0);
  // The arc of radius 1.25 over the chord of 2 bulges half a metre from it.
  EXPECT_NEAR(std::max(-extent.dMinY, extent.dMaxY), 0.5, 1e-9);
  EXPECT_FALSE(boRmSectionLayerExtent(section, &extent, 3));
  vRmSectionDeleteFree(section);
}
