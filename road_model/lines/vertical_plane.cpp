#include "road_model/lines/vertical_plane.h"

#include <cmath>

namespace {

// Points closer than this in both coordinates give no direction.
constexpr double kSamePoint = 0.0001;
// Directions whose sines differ by less than this are parallel.
constexpr double kParallel = 1e-12;

}  // namespace

double dRmPlaneBearing(const RmPlanePoint& from, const RmPlanePoint& to) {
  double chain = to.Chain - from.Chain;
  double height = to.Height - from.Height;
  if (std::fabs(chain) < kSamePoint && std::fabs(height) < kSamePoint) return 0.0;
  return std::atan2(height, chain);
}

RmPlanePoint RmPlaneMove(const RmPlanePoint& point, double angle, double distance) {
  return RmPlanePoint{point.Chain + distance * std::cos(angle),
                      point.Height + distance * std::sin(angle)};
}

bool boRmPlaneIntersectLines(const RmPlanePoint& a, double angleA, const RmPlanePoint& b,
                             double angleB, RmPlanePoint* crossing) {
  double ax = std::cos(angleA), ay = std::sin(angleA);
  double bx = std::cos(angleB), by = std::sin(angleB);
  double cross = ax * by - ay * bx;
  if (std::fabs(cross) < kParallel) return false;
  // a + t * (ax, ay) = b + u * (bx, by)
  double t = ((b.Chain - a.Chain) * by - (b.Height - a.Height) * bx) / cross;
  *crossing = RmPlanePoint{a.Chain + t * ax, a.Height + t * ay};
  return true;
}

bool boRmPlaneCircleCenter(const RmPlanePoint& start, const RmPlanePoint& end, double radius,
                           RmPlanePoint* center) {
  double dx = end.Chain - start.Chain;
  double dy = end.Height - start.Height;
  double chord = std::hypot(dx, dy);
  double r = std::fabs(radius);
  if (r == 0.0 || chord == 0.0 || r < chord / 2.0) return false;
  double rise = std::sqrt(std::fmax(0.0, r * r - chord * chord / 4.0));
  // The unit normal on the right of the way from start to end.
  double rightX = dy / chord;
  double rightY = -dx / chord;
  double side = radius > 0.0 ? rise : -rise;
  *center = RmPlanePoint{(start.Chain + end.Chain) / 2.0 + side * rightX,
                         (start.Height + end.Height) / 2.0 + side * rightY};
  return true;
}
