// Questions to a layer: points by offset, height and code, where the sides
// begin, heights and offsets between points, slopes, arcs and equality.
#include <gtest/gtest.h>

#include "road_model/sections/layer_compare.h"
#include "road_model/sections/layer_heights.h"
#include "road_model/sections/layer_lookup.h"
#include "road_model/sections/layer_sides.h"
#include "tests/road_model/layer_test_util.h"

namespace {

const RmLayerId kPhysical = RmLayerIdMake(2, 1);
const RmLayerId kTheoretical = RmLayerIdMake(1, 0);

}  // namespace

TEST(LayerLookup, OffsetLookupsKeepTheirToleranceAndTieRules) {
  // A vertical piece at 0: two points at one offset.
  LayerPtr layer =
      MakeLayer(kPhysical, {{-5, 0}, {-2, 1}, {0, 2}, {0, 3}, {3, 4}, {6, 4}});
  EXPECT_EQ(RmPointFindNearXTol(layer.get(), 3.25, 0.25), nullptr);
  EXPECT_EQ(RmPointFindNearXTol(layer.get(), 3.25, -0.3), At(layer.get(), 4));
  EXPECT_EQ(RmPointFindNearX(layer.get(), -2.0009), At(layer.get(), 1));
  EXPECT_EQ(RmPointFindNearX(layer.get(), 1.0), nullptr);

  // From the left: the upper end of the vertical piece at its offset.
  EXPECT_EQ(RmPointFindXFromLeft(layer.get(), 0.0), At(layer.get(), 3));
  EXPECT_EQ(RmPointFindXFromLeft(layer.get(), -1.0), At(layer.get(), 2));
  EXPECT_EQ(RmPointFindXFromLeft(layer.get(), 7.0), nullptr);
  EXPECT_EQ(RmPointFindXFromRight(layer.get(), -3.0), At(layer.get(), 0));

  // The nearest offset: the walk stops when the distance grows, and of
  // equal distances the first is kept.
  EXPECT_EQ(RmPointFindClosestX(layer.get(), 2.0), At(layer.get(), 4));
  EXPECT_EQ(RmPointFindClosestX(layer.get(), 1.5), At(layer.get(), 2));

  EXPECT_EQ(RmPointFindZAbove(layer.get(), 2.5), At(layer.get(), 3));
  EXPECT_EQ(RmPointFindZBelow(layer.get(), 0.5), At(layer.get(), 0));
}

TEST(LayerLookup, PositionLookupsFindPointsAndPiecesNearAPlace) {
  LayerPtr layer = MakeLayer(kPhysical, {{-2, 1}, {0, 2}, {0, 3}, {2, kGap}, {3, 4}});
  // A point itself, or the end of the piece that passes the place.
  EXPECT_EQ(RmPointFindAt(layer.get(), 0, 3, 0.01), At(layer.get(), 2));
  EXPECT_EQ(RmPointFindAt(layer.get(), -1, 1.52, 0.05), At(layer.get(), 1));
  EXPECT_EQ(RmPointFindAt(layer.get(), -1, 1.6, 0.05), nullptr);
  // No height is made across a gap.
  EXPECT_EQ(RmPointFindAt(layer.get(), 2.5, kGap, 1.0), nullptr);

  // Among points within the radius in both directions, the nearest; of two
  // at the same distance the later.
  EXPECT_EQ(RmPointFindClosest2d(layer.get(), 0, 2.5, 1.0), At(layer.get(), 2));
  EXPECT_EQ(RmPointFindClosest2d(layer.get(), 3, 5, 1.0), At(layer.get(), 4));
  EXPECT_EQ(RmPointFindClosest2d(layer.get(), 3, 5.5, 1.0), nullptr);
  EXPECT_EQ(RmPointFindCode(layer.get(), 7), nullptr);
}

TEST(LayerSides, UncodedLayersSplitAtOffsetZero) {
  LayerPtr layer = MakeLayer(kPhysical, {{-3, 0}, {-1, 0}, {1, 0}, {2, 0}});
  EXPECT_EQ(RmPointGetSideStartAuto(layer.get(), 1), At(layer.get(), 1));
  EXPECT_EQ(RmPointGetSideStartAuto(layer.get(), 2), At(layer.get(), 2));
  EXPECT_EQ(RmPointGetSideStartAuto(layer.get(), 3), nullptr);

  // A point at the centre starts both sides and lies on both.
  LayerPtr centred = MakeLayer(kPhysical, {{-3, 0}, {0, 0}, {2, 0}});
  for (int side : {1, 2}) {
    EXPECT_EQ(RmPointGetSideStart(centred.get(), side, false), At(centred.get(), 1));
    EXPECT_TRUE(boRmPointOnSide(At(centred.get(), 1), kPhysical, side));
  }
  EXPECT_FALSE(boRmPointOnSide(At(centred.get(), 2), kPhysical, 1));

  // A layer on one side only has no start on the other.
  LayerPtr right = MakeLayer(kPhysical, {{1, 0}, {2, 0}});
  EXPECT_EQ(RmPointGetSideStart(right.get(), 1, false), nullptr);
  EXPECT_EQ(RmPointGetSideStart(right.get(), 2, false), At(right.get(), 0));
  LayerPtr left = MakeLayer(kPhysical, {{-2, 0}, {-1, 0}});
  EXPECT_EQ(RmPointGetSideStart(left.get(), 1, false), At(left.get(), 1));
  EXPECT_EQ(RmPointGetSideStart(left.get(), 2, false), nullptr);
}

TEST(LayerSides, CodedLayersSplitByTheSignsOfTheirCodes) {
  // The offsets would put the side border elsewhere; the codes decide.
  LayerPtr layer = MakeLayer(kTheoretical, {{-4, 0, -20100},
                                            {-2, 0, -10100},
                                            {-1, 0, 0},
                                            {-1, 1, 0},
                                            {1, 0, 10100},
                                            {3, 0, 20100},
                                            {5, 0, 30100}});
  EXPECT_TRUE(boRmLayerIsCoded(layer.get()));
  // Two points of one code before the first right code: the outer one.
  for (int side : {1, 2}) EXPECT_EQ(RmPointGetSideStartAuto(layer.get(), side), At(layer.get(), 2));
  vRmPointSetPcode(At(layer.get(), 2), -1);
  for (int side : {1, 2}) EXPECT_EQ(RmPointGetSideStartAuto(layer.get(), side), At(layer.get(), 3));
  EXPECT_EQ(RmPointGetSideOuter(layer.get(), 1), At(layer.get(), 0));
  EXPECT_EQ(RmPointGetSideOuter(layer.get(), 2), At(layer.get(), 6));

  // Code 0 lies on both sides.
  for (int side : {1, 2}) EXPECT_TRUE(boRmPointOnSide(At(layer.get(), 3), kTheoretical, side));
  EXPECT_FALSE(boRmPointOnSide(At(layer.get(), 4), kTheoretical, 1));

  // Exact or the point just inside; beyond the outermost code the outermost
  // point.
  EXPECT_EQ(RmPointFindCodeOnSide(layer.get(), 20100, 2), At(layer.get(), 5));
  EXPECT_EQ(RmPointFindCodeOnSide(layer.get(), 20000, 2), At(layer.get(), 4));
  EXPECT_EQ(RmPointFindCodeOnSide(layer.get(), 40000, 2), At(layer.get(), 6));
  EXPECT_EQ(RmPointFindCodeOnSide(layer.get(), -15000, 1), At(layer.get(), 1));
  EXPECT_EQ(RmPointFindCodeOnSide(layer.get(), -30000, 1), At(layer.get(), 0));
  EXPECT_EQ(RmPointFindCodeFromSide(layer.get(), 20000, 2), At(layer.get(), 5));
  EXPECT_EQ(RmPointFindCodeFromSide(layer.get(), -15000, 1), At(layer.get(), 0));

  EXPECT_EQ(RmPointFindXOnSide(layer.get(), 2, 2), At(layer.get(), 4));
  EXPECT_EQ(RmPointFindXOnSide(layer.get(), 3, 2), At(layer.get(), 5));
  EXPECT_EQ(RmPointFindXFromSide(layer.get(), 3, 2), At(layer.get(), 5));
  EXPECT_EQ(RmPointFindXBeyondSide(layer.get(), 3, 2), At(layer.get(), 6));
  EXPECT_EQ(RmPointFindXBeyondSide(layer.get(), -2, 1), At(layer.get(), 0));

  // A surface kind without a real code, and a layer of another kind, are not
  // coded.
  LayerPtr uncoded = MakeLayer(kTheoretical, {{0, 0, 0}, {1, 0, -99999}});
  EXPECT_FALSE(boRmLayerIsCoded(uncoded.get()));
  LayerPtr ditch = MakeLayer(RmLayerIdMake(1, 3), {{0, 0, 10100}});
  EXPECT_FALSE(boRmLayerIsCoded(ditch.get()));

  LayerPtr families = MakeLayer(kTheoretical, {{-1, 0, -60100}, {0, 0, 5}, {1, 0, 60100},
                                               {2, 0, 60200}, {3, 0, 50100}});
  EXPECT_EQ(iRmLayerCountFamilySix(families.get(), 2), 2);
  EXPECT_EQ(iRmLayerCountFamilySix(families.get(), 1), 1);
  // The centre code 0.0005 is a right code.
  EXPECT_FALSE(boRmLayerHasFamilyZero(families.get(), 1));
  EXPECT_TRUE(boRmLayerHasFamilyZero(families.get(), 2));
}

TEST(LayerHeights, HeightsStopAtGapsUnlessFilled) {
  LayerPtr layer = MakeLayer(kPhysical, {{-2, 1}, {-1, kGap}, {0, 3}, {2, 5}});
  // At a gap's offset the gap's own value, which is no height.
  EXPECT_FALSE(boIsPresent(dRmLayerHeightAt(layer.get(), -1)));
  EXPECT_EQ(dRmLayerHeightAt(layer.get(), -1.5), -99999.0);
  EXPECT_EQ(dRmLayerHeightAt(layer.get(), 1), 4.0);
  EXPECT_EQ(dRmLayerHeightAt(layer.get(), 2.0005), 5.0);
  EXPECT_EQ(dRmLayerHeightAt(layer.get(), 3), -99999.0);
  EXPECT_EQ(dRmLayerHeightAtTol(layer.get(), 2.25, 0.25), -99999.0);
  EXPECT_EQ(dRmLayerHeightAtTol(layer.get(), 2.25, 0.3), 5.0);

  EXPECT_EQ(dRmLayerHeightAtFilled(layer.get(), -1.5), 1.5);
  EXPECT_EQ(dRmLayerHeightAtFilled(layer.get(), 5), 5.0);
  EXPECT_EQ(dRmLayerHeightAtFilled(layer.get(), -3), 1.0);
  LayerPtr gaps = MakeLayer(kPhysical, {{0, kGap}, {1, kGap}});
  EXPECT_EQ(dRmLayerHeightAtFilled(gaps.get(), 0.5), -99999.0);
}

TEST(LayerHeights, CentreHeightChoosesAmongPointsAtTheCentreByCodeAndMode) {
  LayerPtr layer = MakeLayer(kTheoretical, {{-1, 0, -10100}, {0, 7, -1}, {0, 8, 0}, {0, 9, 1},
                                            {1, 0, 10100}});
  EXPECT_EQ(dRmLayerCenterHeight(layer.get(), 0), 8.0);
  EXPECT_EQ(dRmLayerCenterHeight(layer.get(), 1), 8.0);
  EXPECT_EQ(dRmLayerCenterHeight(layer.get(), 2), 9.0);
  // Without a centre code the left code's height is taken, except in mode 2.
  vRmPointSetPcode(At(layer.get(), 2), 2);
  EXPECT_EQ(dRmLayerCenterHeight(layer.get(), 0), 7.0);
  EXPECT_EQ(dRmLayerCenterHeight(layer.get(), 2), 8.0);
  // No point at the centre: the height there.
  LayerPtr plain = MakeLayer(kPhysical, {{-1, 2}, {1, 4}});
  EXPECT_EQ(dRmLayerCenterHeight(plain.get(), 0), 3.0);
}

TEST(LayerHeights, OffsetsAtAHeightLieBetweenAPointAndItsInnerNeighbour) {
  LayerPtr layer = MakeLayer(kTheoretical,
                             {{-4, 0, -20100}, {-2, 2, -10100}, {0, 3, 0}, {2, 2, 10100},
                              {4, 0, 20100}});
  EXPECT_EQ(dRmLayerOffsetAtHeight(1, At(layer.get(), 4), 2), 3.0);
  EXPECT_EQ(dRmLayerOffsetAtHeight(0.5, At(layer.get(), 0), 1), -3.5);
  EXPECT_EQ(dRmLayerOffsetAtHeight(0.0005, At(layer.get(), 4), 2), 4.0);
  EXPECT_EQ(dRmLayerOffsetAtHeight(2, At(layer.get(), 4), 2), -99999.0);
  EXPECT_EQ(dRmLayerOffsetAtHeight(3.5, At(layer.get(), 4), 2), -99999.0);
  // Walking outward from the code until one piece reaches the height.
  EXPECT_EQ(dRmLayerOffsetOfCode(layer.get(), 2.5, 10000, 2), 1.0);
  EXPECT_EQ(dRmLayerOffsetOfCode(layer.get(), 1, 10000, 2), 3.0);
  EXPECT_EQ(dRmLayerOffsetOfCode(layer.get(), 3.5, 10000, 2), -99999.0);
}

TEST(LayerSlopes, SlopesTakeTheirNeighbourAndRunAsEachOneSays) {
  LayerPtr layer = MakeLayer(kPhysical, {{0, 0}, {2, 1}, {2, 3}, {4, 3}, {6, kGap}});
  RmPoint* first = At(layer.get(), 0);
  RmPoint* low = At(layer.get(), 1);
  RmPoint* high = At(layer.get(), 2);
  EXPECT_EQ(dRmPointSlopeByOffset(layer.get(), first, true), 0.5);
  EXPECT_EQ(dRmPointSlopeByOffset(layer.get(), first, false), 0.0);
  EXPECT_EQ(dRmPointSlopeByCode(layer.get(), low, true), 0.5);
  EXPECT_EQ(dRmPointSlopeByCode(layer.get(), low, false), -99999.0);
  EXPECT_EQ(dRmPointSlopeByOffset(layer.get(), At(layer.get(), 3), false), 0.0);
  EXPECT_EQ(dRmPointSlopeAbs(layer.get(), At(layer.get(), 3), false), 0.0);
  // The last point is taken for a null one; its neighbour is a gap.
  EXPECT_EQ(dRmPointSlopeByCode(layer.get(), nullptr, true), -99999.0);

  // A vertical piece: 999 going up, -999 going down.
  EXPECT_EQ(dRmPointSlopeOrVertical(layer.get(), low, true), 999.0);
  EXPECT_EQ(dRmPointSlopeOrVertical(layer.get(), high, false), -999.0);
  EXPECT_EQ(dRmPointSlopeOrVertical(layer.get(), At(layer.get(), 3), true), -99999.0);

  EXPECT_EQ(fRmPointGetWidth(At(layer.get(), 3), 2), 2.0f);
  EXPECT_EQ(fRmPointGetWidth(first, 1), 2.0f);
  EXPECT_EQ(fRmPointGetWidth(first, 2), 0.0f);
}

TEST(LayerSlopes, TheRadiusOfAnArcIsKeptInTheOuterPointOfItsPiece) {
  LayerPtr layer = MakeLayer(kTheoretical, {{-3, 0, -20100, 5}, {-1, 1, -10100, 6},
                                            {0, 1, 0, 8}, {2, 0, 10100, 7}, {3, kGap, 0, 1},
                                            {4, 0, 0, 2}});
  EXPECT_EQ(fRmPointGetArcRadius(At(layer.get(), 0)), 0.0f);
  EXPECT_EQ(fRmPointGetArcRadius(At(layer.get(), 1)), 5.0f);
  EXPECT_EQ(RmPointGetArcOwner(At(layer.get(), 1)), At(layer.get(), 0));
  // A point without code: the code of the point before it decides.
  EXPECT_EQ(fRmPointGetArcRadius(At(layer.get(), 2)), 6.0f);
  EXPECT_EQ(fRmPointGetArcRadius(At(layer.get(), 3)), 7.0f);
  // After a gap there is no arc.
  EXPECT_EQ(fRmPointGetArcRadius(At(layer.get(), 5)), 0.0f);
  EXPECT_EQ(RmPointGetArcOwner(At(layer.get(), 5)), nullptr);
  // Without a code of its own, a point after a right code keeps its radius.
  EXPECT_EQ(fRmPointGetArcRadius(At(layer.get(), 4)), 1.0f);
}

TEST(LayerCompare, ATolerancePassesAnEqualDifferenceAndCodesMustMatch) {
  LayerPtr a = MakeLayer(kPhysical, {{0, 1, 5, 0, 1}, {2, 3, 6}});
  LayerPtr b = MakeLayer(kPhysical, {{0.5, 1, 5, 0, 1}, {2, 3.5, 6}});
  EXPECT_TRUE(boRmLayersEqual(a.get(), b.get(), 0.5));
  EXPECT_FALSE(boRmLayersEqual(a.get(), b.get(), 0.25));
  vRmPointSetMark(At(b.get(), 0), 2);
  EXPECT_FALSE(boRmLayersEqual(a.get(), b.get(), 1.0));
  vRmPointSetMark(At(b.get(), 0), 1);
  vAddRows(a.get(), {{4, 4}});
  EXPECT_FALSE(boRmLayersEqual(a.get(), b.get(), 1.0));

  double place[2] = {0.25, 1.25};
  EXPECT_TRUE(boRmPointNear(At(a.get(), 0), place, 0.25));
  EXPECT_FALSE(boRmPointNear(At(a.get(), 0), place, 0.125));
  EXPECT_TRUE(boRmPointsSamePosition(At(a.get(), 0), At(b.get(), 0), 0.5));
  At(b.get(), 0)->Radius = 1.0f;
  EXPECT_FALSE(boRmPointsSamePosition3(At(a.get(), 0), At(b.get(), 0), 0.5));

  LayerPtr ring = MakeLayer(kPhysical, {{0, 0}, {1, 0}, {0.0001, 0.0001}});
  EXPECT_TRUE(boRmLayerIsClosed(ring.get()));
  At(ring.get(), 2)->X = 0.0003f;
  EXPECT_FALSE(boRmLayerIsClosed(ring.get()));
  LayerPtr empty = MakeLayer(kPhysical, {});
  EXPECT_TRUE(boRmLayerIsClosed(empty.get()));
}
