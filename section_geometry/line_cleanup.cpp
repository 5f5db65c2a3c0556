#include "section_geometry/line_cleanup.h"

#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include "geometry/line_measure.h"
#include "section_geometry/line_parts.h"
#include "section_geometry/tolerances.h"

namespace {

// Deletes the elements of a part. The last part leaves the move into it on
// the part before, which then draws nothing and becomes a straight end.
void vDeletePart(LiLine* line, LiElm part) {
  const LiElm end = LiElmGetPartEnd(line, part);
  for (LiElm elm = end; elm >= part; --elm) vLiLineDeleteElm(line, elm);
  const LiElm last = LiElmGetLast(line);
  if (last != kLiNoElm && LiElmGetType(line, last) == kLiElmInvisible) {
    boLiElmSetType(line, last, kLiElmStraight);
  }
}

template <typename Measure>
void vRemovePartsBelow(LiLine* line, double limit, Measure measure) {
  std::vector<LiElm> parts;
  for (LiElm part = PartFirst(line); part != kLiNoElm; part = PartNext(line, part)) {
    parts.push_back(part);
  }
  // From the last part back, so that the positions of the others hold.
  for (auto it = parts.rbegin(); it != parts.rend(); ++it) {
    if (std::fabs(measure(*it)) < limit) vDeletePart(line, *it);
  }
}

double dDistance(const ViPoint2d& a, const ViPoint2d& b) {
  return std::hypot(b.x - a.x, b.y - a.y);
}

// The angle between the directions from `at` to `a` and to `b`, 0 to pi.
double dFoldAngle(const ViPoint2d& at, const ViPoint2d& a, const ViPoint2d& b) {
  double difference =
      std::fabs(std::atan2(a.y - at.y, a.x - at.x) - std::atan2(b.y - at.y, b.x - at.x));
  if (difference > std::numbers::pi) difference = 2.0 * std::numbers::pi - difference;
  return difference;
}

double dHeronArea(double a, double b, double c) {
  const double s = (a + b + c) / 2.0;
  const double product = s * (s - a) * (s - b) * (s - c);
  return product > 0.0 ? std::sqrt(product) : 0.0;
}

// Removes `elm`; a removed move to the next part leaves its type to the
// element before it, so that the parts stay apart.
void vRemoveKeepingPart(LiLine* line, LiElm part, LiElm elm) {
  if (LiElmGetType(line, elm) == kLiElmInvisible && elm > part) {
    boLiElmSetType(line, elm - 1, kLiElmInvisible);
  }
  vLiLineDeleteElm(line, elm);
}

// One pass over one part; true when it removed a point.
bool boSpikePass(LiLine* line, LiElm part, double area, double* removedArea) {
  bool removed = false;
  LiElm end = LiElmGetPartEnd(line, part);
  for (LiElm elm = part; end != kLiNoElm && elm <= end && end - part + 1 >= 3;) {
    const LiElm before = elm == part ? end : elm - 1;
    const LiElm after = elm == end ? part : elm + 1;
    ViPoint2d point, previous, next;
    vLiElmGetP2d(line, elm, &point);
    vLiElmGetP2d(line, before, &previous);
    vLiElmGetP2d(line, after, &next);
    bool remove = boViIsCommonPoint(point, previous);
    // A fold needs both neighbours on the same side of the point: most
    // points fail this before any root is taken.
    const double dot =
        (previous.x - point.x) * (next.x - point.x) + (previous.y - point.y) * (next.y - point.y);
    if (!remove && dot > 0.0) {
      const double a = dDistance(point, previous);
      const double b = dDistance(point, next);
      if (a > kSgSpikeSideLength && b > kSgSpikeSideLength &&
          dFoldAngle(point, previous, next) <= kSgSpikeFoldAngle) {
        const double sum = *removedArea + dHeronArea(a, b, dDistance(previous, next));
        if (sum < area) {
          *removedArea = sum;
          remove = true;
        }
      }
    }
    if (!remove) {
      ++elm;
      continue;
    }
    vRemoveKeepingPart(line, part, elm);
    --end;
    removed = true;
    // Go on from the predecessor, which may have become a tip itself.
    if (elm > part) --elm;
  }
  return removed;
}

}  // namespace

void vPolygonRemoveSmallParts(LiLine* polygon, double area) {
  if (!polygon) return;
  vRemovePartsBelow(polygon, area,
                    [polygon](LiElm part) { return dLiLinePartArea(polygon, part, 0); });
  if (iLiLineGetElmCount(polygon) < 3) vLiLineDeleteElms(polygon);
}

void vLineRemoveShortParts(LiLine* line, double length) {
  if (!line) return;
  vRemovePartsBelow(line, length,
                    [line](LiElm part) { return dLiLinePartLength(line, part, 0); });
}

void vLineRemoveSpikes(LiLine* line, double area) {
  if (!line) return;
  double removedArea = 0.0;
  for (bool removed = true; removed;) {
    removed = false;
    for (LiElm part = PartFirst(line); part != kLiNoElm; part = PartNext(line, part)) {
      if (boSpikePass(line, part, area, &removedArea)) removed = true;
    }
  }
}

void vLineSplitAtInvisible(LiLine* line) {
  if (iLiLineGetElmCount(line) == 0) return;
  LiLine* split = LiLineCreate(false);
  vLiLineSetPolygon(split, boLiLineIsPolygon(line));
  for (LiElm part = PartFirst(line); part != kLiNoElm; part = PartNext(line, part)) {
    const LiElm end = LiElmGetPartEnd(line, part);
    ViPoint2d first, point;
    vLiElmGetP2d(line, part, &first);
    for (LiElm elm = part; elm <= end; ++elm) {
      vLiElmGetP2d(line, elm, &point);
      if (elm == part && iLiLineGetElmCount(split) > 0) {
        LiLineAddPInvisible(split, point.x, point.y);
      } else {
        LiLineAddP2d(split, point.x, point.y);
      }
    }
    if (!boViIsCommonPoint(first, point)) LiLineAddP2d(split, first.x, first.y);
  }
  const std::string guid = sLiLineGetGuid(line);
  boLiLineCopy(line, split);
  vLiLineSetGuid(line, guid.c_str());
  vLiLineDelete(&split);
}
