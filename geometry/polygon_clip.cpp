// Boolean operations on polygons, done on an integer grid by the Clipper
// library. Rings are taken even-odd, so that a ring inside another is a hole
// whichever way it runs.
#include <algorithm>
#include <cmath>
#include <polyclipping/clipper.hpp>
#include <vector>

#include "geometry/polygon.h"

namespace {

using ClipperLib::cInt;
using ClipperLib::IntPoint;
using ClipperLib::Path;
using ClipperLib::Paths;
using ClipperLib::PolyNode;
using ClipperLib::PolyTree;

// Coordinates beyond this many metres do not fit the grid.
constexpr double kLargestCoordinate = 1e12;

bool boToGrid(double x, double y, IntPoint* point) {
  if (!(std::fabs(x) <= kLargestCoordinate) || !(std::fabs(y) <= kLargestCoordinate)) return false;
  point->X = static_cast<cInt>(std::llround(x * kYgClipScale));
  point->Y = static_cast<cInt>(std::llround(y * kYgClipScale));
  return true;
}

bool boAppendPoint(Path* path, double x, double y) {
  IntPoint point;
  if (!boToGrid(x, y, &point)) return false;
  if (path->empty() || path->back() != point) path->push_back(point);
  return true;
}

// Adds the rings of a polygon, with curves replaced by chords. False when a
// coordinate does not fit the grid.
bool boAppendRings(const YgPolygon* polygon, Paths* paths) {
  if (polygon == nullptr) return true;
  const std::vector<LiElement>& elements = polygon->elements;
  for (LiElm part = LiElmGetFirst(polygon); part != kLiNoElm;) {
    const LiElm end = LiElmGetPartEnd(polygon, part);
    Path path;
    const LiElement& first = elements[static_cast<size_t>(part)];
    if (!boAppendPoint(&path, first.x, first.y)) return false;
    for (LiElm elm = part; elm < end; ++elm) {
      const LiPiece piece =
          LiPieceMake(elements[static_cast<size_t>(elm)], &elements[static_cast<size_t>(elm) + 1]);
      const int chords = iLiPieceChordCount(piece, kYgClipChordTolerance);
      for (int k = 1; k < chords; ++k) {
        ViPoint2d point;
        vLiPiecePointAt(piece, piece.dLength * k / chords, &point, nullptr, nullptr);
        if (!boAppendPoint(&path, point.x, point.y)) return false;
      }
      if (!boAppendPoint(&path, piece.end.x, piece.end.y)) return false;
    }
    if (path.size() > 1 && path.back() == path.front()) path.pop_back();
    if (path.size() >= 3) paths->push_back(std::move(path));
    part = LiElmGetNext(polygon, end);
  }
  return true;
}

bool boClipToTree(const YgPolygon* a, const YgPolygon* b, int operation, PolyTree* tree) {
  ClipperLib::ClipType type;
  switch (operation) {
    case kYgClipIntersection:
      type = ClipperLib::ctIntersection;
      break;
    case kYgClipDifference:
      type = ClipperLib::ctDifference;
      break;
    case kYgClipUnion:
      type = ClipperLib::ctUnion;
      break;
    default:
      return false;
  }
  Paths subject, clip;
  if (!boAppendRings(a, &subject) || !boAppendRings(b, &clip)) return false;
  try {
    ClipperLib::Clipper clipper;
    clipper.AddPaths(subject, ClipperLib::ptSubject, true);
    clipper.AddPaths(clip, ClipperLib::ptClip, true);
    return clipper.Execute(type, *tree, ClipperLib::pftEvenOdd, ClipperLib::pftEvenOdd);
  } catch (...) {
    // The library refuses coordinates out of its range; the grid check above
    // keeps them in, so this is a last guard only.
    return false;
  }
}

void vAddRing(YgPolygon* result, const Path& ring) {
  const bool firstRing = iLiLineGetElmCount(result) == 0;
  for (size_t i = 0; i < ring.size(); ++i) {
    const double x = static_cast<double>(ring[i].X) / kYgClipScale;
    const double y = static_cast<double>(ring[i].Y) / kYgClipScale;
    if (i == 0 && !firstRing) {
      LiLineAddPInvisible(result, x, y);
    } else {
      LiLineAddP2d(result, x, y);
    }
  }
}

YgPolygon* ResultOrNull(YgPolygon* result) {
  if (iLiLineGetElmCount(result) == 0) vYgPolygonDelete(&result);
  return result;
}

struct OuterRing {
  const PolyNode* node;
  IntPoint leftmost;
};

IntPoint Leftmost(const Path& ring) {
  IntPoint best = ring.front();
  for (const IntPoint& point : ring) {
    if (point.X < best.X || (point.X == best.X && point.Y < best.Y)) best = point;
  }
  return best;
}

}  // namespace

YgPolygon* pYgPolygonPolygonClip(const YgPolygon* a, const YgPolygon* b, int operation) {
  PolyTree tree;
  if (!boClipToTree(a, b, operation, &tree)) return nullptr;
  Paths rings;
  ClipperLib::ClosedPathsFromPolyTree(tree, rings);
  YgPolygon* result = YgPolygonCreate();
  for (const Path& ring : rings) {
    if (ring.size() >= 3) vAddRing(result, ring);
  }
  return ResultOrNull(result);
}

YgPolygon* pYgPolygonPolygonClipAndSortPartsForIslands(const YgPolygon* a, const YgPolygon* b,
                                                       int operation, int flag) {
  PolyTree tree;
  if (!boClipToTree(a, b, operation, &tree)) return nullptr;
  std::vector<OuterRing> outers;
  for (const PolyNode* node = tree.GetFirst(); node != nullptr; node = node->GetNext()) {
    if (!node->IsHole() && node->Contour.size() >= 3) {
      outers.push_back({node, Leftmost(node->Contour)});
    }
  }
  if (flag != 0) {
    std::stable_sort(outers.begin(), outers.end(), [](const OuterRing& l, const OuterRing& r) {
      return l.leftmost.X < r.leftmost.X ||
             (l.leftmost.X == r.leftmost.X && l.leftmost.Y < r.leftmost.Y);
    });
  }
  YgPolygon* result = YgPolygonCreate();
  for (const OuterRing& outer : outers) {
    vAddRing(result, outer.node->Contour);
    for (const PolyNode* hole : outer.node->Childs) {
      if (hole->Contour.size() >= 3) vAddRing(result, hole->Contour);
    }
  }
  return ResultOrNull(result);
}
