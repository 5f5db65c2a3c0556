#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

#include "road_model/lines/vertical_curves.h"
#include "road_model/lines/vertical_heights.h"
#include "road_model/lines/vertical_line.h"

namespace {

constexpr double kNone = -99999.0;

// A vertical line that deletes itself.
struct VerLine {
  RmVerLine* p = RmVerLineCreate();
  ~VerLine() { vRmVerLineDelete(&p); }
  RmVerPoint* Add(double chain, double height, double radius = 0.0, double length = 0.0) {
    return RmVerPointAdd(p, chain, height, radius, length);
  }
  double Height(double chain, double* slope = nullptr) const {
    return dRmVerLineHeightAt(p, chain, slope);
  }
};

// The circle of radius r that touches the straight through (c0, z0) with
// grade g1 and the straight through (c1, z1) with grade g2, both meeting in
// the intersection point (ci, zi); worked out from the tangent length.
struct TouchingCircle {
  double centerChain, centerHeight, radius;
  bool crest;
  double startChain, endChain;

  TouchingCircle(double ci, double zi, double g1, double g2, double r) : radius(r) {
    double a1 = std::atan(g1), a2 = std::atan(g2);
    double tangent = r * std::tan(std::fabs(a1 - a2) / 2.0);
    double sc = ci - tangent * std::cos(a1), sz = zi - tangent * std::sin(a1);
    crest = g1 > g2;
    double toCenter = crest ? a1 - M_PI / 2.0 : a1 + M_PI / 2.0;
    centerChain = sc + r * std::cos(toCenter);
    centerHeight = sz + r * std::sin(toCenter);
    startChain = sc;
    endChain = ci + tangent * std::cos(a2);
  }
  double Height(double chain) const {
    double rise = std::sqrt(radius * radius - (chain - centerChain) * (chain - centerChain));
    return crest ? centerHeight + rise : centerHeight - rise;
  }
  double Slope(double chain) const {
    return -(chain - centerChain) / (Height(chain) - centerHeight);
  }
};

}  // namespace

TEST(VerLineCompute, CrestAndSagCirclesFollowTheTouchingCircle) {
  VerLine line;
  line.Add(0.0, 100.0);
  RmVerPoint* crestPoint = line.Add(200.0, 104.0, 3000.0);  // +2 % then -1.5 %
  RmVerPoint* sagPoint = line.Add(400.0, 101.0, 5000.0);    // -1.5 % then +1 %
  line.Add(600.0, 103.0);
  ASSERT_EQ(iRmVerLineCompute(line.p), 0);

  TouchingCircle crest(200.0, 104.0, 0.02, -0.015, 3000.0);
  TouchingCircle sag(400.0, 101.0, -0.015, 0.01, 5000.0);
  EXPECT_EQ(crestPoint->CurveType, kRmCurveCircle);
  EXPECT_NEAR(crestPoint->StartChain, crest.startChain, 1e-9);
  EXPECT_NEAR(crestPoint->EndChain, crest.endChain, 1e-9);
  EXPECT_NEAR(crestPoint->CenterHeight, crest.centerHeight, 1e-7);
  EXPECT_NEAR(crestPoint->Length, 3000.0 * (std::atan(0.02) + std::atan(0.015)), 1e-9);
  EXPECT_NEAR(sagPoint->CenterChain, sag.centerChain, 1e-7);

  for (double chain : {160.0, 190.0, 200.0, 215.0, 245.0, 370.0, 400.0, 420.0}) {
    const TouchingCircle& circle = chain < 300.0 ? crest : sag;
    double slope = 0.0;
    EXPECT_NEAR(line.Height(chain, &slope), circle.Height(chain), 1e-9) << chain;
    EXPECT_NEAR(slope, circle.Slope(chain), 1e-9) << chain;
  }
  // On the straights the height is the grade line and the slope its grade.
  for (auto [chain, height, grade] :
       {std::tuple{100.0, 102.0, 0.02}, {300.0, 102.5, -0.015}, {550.0, 102.5, 0.01}}) {
    double slope = 0.0;
    EXPECT_NEAR(line.Height(chain, &slope), height, 1e-12) << chain;
    EXPECT_DOUBLE_EQ(slope, grade) << chain;
  }
}

TEST(VerLineCompute, ParabolaIsCentredOnThePointAndKeepsTheArrivingSlope) {
  VerLine line;
  line.Add(0.0, 50.0);
  RmVerPoint* point = line.Add(100.0, 51.0, 0.0, 60.0);  // +1 % then -2 %
  line.Add(200.0, 49.0);
  ASSERT_EQ(point->CurveType, kRmCurveParabola);
  ASSERT_EQ(iRmVerLineCompute(line.p), 0);
  EXPECT_DOUBLE_EQ(point->StartChain, 70.0);
  EXPECT_DOUBLE_EQ(point->EndChain, 130.0);
  EXPECT_NEAR(point->Radius, 2000.0, 1e-9);

  for (double chain : {70.0, 85.0, 100.0, 129.0}) {
    double d = chain - 70.0;
    double expected = 50.7 + 0.01 * d - 0.03 * d * d / 120.0;
    double slope = 0.0;
    EXPECT_NEAR(line.Height(chain, &slope), expected, 1e-12) << chain;
    EXPECT_DOUBLE_EQ(slope, 0.01) << chain;
  }
  EXPECT_NEAR(line.Height(160.0), 49.8, 1e-12);
}

TEST(VerLineCompute, OverlappingCurvesAreShortenedAndRefitted) {
  VerLine line;
  line.Add(0.0, 0.0);
  RmVerPoint* first = line.Add(100.0, 2.0, 10000.0);
  RmVerPoint* second = line.Add(200.0, 0.0, 10000.0);
  line.Add(300.0, 2.0);
  EXPECT_EQ(iRmVerLineCompute(line.p), 1);

  // The first curve runs from the first point to the next one.
  EXPECT_DOUBLE_EQ(first->StartChain, 0.0);
  EXPECT_DOUBLE_EQ(first->EndChain, 200.0);
  // The second starts where the first ends and stops at the last point.
  EXPECT_DOUBLE_EQ(second->StartChain, 200.0);
  EXPECT_DOUBLE_EQ(second->StartHeight, 0.0);
  EXPECT_DOUBLE_EQ(second->EndChain, 300.0);
  EXPECT_DOUBLE_EQ(second->EndHeight, 2.0);

  // First: the circle of radius 10000 through (0, 0) and (200, 0), centre below.
  double r = 10000.0;
  double firstCenter = -std::sqrt(r * r - 100.0 * 100.0);
  EXPECT_NEAR(first->CenterChain, 100.0, 1e-7);
  EXPECT_NEAR(first->CenterHeight, firstCenter, 1e-7);
  EXPECT_NEAR(first->Length, 2.0 * std::asin(100.0 / r) * r, 1e-7);
  for (double chain : {20.0, 100.0, 180.0}) {
    EXPECT_NEAR(line.Height(chain),
                firstCenter + std::sqrt(r * r - (chain - 100.0) * (chain - 100.0)), 1e-9)
        << chain;
  }
  // Second: through (200, 0) and (300, 2), centre above (a sag).
  double half = std::hypot(100.0, 2.0) / 2.0;
  double rise = std::sqrt(r * r - half * half);
  double cc = 250.0 - rise * 2.0 / (2.0 * half), ch = 1.0 + rise * 100.0 / (2.0 * half);
  EXPECT_NEAR(second->CenterChain, cc, 1e-6);
  EXPECT_NEAR(second->CenterHeight, ch, 1e-6);
  for (double chain : {210.0, 250.0, 290.0}) {
    EXPECT_NEAR(line.Height(chain), ch - std::sqrt(r * r - (chain - cc) * (chain - cc)), 1e-9)
        << chain;
  }
}

TEST(VerLineCompute, FlatPointsAndTheEndsOfTheLine) {
  VerLine line;
  RmVerPoint* start = line.Add(0.0, 10.0, 800.0);  // the ends never get a curve
  RmVerPoint* flat = line.Add(50.0, 11.0, 0.0, 0.0);
  RmVerPoint* same = line.Add(50.0, 12.0, 0.0, 0.0);
  RmVerPoint* end = line.Add(100.0, 12.0, 0.0, 30.0);
  EXPECT_EQ(iRmVerLineCompute(line.p), 0);
  for (const RmVerPoint* p : {start, flat, end}) {
    EXPECT_EQ(p->CurveType, kRmCurveNone);
    EXPECT_EQ(p->StartChain, p->Chain);
    EXPECT_EQ(p->EndHeight, p->Height);
    EXPECT_EQ(p->Radius, 0.0);
    EXPECT_EQ(p->Length, 0.0);
  }
  EXPECT_EQ(same->Slope, kRmVerSlopeVertical);
  EXPECT_DOUBLE_EQ(flat->Slope, 0.02);
}

TEST(VerLineCompute, ParabolaBetweenEqualSlopesIsShortenedButStaysOnTheGrade) {
  VerLine line;
  line.Add(0.0, 0.0);
  RmVerPoint* point = line.Add(100.0, 1.0, 0.0, 40.0);
  line.Add(200.0, 2.0);
  EXPECT_EQ(iRmVerLineCompute(line.p), 1);
  EXPECT_EQ(point->CurveType, kRmCurveParabola);
  // The ends were never set; the height still follows the one grade.
  EXPECT_NEAR(line.Height(50.0), 0.5, 1e-12);
  EXPECT_NEAR(line.Height(150.0), 1.5, 1e-12);
}

TEST(VerLineHeight, OnePointAndTheEndsOfTheLine) {
  VerLine single;
  single.Add(100.0, 7.0);
  EXPECT_EQ(iRmVerLineCompute(single.p), 2);
  EXPECT_EQ(single.Height(100.0), 7.0);
  EXPECT_EQ(single.Height(100.009), 7.0);
  EXPECT_EQ(single.Height(99.9995), 7.0);
  EXPECT_EQ(single.Height(100.02), kNone);
  EXPECT_EQ(single.Height(99.998), kNone);

  VerLine empty;
  EXPECT_EQ(iRmVerLineCompute(empty.p), 2);
  EXPECT_EQ(empty.Height(0.0), kNone);
  EXPECT_EQ(dRmVerLineHeightAt(nullptr, 0.0, nullptr), kNone);

  VerLine line;
  line.Add(100.0, 10.0);
  line.Add(200.0, 20.0);
  iRmVerLineCompute(line.p);
  // 0.001 before the first point the first piece is extended; 0.002 is too far.
  EXPECT_NEAR(line.Height(100.0 - 0.001), 10.0 - 0.0001, 1e-9);
  EXPECT_EQ(line.Height(100.0 - 0.002), kNone);
  // Beyond the last point: the piece up to 0.001, the point's height up to 0.01.
  EXPECT_NEAR(line.Height(200.0005), 20.00005, 1e-9);
  EXPECT_EQ(line.Height(200.005), 20.0);
  EXPECT_EQ(line.Height(200.02), kNone);
}
