#include <gtest/gtest.h>

#include <cmath>

#include "geometry/line_measure.h"
#include "road_model/lines/line_alignment.h"
#include "road_model/lines/line_chainage.h"
#include "road_model/lines/vertical_curves.h"
#include "road_model/lines/vertical_heights.h"
#include "road_model/lines/vertical_line.h"
#include "tests/support/owned.h"

namespace {

constexpr double kStartChain = 1000.0;
constexpr double kStraight = 100.0;
// Clothoid from a straight into the arc's radius.
constexpr double kRadius = 50.0;
constexpr double kClothoidLength = 40.0;
// The arc turns three quarters of a circle: more than half.
constexpr double kSweep = 1.5 * M_PI;
constexpr double kLastStraight = 20.0;

// The clothoid that leaves (0, 0) heading along x and reaches the curvature
// 1 / kRadius after kClothoidLength, integrated by Simpson's rule.
ViPoint2d ClothoidPoint(double s) {
  const int steps = 2000;
  double h = s / steps, x = 0.0, y = 0.0;
  for (int i = 0; i <= steps; ++i) {
    double t = i * h;
    double angle = t * t / (2.0 * kRadius * kClothoidLength);
    double weight = (i == 0 || i == steps) ? 1.0 : (i % 2 ? 4.0 : 2.0);
    x += weight * std::cos(angle);
    y += weight * std::sin(angle);
  }
  return ViPoint2d{kStraight + x * h / 3.0, y * h / 3.0};
}

double ClothoidDirection(double s) { return s * s / (2.0 * kRadius * kClothoidLength); }

struct Expected {
  ViPoint2d point;
  double direction;
};

// The line: straight, clothoid, arc of three quarters, straight.
struct Alignment {
  Owned<RmLines, vRmLinesDelete> lines{RmLinesCreate()};
  RmLine* line = RmLinesAddWithId(lines, 1, false);
  ViPoint2d arcCenter{};
  double arcStartAngle = 0.0;

  Alignment() {
    ViPoint2d clothoidEnd = ClothoidPoint(kClothoidLength);
    double theta = ClothoidDirection(kClothoidLength);
    arcCenter = {clothoidEnd.x - kRadius * std::sin(theta),
                 clothoidEnd.y + kRadius * std::cos(theta)};
    arcStartAngle = theta - M_PI / 2.0;
    vRmLineSetStartChain(line, kStartChain);
    // The points where the pieces meet; the clothoid and the arc are set on
    // their start points.
    double chain = kStartChain;
    for (double length : {0.0, kStraight, kClothoidLength, kSweep * kRadius, kLastStraight}) {
      chain += length;
      LiLineAddP(line, At(chain).point.x, At(chain).point.y, 0.0);
    }
    EXPECT_TRUE(boLiElmSetClotoide(line, 1, 0.0, kRadius, std::sqrt(kRadius * kClothoidLength)));
    EXPECT_TRUE(boLiElmSet2pArc(line, 2, kRadius, true));
  }

  ViPoint2d OnArc(double angle) const {
    return {arcCenter.x + kRadius * std::cos(angle), arcCenter.y + kRadius * std::sin(angle)};
  }

  // Where the line is at `chain`, worked out piece by piece.
  Expected At(double chain) const {
    double s = chain - kStartChain;
    if (s <= kStraight) return {{s, 0.0}, 0.0};
    s -= kStraight;
    if (s <= kClothoidLength) return {ClothoidPoint(s), ClothoidDirection(s)};
    s -= kClothoidLength;
    if (s <= kSweep * kRadius) {
      double angle = arcStartAngle + s / kRadius;
      return {OnArc(angle), angle + M_PI / 2.0};
    }
    s -= kSweep * kRadius;
    ViPoint2d arcEnd = OnArc(arcStartAngle + kSweep);
    double leave = arcStartAngle + kSweep + M_PI / 2.0;
    return {{arcEnd.x + s * std::cos(leave), arcEnd.y + s * std::sin(leave)}, leave};
  }
};

}  // namespace

TEST(LineChainage, PointsAtChainAndOffsetAndBackOnStraightsArcsAndClothoids) {
  Alignment alignment;
  double total = kStraight + kClothoidLength + kSweep * kRadius + kLastStraight;
  EXPECT_NEAR(dLiLineLength(alignment.line), total, 1e-9);
  // Chainages on every piece, the arc's far side and the piece ends among
  // them; offsets are square to the line and negative to the left.
  const double chains[] = {1000.0, 1050.0, 1100.0, 1110.0, 1125.0, 1140.0,
                           1160.0, 1200.0, 1240.0, 1300.0, 1370.0, 1385.0, 1000.0 + total};
  for (double chain : chains) {
    Expected expected = alignment.At(chain);
    for (double offset : {0.0, -3.0, 2.5}) {
      SCOPED_TRACE(testing::Message() << "chain " << chain << ", offset " << offset);
      ViPoint2d point;
      double tangent = 0.0;
      ASSERT_TRUE(boRmLinePointAtChain(alignment.line, chain, &point, &tangent, offset));
      EXPECT_NEAR(point.x, expected.point.x + offset * std::sin(expected.direction), 1e-7);
      EXPECT_NEAR(point.y, expected.point.y - offset * std::cos(expected.direction), 1e-7);
      EXPECT_NEAR(std::remainder(tangent - expected.direction, 2.0 * M_PI), 0.0, 1e-7);

      double back = 0.0, side = 1.0;
      ASSERT_TRUE(boRmLineChainAtPoint(alignment.line, point.x, point.y, -1.0, &back, &side));
      EXPECT_NEAR(back, chain, 1e-6);
      EXPECT_NEAR(side, offset, 1e-6);
      if (offset == 0.0) continue;
      double distance = 0.0;
      EXPECT_EQ(iRmLineSideOf(alignment.line, point.x, point.y, -1.0, &distance),
                offset < 0 ? -1 : 1);
      EXPECT_NEAR(distance, offset, 1e-6);
    }
  }
}

TEST(LineChainage, EndsAndMisses) {
  Alignment alignment;
  ViPoint2d point;
  EXPECT_TRUE(boRmLinePointAtChain(alignment.line, kStartChain - 0.0005, &point, nullptr, 0.0));
  EXPECT_NEAR(point.x, 0.0, 1e-12);
  EXPECT_FALSE(boRmLinePointAtChain(alignment.line, kStartChain - 0.01, &point, nullptr, 0.0));
  EXPECT_FALSE(boRmLinePointAtChain(nullptr, kStartChain, &point, nullptr, 0.0));

  double chain = 0.0;
  // Before the start: the line itself is 5 away, its extension runs through.
  EXPECT_FALSE(boRmLineChainAtPoint(alignment.line, -5.0, 0.0, 1.0, &chain, nullptr));
  EXPECT_TRUE(boRmLineChainAtPoint(alignment.line, -5.0, 0.0, 10.0, &chain, nullptr));
  EXPECT_NEAR(chain, kStartChain, 1e-9);
  EXPECT_TRUE(boRmLineChainAtPoint2(alignment.line, -5.0, 0.0, 1.0, &chain, nullptr));
  EXPECT_NEAR(chain, kStartChain - 5.0, 1e-9);
  EXPECT_FALSE(boRmLineChainAtPoint(alignment.line, 50.0, -5.0, 1.0, &chain, nullptr));

  double distance = 7.0;
  EXPECT_EQ(iRmLineSideOf(alignment.line, 50.0, -5.0, 1.0, &distance), 0);
  EXPECT_EQ(distance, 7.0);
}

TEST(LineHeight, VerticalLineFirstThenTheLineItself) {
  Owned<RmLines, vRmLinesDelete> lines(RmLinesCreate());
  RmLine* flat = RmLinesAddWithId(lines, 1, false);
  LiLineAddP(flat, 0.0, 0.0, 5.0);
  LiLineAddP(flat, 100.0, 0.0, 5.0);
  EXPECT_EQ(dRmLineHeightAt(flat, 50.0, nullptr), -99999.0);

  RmLine* spatial = RmLinesAddWithId(lines, 2, true);
  vRmLineSetStartChain(spatial, 200.0);
  LiLineAddP(spatial, 0.0, 0.0, 10.0);
  LiLineAddP(spatial, 100.0, 0.0, 30.0);
  EXPECT_NEAR(dRmLineHeightAt(spatial, 250.0, nullptr), 20.0, 1e-9);
  double low = 0.0, high = 0.0;
  RmChainRange range{190.0, 260.0};
  ASSERT_TRUE(boRmLineHeightRange(nullptr, spatial, &range, &low, &high));
  EXPECT_NEAR(low, 10.0, 1e-9);
  EXPECT_NEAR(high, 22.0, 1e-9);

  RmVerLine* verLine = RmVerLineCreate();
  RmVerPointAdd(verLine, 200.0, 1.0, 0.0, 0.0);
  RmVerPointAdd(verLine, 300.0, 3.0, 0.0, 0.0);
  iRmVerLineCompute(verLine);
  vRmLineSetVerLine(lines, spatial, verLine);
  double slope = 0.0;
  EXPECT_NEAR(dRmLineHeightAt(spatial, 250.0, &slope), 2.0, 1e-12);
  EXPECT_DOUBLE_EQ(slope, 0.02);
  RmChainRange inner{220.0, 280.0};
  ASSERT_TRUE(boRmLineHeightRange(verLine, spatial, &inner, &low, &high));
  EXPECT_NEAR(low, 1.4, 1e-12);
  EXPECT_NEAR(high, 2.6, 1e-12);
  ASSERT_TRUE(boRmLineHeightRange(verLine, spatial, nullptr, &low, &high));
  EXPECT_EQ(low, 1.0);
  EXPECT_EQ(high, 3.0);
  RmChainRange outside{400.0, 500.0};
  EXPECT_FALSE(boRmLineHeightRange(verLine, spatial, &outside, &low, &high));
}

TEST(LineAlignment, ElementsBecomeStraightsArcsAndClothoids) {
  Owned<RmLines, vRmLinesDelete> lines(RmLinesCreate());
  RmLine* line = RmLinesAddWithId(lines, 3, false);
  const double half = 50.0 * M_PI;
  vRmLineSetStartChain(line, 99.0);
  // A half circle exactly is the smaller arc; three quarters are the larger.
  RmLineAddAlignmentElement(line, {0.0, half, 50.0, 50.0, 0.0, 0, 0, 0, 100}, true);
  RmLineAddAlignmentElement(line, {half, 2.5 * half, -50.0, -50.000001, 0.0, 0, 100, -50, 150},
                            false);
  RmLineAddAlignmentElement(line, {0.0, 9.0, 0.0, 100.0, 30.0, -50, 150, -59, 150}, false);
  RmLineAddAlignmentElement(line, {0.0, 10.0, 0.0, 0.0, 0.0, -59, 150, -69, 150}, false);
  // A tenth of a millimetre beyond the half circle is the larger arc.
  RmLineAddAlignmentElement(line, {0.0, half + 0.0001, 50.0, 50.0, 0.0, -69, 150, -169, 150},
                            false);
  EXPECT_EQ(dRmLineGetStartChain(line), 0.0);
  ASSERT_EQ(iLiLineGetElmCount(line), 6);
  EXPECT_TRUE(boLiElmIsLarge(line, 4));
  // Each piece is set on the point where it starts.
  EXPECT_EQ(LiElmGetType(line, 0), kLiElmArc2p);
  EXPECT_FALSE(boLiElmIsLarge(line, 0));
  EXPECT_EQ(LiElmGetType(line, 1), kLiElmArc2p);
  EXPECT_TRUE(boLiElmIsLarge(line, 1));
  EXPECT_EQ(dLiElmGetRadius(line, 1), -50.0);
  EXPECT_EQ(LiElmGetType(line, 2), kLiElmClothoid);
  EXPECT_EQ(LiElmGetType(line, 3), kLiElmStraight);
  EXPECT_NEAR(dLiElmLength(line, 1), 1.5 * half, 1e-9);
  // A second alignment of the same id goes on behind and sets the start.
  RmLineAddAlignmentElement(line, {500.0, 510.0, 0.0, 0.0, 0.0, 0, 0, 10, 0}, true);
  EXPECT_EQ(iLiLineGetElmCount(line), 8);
  EXPECT_EQ(dRmLineGetStartChain(line), 500.0);
}
