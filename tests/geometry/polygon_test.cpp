// Polygon areas and the three boolean operations on shapes whose results are
// known.
#include "geometry/polygon.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

namespace {

constexpr double kPi = std::numbers::pi;

struct PolygonDeleter {
  YgPolygon* polygon;
  ~PolygonDeleter() { vYgPolygonDelete(&polygon); }
};

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

int PartCount(const YgPolygon* polygon) {
  int parts = 0;
  for (LiElm elm = YgElmGetFirst(polygon); elm != kLiNoElm; elm = YgElmGetNext(polygon, elm)) {
    if (boLiElmIsPartStart(polygon, elm)) ++parts;
  }
  return parts;
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
  YgPolygon* square = Rectangle(2.0, 0.0, 6.0, 3.0);
  PolygonDeleter guard{square};
  double centroidX = 0.0;
  EXPECT_NEAR(dYgPolygonArea(square, &centroidX), 12.0, 1e-12);
  EXPECT_NEAR(centroidX, 4.0, 1e-12);

  YgPolygon* clockwise = YgPolygonCreate();
  PolygonDeleter clockwiseGuard{clockwise};
  AddRectangle(clockwise, 2.0, 0.0, 6.0, 3.0, true);
  EXPECT_NEAR(dYgPolygonArea(clockwise, nullptr), -12.0, 1e-12);
  EXPECT_NEAR(dYgPolygonPartArea(clockwise, 0, 1), 12.0, 1e-12);

  // A quarter disc of radius 3: area pi r^2 / 4, centroid at 4r / 3pi.
  YgPolygon* quarter = YgPolygonCreate();
  PolygonDeleter quarterGuard{quarter};
  LiLineAddP2d(quarter, 0.0, 0.0);
  LiLineAddP2d(quarter, 3.0, 0.0);
  LiLineAddArc2PTo(quarter, 0.0, 3.0, 3.0);
  EXPECT_NEAR(dYgPolygonArea(quarter, &centroidX), kPi * 9.0 / 4.0, 1e-9);
  EXPECT_NEAR(centroidX, 4.0 / kPi, 1e-9);

  // Far from the origin the same shape keeps its precision.
  YgPolygon* far = YgPolygonCreate();
  PolygonDeleter farGuard{far};
  LiLineAddP2d(far, 6500000.0, 600000.0);
  LiLineAddP2d(far, 6500003.0, 600000.0);
  LiLineAddArc2PTo(far, 6500000.0, 600003.0, 3.0);
  EXPECT_NEAR(dYgPolygonArea(far, &centroidX), kPi * 9.0 / 4.0, 1e-7);
  EXPECT_NEAR(centroidX, 6500000.0 + 4.0 / kPi, 1e-7);
  EXPECT_EQ(dYgPolygonArea(nullptr, &centroidX), 0.0);
}

TEST(PolygonClip, ThreeOperationsOnOverlappingSquares) {
  YgPolygon* a = Rectangle(0.0, 0.0, 10.0, 10.0);
  YgPolygon* b = Rectangle(5.0, 0.0, 15.0, 10.0);
  PolygonDeleter guardA{a}, guardB{b};

  YgPolygon* both = pYgPolygonPolygonClip(a, b, kYgClipIntersection);
  PolygonDeleter guard1{both};
  ASSERT_NE(both, nullptr);
  EXPECT_TRUE(boLiLineIsPolygon(both));
  EXPECT_NEAR(dYgPolygonArea(both, nullptr), 50.0, 1e-9);
  ViExtent extent;
  vYgPolygonGetExtent(both, &extent);
  EXPECT_NEAR(extent.dMinX, 5.0, 1e-9);
  EXPECT_NEAR(extent.dMaxX, 10.0, 1e-9);

  YgPolygon* left = pYgPolygonPolygonClip(a, b, kYgClipDifference);
  PolygonDeleter guard2{left};
  ASSERT_NE(left, nullptr);
  EXPECT_NEAR(dYgPolygonArea(left, nullptr), 50.0, 1e-9);
  vYgPolygonGetExtent(left, &extent);
  EXPECT_NEAR(extent.dMaxX, 5.0, 1e-9);

  YgPolygon* all = pYgPolygonPolygonClip(a, b, kYgClipUnion);
  PolygonDeleter guard3{all};
  ASSERT_NE(all, nullptr);
  EXPECT_NEAR(dYgPolygonArea(all, nullptr), 150.0, 1e-9);
  EXPECT_EQ(PartCount(all), 1);

  // Nothing in common, an unknown operation, empty operands.
  YgPolygon* away = Rectangle(20.0, 0.0, 21.0, 1.0);
  PolygonDeleter guard4{away};
  EXPECT_EQ(pYgPolygonPolygonClip(a, away, kYgClipIntersection), nullptr);
  EXPECT_EQ(pYgPolygonPolygonClip(a, b, 4), nullptr);
  EXPECT_EQ(pYgPolygonPolygonClip(nullptr, b, kYgClipDifference), nullptr);
  YgPolygon* same = pYgPolygonPolygonClip(a, nullptr, kYgClipUnion);
  PolygonDeleter guard5{same};
  ASSERT_NE(same, nullptr);
  EXPECT_NEAR(dYgPolygonArea(same, nullptr), 100.0, 1e-9);
}

TEST(PolygonClip, HolesAndDisjointParts) {
  // A square with a hole that runs the same way round: the inner ring is a
  // hole all the same.
  YgPolygon* frame = Rectangle(0.0, 0.0, 10.0, 10.0);
  PolygonDeleter guardFrame{frame};
  AddRectangle(frame, 3.0, 3.0, 7.0, 7.0);
  YgPolygon* leftHalf = Rectangle(0.0, 0.0, 5.0, 10.0);
  PolygonDeleter guardHalf{leftHalf};
  YgPolygon* cut = pYgPolygonPolygonClip(frame, leftHalf, kYgClipIntersection);
  PolygonDeleter guardCut{cut};
  ASSERT_NE(cut, nullptr);
  EXPECT_NEAR(dYgPolygonArea(cut, nullptr), 50.0 - 8.0, 1e-9);

  // Punching the hole: outer ring first, counter-clockwise, then the hole,
  // clockwise.
  YgPolygon* outer = Rectangle(0.0, 0.0, 10.0, 10.0);
  YgPolygon* inner = Rectangle(3.0, 3.0, 7.0, 7.0);
  PolygonDeleter guardOuter{outer}, guardInner{inner};
  YgPolygon* holed =
      pYgPolygonPolygonClipAndSortPartsForIslands(outer, inner, kYgClipDifference, 1);
  PolygonDeleter guardHoled{holed};
  ASSERT_NE(holed, nullptr);
  const std::vector<double> holedAreas = PartAreas(holed);
  ASSERT_EQ(holedAreas.size(), 2u);
  EXPECT_NEAR(holedAreas[0], 100.0, 1e-9);
  EXPECT_NEAR(holedAreas[1], -16.0, 1e-9);
  EXPECT_NEAR(dYgPolygonArea(holed, nullptr), 84.0, 1e-9);

  // Union of two disjoint squares, given right one first: two parts, sorted
  // from left to right.
  YgPolygon* right = Rectangle(5.0, 0.0, 7.0, 1.0);
  YgPolygon* left = Rectangle(0.0, 0.0, 1.0, 1.0);
  PolygonDeleter guardRight{right}, guardLeft{left};
  YgPolygon* pair = pYgPolygonPolygonClipAndSortPartsForIslands(right, left, kYgClipUnion, 1);
  PolygonDeleter guardPair{pair};
  ASSERT_NE(pair, nullptr);
  const std::vector<double> pairAreas = PartAreas(pair);
  ASSERT_EQ(pairAreas.size(), 2u);
  EXPECT_NEAR(pairAreas[0], 1.0, 1e-9);
  EXPECT_NEAR(pairAreas[1], 2.0, 1e-9);
  EXPECT_EQ(YgElmGetType(pair, 4), kLiElmInvisible);

  // An island in the hole follows its own group, after the holed ring.
  YgPolygon* island = Rectangle(4.0, 4.0, 6.0, 6.0);
  PolygonDeleter guardIsland{island};
  YgPolygon* nested = pYgPolygonPolygonClipAndSortPartsForIslands(holed, island, kYgClipUnion, 0);
  PolygonDeleter guardNested{nested};
  ASSERT_NE(nested, nullptr);
  const std::vector<double> nestedAreas = PartAreas(nested);
  ASSERT_EQ(nestedAreas.size(), 3u);
  EXPECT_NEAR(nestedAreas[0], 100.0, 1e-9);
  EXPECT_NEAR(nestedAreas[1], -16.0, 1e-9);
  EXPECT_NEAR(nestedAreas[2], 4.0, 1e-9);
}

TEST(PolygonClip, ArcsAreReplacedByChordsWithinTheTolerance) {
  // A disc of radius 5 from two half circles, cut by the half plane x >= 0.
  YgPolygon* disc = YgPolygonCreate();
  PolygonDeleter guardDisc{disc};
  LiLineAddP2d(disc, -5.0, 0.0);
  LiLineAddArc2PTo(disc, 5.0, 0.0, 5.0);
  LiLineAddArc2PTo(disc, -5.0, 0.0, 5.0);
  EXPECT_NEAR(dYgPolygonArea(disc, nullptr), 25.0 * kPi, 1e-9);
  YgPolygon* half = Rectangle(0.0, -10.0, 10.0, 10.0);
  PolygonDeleter guardHalf{half};
  YgPolygon* cut = pYgPolygonPolygonClip(disc, half, kYgClipIntersection);
  PolygonDeleter guardCut{cut};
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

TEST(PolygonSet, IdsAndDeletion) {
  YgPolygons* set = YgPolygonsCreate();
  YgPolygon* second = YgPolygonsCreatePolygon(set, 2);
  YgPolygon* first = YgPolygonsCreatePolygon(set, 1);
  EXPECT_EQ(YgPolygonsCreatePolygon(set, 2), nullptr);
  EXPECT_TRUE(boLiLineIsPolygon(first));
  EXPECT_EQ(YgPolygonsGetFirst(set), first);
  EXPECT_EQ(YgPolygonsGetNext(set, first), second);
  EXPECT_EQ(YgPolygonsFindID(set, 2), second);
  AddRectangle(second, 0.0, 0.0, 1.0, 1.0);
  EXPECT_TRUE(boYgPolygonCopy(first, second));
  EXPECT_EQ(lLiLineGetID(first), 1);
  EXPECT_EQ(iYgElmGetCount(first), 4);
  vYgPolygonDeleteElms(first);
  EXPECT_EQ(iYgElmGetCount(first), 0);
  vYgPolygonsDeletePolygon(set, second);
  EXPECT_EQ(YgPolygonsFindID(set, 2), nullptr);
  vYgPolygonsDelete(&set);
  EXPECT_EQ(set, nullptr);
}
