#include "geometry/line_measure.h"

#include <cmath>
#include <memory>

#include "geometry/line_pieces.h"

namespace {

constexpr double kLengthTolerance = 0.001;

// The piece of element `index`, with the heights of a 2D line taken from its
// fixed height.
LiPiece PieceOf(const LiLine& line, size_t index) {
  LiPiece piece = LiPieceMake(line.elements[index], index + 1 < line.elements.size()
                                                        ? &line.elements[index + 1]
                                                        : nullptr);
  if (!line.bo3d) piece.dStartZ = piece.dEndZ = dLiLineGetHeight(&line);
  return piece;
}

bool boHasElm(const LiLine* line, LiElm elm) {
  return line != nullptr && elm >= 0 && static_cast<size_t>(elm) < line->elements.size();
}

bool boIsCurveType(uint8_t type) {
  return type == kLiElmArc2p || type == kLiElmArc3p || type == kLiElmClothoid;
}

// Area and first moment of the ring of one part, relative to an origin.
void vPartAreaMoments(const LiLine& line, LiElm part, double originX, double originY, double* area,
                      double* moment) {
  *area = 0.0;
  *moment = 0.0;
  const LiElm end = LiElmGetPartEnd(&line, part);
  for (LiElm elm = part; elm < end; ++elm) {
    // Every element before the part's end has a next point. Straights (and
    // types drawn as straights) need only their two points; curves are made
    // into pieces, which also falls back to a straight where a curve does not fit.
    const size_t index = static_cast<size_t>(elm);
    const LiElement& element = line.elements[index];
    double pieceArea, pieceMoment;
    if (boIsCurveType(element.uType)) {
      vLiPieceAreaMoments(PieceOf(line, index), originX, originY, &pieceArea, &pieceMoment);
    } else {
      const LiElement& next = line.elements[index + 1];
      vLiStraightAreaMoments({element.x, element.y}, {next.x, next.y}, originX, originY, &pieceArea,
                             &pieceMoment);
    }
    *area += pieceArea;
    *moment += pieceMoment;
  }
  // The straight that closes the ring.
  const LiElement& last = line.elements[static_cast<size_t>(end)];
  const LiElement& first = line.elements[static_cast<size_t>(part)];
  double pieceArea, pieceMoment;
  vLiStraightAreaMoments({last.x, last.y}, {first.x, first.y}, originX, originY, &pieceArea,
                         &pieceMoment);
  *area += pieceArea;
  *moment += pieceMoment;
}

// Finds the piece that holds `length` and the length left in it, in the
// pieces kept with the line: a plan line is asked for a point at every
// section, and making its pieces again from the start for each would fit
// its clothoids anew every time.
bool boFindPieceAt(const LiLine* line, double length, LiPiece* found, double* along) {
  if (line == nullptr || line->elements.empty() || length < -kLengthTolerance) return false;
  const std::shared_ptr<const LiLinePieces> table = LiLineGetPieces(*line);
  if (!table->pieces.empty()) {
    const LiPiece* piece;
    if (!boLiLinePiecesFind(*table, length, &piece, along)) return false;
    *found = *piece;
    if (!line->bo3d) found->dStartZ = found->dEndZ = dLiLineGetHeight(line);
    return true;
  }
  // A line without length: its first point.
  if (length > kLengthTolerance) return false;
  *found = PieceOf(*line, 0);
  *along = 0.0;
  return true;
}

// Removes the element `elm`, whose point repeats the one before: the element
// before takes over its piece (and with it an invisible move to the next
// part), and keeps its own point data.
void vRemoveKeepingPiece(LiLine* line, LiElm elm) {
  LiElement& previous = line->elements[static_cast<size_t>(elm) - 1];
  const LiElement& removed = line->elements[static_cast<size_t>(elm)];
  previous.uType = removed.uType;
  previous.uFlags = removed.uFlags;
  for (int i = 0; i < 3; ++i) previous.dParam[i] = removed.dParam[i];
  vLiLineDeleteElm(line, elm);
}

}  // namespace

double dLiElmLength(const LiLine* line, LiElm elm) {
  if (!boHasElm(line, elm)) return 0.0;
  return PieceOf(*line, static_cast<size_t>(elm)).dLength;
}

double dLiLineLength(const LiLine* line) {
  if (line == nullptr) return 0.0;
  double length = 0.0;
  for (size_t i = 0; i < line->elements.size(); ++i) length += PieceOf(*line, i).dLength;
  return length;
}

double dLiLinePartLength(const LiLine* line, LiElm part, int mode) {
  if (!boHasElm(line, part)) return 0.0;
  const LiElm end = LiElmGetPartEnd(line, part);
  double length = 0.0;
  for (LiElm elm = part; elm < end; ++elm) {
    const LiPiece piece = PieceOf(*line, static_cast<size_t>(elm));
    if (mode == 3 && line->bo3d) {
      length += std::hypot(piece.dLength, piece.dEndZ - piece.dStartZ);
    } else {
      length += piece.dLength;
    }
  }
  if (line->boPolygon && end > part) {
    // The straight that closes the ring.
    const LiElement& first = line->elements[static_cast<size_t>(part)];
    const LiElement& last = line->elements[static_cast<size_t>(end)];
    const double plan = std::hypot(first.x - last.x, first.y - last.y);
    length += mode == 3 && line->bo3d ? std::hypot(plan, first.z - last.z) : plan;
  }
  return length;
}

double dLiLinePartArea(const LiLine* line, LiElm part, int mode) {
  if (!boHasElm(line, part)) return 0.0;
  const LiElement& first = line->elements[static_cast<size_t>(part)];
  double area, moment;
  vPartAreaMoments(*line, part, first.x, first.y, &area, &moment);
  return mode == 1 ? std::fabs(area) : area;
}

double dLiLineArea(const LiLine* line, double* centroidX) {
  if (centroidX != nullptr) *centroidX = 0.0;
  if (line == nullptr || line->elements.empty()) return 0.0;
  // Moments about the first point keep far-off coordinates precise.
  const double originX = line->elements[0].x;
  const double originY = line->elements[0].y;
  double area = 0.0, moment = 0.0;
  for (LiElm part = 0; part != kLiNoElm; part = LiElmGetNext(line, LiElmGetPartEnd(line, part))) {
    double partArea, partMoment;
    vPartAreaMoments(*line, part, originX, originY, &partArea, &partMoment);
    area += partArea;
    moment += partMoment;
  }
  if (centroidX != nullptr && area != 0.0) *centroidX = originX + moment / area;
  return area;
}

bool boLiLineGetPointAtLength(const LiLine* line, double length, ViPoint3d* point,
                              double* direction) {
  LiPiece piece;
  double along;
  if (!boFindPieceAt(line, length, &piece, &along)) return false;
  ViPoint2d plan;
  double z;
  double angle;
  vLiPiecePointAt(piece, along, &plan, &angle, &z);
  *point = {plan.x, plan.y, z};
  if (direction != nullptr) *direction = piece.kind == LiPieceKind::kNone ? 0.0 : angle;
  return true;
}

double dLiLineGetCurvatureAtLength(const LiLine* line, double length) {
  LiPiece piece;
  double along;
  if (!boFindPieceAt(line, length, &piece, &along)) return 0.0;
  return dLiPieceCurvatureAt(piece, along);
}

bool boLiLineGetLengthAtPoint(const LiLine* line, double x, double y, double maxDistance,
                              bool extendEnds, double* length, double* offset) {
  if (line == nullptr) return false;
  double start = 0.0;
  double bestDistance = 0.0;
  double bestLength = 0.0;
  LiPiece best{};
  double bestAlong = 0.0;
  bool found = false;
  size_t bestIndex = 0, firstIndex = 0, lastIndex = 0;
  for (size_t i = 0; i < line->elements.size(); ++i) {
    const LiPiece piece = PieceOf(*line, i);
    if (piece.kind == LiPieceKind::kNone || !(piece.dLength > 0.0)) continue;
    if (!found) firstIndex = i;
    lastIndex = i;
    double along;
    const double distance = dLiPieceNearest(piece, x, y, &along);
    if (!found || distance < bestDistance) {
      bestIndex = i;
      found = true;
      bestDistance = distance;
      bestLength = start + along;
      best = piece;
      bestAlong = along;
    }
    start += piece.dLength;
  }
  if (!found) return false;
  ViPoint2d foot;
  double direction;
  vLiPiecePointAt(best, bestAlong, &foot, &direction, nullptr);
  const double tx = std::cos(direction), ty = std::sin(direction);
  const double cross = tx * (y - foot.y) - ty * (x - foot.x);
  const double ahead = tx * (x - foot.x) + ty * (y - foot.y);
  double signedOffset = cross > 0.0 ? -bestDistance : bestDistance;
  // Within 1e-9 of an end the nearest point counts as the end itself.
  const bool beforeStart = bestIndex == firstIndex && bestAlong <= 1e-9 && ahead < 0.0;
  const bool beyondEnd = bestIndex == lastIndex && bestAlong >= best.dLength - 1e-9 && ahead > 0.0;
  if (extendEnds && (beforeStart || beyondEnd)) {
    bestLength += ahead;
    signedOffset = -cross;
    bestDistance = std::fabs(cross);
  }
  if (maxDistance >= 0.0 && bestDistance > maxDistance) return false;
  *length = bestLength;
  *offset = signedOffset;
  return true;
}

LiElm LiLineFindNearestSeg(const LiLine* line, double x, double y, double maxDistance,
                           double* distance) {
  if (line == nullptr) return kLiNoElm;
  LiElm best = kLiNoElm;
  double bestDistance = 0.0;
  for (size_t i = 0; i < line->elements.size(); ++i) {
    const LiPiece piece = PieceOf(*line, i);
    if (piece.kind == LiPieceKind::kNone) continue;
    double along;
    const double d = dLiPieceNearest(piece, x, y, &along);
    if (best == kLiNoElm || d < bestDistance) {
      best = static_cast<LiElm>(i);
      bestDistance = d;
    }
  }
  if (best == kLiNoElm || (maxDistance >= 0.0 && bestDistance > maxDistance)) return kLiNoElm;
  if (distance != nullptr) *distance = bestDistance;
  return best;
}

int iLiElmFindSide(const LiLine* line, LiElm elm, double x, double y) {
  if (!boHasElm(line, elm)) return 0;
  const LiPiece piece = PieceOf(*line, static_cast<size_t>(elm));
  if (piece.kind == LiPieceKind::kNone || !(piece.dLength > 0.0)) return 0;
  double along;
  dLiPieceNearest(piece, x, y, &along);
  ViPoint2d foot;
  double direction;
  vLiPiecePointAt(piece, along, &foot, &direction, nullptr);
  const double cross = std::cos(direction) * (y - foot.y) - std::sin(direction) * (x - foot.x);
  if (std::fabs(cross) <= 1e-9) return 0;
  return cross > 0.0 ? -1 : 1;
}

void vLiLineGetExtent(const LiLine* line, ViExtent* extent) {
  vViExtentClear(extent);
  if (line == nullptr) return;
  for (size_t i = 0; i < line->elements.size(); ++i) vLiPieceAddExtent(PieceOf(*line, i), extent);
}

int iLiLineRemoveShortElements(LiLine* line, int mode) {
  if (line == nullptr) return 0;
  int removed = 0;
  for (LiElm elm = 1; elm < iLiLineGetElmCount(line);) {
    const LiElement& previous = line->elements[static_cast<size_t>(elm) - 1];
    const LiElement& element = line->elements[static_cast<size_t>(elm)];
    if (previous.uType != kLiElmInvisible &&
        boViIsCommonPoint(previous.x, previous.y, element.x, element.y)) {
      vRemoveKeepingPiece(line, elm);
      ++removed;
    } else {
      ++elm;
    }
  }
  if (mode == 1 && line->boPolygon) {
    for (LiElm part = LiElmGetFirst(line); part != kLiNoElm;) {
      const LiElm end = LiElmGetPartEnd(line, part);
      const LiElement& first = line->elements[static_cast<size_t>(part)];
      const LiElement& last = line->elements[static_cast<size_t>(end)];
      if (end > part && boViIsCommonPoint(first.x, first.y, last.x, last.y)) {
        vRemoveKeepingPiece(line, end);
        ++removed;
        part = LiElmGetNext(line, end - 1);
      } else {
        part = LiElmGetNext(line, end);
      }
    }
  }
  return removed;
}
