// Plane geometry of vertical lines: points are (chainage, height).
#pragma once

// A point of the plane of chainage and height.
struct RmPlanePoint {
  double Chain;
  double Height;
};

// Direction from `from` to `to` in radians; 0 when the two points lie within
// 0.0001 of each other in both coordinates.
double dRmPlaneBearing(const RmPlanePoint& from, const RmPlanePoint& to);

// The point `distance` away from `point` in the direction `angle`.
RmPlanePoint RmPlaneMove(const RmPlanePoint& point, double angle, double distance);

// The crossing of the straight line through `a` in direction `angleA` with
// the one through `b` in direction `angleB`. False for parallel lines.
bool boRmPlaneIntersectLines(const RmPlanePoint& a, double angleA, const RmPlanePoint& b,
                             double angleB, RmPlanePoint* crossing);

// The centre of the circle of radius |radius| through `start` and `end`: on
// the right of the way from `start` to `end` for a positive radius, on the
// left for a negative one, so that the shorter arc between the points bulges
// to the other side. False for a radius of 0, equal points, or a radius
// shorter than half the distance of the points.
bool boRmPlaneCircleCenter(const RmPlanePoint& start, const RmPlanePoint& end, double radius,
                           RmPlanePoint* center);
