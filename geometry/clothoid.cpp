#include "geometry/clothoid.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

// Ten-point Gauss-Legendre rule on [-1, 1]: positive nodes and their weights.
constexpr double kNodes[5] = {0.1488743389816312, 0.4333953941292472, 0.6794095682990244,
                              0.8650633666889845, 0.9739065285171717};
constexpr double kWeights[5] = {0.2955242247147529, 0.2692667193099963, 0.2190863625159820,
                                0.1494513491505806, 0.0666713443086881};

// Largest turn of one integration step, in radians.
constexpr double kStepTurn = 0.5;
// The most a clothoid may turn, in radians. A road element turns a few
// radians at most; a file that asks for more than this is not taken, which
// also bounds the integration steps below.
constexpr double kMaxTurn = 200.0;
constexpr double kMaxSteps = 2.0 * kMaxTurn / kStepTurn;

double dLocalCurvatureAt(const VgClothoid& c, double t) {
  if (!(c.dLocalLength > 0.0)) return c.dStartCurvature;
  return c.dStartCurvature + (c.dEndCurvature - c.dStartCurvature) * t / c.dLocalLength;
}

// Direction of the unscaled shape at the length t, relative to its start.
double dLocalTurnAt(const VgClothoid& c, double t) {
  if (!(c.dLocalLength > 0.0)) return 0.0;
  return c.dStartCurvature * t +
         (c.dEndCurvature - c.dStartCurvature) * t * t / (2.0 * c.dLocalLength);
}

// The integral of (cos, sin) of the turn over [t0, t1] of the unscaled shape.
void vLocalIntegral(const VgClothoid& c, double t0, double t1, double* ix, double* iy) {
  const double span = t1 - t0;
  const double maxCurvature =
      std::max(std::fabs(dLocalCurvatureAt(c, t0)), std::fabs(dLocalCurvatureAt(c, t1)));
  const double wanted = std::ceil(maxCurvature * std::fabs(span) / kStepTurn);
  // NaN and absurd turns integrate in the bounded number of steps.
  const int steps = wanted >= 1.0 ? static_cast<int>(std::min(wanted, kMaxSteps)) : 1;
  const double step = span / steps;
  double sumX = 0.0, sumY = 0.0;
  for (int i = 0; i < steps; ++i) {
    const double middle = t0 + (i + 0.5) * step;
    for (int k = 0; k < 5; ++k) {
      for (double sign : {-1.0, 1.0}) {
        const double turn = dLocalTurnAt(c, middle + sign * kNodes[k] * step / 2.0);
        sumX += kWeights[k] * std::cos(turn);
        sumY += kWeights[k] * std::sin(turn);
      }
    }
  }
  *ix = sumX * step / 2.0;
  *iy = sumY * step / 2.0;
}

// Maps a vector of the unscaled shape onto the plane.
ViPoint2d MapToPlane(const VgClothoid& c, double ix, double iy) {
  const double cosine = std::cos(c.dStartDirection);
  const double sine = std::sin(c.dStartDirection);
  return {c.dStartX + c.dScale * (cosine * ix - sine * iy),
          c.dStartY + c.dScale * (sine * ix + cosine * iy)};
}

ViPoint2d LocalPointAt(const VgClothoid& c, double t) {
  double ix, iy;
  vLocalIntegral(c, 0.0, t, &ix, &iy);
  return MapToPlane(c, ix, iy);
}

double dSquaredDistance(const ViPoint2d& p, double x, double y) {
  return (p.x - x) * (p.x - x) + (p.y - y) * (p.y - y);
}

}  // namespace

bool boVgClothoidFit(double x0, double y0, double x1, double y1, double startRadius,
                     double endRadius, double a, VgClothoid* clothoid) {
  const double chord = std::hypot(x1 - x0, y1 - y0);
  if (!(chord > 0.0) || !std::isfinite(chord)) return false;
  const double k1 = startRadius != 0.0 ? 1.0 / startRadius : 0.0;
  const double k2 = endRadius != 0.0 ? 1.0 / endRadius : 0.0;
  VgClothoid c{x0, y0, 0.0, k1, k2, 0.0, 1.0};
  if (std::fabs(k2 - k1) > 1e-15) {
    if (!(a > 0.0) || !std::isfinite(a)) return false;
    c.dLocalLength = a * a * std::fabs(k2 - k1);
  } else if (std::fabs(k1) > 1e-15) {
    c.dEndCurvature = k1;
    c.dLocalLength = 2.0 / std::fabs(k1) * std::asin(std::min(1.0, chord * std::fabs(k1) / 2.0));
  } else {
    c.dLocalLength = chord;
  }
  const double turn = std::max(std::fabs(k1), std::fabs(k2)) * c.dLocalLength;
  if (!std::isfinite(c.dLocalLength) || !(turn <= kMaxTurn)) return false;
  double ex, ey;
  vLocalIntegral(c, 0.0, c.dLocalLength, &ex, &ey);
  const double span = std::hypot(ex, ey);
  if (!(span > 1e-9 * c.dLocalLength) || !std::isfinite(span)) return false;
  c.dScale = chord / span;
  c.dStartDirection = std::atan2(y1 - y0, x1 - x0) - std::atan2(ey, ex);
  *clothoid = c;
  return true;
}

double dVgClothoidLength(const VgClothoid& clothoid) {
  return clothoid.dLocalLength * clothoid.dScale;
}

void vVgClothoidPointAt(const VgClothoid& clothoid, double s, ViPoint2d* point, double* direction) {
  const double t = s / clothoid.dScale;
  *point = LocalPointAt(clothoid, t);
  if (direction != nullptr) *direction = dVgClothoidDirectionAt(clothoid, s);
}

double dVgClothoidDirectionAt(const VgClothoid& clothoid, double s) {
  const double direction = clothoid.dStartDirection + dLocalTurnAt(clothoid, s / clothoid.dScale);
  return std::remainder(direction, 2.0 * std::numbers::pi);
}

double dVgClothoidCurvatureAt(const VgClothoid& clothoid, double s) {
  return dLocalCurvatureAt(clothoid, s / clothoid.dScale) / clothoid.dScale;
}

void vVgClothoidAddExtent(const VgClothoid& clothoid, ViExtent* extent) {
  const double length = clothoid.dLocalLength;
  ViPoint2d point = LocalPointAt(clothoid, 0.0);
  vViExtentAddPoint(extent, point.x, point.y);
  point = LocalPointAt(clothoid, length);
  vViExtentAddPoint(extent, point.x, point.y);
  if (!(length > 0.0)) return;
  // The curve reaches its furthest x or y where its direction is a multiple
  // of a right angle: the direction is quadratic in the length.
  const double quadratic = (clothoid.dEndCurvature - clothoid.dStartCurvature) / (2.0 * length);
  const double linear = clothoid.dStartCurvature;
  double lowest = std::min(0.0, dLocalTurnAt(clothoid, length));
  double highest = std::max(0.0, dLocalTurnAt(clothoid, length));
  if (quadratic != 0.0) {
    const double vertex = -linear / (2.0 * quadratic);
    if (vertex > 0.0 && vertex < length) {
      lowest = std::min(lowest, dLocalTurnAt(clothoid, vertex));
      highest = std::max(highest, dLocalTurnAt(clothoid, vertex));
    }
  }
  const double quarter = std::numbers::pi / 2.0;
  const double start = clothoid.dStartDirection;
  const long first = static_cast<long>(std::ceil((start + lowest) / quarter));
  const long last = static_cast<long>(std::floor((start + highest) / quarter));
  for (long m = first; m <= last; ++m) {
    const double constant = start - m * quarter;
    double roots[2];
    int count = 0;
    if (quadratic == 0.0) {
      if (linear != 0.0) roots[count++] = -constant / linear;
    } else {
      const double discriminant = linear * linear - 4.0 * quadratic * constant;
      if (discriminant >= 0.0) {
        const double root = std::sqrt(discriminant);
        roots[count++] = (-linear + root) / (2.0 * quadratic);
        roots[count++] = (-linear - root) / (2.0 * quadratic);
      }
    }
    for (int i = 0; i < count; ++i) {
      if (roots[i] > 0.0 && roots[i] < length) {
        point = LocalPointAt(clothoid, roots[i]);
        vViExtentAddPoint(extent, point.x, point.y);
      }
    }
  }
}

double dVgClothoidNearest(const VgClothoid& clothoid, double x, double y, double* s) {
  const double length = clothoid.dLocalLength;
  const double maxCurvature =
      std::max(std::fabs(clothoid.dStartCurvature), std::fabs(clothoid.dEndCurvature));
  const int samples =
      16 + static_cast<int>(std::min(100000.0, std::ceil(maxCurvature * length / 0.05)));
  // Walk the curve in equal steps, each step integrated from the one before.
  const double step = length / samples;
  ViPoint2d point = LocalPointAt(clothoid, 0.0);
  double sumX = 0.0, sumY = 0.0;
  int best = 0;
  double bestDistance = dSquaredDistance(point, x, y);
  for (int i = 1; i <= samples; ++i) {
    double ix, iy;
    vLocalIntegral(clothoid, (i - 1) * step, i * step, &ix, &iy);
    sumX += ix;
    sumY += iy;
    point = MapToPlane(clothoid, sumX, sumY);
    const double distance = dSquaredDistance(point, x, y);
    if (distance < bestDistance) {
      bestDistance = distance;
      best = i;
    }
  }
  // Golden section search between the neighbours of the best sample.
  double low = std::max(0, best - 1) * step;
  double high = std::min(samples, best + 1) * step;
  const ViPoint2d base = LocalPointAt(clothoid, low);
  const double baseLow = low;
  auto distanceAt = [&](double t) {
    double ix, iy;
    vLocalIntegral(clothoid, baseLow, t, &ix, &iy);
    const ViPoint2d at = MapToPlane(clothoid, ix, iy);
    const ViPoint2d shifted{base.x + at.x - clothoid.dStartX, base.y + at.y - clothoid.dStartY};
    return dSquaredDistance(shifted, x, y);
  };
  const double ratio = (std::sqrt(5.0) - 1.0) / 2.0;
  double a = high - ratio * (high - low);
  double b = low + ratio * (high - low);
  double fa = distanceAt(a), fb = distanceAt(b);
  for (int iteration = 0; iteration < 80 && high - low > 1e-12 * (1.0 + length); ++iteration) {
    if (fa <= fb) {
      high = b;
      b = a;
      fb = fa;
      a = high - ratio * (high - low);
      fa = distanceAt(a);
    } else {
      low = a;
      a = b;
      fa = fb;
      b = low + ratio * (high - low);
      fb = distanceAt(b);
    }
  }
  double t = (low + high) / 2.0;
  double distance = distanceAt(t);
  if (bestDistance < distance) {
    t = best * step;
    distance = bestDistance;
  }
  *s = t * clothoid.dScale;
  return std::sqrt(distance);
}
