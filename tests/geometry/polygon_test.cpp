// Polygon areas and the three boolean operations on shapes whose results are
// known.
#include "geometry/polygon.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "tests/geometry/geometry_test_util.h"

namespace {

using testing::DoubleNear;
using testing::ElementsAre;

// Adds an axis-parallel rectangle as a ring, counter-clockwise unless
// `clockwise`.
void AddRectangle(YgPolygon* polygon, double x0, double y0, double x1, double y1,
                  bool clockwise = false) {
  const double xs[4] = {x0, x1, x1, x0};
  const double ys[4] = {y0, y0, y1, y1};
  for (int k = 0; k < 4; ++k) {
    const int i = clockwise ? (4 - k) % 4 : k;
    if (k == 0 && iYgElmGetCount(polygon) > 0) {
      LiLineAddPInvisible(polygon, xs[i], ys[i]);
    } else {
      LiLineAddP2d(polygon, xs[i], ys[i]);
    }
  }
}

YgPolygon* Rectangle(double x0, double y0, double x1, double y1) {
  YgPolygon* polygon = YgPolygonCreate();
  AddRectangle(polygon, x0, y0, x1, y1);
  return polygon;
}

std::vector<double> PartAreas(const YgPolygon* polygon) {
  std::vector<double> areas;
  for (LiElm elm = YgElmGetFirst(polygon); elm != kLiNoElm; elm = YgElmGetNext(polygon, elm)) {
    if (boLiElmIsPartStart(polygon, elm)) areas.push_back(dYgPolygonPartArea(polygon, elm, 0));
  }
  return areas;
}

}  // namespace

TEST(PolygonArea, SignedAreaAndCentroidOfStraightAndCurvedRings) {
  OwnedPolygon square(Rectangle(2.0, 0.0, 6.0, 3.0));
  double centroidX = 0.0;
  EXPECT_NEAR(dYgPolygonArea(square, &centroidX), 12.0, 1e-12);
  EXPECT_NEAR(centroidX, 4.0, 1e-12);

  OwnedPolygon clockwise(YgPolygonCreate());
  AddRectangle(clockwise, 2.0, 0.0, 6.0, 3.0, true);
  EXPECT_NEAR(dYgPolygonArea(clockwise, nullptr), -12.0, 1e-12);
  EXPECT_NEAR(dYgPolygonPartArea(clockwise, 0, 1), 12.0, 1e-12);

  // A quarter disc of radius 3: area pi r^2 / 4, centroid at 4r / 3pi.
  OwnedPolygon quarter(YgPolygonCreate());
  LiLineAddP2d(quarter, 0.0, 0.0);
  LiLineAddP2d(quarter, 3.0, 0.0);
  LiLineAddArc2PTo(quarter, 0.0, 3.0, 3.0);
  EXPECT_NEAR(dYgPolygonArea(quarter, &centroidX), kPi * 9.0 / 4.0, 1e-9);
  EXPECT_NEAR(centroidX, 4.0 / kPi, 1e-9);

  // Far from the origin the same shape keeps its precision.
  OwnedPolygon far(YgPolygonCreate());
  LiLineAddP2d(far, 6500000.0, 600000.0);
  LiLineAddP2d(far, 6500003.0, 600000.0);
  LiLineAddArc2PTo(far, 6500000.0, 600003.0, 3.0);
  EXPECT_NEAR(dYgPolygonArea(far, &centroidX), kPi * 9.0 / 4.0, 1e-7);
  EXPECT_NEAR(centroidX, 6500000.0 + 4.0 / kPi, 1e-7);
  EXPECT_EQ(dYgPolygonArea(nullptr, &centroidX), 0.0);
}

TEST(PolygonClip, ThreeOperationsOnOverlappingSquares) {
  OwnedPolygon a(Rectangle(0.0, 0.0, 10.0, 10.0));
  OwnedPolygon b(Rectangle(5.0, 0.0, 15.0, 10.0));

  struct Case {
    int operation;
    double area, minX, maxX;
  };
  for (auto [operation, area, minX, maxX] : {Case{kYgClipIntersection, 50.0, 5.0, 10.0},
                                             {kYgClipDifference, 50.0, 0.0, 5.0},
                                             {kYgClipUnion, 150.0, 0.0, 15.0}}) {
    OwnedPolygon result(pYgPolygonPolygonClip(a, b, operation));
    ASSERT_NE(result, nullptr) << operation;
    EXPECT_TRUE(boLiLineIsPolygon(result));
    EXPECT_NEAR(dYgPolygonArea(result, nullptr), area, 1e-9) << operation;
    EXPECT_EQ(PartAreas(result).size(), 1u) << operation;
    ViExtent extent;
    vYgPolygonGetExtent(result, &extent);
    EXPECT_TRUE(ExtentNear(extent, minX, 0.0, maxX, 10.0)) << operation;
  }

  // Nothing in common, an unknown operation, empty operands.
  OwnedPolygon away(Rectangle(20.0, 0.0, 21.0, 1.0));
  EXPECT_EQ(pYgPolygonPolygonClip(a, away, kYgClipIntersection), nullptr);
  EXPECT_EQ(pYgPolygonPolygonClip(a, b, 4), nullptr);
  EXPECT_EQ(pYgPolygonPolygonClip(nullptr, b, kYgClipDifference), nullptr);
  OwnedPolygon same(pYgPolygonPolygonClip(a, nullptr, kYgClipUnion));
  ASSERT_NE(same, nullptr);
  EXPECT_NEAR(dYgPolygonArea(same, nullptr), 100.0, 1e-9);
}

TEST(PolygonClip, HolesAndDisjointParts) {
  // A square with a hole that runs the same way round: the inner ring is a
  // hole all the same.
  OwnedPolygon frame(Rectangle(0.0, 0.0, 10.0, 10.0));
  AddRectangle(frame, 3.0, 3.0, 7.0, 7.0);
  OwnedPolygon leftHalf(Rectangle(0.0, 0.0, 5.0, 10.0));
  OwnedPolygon cut(pYgPolygonPolygonClip(frame, leftHalf, kYgClipIntersection));
  ASSERT_NE(cut, nullptr);
  EXPECT_NEAR(dYgPolygonArea(cut, nullptr), 50.0 - 8.0, 1e-9);

  // Punching the hole: outer ring first, counter-clockwise, then the hole,
  // clockwise.
  OwnedPolygon outer(Rectangle(0.0, 0.0, 10.0, 10.0));
  OwnedPolygon inner(Rectangle(3.0, 3.0, 7.0, 7.0));
  OwnedPolygon holed(
      pYgPolygonPolygonClipAndSortPartsForIslands(outer, inner, kYgClipDifference, 1));
  ASSERT_NE(holed, nullptr);
  EXPECT_THAT(PartAreas(holed), ElementsAre(DoubleNear(100.0, 1e-9), DoubleNear(-16.0, 1e-9)));
  EXPECT_NEAR(dYgPolygonArea(holed, nullptr), 84.0, 1e-9);

  // Union of two disjoint squares, given right one first: two parts, sorted
  // from left to right.
  OwnedPolygon right(Rectangle(5.0, 0.0, 7.0, 1.0));
  OwnedPolygon left(Rectangle(0.0, 0.0, 1.0, 1.0));
  OwnedPolygon pair(pYgPolygonPolygonClipAndSortPartsForIslands(right, left, kYgClipUnion, 1));
  ASSERT_NE(pair, nullptr);
  EXPECT_THAT(PartAreas(pair), ElementsAre(DoubleNear(1.0, 1e-9), DoubleNear(2.0, 1e-9)));
  EXPECT_EQ(YgElmGetType(pair, 3), kLiElmInvisible);

  // An island in the hole follows its own group, after the holed ring.
  OwnedPolygon island(Rectangle(4.0, 4.0, 6.0, 6.0));
  OwnedPolygon nested(pYgPolygonPolygonClipAndSortPartsForIslands(holed, island, kYgClipUnion, 0));
  ASSERT_NE(nested, nullptr);
  EXPECT_THAT(PartAreas(nested),
              ElementsAre(DoubleNear(100.0, 1e-9), DoubleNear(-16.0, 1e-9), DoubleNear(4.0, 1e-9)));
}

TEST(PolygonClip, ArcsAreReplacedByChordsWithinTheTolerance) {
  // A disc of radius 5 from two half circles, cut by the half plane x >= 0.
  OwnedPolygon disc(YgPolygonCreate());
  LiLineAddP2d(disc, -5.0, 0.0);
  LiLineAddArc2PTo(disc, 5.0, 0.0, 5.0);
  LiLineAddArc2PTo(disc, -5.0, 0.0, 5.0);
  EXPECT_NEAR(dYgPolygonArea(disc, nullptr), 25.0 * kPi, 1e-9);
  OwnedPolygon half(Rectangle(0.0, -10.0, 10.0, 10.0));
  OwnedPolygon cut(pYgPolygonPolygonClip(disc, half, kYgClipIntersection));
  ASSERT_NE(cut, nullptr);
  // Chords within 1e-4 of the circle lose at most 2/3 of that times the
  // arc's length in area.
  const double area = dYgPolygonArea(cut, nullptr);
  EXPECT_LT(area, 12.5 * kPi);
  EXPECT_GT(area, 12.5 * kPi - 1e-4 * 5.0 * kPi);
  // Every corner lies on the circle or on the cutting line, on the grid.
  for (LiElm elm = YgElmGetFirst(cut); elm != kLiNoElm; elm = YgElmGetNext(cut, elm)) {
    ViPoint2d point;
    vYgElmGetP2d(cut, elm, &point);
    EXPECT_TRUE(std::fabs(std::hypot(point.x, point.y) - 5.0) < 1e-6 || std::fabs(point.x) < 1e-6);
    EXPECT_NEAR(point.x * 1e6, std::round(point.x * 1e6), 1e-6);
  }
}

// A set keeps its polygons as a line container keeps lines; what is its own
// is that they are rings.
TEST(PolygonSet, PolygonsOfASetAreRingsAndCopiesKeepTheirIds) {
  YgPolygons* set = YgPolygonsCreate();
  YgPolygon* first = YgPolygonsCreatePolygon(set, 1);
  YgPolygon* second = YgPolygonsCreatePolygon(set, 2);
  EXPECT_TRUE(boLiLineIsPolygon(first));
  AddRectangle(second, 0.0, 0.0, 1.0, 1.0);
  EXPECT_TRUE(boYgPolygonCopy(first, second));
  EXPECT_EQ(lLiLineGetID(first), 1);
  EXPECT_EQ(iYgElmGetCount(first), 4);
  vYgPolygonsDelete(&set);
}
