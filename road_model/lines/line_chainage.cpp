#include "road_model/lines/line_chainage.h"

#include <cmath>

#include "geometry/line_measure.h"

namespace {

bool boChainAtPoint(const RmLine* line, double x, double y, double maxDistance, bool extendEnds,
                    double* chain, double* offset) {
  if (!line) return false;
  double length = 0.0;
  double side = 0.0;
  if (!boLiLineGetLengthAtPoint(line, x, y, maxDistance, extendEnds, &length, &side)) return false;
  if (chain) *chain = length + dRmLineGetStartChain(line);
  if (offset) *offset = side;
  return true;
}

}  // namespace

bool boRmLinePointAtChain(const RmLine* line, double chain, ViPoint2d* point, double* tangent,
                          double offset) {
  if (!line) return false;
  ViPoint3d at;
  double direction = 0.0;
  if (!boLiLineGetPointAtLength(line, chain - dRmLineGetStartChain(line), &at, &direction)) {
    return false;
  }
  // The right of the direction of travel is the direction turned back a
  // quarter, and a negative offset goes to the left.
  if (point) {
    point->x = at.x + offset * std::sin(direction);
    point->y = at.y - offset * std::cos(direction);
  }
  if (tangent) *tangent = direction;
  return true;
}

bool boRmLineChainAtPoint(const RmLine* line, double x, double y, double maxDistance,
                          double* chain, double* offset) {
  return boChainAtPoint(line, x, y, maxDistance, false, chain, offset);
}

bool boRmLineChainAtPoint2(const RmLine* line, double x, double y, double maxDistance,
                           double* chain, double* offset) {
  return boChainAtPoint(line, x, y, maxDistance, true, chain, offset);
}

int iRmLineSideOf(const RmLine* line, double x, double y, double maxDistance, double* distance) {
  double nearest = 0.0;
  LiElm elm = LiLineFindNearestSeg(line, x, y, maxDistance, &nearest);
  if (elm == kLiNoElm) return 0;
  int side = iLiElmFindSide(line, elm, x, y);
  if (distance) *distance = side < 0 ? -nearest : nearest;
  return side;
}
