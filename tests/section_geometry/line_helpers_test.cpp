// The clean-up and measure helpers of section outlines, at the edges of
// their tolerances.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "geometry/polygon.h"
#include "section_geometry/line_cleanup.h"
#include "section_geometry/line_measures.h"
#include "section_geometry/line_normalise.h"
#include "section_geometry/line_parts.h"

namespace {

using Ring = std::vector<ViPoint2d>;

YgPolygon* PolygonOf(const std::vector<Ring>& rings) {
  YgPolygon* polygon = YgPolygonCreate();
  for (const Ring& ring : rings) {
    for (size_t k = 0; k < ring.size(); ++k) {
      if (k == 0 && iYgElmGetCount(polygon) > 0) {
        LiLineAddPInvisible(polygon, ring[k].x, ring[k].y);
      } else {
        LiLineAddP2d(polygon, ring[k].x, ring[k].y);
      }
    }
  }
  return polygon;
}

std::vector<ViPoint2d> PointsOf(const LiLine* line) {
  std::vector<ViPoint2d> points;
  for (LiElm elm = LiElmGetFirst(line); elm != kLiNoElm; elm = LiElmGetNext(line, elm)) {
    ViPoint2d point;
    vLiElmGetP2d(line, elm, &point);
    points.push_back(point);
  }
  return points;
}

const Ring kLargeSquare{{10, 0}, {20, 0}, {20, 10}, {10, 10}};
// Area 0.002: base 0.2, height 0.02.
const Ring kSmallTriangle{{0, 0}, {0.2, 0}, {0.1, 0.02}};

TEST(InterpolateNull, EqualOffsetsGivenAndMissingHeights) {
  struct Case {
    double x0, x1, y0, y1, x, expected;
  };
  const Case cases[] = {
      {10, 10, 1, 2, 10, 1},            // one offset: the first height
      {10, 10.000009, 1, 2, 10, 1},     // equal within 1e-5
      {0, 10, 1, 2, 5, 1.5},            // on the straight
      {0, 10, 1, 2, 20, 3},             // beyond it, continued
      {0, 10, 1, -99999, 5, -99999},    // a height missing
      {0, 10, -99998.5, 2, 5, -99999},  // not above -99998: missing
  };
  for (const Case& c : cases) {
    EXPECT_DOUBLE_EQ(dInterpolateNull(c.x0, c.x1, c.y0, c.y1, c.x), c.expected)
        << c.x1 << " " << c.y0;
  }
}

TEST(RemoveSmallParts, DropsSliverRingsAndEmptiesWhatIsLeftTooSmall) {
  YgPolygon* both = PolygonOf({kSmallTriangle, kLargeSquare});
  vPolygonRemoveSmallParts(both, 0.0025);
  EXPECT_EQ(PartCount(both), 1);
  EXPECT_DOUBLE_EQ(dYgPolygonArea(both, nullptr), 100.0);
  EXPECT_EQ(LiElmGetType(both, LiElmGetLast(both)), kLiElmStraight);

  // The sliver last: the large ring no longer moves on to a part.
  YgPolygon* last = PolygonOf({kLargeSquare, kSmallTriangle});
  vPolygonRemoveSmallParts(last, 0.0025);
  EXPECT_EQ(PartCount(last), 1);
  EXPECT_EQ(LiElmGetType(last, LiElmGetLast(last)), kLiElmStraight);

  YgPolygon* alone = PolygonOf({kSmallTriangle});
  vPolygonRemoveSmallParts(alone, 0.0025);
  EXPECT_EQ(iYgElmGetCount(alone), 0);

  // The limit is strict: a ring of exactly the area stays.
  YgPolygon* edge = PolygonOf({kSmallTriangle});
  vPolygonRemoveSmallParts(edge, 0.002);
  EXPECT_EQ(iYgElmGetCount(edge), 3);
  for (YgPolygon* polygon : {both, last, alone, edge}) vYgPolygonDelete(&polygon);
}

TEST(RemoveShortParts, DropsPartsShorterThanTheLimit) {
  LiLine* line = LiLineCreate(false);
  LiLineAddP2d(line, 0, 0);
  LiLineAddP2d(line, 0.05, 0);
  LiLineAddPInvisible(line, 5, 0);
  LiLineAddP2d(line, 8, 0);
  vLineRemoveShortParts(line, 0.1);
  EXPECT_EQ(PartCount(line), 1);
  EXPECT_DOUBLE_EQ(dLineMeasure(line, 1), 3.0);
  EXPECT_DOUBLE_EQ(dLineCentroidOffset(line), 6.5);
  vLiLineDelete(&line);
}

TEST(LineNormalise, SameShapeGivesSameOrderWhateverTheStart) {
  const Ring start{{0, 0}, {4, 0}, {4, 3}, {0, 3}};
  const Ring rotated{{4, 3}, {0, 3}, {0, 0}, {4, 0}};
  YgPolygon* a = PolygonOf({kLargeSquare, start});
  YgPolygon* b = PolygonOf({rotated, kLargeSquare});
  vPolygonNormalise(a);
  vPolygonNormalise(b);
  const std::vector<ViPoint2d> pa = PointsOf(a);
  const std::vector<ViPoint2d> pb = PointsOf(b);
  ASSERT_EQ(pa.size(), 8u);
  ASSERT_EQ(pb.size(), pa.size());
  for (size_t k = 0; k < pa.size(); ++k) {
    EXPECT_EQ(pa[k].x, pb[k].x) << k;
    EXPECT_EQ(pa[k].y, pb[k].y) << k;
  }
  EXPECT_EQ(pa[0].x, 0.0);  // the left ring first, from its lowest left point
  EXPECT_EQ(pa[0].y, 0.0);
  EXPECT_EQ(pa[4].x, 10.0);
  EXPECT_TRUE(boLiLineIsPolygon(a));
  vYgPolygonDelete(&a);
  vYgPolygonDelete(&b);
}

TEST(LineFindLeftmost, OfEqualPointsTheLaterWins) {
  YgPolygon* polygon = PolygonOf({{{0, 1}, {0, 0}, {3, 0}, {0, 0}, {0, 2}}});
  EXPECT_EQ(LineFindLeftmost(polygon, 0), 3);
  vYgPolygonDelete(&polygon);
}

// Spikes: a square with thin folds of area 0.002 sticking out of two sides.
TEST(RemoveSpikes, RemovesTipsUpToTheLimitOfTheCall) {
  struct Case {
    const char* what;
    Ring ring;
    double limit;
    int expectedCount;
  };
  // A fold out of the bottom side, out from (4, 0) to (4.002, -2) and back
  // to (4.002, 0): the tip has both neighbours the same way, area 0.002.
  const Ring oneSpike{{0, 0}, {4, 0}, {4.002, -2}, {4.002, 0}, {10, 0}, {10, 10}, {0, 10}};
  const Ring twoSpikes{{0, 0},  {4, 0},      {4.002, -2},  {4.002, 0}, {10, 0},
                       {10, 4}, {12, 4.001}, {10, 4.002}, {10, 10},   {0, 10}};
  const Ring repeated{{0, 0}, {10, 0}, {10, 0}, {10, 10}, {0, 10}};
  const Ring wideWedge{{0, 0}, {4, 0}, {5, -2}, {6, 0}, {10, 0}, {10, 10}, {0, 10}};
  const Case cases[] = {
      {"one spike goes", oneSpike, 0.0025, 6},
      {"the second would pass the limit", twoSpikes, 0.0025, 9},
      {"both fit under a larger limit", twoSpikes, 0.01, 8},
      {"a repeated point goes", repeated, 0.0025, 4},
      {"a wedge is no fold", wideWedge, 0.0025, 7},
  };
  for (const Case& c : cases) {
    YgPolygon* polygon = PolygonOf({c.ring});
    vLineRemoveSpikes(polygon, c.limit);
    EXPECT_EQ(iYgElmGetCount(polygon), c.expectedCount) << c.what;
    vYgPolygonDelete(&polygon);
  }
}

TEST(SplitAtInvisible, EveryPartEndsOnItsFirstPoint) {
  LiLine* line = LiLineCreate(false);
  LiLineAddP2d(line, 0, 0);
  LiLineAddP2d(line, 1, 0);
  LiLineAddP2d(line, 1, 1);
  LiLineAddPInvisible(line, 5, 0);
  LiLineAddP2d(line, 6, 0);
  LiLineAddP2d(line, 5, 0);
  vLineSplitAtInvisible(line);
  EXPECT_EQ(PartCount(line), 2);
  EXPECT_EQ(iLiLineGetElmCount(line), 7);  // the first ring got its first point again
  EXPECT_DOUBLE_EQ(dLineMeasure(line, 1), 2.0 + std::sqrt(2.0) + 2.0);
  EXPECT_FALSE(boLineIsClosed(line));
  vLiLineDelete(&line);
}

}  // namespace
