// The crossing of a plan line with sections: the same offsets, to the bit,
// as stepping along the whole line metre by metre from its start, for a
// line of straights, an arc, a clothoid and a second part that comes back
// across the sections, also after the line was changed.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "geometry/line.h"
#include "geometry/line_measure.h"
#include "road_model/sections/section.h"
#include "road_model/surfaces/section_line_crossing.h"

namespace {

// Every metre from the line's start, each step that changes side halved
// down to the crossing; the one nearest to the section's origin counts.
bool boCrossingByEveryStep(const RmSection& section, const LiLine& line, int side,
                           double* offset) {
  const double angle = section.Direction + section.Skew;
  const double ux = std::cos(angle), uy = std::sin(angle);
  auto measure = [&](double length, double* across, double* along) {
    ViPoint3d point;
    if (!boLiLineGetPointAtLength(&line, length, &point, nullptr)) return false;
    *across = ux * (point.y - section.ClY) - uy * (point.x - section.ClX);
    *along = ux * (point.x - section.ClX) + uy * (point.y - section.ClY);
    return true;
  };
  const double total = dLiLineLength(&line);
  double low, along;
  if (!measure(0.0, &low, &along)) return false;
  bool found = false;
  for (double length = 0.0; length < total;) {
    const double highLength = std::fmin(length + 1.0, total);
    double high;
    if (!measure(highLength, &high, &along)) break;
    if ((low <= 0.0) != (high <= 0.0)) {
      double a = length, b = highLength, aAcross = low, across;
      for (int i = 0; i < 48; ++i) {
        const double middle = (a + b) / 2.0;
        if (!measure(middle, &across, &along)) break;
        if ((across <= 0.0) == (aAcross <= 0.0)) {
          a = middle;
          aAcross = across;
        } else {
          b = middle;
        }
      }
      if (measure((a + b) / 2.0, &across, &along) &&
          (side == 0 || (side == 1 && along <= 0.0) || (side == 2 && along >= 0.0)) &&
          (!found || std::fabs(along) < std::fabs(*offset))) {
        *offset = along;
        found = true;
      }
    }
    length = highLength;
    low = high;
  }
  return found;
}

void vExpectSameCrossings(const LiLine& line) {
  int crossings = 0;
  for (int i = 0; i < 250; ++i) {
    RmSection section{};
    section.ClX = -20.0 + 1.9 * i;
    section.ClY = 5.0 * std::sin(i * 0.05);
    section.Direction = std::numbers::pi / 2.0;
    section.Skew = 0.3 * std::sin(i * 0.7);
    for (int side = 0; side <= 2; ++side) {
      double expected = 0.0, offset = 0.0;
      const bool expectedFound = boCrossingByEveryStep(section, line, side, &expected);
      ASSERT_EQ(boRmSectionLineCrossing(&section, &line, side, &offset), expectedFound)
          << "section " << i << " side " << side;
      if (expectedFound) {
        ASSERT_EQ(offset, expected) << "section " << i << " side " << side;
        ++crossings;
      }
    }
  }
  EXPECT_GT(crossings, 300);
}

TEST(SectionLineCrossing, SameAsEveryStepAlongTheLine) {
  LiLine road;
  LiLineAddP2d(&road, 0.0, 10.0);
  const LiElm arc = LiLineAddP2d(&road, 150.0, 10.0);
  const LiElm clothoid = LiLineAddP2d(&road, 290.0, 45.0);
  const LiElm move = LiLineAddP2d(&road, 420.0, 120.0);
  LiLineAddP2d(&road, 430.0, -30.0);
  const LiElm last = LiLineAddP2d(&road, 80.0, -25.0);
  ASSERT_TRUE(boLiElmSet2pArc(&road, arc, 300.0, false));
  ASSERT_TRUE(boLiElmSetClotoide(&road, clothoid, 300.0, 0.0, 250.0));
  ASSERT_TRUE(boLiElmSetType(&road, move, kLiElmInvisible));
  vExpectSameCrossings(road);

  // A second line between the questions, then the first one changed.
  LiLine path;
  LiLineAddP2d(&path, -30.0, 30.0);
  LiLineAddP2d(&path, 460.0, 60.0);
  vExpectSameCrossings(path);
  road.elements[static_cast<size_t>(last)].y = 25.0;
  vExpectSameCrossings(road);
}

}  // namespace
