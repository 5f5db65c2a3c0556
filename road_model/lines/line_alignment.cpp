#include "road_model/lines/line_alignment.h"

#include <cmath>
#include <numbers>

#include "base/numbers.h"

LiElm RmLineAddAlignmentElement(RmLine* line, const RmAlignmentElement& element, bool first) {
  if (!line) return kLiNoElm;
  if (first) {
    LiLineAddP(line, element.StartX, element.StartY, 0.0);
    vRmLineSetStartChain(line, element.StartChain);
  }
  // The piece from the previous point to the end point belongs to the
  // previous point, where it starts.
  LiElm start = LiElmGetLast(line);
  LiElm end = LiLineAddP(line, element.EndX, element.EndY, 0.0);
  double r1 = element.StartRadius;
  double r2 = element.EndRadius;
  bool straightStart = boEqual(r1, 0.0);
  if (!straightStart && boEqual(r1, r2)) {
    // Only the length tells the larger arc: a half circle or less never is.
    double length = element.EndChain - element.StartChain;
    boLiElmSet2pArc(line, start, r1, length > std::fabs(r1) * std::numbers::pi);
  } else if (!straightStart || !boEqual(r2, 0.0)) {
    boLiElmSetClotoide(line, start, r1, r2, element.A);
  }
  return end;
}
