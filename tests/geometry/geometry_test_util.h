// Helpers of the geometry tests: owners of the geometry objects, and checks
// of points, directions and extents against expected values.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <iomanip>
#include <numbers>

#include "geometry/cloud.h"
#include "geometry/line.h"
#include "geometry/line_measure.h"
#include "geometry/lines.h"
#include "geometry/net.h"
#include "geometry/point_text.h"
#include "geometry/polygon.h"
#include "tests/support/owned.h"

inline constexpr double kPi = std::numbers::pi;

// Point of the standard clothoid x' = cos(s^2 / 2A^2), y' = sin(s^2 / 2A^2)
// from its power series.
inline ViPoint2d FresnelPoint(double s, double a) {
  const double turn = s * s / (2.0 * a * a);
  double x = 0.0, y = 0.0;
  double power = 1.0;  // turn^k / k!
  for (int k = 0; k < 80; ++k) {
    if (k > 0) power *= turn / k;
    const double term = s * power / (2 * k + 1);
    const int sign = (k / 2) % 2 == 0 ? 1 : -1;
    if (k % 2 == 0) {
      x += sign * term;
    } else {
      y += sign * term;
    }
  }
  return {x, y};
}

using OwnedLine = Owned<LiLine, vLiLineDelete>;
using OwnedLines = Owned<LiLines, vLiLinesDelete>;
using OwnedPolygon = Owned<YgPolygon, vYgPolygonDelete>;
using OwnedPolygons = Owned<YgPolygons, vYgPolygonsDelete>;
using OwnedNet = Owned<TrNet, vTrNetDelete>;
using OwnedCloud = Owned<PtCloud, vPtCloudDelete>;
using OwnedPoint = Owned<PoPoint, vPoPointDelete>;
using OwnedText = Owned<TeText, vTeTextDelete>;

// Whether `point` lies within `tolerance` of (x, y).
template <typename Point>
testing::AssertionResult Near(const Point& point, double x, double y, double tolerance = 1e-9) {
  if (std::fabs(point.x - x) <= tolerance && std::fabs(point.y - y) <= tolerance) {
    return testing::AssertionSuccess();
  }
  return testing::AssertionFailure()
         << std::setprecision(17) << "(" << point.x << ", " << point.y << ") is not within "
         << tolerance << " of (" << x << ", " << y << ")";
}

// Whether the line has a point at `length` within `tolerance` of (x, y),
// running in `direction`.
inline testing::AssertionResult AtLength(const LiLine* line, double length, double x, double y,
                                         double direction, double tolerance = 1e-9) {
  ViPoint3d point;
  double found = 0.0;
  if (!boLiLineGetPointAtLength(line, length, &point, &found)) {
    return testing::AssertionFailure() << "no point at length " << length;
  }
  testing::AssertionResult near = Near(point, x, y, tolerance);
  if (!near) return near << " at length " << length;
  if (std::fabs(found - direction) > tolerance) {
    return testing::AssertionFailure() << std::setprecision(17) << "direction " << found
                                       << " instead of " << direction << " at length " << length;
  }
  return testing::AssertionSuccess();
}

// Whether `extent` is (minX, minY, maxX, maxY) within `tolerance`.
inline testing::AssertionResult ExtentNear(const ViExtent& extent, double minX, double minY,
                                           double maxX, double maxY, double tolerance = 1e-9) {
  const ViPoint2d low{extent.dMinX, extent.dMinY}, high{extent.dMaxX, extent.dMaxY};
  testing::AssertionResult lowNear = Near(low, minX, minY, tolerance);
  if (!lowNear) return lowNear << " at the lower corner";
  return Near(high, maxX, maxY, tolerance) << " at the upper corner";
}
