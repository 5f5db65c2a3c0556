// Arcs and clothoids in lines, checked against closed-form values.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "geometry/clothoid.h"
#include "geometry/line.h"
#include "geometry/line_measure.h"
#include "tests/geometry/geometry_test_util.h"

namespace {

// The direction of the standard clothoid at `s`.
double FresnelDirection(double s, double a) { return s * s / (2.0 * a * a); }

}  // namespace

TEST(Arc, TwoPointArcHasItsMidpointAndLengthFromTheCircle) {
  OwnedLine line(LiLineCreate(false));
  const LiElm arc = LiLineAddP2d(line, 0.0, 0.0);
  const LiElm end = LiLineAddArc2PTo(line, 10.0, 0.0, 10.0);
  // The arc belongs to the point where it starts.
  ASSERT_EQ(LiElmGetType(line, arc), kLiElmArc2p);
  ASSERT_EQ(LiElmGetType(line, end), kLiElmStraight);

  // Radius 10 over a chord of 10 spans 60 degrees; a left turn bulges to the
  // right of the chord, below it.
  const double length = 10.0 * kPi / 3.0;
  EXPECT_NEAR(dLiLineLength(line), length, 1e-9);
  EXPECT_TRUE(AtLength(line, length / 2.0, 5.0, 5.0 * std::sqrt(3.0) - 10.0, 0.0));
  EXPECT_TRUE(AtLength(line, 0.0, 0.0, 0.0, -kPi / 6.0));
  EXPECT_NEAR(dLiLineGetCurvatureAtLength(line, 1.0), 0.1, 1e-12);

  // A negative radius turns right and bulges above the chord.
  ASSERT_TRUE(boLiElmSet2pArc(line, arc, -10.0, false));
  EXPECT_TRUE(AtLength(line, length / 2.0, 5.0, 10.0 - 5.0 * std::sqrt(3.0), 0.0));
  EXPECT_NEAR(dLiLineGetCurvatureAtLength(line, 1.0), -0.1, 1e-12);

  // A radius shorter than half the chord is refused and changes nothing.
  EXPECT_FALSE(boLiElmSet2pArc(line, arc, 4.0, false));
  EXPECT_DOUBLE_EQ(dLiElmGetRadius(line, arc), -10.0);
  // The last point starts no piece.
  EXPECT_FALSE(boLiElmSet2pArc(line, end, 10.0, false));
}

TEST(Arc, LargeFlagTakesTheLongWayRound) {
  OwnedLine line(LiLineCreate(false));
  const LiElm arc = LiLineAddP2d(line, 0.0, 0.0);
  LiLineAddArc2PTo(line, 10.0, 0.0, 10.0, true);
  EXPECT_TRUE(boLiElmIsLarge(line, arc));

  // The long arc's centre lies below the chord at (5, -5 sqrt 3); its middle
  // is one radius further down.
  const double length = 10.0 * (2.0 * kPi - kPi / 3.0);
  EXPECT_NEAR(dLiLineLength(line), length, 1e-9);
  EXPECT_TRUE(AtLength(line, length / 2.0, 5.0, -5.0 * std::sqrt(3.0) - 10.0, 0.0));
  ViExtent extent;
  vLiLineGetExtent(line, &extent);
  EXPECT_TRUE(ExtentNear(extent, -5.0, -5.0 * std::sqrt(3.0) - 10.0, 15.0, 0.0));
}

TEST(Arc, ThreePointArcRunsThroughItsMiddlePoint) {
  OwnedLine line(LiLineCreate(false));
  const LiElm arc = LiLineAddP2d(line, 0.0, 0.0);
  LiLineAddP2d(line, 10.0, 0.0);
  ASSERT_TRUE(boLiElmSet3pArc(line, arc, 5.0, 5.0));
  // Half the circle of radius 5 about (5, 0), over the top, clockwise.
  EXPECT_NEAR(dLiLineLength(line), 5.0 * kPi, 1e-9);
  EXPECT_TRUE(
      AtLength(line, 5.0 * kPi / 4.0, 5.0 - 5.0 * std::sqrt(0.5), 5.0 * std::sqrt(0.5), kPi / 4.0));
  // Three points on a straight line make no arc.
  EXPECT_FALSE(boLiElmSet3pArc(line, arc, 5.0, 0.0));
}

TEST(Clothoid, EndTangentAndCurvatureFollowFromRadiusAndParameter) {
  // From a straight into radius 200 with A = 100: length A^2 / R = 50 and an
  // end direction of L^2 / 2A^2 = 0.125.
  const double a = 100.0, radius = 200.0, length = 50.0;
  const ViPoint2d end = FresnelPoint(length, a);
  const ViPoint2d middle = FresnelPoint(length / 2.0, a);
  OwnedLine line(LiLineCreate(false));
  const LiElm clothoid = LiLineAddP2d(line, 0.0, 0.0);
  LiLineAddP2d(line, end.x, end.y);
  ASSERT_TRUE(boLiElmSetClotoide(line, clothoid, 0.0, radius, a));

  EXPECT_NEAR(dLiLineLength(line), length, 1e-9);
  EXPECT_TRUE(AtLength(line, 0.0, 0.0, 0.0, 0.0));
  EXPECT_TRUE(AtLength(line, length / 2.0, middle.x, middle.y, 0.03125));
  EXPECT_TRUE(AtLength(line, length, end.x, end.y, 0.125));
  EXPECT_NEAR(dLiLineGetCurvatureAtLength(line, length), 1.0 / radius, 1e-12);
  EXPECT_NEAR(dLiLineGetCurvatureAtLength(line, length / 2.0), 0.5 / radius, 1e-12);
  // Different curvatures need a parameter.
  EXPECT_FALSE(boLiElmSetClotoide(line, clothoid, 0.0, radius, 0.0));
}

TEST(Clothoid, ArcToArcPieceMatchesTheStandardCurve) {
  // Radius 500 to radius 200 with A = 150 is the piece of the standard
  // clothoid from s = A^2/500 = 45 to s = A^2/200 = 112.5.
  const double a = 150.0, s1 = 45.0, s2 = 112.5;
  const ViPoint2d start = FresnelPoint(s1, a);
  const ViPoint2d end = FresnelPoint(s2, a);
  const ViPoint2d inside = FresnelPoint(80.0, a);
  OwnedLine line(LiLineCreate(false));
  const LiElm clothoid = LiLineAddP2d(line, start.x, start.y);
  LiLineAddP2d(line, end.x, end.y);
  ASSERT_TRUE(boLiElmSetClotoide(line, clothoid, 500.0, 200.0, a));

  EXPECT_NEAR(dLiLineLength(line), s2 - s1, 1e-9);
  EXPECT_TRUE(AtLength(line, 0.0, start.x, start.y, FresnelDirection(s1, a)));
  EXPECT_TRUE(AtLength(line, 80.0 - s1, inside.x, inside.y, FresnelDirection(80.0, a)));
  EXPECT_TRUE(AtLength(line, s2 - s1, end.x, end.y, FresnelDirection(s2, a)));
  EXPECT_NEAR(dLiLineGetCurvatureAtLength(line, s2 - s1), 1.0 / 200.0, 1e-12);
}

TEST(Clothoid, StaysWithinAMicrometreOverAKilometre) {
  // A = 300 into radius 90: 1000 m that turn more than five radians. The
  // curve turns right, so it is the mirror image of the standard one.
  const double a = 300.0, length = 1000.0;
  const ViPoint2d end = FresnelPoint(length, a);
  OwnedLine line(LiLineCreate(false));
  const LiElm clothoid = LiLineAddP2d(line, 1000.0, 2000.0);
  LiLineAddP2d(line, 1000.0 + end.x, 2000.0 - end.y);
  ASSERT_TRUE(boLiElmSetClotoide(line, clothoid, 0.0, -90.0, a));
  EXPECT_NEAR(dLiLineLength(line), length, 1e-6);
  for (double s : {137.0, 500.0, 871.5, 999.0}) {
    const ViPoint2d expected = FresnelPoint(s, a);
    ViPoint3d point;
    double direction;
    ASSERT_TRUE(boLiLineGetPointAtLength(line, s, &point, &direction));
    EXPECT_TRUE(Near(point, 1000.0 + expected.x, 2000.0 - expected.y, 1e-6)) << s;
    EXPECT_NEAR(std::remainder(direction + FresnelDirection(s, a), 2.0 * kPi), 0.0, 1e-9) << s;
  }
  // Its extent reaches the turning points of the loop, beyond both ends.
  ViExtent extent;
  vLiLineGetExtent(line, &extent);
  double maxX = 0.0;
  for (int i = 0; i <= 100000; ++i) maxX = std::max(maxX, FresnelPoint(i * 0.01, a).x);
  EXPECT_NEAR(extent.dMaxX, 1000.0 + maxX, 1e-6);
  EXPECT_GT(extent.dMaxX, 1000.0 + end.x + 1.0);
}

TEST(Clothoid, RefusesATurnNoRoadCanHave) {
  // From a straight to a radius of 1 mm with A = 1: a thousand metres that
  // would turn a million radians. Such a record is refused, not integrated.
  VgClothoid clothoid{};
  EXPECT_FALSE(boVgClothoidFit(0.0, 0.0, 100.0, 0.0, 0.0, 0.001, 1.0, &clothoid));
  EXPECT_TRUE(boVgClothoidFit(0.0, 0.0, 100.0, 10.0, 0.0, 300.0, 150.0, &clothoid));
}
