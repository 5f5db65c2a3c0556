// Parallels of lines and polygons.
#include <gtest/gtest.h>

#include "geometry/line_measure.h"
#include "geometry/line_parallel.h"
#include "geometry/polygon.h"
#include "tests/geometry/geometry_test_util.h"

namespace {

ViPoint2d PointOf(const LiLine* line, LiElm elm) {
  ViPoint2d point;
  vLiElmGetP2d(line, elm, &point);
  return point;
}

}  // namespace

TEST(Parallel, OpenLineCutsItsCornersAndKeepsArcs) {
  OwnedLine line(LiLineCreate(false));
  LiLineAddP2d(line, 0.0, 0.0);
  const LiElm corner = LiLineAddP2d(line, 10.0, 0.0);
  LiLineAddP2d(line, 10.0, 10.0);
  LiLineAddArc2PTo(line, 0.0, 20.0, 10.0);  // left quarter about (0, 10)
  vLiElmSetData(line, corner, 0, 10203);
  vLiElmSetText(line, corner, "corner");

  OwnedLine right(LiLineCreateParallel(line, 1.0));
  ASSERT_EQ(iLiLineGetElmCount(right), 4);
  EXPECT_TRUE(Near(PointOf(right, 0), 0.0, -1.0));
  EXPECT_TRUE(Near(PointOf(right, 1), 11.0, -1.0));
  EXPECT_TRUE(Near(PointOf(right, 2), 11.0, 10.0));
  EXPECT_TRUE(Near(PointOf(right, 3), 0.0, 21.0));
  EXPECT_EQ(iLiElmGetData(right, 1, 0), 10203);
  EXPECT_STREQ(sLiElmGetText(right, 1), "corner");
  // The arc stays on the point where it starts.
  EXPECT_EQ(LiElmGetType(right, 2), kLiElmArc2p);
  EXPECT_DOUBLE_EQ(dLiElmGetRadius(right, 2), 11.0);
  EXPECT_NEAR(dLiElmLength(right, 2), 11.0 * kPi / 2.0, 1e-9);

  // To the left the arc shrinks.
  OwnedLine left(LiLineCreateParallel(line, -2.0));
  ASSERT_EQ(iLiLineGetElmCount(left), 4);
  EXPECT_TRUE(Near(PointOf(left, 1), 8.0, 2.0));
  EXPECT_DOUBLE_EQ(dLiElmGetRadius(left, 2), 8.0);
  EXPECT_EQ(LiLineCreateParallel(nullptr, 1.0), nullptr);
}

TEST(Parallel, PolygonGrowsOutwardToTheRight) {
  OwnedPolygon square(YgPolygonCreate());
  LiLineAddP2d(square, 0.0, 0.0);
  LiLineAddP2d(square, 10.0, 0.0);
  LiLineAddP2d(square, 10.0, 10.0);
  LiLineAddP2d(square, 0.0, 10.0);
  OwnedLine grown(LiLineCreateParallel(square, 1.0));
  ASSERT_EQ(iLiLineGetElmCount(grown), 4);
  EXPECT_TRUE(boLiLineIsPolygon(grown));
  EXPECT_TRUE(Near(PointOf(grown, 0), -1.0, -1.0));
  EXPECT_NEAR(dYgPolygonArea(grown, nullptr), 144.0, 1e-9);
}
