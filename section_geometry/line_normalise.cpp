#include "section_geometry/line_normalise.h"

#include <algorithm>
#include <string>
#include <vector>

#include "base/numbers.h"
#include "section_geometry/line_parts.h"

namespace {

struct PartStart {
  LiElm Part;
  LiElm Start;
  double X;
};

}  // namespace

LiElm LineFindLeftmost(const LiLine* line, LiElm part) {
  const LiElm end = LiElmGetPartEnd(line, part);
  if (end == kLiNoElm) return kLiNoElm;
  LiElm best = part;
  ViPoint2d bestPoint;
  vLiElmGetP2d(line, part, &bestPoint);
  for (LiElm elm = part + 1; elm <= end; ++elm) {
    ViPoint2d point;
    vLiElmGetP2d(line, elm, &point);
    const bool lower = boEqual(point.x, bestPoint.x) ? point.y <= bestPoint.y
                                                     : point.x < bestPoint.x;
    if (lower) {
      best = elm;
      bestPoint = point;
    }
  }
  return best;
}

LiLine* LineNormalise(const LiLine* line) {
  if (iLiLineGetElmCount(line) == 0) return nullptr;
  std::vector<PartStart> starts;
  for (LiElm part = PartFirst(line); part != kLiNoElm; part = PartNext(line, part)) {
    const LiElm start = LineFindLeftmost(line, part);
    ViPoint2d point;
    vLiElmGetP2d(line, start, &point);
    starts.push_back({part, start, point.x});
  }
  std::sort(starts.begin(), starts.end(),
            [](const PartStart& a, const PartStart& b) { return a.X < b.X; });
  LiLine* result = LiLineCreate(false);
  vLiLineSetPolygon(result, boLiLineIsPolygon(line));
  for (const PartStart& start : starts) {
    const int count = PartElmCount(line, start.Part);
    LiElm elm = start.Start;
    for (int k = 0; k < count; ++k) {
      ViPoint2d point;
      vLiElmGetP2d(line, elm, &point);
      if (k == 0 && iLiLineGetElmCount(result) > 0) {
        LiLineAddPInvisible(result, point.x, point.y);
      } else {
        LiLineAddP2d(result, point.x, point.y);
      }
      elm = PartElmNext(line, start.Part, elm);
    }
  }
  return result;
}

namespace {

// Whether the parts already stand in normal order: each starts at its
// leftmost lowest point, and their starts rise in x.
bool boIsNormal(const LiLine* line) {
  double lastX = -1e300;
  for (LiElm part = PartFirst(line); part != kLiNoElm; part = PartNext(line, part)) {
    if (LineFindLeftmost(line, part) != part) return false;
    ViPoint2d point;
    vLiElmGetP2d(line, part, &point);
    if (point.x < lastX) return false;
    lastX = point.x;
  }
  return true;
}

}  // namespace

void vPolygonNormalise(LiLine* polygon) {
  if (boIsNormal(polygon)) return;
  LiLine* normal = LineNormalise(polygon);
  if (!normal) return;
  const std::string guid = sLiLineGetGuid(polygon);
  boLiLineCopy(polygon, normal);
  vLiLineSetGuid(polygon, guid.c_str());
  vLiLineDelete(&normal);
}
