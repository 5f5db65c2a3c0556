// Points found by offset, height and code.
#include <cmath>

#include "road_model/sections/layer_lookup.h"

RmPoint* RmPointFindNearX(const RmLayer* layer, double x) {
  return RmPointFindNearXTol(layer, x, kRmPointTolerance);
}

RmPoint* RmPointFindNearXTol(const RmLayer* layer, double x, double tol) {
  double limit = std::fabs(tol);
  for (RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
    if (std::fabs(point->X - x) < limit) return point;
  }
  return nullptr;
}

RmPoint* RmPointFindXFromLeft(const RmLayer* layer, double x) {
  RmPoint* found = RmPointsGetFirst(layer);
  while (found && found->X < x) found = found->Next;
  if (!found) return nullptr;
  for (RmPoint* later = found->Next; later; later = later->Next) {
    if (std::fabs(later->X - x) < kRmOffsetEqual) found = later;
  }
  return found;
}

RmPoint* RmPointFindXFromRight(const RmLayer* layer, double x) {
  for (RmPoint* point = RmPointsGetLast(layer); point; point = point->Prev) {
    if (point->X <= x) return point;
  }
  return nullptr;
}

RmPoint* RmPointFindClosestX(const RmLayer* layer, double x) {
  RmPoint* best = RmPointsGetFirst(layer);
  if (!best) return nullptr;
  double bestDistance = std::fabs(best->X - x);
  for (RmPoint* point = best->Next; point; point = point->Next) {
    double distance = std::fabs(point->X - x);
    if (distance > bestDistance) break;
    if (distance < bestDistance) {
      best = point;
      bestDistance = distance;
    }
  }
  return best;
}

RmPoint* RmPointFindZAbove(const RmLayer* layer, double z) {
  for (RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
    if (point->Z >= z) return point;
  }
  return nullptr;
}

RmPoint* RmPointFindZBelow(const RmLayer* layer, double z) {
  for (RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
    if (point->Z <= z) return point;
  }
  return nullptr;
}

RmPoint* RmPointFindCode(const RmLayer* layer, int pcode) {
  for (RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
    if (iRmPointGetPcode(point) == pcode) return point;
  }
  return nullptr;
}

RmPoint* RmPointFindAt(const RmLayer* layer, double x, double z, double tol) {
  for (RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
    if (std::fabs(point->X - x) < kRmOffsetEqual && std::fabs(point->Z - z) < kRmOffsetEqual) {
      return point;
    }
    const RmPoint* previous = point->Prev;
    if (!previous || !boRmPointHasHeight(previous) || !boRmPointHasHeight(point)) continue;
    double low = std::fmin(previous->X, point->X);
    double high = std::fmax(previous->X, point->X);
    double run = double(point->X) - double(previous->X);
    // A vertical piece has no single height at its offset.
    if (x < low || x > high || run == 0.0) continue;
    double height = previous->Z + (x - previous->X) * (double(point->Z) - previous->Z) / run;
    if (std::fabs(height - z) < tol) return point;
  }
  return nullptr;
}

RmPoint* RmPointFindClosest2d(const RmLayer* layer, double x, double z, double radius) {
  RmPoint* best = nullptr;
  double bestDistance = 0.0;
  for (RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
    double dx = point->X - x;
    double dz = point->Z - z;
    if (std::fabs(dx) > radius || std::fabs(dz) > radius) continue;
    double distance = std::hypot(dx, dz);
    if (!best || distance <= bestDistance) {
      best = point;
      bestDistance = distance;
    }
  }
  return best;
}
