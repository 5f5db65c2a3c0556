// Parallels of lines and polygons.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "geometry/line_measure.h"
#include "geometry/line_parallel.h"
#include "geometry/polygon.h"

namespace {

struct LineDeleter {
  LiLine* line;
  ~LineDeleter() { vLiLineDelete(&line); }
};

void ExpectPoint(const LiLine* line, LiElm elm, double x, double y) {
  ViPoint2d point;
  vLiElmGetP2d(line, elm, &point);
  EXPECT_NEAR(point.x, x, 1e-9) << elm;
  EXPECT_NEAR(point.y, y, 1e-9) << elm;
}

}  // namespace

TEST(Parallel, OpenLineCutsItsCornersAndKeepsArcs) {
  LiLine* line = LiLineCreate(false);
  LineDeleter guard{line};
  LiLineAddP2d(line, 0.0, 0.0);
  const LiElm corner = LiLineAddP2d(line, 10.0, 0.0);
  LiLineAddP2d(line, 10.0, 10.0);
  LiLineAddArc2PTo(line, 0.0, 20.0, 10.0);  // left quarter about (0, 10)
  vLiElmSetData(line, corner, 0, 10203);
  vLiElmSetText(line, corner, "corner");

  LiLine* right = LiLineCreateParallel(line, 1.0);
  LineDeleter rightGuard{right};
  ASSERT_EQ(iLiLineGetElmCount(right), 4);
  ExpectPoint(right, 0, 0.0, -1.0);
  ExpectPoint(right, 1, 11.0, -1.0);
  ExpectPoint(right, 2, 11.0, 10.0);
  ExpectPoint(right, 3, 0.0, 21.0);
  EXPECT_EQ(iLiElmGetData(right, 1, 0), 10203);
  EXPECT_STREQ(sLiElmGetText(right, 1), "corner");
  EXPECT_EQ(LiElmGetType(right, 3), kLiElmArc2p);
  EXPECT_DOUBLE_EQ(dLiElmGetRadius(right, 3), 11.0);
  EXPECT_NEAR(dLiElmLength(right, 3), 11.0 * std::numbers::pi / 2.0, 1e-9);

  // To the left the arc shrinks.
  LiLine* left = LiLineCreateParallel(line, -2.0);
  LineDeleter leftGuard{left};
  ASSERT_EQ(iLiLineGetElmCount(left), 4);
  ExpectPoint(left, 1, 8.0, 2.0);
  EXPECT_DOUBLE_EQ(dLiElmGetRadius(left, 3), 8.0);
  EXPECT_EQ(LiLineCreateParallel(nullptr, 1.0), nullptr);
}

TEST(Parallel, PolygonGrowsOutwardToTheRight) {
  YgPolygon* square = YgPolygonCreate();
  LineDeleter guard{square};
  LiLineAddP2d(square, 0.0, 0.0);
  LiLineAddP2d(square, 10.0, 0.0);
  LiLineAddP2d(square, 10.0, 10.0);
  LiLineAddP2d(square, 0.0, 10.0);
  LiLine* grown = LiLineCreateParallel(square, 1.0);
  LineDeleter grownGuard{grown};
  ASSERT_EQ(iLiLineGetElmCount(grown), 4);
  EXPECT_TRUE(boLiLineIsPolygon(grown));
  ExpectPoint(grown, 0, -1.0, -1.0);
  EXPECT_NEAR(dYgPolygonArea(grown, nullptr), 144.0, 1e-9);
}
