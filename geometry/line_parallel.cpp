#include "geometry/line_parallel.h"

#include <cmath>
#include <numbers>
#include <vector>

namespace {

// Tolerance of the chords that replace clothoids and arcs by three points.
constexpr double kChordTolerance = 1e-4;
// A corner further than this many distances from the corner is not cut.
constexpr double kMitreLimit = 10.0;

// One straight or arc of a part, before and after it is moved.
struct Segment {
  bool boArc;
  ViPoint2d from, to;     // moved end points
  ViPoint2d cornerAfter;  // the original point where the segment ends
  double dRadius;         // moved arc: signed radius, positive turning left
  bool boLarge;
  LiElm source;  // element whose point data the moved end point takes
};

ViPoint2d RightOf(const ViPoint2d& point, double direction, double distance) {
  return {point.x + distance * std::sin(direction), point.y - distance * std::cos(direction)};
}

void vAddStraight(std::vector<Segment>* segments, const ViPoint2d& from, const ViPoint2d& to,
                  double distance, LiElm source) {
  const double direction = std::atan2(to.y - from.y, to.x - from.x);
  segments->push_back({false, RightOf(from, direction, distance), RightOf(to, direction, distance),
                       to, 0.0, false, source});
}

void vAddArc(std::vector<Segment>* segments, const LiPiece& piece, double distance, LiElm source) {
  const GrArc& arc = piece.arc;
  const bool left = arc.dSweep >= 0.0;
  const double radius = arc.dRadius + (left ? distance : -distance);
  if (!(radius > 1e-9)) {
    vAddStraight(segments, piece.start, piece.end, distance, source);
    return;
  }
  double startDirection, endDirection;
  ViPoint2d point;
  vGrArcPointAt(arc, 0.0, &point, &startDirection);
  vGrArcPointAt(arc, piece.dLength, &point, &endDirection);
  segments->push_back({true, RightOf(piece.start, startDirection, distance),
                       RightOf(piece.end, endDirection, distance), piece.end,
                       left ? radius : -radius, std::fabs(arc.dSweep) > std::numbers::pi, source});
}

// The segments of one part, moved.
std::vector<Segment> MovedSegments(const LiLine& line, LiElm part, LiElm end, double distance) {
  std::vector<Segment> segments;
  for (LiElm elm = part; elm < end; ++elm) {
    const LiElement& element = line.elements[static_cast<size_t>(elm)];
    const LiPiece piece = LiPieceMake(element, &line.elements[static_cast<size_t>(elm) + 1]);
    if (!(piece.dLength > 0.0)) continue;
    // The piece's end point is the next element's, and so is its data.
    const LiElm endPoint = elm + 1;
    if (piece.kind == LiPieceKind::kArc && element.uType == kLiElmArc2p) {
      vAddArc(&segments, piece, distance, endPoint);
    } else if (piece.kind == LiPieceKind::kStraight) {
      vAddStraight(&segments, piece.start, piece.end, distance, endPoint);
    } else {
      const int chords = iLiPieceChordCount(piece, kChordTolerance);
      ViPoint2d from = piece.start;
      for (int k = 1; k <= chords; ++k) {
        ViPoint2d to;
        vLiPiecePointAt(piece, piece.dLength * k / chords, &to, nullptr, nullptr);
        vAddStraight(&segments, from, to, distance, endPoint);
        from = to;
      }
    }
  }
  return segments;
}

// Cuts two moved straights at their crossing when it lies near the corner.
void vJoin(Segment* before, Segment* after, double distance) {
  if (boViIsCommonPoint(before->to, after->from) || before->boArc || after->boArc) return;
  const double ax = before->to.x - before->from.x, ay = before->to.y - before->from.y;
  const double bx = after->to.x - after->from.x, by = after->to.y - after->from.y;
  const double cross = ax * by - ay * bx;
  if (std::fabs(cross) <= 1e-12 * std::hypot(ax, ay) * std::hypot(bx, by)) return;
  const double t =
      ((after->from.x - before->from.x) * by - (after->from.y - before->from.y) * bx) / cross;
  const ViPoint2d crossing{before->from.x + t * ax, before->from.y + t * ay};
  const double fromCorner =
      std::hypot(crossing.x - before->cornerAfter.x, crossing.y - before->cornerAfter.y);
  if (fromCorner > kMitreLimit * std::fabs(distance)) return;
  before->to = crossing;
  after->from = crossing;
}

void vCopyElementData(const LiLine& from, LiElm source, LiLine* to, LiElm target) {
  for (int slot = 0; slot < kLiElmDataSlots; ++slot) {
    vLiElmSetData(to, target, slot, iLiElmGetData(&from, source, slot));
  }
  vLiElmSetText(to, target, sLiElmGetText(&from, source));
}

LiElm AddPoint(LiLine* result, const LiLine& line, const ViPoint2d& point, LiElm source,
               bool invisible) {
  const double z = line.elements[static_cast<size_t>(source)].z;
  const LiElm added = invisible ? LiLineAddPInvisible(result, point.x, point.y, z)
                                : LiLineAddP(result, point.x, point.y, z);
  vCopyElementData(line, source, result, added);
  return added;
}

}  // namespace

LiLine* LiLineCreateParallel(const LiLine* line, double distance) {
  if (line == nullptr || line->elements.empty()) return nullptr;
  LiLine* result = LiLineCreate(line->bo3d);
  result->boPolygon = line->boPolygon;
  result->boHasHeight = line->boHasHeight;
  result->dHeight = line->dHeight;
  for (LiElm part = 0; part != kLiNoElm;) {
    const LiElm end = LiElmGetPartEnd(line, part);
    const bool firstPart = iLiLineGetElmCount(result) == 0;
    std::vector<Segment> segments = MovedSegments(*line, part, end, distance);
    if (segments.empty()) {
      // A part without length stays a point.
      const LiElement& only = line->elements[static_cast<size_t>(part)];
      AddPoint(result, *line, {only.x, only.y}, part, !firstPart);
      part = LiElmGetNext(line, end);
      continue;
    }
    const LiElement& first = line->elements[static_cast<size_t>(part)];
    const LiElement& last = line->elements[static_cast<size_t>(end)];
    const bool endsAtStart = boViIsCommonPoint(first.x, first.y, last.x, last.y);
    if (line->boPolygon && !endsAtStart) {
      vAddStraight(&segments, {last.x, last.y}, {first.x, first.y}, distance, part);
    }
    const bool closed = line->boPolygon || endsAtStart;
    for (size_t i = 0; i + 1 < segments.size(); ++i)
      vJoin(&segments[i], &segments[i + 1], distance);
    if (closed && segments.size() > 1) vJoin(&segments.back(), &segments.front(), distance);

    AddPoint(result, *line, segments.front().from, part, !firstPart);
    ViPoint2d lastAdded = segments.front().from;
    for (size_t i = 0; i < segments.size(); ++i) {
      const Segment& segment = segments[i];
      if (!boViIsCommonPoint(lastAdded, segment.from)) {
        AddPoint(result, *line, segment.from, i > 0 ? segments[i - 1].source : part, false);
      }
      // A polygon's ring closes by itself.
      const bool closesRing = line->boPolygon && i + 1 == segments.size() &&
                              boViIsCommonPoint(segment.to, segments.front().from);
      if (closesRing) break;
      const LiElm added = AddPoint(result, *line, segment.to, segment.source, false);
      if (segment.boArc) boLiElmSet2pArc(result, added - 1, segment.dRadius, segment.boLarge);
      lastAdded = segment.to;
    }
    part = LiElmGetNext(line, end);
  }
  return result;
}
