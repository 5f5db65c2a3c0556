// Lines: walking along them, the nearest piece and side, elements and their
// data, and the line container with its fields.
#include "geometry/line.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <memory>
#include <string>

#include "geometry/line_measure.h"
#include "geometry/line_pieces.h"
#include "geometry/lines.h"
#include "tests/geometry/geometry_test_util.h"

namespace {

// A line of every kind of piece: straight (0,0)-(10,0); a left quarter
// circle of radius 10 about (10,10) to (20,10); an invisible move to (20,20);
// a straight of type 98 to (20,30); a half circle by three points about
// (25,30) to (30,30), turning right over the top.
LiLine* MixedLine() {
  LiLine* line = LiLineCreate(true);
  LiLineAddP(line, 0.0, 0.0, 0.0);
  LiLineAddP(line, 10.0, 0.0, 1.0);
  LiLineAddArc2PTo(line, 20.0, 10.0, 10.0);
  const LiElm alt = LiLineAddPInvisible(line, 20.0, 20.0, 5.0);
  boLiElmSetType(line, alt, kLiElmStraightAlt);
  const LiElm half = LiLineAddP(line, 20.0, 30.0, 7.0);
  LiLineAddP(line, 30.0, 30.0, 7.0);
  boLiElmSet3pArc(line, half, 25.0, 35.0);
  return line;
}

}  // namespace

TEST(LineWalk, PositionAndDirectionInsideEveryKindOfPiece) {
  OwnedLine line(MixedLine());
  const double quarter = 10.0 * kPi / 2.0;
  const double half = 5.0 * kPi;
  EXPECT_NEAR(dLiLineLength(line), 10.0 + quarter + 10.0 + half, 1e-9);

  // Straight, with its height between 0 and 1.
  ViPoint3d point;
  double direction;
  ASSERT_TRUE(boLiLineGetPointAtLength(line, 4.0, &point, &direction));
  EXPECT_NEAR(point.z, 0.4, 1e-12);
  EXPECT_TRUE(AtLength(line, 4.0, 4.0, 0.0, 0.0, 1e-12));
  // Quarter circle, a third of the way round.
  EXPECT_TRUE(AtLength(line, 10.0 + quarter / 3.0, 10.0 + 10.0 * std::sin(kPi / 6.0),
                       10.0 - 10.0 * std::cos(kPi / 6.0), kPi / 6.0));
  // The invisible move has no length: the type 98 straight follows at once.
  EXPECT_TRUE(AtLength(line, 10.0 + quarter + 2.5, 20.0, 22.5, kPi / 2.0));
  // Half circle by three points, at its top.
  EXPECT_TRUE(AtLength(line, 20.0 + quarter + half / 2.0, 25.0, 35.0, 0.0));
  // At the end, within the tolerance of 0.001, and beyond it.
  EXPECT_TRUE(AtLength(line, dLiLineLength(line) + 0.0009, 30.0, 30.0, -kPi / 2.0));
  EXPECT_FALSE(boLiLineGetPointAtLength(line, dLiLineLength(line) + 0.002, &point, &direction));
  EXPECT_FALSE(boLiLineGetPointAtLength(line, -0.002, &point, &direction));
  EXPECT_FALSE(boLiLineGetPointAtLength(nullptr, 0.0, &point, &direction));

  // Parts: the invisible move starts the second one.
  EXPECT_TRUE(boLiElmIsPartStart(line, 3));
  EXPECT_EQ(LiElmGetPartEnd(line, 0), 2);
  EXPECT_NEAR(dLiLinePartLength(line, 0, 0), 10.0 + quarter, 1e-9);
  EXPECT_NEAR(dLiLinePartLength(line, 3, 0), 10.0 + half, 1e-9);
  // In space: the straight climbs 1 and the arc, added in 2D, falls back to 0.
  EXPECT_NEAR(dLiLinePartLength(line, 0, 3), std::hypot(10.0, 1.0) + std::hypot(quarter, 1.0),
              1e-9);
}

// The pieces kept with a line find the points that the walk along the line
// finds, and are made again after a change, while a holder keeps the old.
TEST(LineWalk, KeptPiecesFollowTheLine) {
  OwnedLine line(MixedLine());
  const std::shared_ptr<const LiLinePieces> pieces = LiLineGetPieces(*line);
  EXPECT_EQ(LiLineGetPieces(*line), pieces);
  ASSERT_EQ(pieces->jumps.size(), 1u);
  EXPECT_NEAR(pieces->jumps[0], 10.0 + 10.0 * kPi / 2.0, 1e-9);
  const double total = dLiLineLength(line);
  for (double length : {-0.0009, 0.0, 4.0, 15.0, 24.0, 26.0, total - 1.0, total + 0.0009}) {
    ViPoint3d expected;
    ViPoint2d point;
    ASSERT_TRUE(boLiLineGetPointAtLength(line, length, &expected, nullptr));
    ASSERT_TRUE(boLiLinePiecesPointAt(*pieces, length, &point)) << length;
    EXPECT_EQ(point.x, expected.x) << length;
    EXPECT_EQ(point.y, expected.y) << length;
  }
  ViPoint2d point;
  EXPECT_FALSE(boLiLinePiecesPointAt(*pieces, -0.002, &point));
  EXPECT_FALSE(boLiLinePiecesPointAt(*pieces, total + 0.002, &point));

  line->elements.back().x = 40.0;
  const std::shared_ptr<const LiLinePieces> changed = LiLineGetPieces(*line);
  EXPECT_NE(changed, pieces);
  EXPECT_EQ(changed->total, dLiLineLength(line));
  EXPECT_EQ(pieces->total, total);
}

TEST(LineWalk, NearestPieceAndSide) {
  OwnedLine line(MixedLine());
  double distance = 0.0;
  // Each piece is found by its start point.
  EXPECT_EQ(LiLineFindNearestSeg(line, 5.0, 1.0, -1.0, &distance), 0);
  EXPECT_NEAR(distance, 1.0, 1e-12);
  EXPECT_EQ(iLiElmFindSide(line, 0, 5.0, 1.0), -1);
  EXPECT_EQ(iLiElmFindSide(line, 0, 5.0, -1.0), 1);
  EXPECT_EQ(iLiElmFindSide(line, 0, 5.0, 0.0), 0);
  EXPECT_EQ(LiLineFindNearestSeg(line, 5.0, 1.0, 0.5, &distance), kLiNoElm);

  // The quarter circle: its centre lies on the left, a point outside it on
  // the right, at the distance from the circle.
  EXPECT_EQ(LiLineFindNearestSeg(line, 10.0 + 12.0 * std::sin(0.5), 10.0 - 12.0 * std::cos(0.5),
                                 -1.0, &distance),
            1);
  EXPECT_NEAR(distance, 2.0, 1e-9);
  EXPECT_EQ(iLiElmFindSide(line, 1, 10.0 + 12.0 * std::sin(0.5), 10.0 - 12.0 * std::cos(0.5)), 1);
  EXPECT_EQ(iLiElmFindSide(line, 1, 12.0, 5.0), -1);

  // The gap of the invisible move is no piece: a point in it is nearest to
  // the pieces on either side.
  EXPECT_NE(LiLineFindNearestSeg(line, 21.0, 15.0, -1.0, &distance), 2);
  EXPECT_EQ(iLiElmFindSide(line, 2, 21.0, 15.0), 0);
  EXPECT_EQ(LiLineFindNearestSeg(nullptr, 0.0, 0.0, -1.0, &distance), kLiNoElm);
}

TEST(LineWalk, ChainageOfAPoint) {
  OwnedLine line(MixedLine());
  // Whether (x, y) lies at `length` along the line and `offset` beside it.
  auto chainage = [&](double x, double y, bool extended, double length, double offset,
                      double tolerance = 1e-9) {
    double foundLength = 0.0, foundOffset = 0.0;
    if (!boLiLineGetLengthAtPoint(line, x, y, -1.0, extended, &foundLength, &foundOffset)) {
      return testing::AssertionFailure() << "no chainage";
    }
    if (std::fabs(foundLength - length) > tolerance ||
        std::fabs(foundOffset - offset) > tolerance) {
      return testing::AssertionFailure() << "length " << foundLength << ", offset " << foundOffset;
    }
    return testing::AssertionSuccess();
  };
  EXPECT_TRUE(chainage(3.0, 2.0, false, 3.0, -2.0, 1e-12));
  // Outside the quarter circle, half way round.
  EXPECT_TRUE(chainage(10.0 + 13.0 * std::sqrt(0.5), 10.0 - 13.0 * std::sqrt(0.5), false,
                       10.0 + 10.0 * kPi / 4.0, 3.0));
  // Before the start: the start itself, or along the tangent when extended.
  EXPECT_TRUE(chainage(-4.0, 3.0, false, 0.0, -5.0, 1e-12));
  EXPECT_TRUE(chainage(-4.0, 3.0, true, -4.0, -3.0, 1e-12));
  // Beyond the end, which runs downwards at (30, 30).
  EXPECT_TRUE(chainage(29.0, 26.0, true, dLiLineLength(line) + 4.0, 1.0));
  double length = 0.0, offset = 0.0;
  EXPECT_FALSE(boLiLineGetLengthAtPoint(line, 3.0, 2.0, 1.0, false, &length, &offset));
}

TEST(LineWalk, ExtentIncludesTheBulgeOfArcs) {
  OwnedLine line(LiLineCreate(false));
  ViExtent extent;
  vLiLineGetExtent(line, &extent);
  EXPECT_TRUE(boViExtentIsEmpty(extent));
  LiLineAddP2d(line, 0.0, 0.0);
  LiLineAddArc2PTo(line, 10.0, 0.0, -5.0);  // half circle over the top
  vLiLineGetExtent(line, &extent);
  EXPECT_TRUE(ExtentNear(extent, 0.0, 0.0, 10.0, 5.0, 1e-6));
}

TEST(LineElements, DataTextsTypesAndShortElements) {
  OwnedLine line(LiLineCreate(false));
  const LiElm a = LiLineAddP2d(line, 0.0, 0.0);
  const LiElm b = LiLineAddP2d(line, 1.0, 0.0);
  LiLineAddP2d(line, 1.000001, 0.0);  // a common point of the one before
  LiLineAddP2d(line, 2.0, 0.0);

  vLiElmSetData(line, b, 0, -10203);
  vLiElmSetText(line, b, "-1.0203 2");
  vLiElmSetText(line, a, "first");
  vLiElmSetText(line, a, "again");
  EXPECT_STREQ(sLiElmGetText(line, 3), "");
  vLiElmSetText(line, 3, sLiElmGetText(line, a));  // a text of its own store
  const std::string longText(1500, 'x');
  vLiElmSetText(line, 2, longText.c_str());
  EXPECT_EQ(strlen(sLiElmGetText(line, 2)), static_cast<size_t>(kLiElmTextMax));

  // The short element goes with its text; the others keep theirs.
  EXPECT_EQ(iLiLineRemoveShortElements(line, 0), 1);
  EXPECT_EQ(iLiLineGetElmCount(line), 3);
  EXPECT_STREQ(sLiElmGetText(line, 0), "again");
  EXPECT_STREQ(sLiElmGetText(line, 1), "-1.0203 2");
  EXPECT_EQ(iLiElmGetData(line, 1, 0), -10203);
  EXPECT_STREQ(sLiElmGetText(line, 2), "again");

  // Types without data can be set freely; arcs and clothoids only by their
  // own setters.
  EXPECT_TRUE(boLiElmSetType(line, 2, 3));
  EXPECT_EQ(LiElmGetType(line, 2), 3);
  EXPECT_FALSE(boLiElmSetType(line, 2, kLiElmArc2p));
  EXPECT_FALSE(boLiElmSetType(line, 2, 256));
  EXPECT_TRUE(boLiElmSetType(line, 1, kLiElmInvisible));
  EXPECT_TRUE(boLiElmIsPartStart(line, 2));

  // A copy carries geometry, texts and GUID, and compacts the texts.
  vLiLineSetGuid(line, "{0A1B2C3D-0000-1111-2222-333344445555}-and-more-than-46");
  EXPECT_EQ(strlen(sLiLineGetGuid(line)), static_cast<size_t>(kViGuidLength));
  OwnedLine copy(LiLineCreateCopy(line));
  EXPECT_EQ(iLiLineGetElmCount(copy), 3);
  EXPECT_STREQ(sLiElmGetText(copy, 0), "again");
  EXPECT_STREQ(sLiLineGetGuid(copy), sLiLineGetGuid(line));
  EXPECT_EQ(copy->uDeadTextBytes, 0u);

  // Nulls and positions out of range are taken quietly.
  EXPECT_EQ(LiElmGetNext(line, 17), kLiNoElm);
  EXPECT_STREQ(sLiElmGetText(nullptr, 0), "");
  vLiLineDeleteElm(line, 9);
  EXPECT_EQ(iLiLineGetElmCount(line), 3);
}

TEST(LineElements, PolygonRingsDropTheirRepeatedFirstPoint) {
  OwnedLine ring(LiLineCreate(false));
  vLiLineSetPolygon(ring, true);
  LiLineAddP2d(ring, 0.0, 0.0);
  LiLineAddP2d(ring, 4.0, 0.0);
  LiLineAddP2d(ring, 4.0, 3.0);
  LiLineAddP2d(ring, 0.0, 0.0);
  LiLineAddPInvisible(ring, 10.0, 0.0);
  LiLineAddP2d(ring, 11.0, 0.0);
  LiLineAddP2d(ring, 11.0, 1.0);
  EXPECT_NEAR(dLiLinePartArea(ring, 0, 0), 6.0, 1e-12);
  EXPECT_EQ(iLiLineRemoveShortElements(ring, 1), 1);
  EXPECT_EQ(iLiLineGetElmCount(ring), 6);
  EXPECT_NEAR(dLiLinePartArea(ring, 0, 0), 6.0, 1e-12);
  EXPECT_NEAR(dLiLinePartArea(ring, 3, 0), 0.5, 1e-12);
  EXPECT_NEAR(dLiLinePartLength(ring, 0, 0), 12.0, 1e-12);
}

// The area of a ring sums the same terms in the same order as one made of
// the pieces of its elements, on straights, both kinds of arc, a clothoid,
// an arc whose radius is too short for its chord, and behind invisible moves.
TEST(LineElements, AreaOfStraightsAndCurvesMatchesTheSumOverPieces) {
  OwnedLine line(MixedLine());
  vLiLineSetPolygon(line, true);
  const ViPoint2d end = FresnelPoint(50.0, 100.0);
  const LiElm clothoid = LiLineAddP(line, 40.0, 30.0, 0.0);
  LiLineAddP(line, 40.0 + end.x, 30.0 + end.y, 0.0);
  ASSERT_TRUE(boLiElmSetClotoide(line, clothoid, 0.0, 200.0, 100.0));
  const LiElm tooShort = LiLineAddP(line, 60.0, 40.0, 0.0);
  LiLineAddP(line, 70.0, 35.0, 0.0);
  line->elements[static_cast<size_t>(tooShort)].uType = kLiElmArc2p;
  line->elements[static_cast<size_t>(tooShort)].dParam[0] = 0.5;

  const ViPoint2d origin{line->elements[0].x, line->elements[0].y};
  double area = 0.0, moment = 0.0;
  for (LiElm part = 0; part != kLiNoElm; part = LiElmGetNext(line, LiElmGetPartEnd(line, part))) {
    const LiElm partEnd = LiElmGetPartEnd(line, part);
    double partArea = 0.0, partMoment = 0.0, a, m;
    for (LiElm elm = part; elm <= partEnd; ++elm) {
      // The last element closes the ring by a straight back to the part's start.
      LiElement from = line->elements[static_cast<size_t>(elm)];
      const LiElement* to = line->elements.data() + (elm < partEnd ? elm + 1 : part);
      if (elm == partEnd) from.uType = kLiElmStraight;
      vLiPieceAreaMoments(LiPieceMake(from, to), origin.x, origin.y, &a, &m);
      partArea += a;
      partMoment += m;
    }
    area += partArea;
    moment += partMoment;
  }
  double centroidX;
  EXPECT_EQ(dLiLineArea(line, &centroidX), area);
  EXPECT_EQ(centroidX, origin.x + moment / area);
}

TEST(LineContainer, IdsOrderMovesAndUserData) {
  LiLines* lines = LiLinesCreate(24, 4);
  LiLine* five = LiLinesCreate2dLine(lines, 5);
  LiLine* two = LiLinesCreate3dLine(lines, 2);
  LiLine* nine = LiLinesCreate2dLine(lines, 9);
  EXPECT_EQ(LiLinesCreate2dLine(lines, 5), nullptr);
  EXPECT_EQ(LiLinesGetFirst(lines), two);
  EXPECT_EQ(LiLinesGetNext(lines, two), five);
  EXPECT_EQ(LiLinesGetNext(lines, five), nine);
  EXPECT_EQ(LiLinesGetNext(lines, nine), nullptr);

  LiLine* before = LiLinesCreate2dLineBefore(lines, five);
  EXPECT_EQ(lLiLineGetID(before), 10);
  EXPECT_EQ(LiLinesGetPrev(lines, five), before);
  EXPECT_TRUE(boLiLinesMoveLine(lines, two, nullptr));
  EXPECT_EQ(LiLinesGetLast(lines), two);
  EXPECT_EQ(LiLinesGetFirst(lines), before);
  EXPECT_FALSE(boLiLinesMoveLine(lines, two, two));
  EXPECT_FALSE(boLiLineSetID(two, 9));
  EXPECT_EQ(LiLinesFindID(lines, 9), nine);

  // User data: 24 zeroed bytes per line, aligned for doubles and pointers.
  auto* data = static_cast<double*>(pLiLineGetUserData(five));
  ASSERT_NE(data, nullptr);
  EXPECT_EQ(data[0], 0.0);
  EXPECT_EQ(data[2], 0.0);

  // Room left in element stores counts as garbage; a copy gives it back.
  for (int i = 0; i < 3; ++i) LiLineAddP2d(nine, i, 0.0);
  const long garbage = lLiLinesGetMemPoolGarbage(lines);
  EXPECT_EQ(garbage % static_cast<long>(sizeof(LiElement)), 0);
  EXPECT_GT(garbage, 0);
  LiLine* compact = LiLinesCreate2dLine(lines, 20);
  boLiLineCopy(compact, nine);
  vLiLinesDeleteLine(lines, nine);
  EXPECT_LT(lLiLinesGetMemPoolGarbage(lines), garbage);
  EXPECT_EQ(iLiLinesGetCount(lines), 4);

  // A line deleted by itself leaves its container.
  vLiLineDelete(&before);
  EXPECT_EQ(iLiLinesGetCount(lines), 3);
  EXPECT_EQ(LiLinesGetFirst(lines), five);
  vLiLinesDelete(&lines);
}

TEST(LineContainer, FieldsTakeTheOrderInWhichTheyAreFirstNamed) {
  LiLines* lines = LiLinesCreate(0, 4);
  LiLine* first = LiLinesCreate2dLine(lines, 1);
  LiLine* second = LiLinesCreate2dLine(lines, 2);
  EXPECT_TRUE(boLiLineSetFieldByName(first, "NAME", "Arm, CL"));
  EXPECT_TRUE(boLiLineSetFieldByName(second, "CL", "1"));
  EXPECT_TRUE(boLiLineSetFieldByName(first, "CL", "1"));
  ASSERT_EQ(iLiLinesGetFieldCount(lines), 2);
  EXPECT_STREQ(sLiLinesGetFieldName(lines, 0), "NAME");
  EXPECT_STREQ(sLiLinesGetFieldName(lines, 1), "CL");
  EXPECT_EQ(sLiLinesGetFieldName(lines, 2), nullptr);
  EXPECT_STREQ(sLiLineGetFieldByName(first, "NAME"), "Arm, CL");
  EXPECT_STREQ(sLiLineGetFieldByName(second, "NAME"), "");
  EXPECT_STREQ(sLiLineGetField(second, 1), "1");
  EXPECT_EQ(iLiLinesFindField(lines, "name"), -1);
  EXPECT_FALSE(boLiLineSetFieldByName(first, "", "x"));
  EXPECT_FALSE(boLiLineSetField(first, 5, "x"));
  EXPECT_TRUE(boLiLineSetField(first, 0, nullptr));
  EXPECT_STREQ(sLiLineGetField(first, 0), "");
  vLiLineClearFields(first, 1);
  EXPECT_STREQ(sLiLineGetField(first, 1), "");
  EXPECT_STREQ(sLiLineGetField(second, 1), "1");
  vLiLinesDelete(&lines);
}
