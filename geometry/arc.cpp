#include "geometry/arc.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kTwoPi = 2.0 * std::numbers::pi;

// The angle `to` - `from` taken counter-clockwise, in [0, 2 pi).
double dCounterClockwiseFrom(double from, double to) {
  double delta = std::fmod(to - from, kTwoPi);
  if (delta < 0.0) delta += kTwoPi;
  return delta;
}

// How far along the sweep, as an unsigned angle, the direction `angle` lies.
double dAngleAlongSweep(const GrArc& arc, double angle) {
  return arc.dSweep >= 0.0 ? dCounterClockwiseFrom(arc.dStartAngle, angle)
                           : dCounterClockwiseFrom(angle, arc.dStartAngle);
}

}  // namespace

double dGrNormalizeAngle(double angle) {
  double result = std::fmod(angle, kTwoPi);
  if (result <= -kPi) result += kTwoPi;
  if (result > kPi) result -= kTwoPi;
  return result;
}

bool boGrArcFrom2Points(double x0, double y0, double x1, double y1, double radius, bool large,
                        GrArc* arc) {
  const double dx = x1 - x0;
  const double dy = y1 - y0;
  const double chord = std::hypot(dx, dy);
  const double r = std::fabs(radius);
  if (radius == 0.0 || !(chord > 0.0) || !std::isfinite(radius)) return false;
  const double halfChord = chord / 2.0;
  if (r < halfChord - 1e-6 * (1.0 + halfChord)) return false;
  const double rise = std::sqrt(std::max(0.0, r * r - halfChord * halfChord));
  // The centre of the shorter arc lies on the side it turns to; the longer
  // arc's centre lies on the other side of the chord.
  const double side = (radius > 0.0 ? 1.0 : -1.0) * (large ? -1.0 : 1.0);
  const double leftX = -dy / chord;
  const double leftY = dx / chord;
  const double cx = x0 + dx / 2.0 + side * rise * leftX;
  const double cy = y0 + dy / 2.0 + side * rise * leftY;
  const double shortSweep = 2.0 * std::asin(std::min(1.0, halfChord / r));
  const double sweep = large ? kTwoPi - shortSweep : shortSweep;
  arc->dCenterX = cx;
  arc->dCenterY = cy;
  arc->dRadius = r;
  arc->dStartAngle = std::atan2(y0 - cy, x0 - cx);
  arc->dSweep = radius > 0.0 ? sweep : -sweep;
  return true;
}

bool boGrArcFrom3Points(double x0, double y0, double xm, double ym, double x1, double y1,
                        GrArc* arc) {
  // Circumcentre relative to the start point.
  const double ax = xm - x0, ay = ym - y0;
  const double bx = x1 - x0, by = y1 - y0;
  const double cross = ax * by - ay * bx;
  const double scale = std::max({std::fabs(ax), std::fabs(ay), std::fabs(bx), std::fabs(by)});
  if (!(scale > 0.0) || std::fabs(cross) <= 1e-12 * scale * scale) return false;
  const double a2 = ax * ax + ay * ay;
  const double b2 = bx * bx + by * by;
  const double ux = (by * a2 - ay * b2) / (2.0 * cross);
  const double uy = (ax * b2 - bx * a2) / (2.0 * cross);
  arc->dCenterX = x0 + ux;
  arc->dCenterY = y0 + uy;
  arc->dRadius = std::hypot(ux, uy);
  arc->dStartAngle = std::atan2(-uy, -ux);
  const double endAngle = std::atan2(y1 - arc->dCenterY, x1 - arc->dCenterX);
  // An arc that turns left bulges to the right of its chord: the middle point
  // lies to the right of the chord, which makes the cross product positive.
  const bool turnsLeft = cross > 0.0;
  arc->dSweep = turnsLeft ? dCounterClockwiseFrom(arc->dStartAngle, endAngle)
                          : -dCounterClockwiseFrom(endAngle, arc->dStartAngle);
  return true;
}

double dGrArcLength(const GrArc& arc) { return std::fabs(arc.dSweep) * arc.dRadius; }

void vGrArcPointAt(const GrArc& arc, double s, ViPoint2d* point, double* direction) {
  const double turn = arc.dSweep >= 0.0 ? 1.0 : -1.0;
  const double angle = arc.dStartAngle + turn * s / arc.dRadius;
  point->x = arc.dCenterX + arc.dRadius * std::cos(angle);
  point->y = arc.dCenterY + arc.dRadius * std::sin(angle);
  if (direction != nullptr) *direction = dGrNormalizeAngle(angle + turn * kPi / 2.0);
}

double dGrArcCurvature(const GrArc& arc) { return (arc.dSweep >= 0.0 ? 1.0 : -1.0) / arc.dRadius; }

void vGrArcAddExtent(const GrArc& arc, ViExtent* extent) {
  const double sweep = std::fabs(arc.dSweep);
  ViPoint2d point;
  vGrArcPointAt(arc, 0.0, &point, nullptr);
  vViExtentAddPoint(extent, point.x, point.y);
  vGrArcPointAt(arc, dGrArcLength(arc), &point, nullptr);
  vViExtentAddPoint(extent, point.x, point.y);
  for (int quarter = 0; quarter < 4; ++quarter) {
    const double angle = quarter * kPi / 2.0;
    if (dAngleAlongSweep(arc, angle) <= sweep) {
      vViExtentAddPoint(extent, arc.dCenterX + arc.dRadius * std::cos(angle),
                        arc.dCenterY + arc.dRadius * std::sin(angle));
    }
  }
}

double dGrArcNearest(const GrArc& arc, double x, double y, double* s) {
  const double dx = x - arc.dCenterX;
  const double dy = y - arc.dCenterY;
  const double fromCentre = std::hypot(dx, dy);
  const double sweep = std::fabs(arc.dSweep);
  if (fromCentre > 0.0) {
    const double along = dAngleAlongSweep(arc, std::atan2(dy, dx));
    if (along <= sweep) {
      *s = along * arc.dRadius;
      return std::fabs(fromCentre - arc.dRadius);
    }
  }
  ViPoint2d start, end;
  vGrArcPointAt(arc, 0.0, &start, nullptr);
  vGrArcPointAt(arc, dGrArcLength(arc), &end, nullptr);
  const double toStart = std::hypot(x - start.x, y - start.y);
  const double toEnd = std::hypot(x - end.x, y - end.y);
  if (toStart <= toEnd) {
    *s = 0.0;
    return toStart;
  }
  *s = dGrArcLength(arc);
  return toEnd;
}
