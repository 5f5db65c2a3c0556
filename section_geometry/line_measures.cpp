#include "section_geometry/line_measures.h"

#include <cmath>

#include "base/numbers.h"
#include "geometry/line_measure.h"
#include "section_geometry/line_parts.h"
#include "section_geometry/tolerances.h"

double dInterpolateNull(double x0, double x1, double y0, double y1, double x) {
  if (boEqual(x0, x1)) return y0;
  if (y0 > kSgHeightGiven && y1 > kSgHeightGiven) return (x - x0) * (y1 - y0) / (x1 - x0) + y0;
  return kNullNumber;
}

bool boLineIsClosed(const LiLine* line) {
  if (iLiLineGetElmCount(line) == 0) return false;
  ViPoint2d first, last;
  vLiElmGetP2d(line, LiElmGetFirst(line), &first);
  vLiElmGetP2d(line, LiElmGetLast(line), &last);
  return boViIsCommonPoint(first, last);
}

bool boPartExtent(const LiLine* line, LiElm part, ViExtent* box) {
  vViExtentClear(box);
  const LiElm end = LiElmGetPartEnd(line, part);
  if (end == kLiNoElm) return false;
  for (LiElm elm = part; elm <= end; ++elm) {
    ViPoint2d point;
    vLiElmGetP2d(line, elm, &point);
    vViExtentAddPoint(box, point.x, point.y);
  }
  return true;
}

double dLinePartMeasure(const LiLine* line, LiElm part, int mode) {
  return dLiLinePartLength(line, part, mode);
}

double dLineMeasure(const LiLine* line, int mode) {
  double sum = 0.0;
  for (LiElm part = PartFirst(line); part != kLiNoElm; part = PartNext(line, part)) {
    sum += dLinePartMeasure(line, part, mode);
  }
  return sum;
}

double dLineCentroidOffset(const LiLine* line) {
  double length = 0.0;
  double moment = 0.0;
  for (LiElm part = PartFirst(line); part != kLiNoElm; part = PartNext(line, part)) {
    const LiElm end = LiElmGetPartEnd(line, part);
    const LiElm last = boLiLineIsPolygon(line) ? end + 1 : end;
    for (LiElm elm = part; elm < last; ++elm) {
      ViPoint2d a, b;
      vLiElmGetP2d(line, elm, &a);
      vLiElmGetP2d(line, elm < end ? elm + 1 : part, &b);
      const double piece = std::hypot(b.x - a.x, b.y - a.y);
      length += piece;
      moment += piece * (a.x + b.x) / 2.0;
    }
  }
  return length > 0.0 ? moment / length : 0.0;
}
