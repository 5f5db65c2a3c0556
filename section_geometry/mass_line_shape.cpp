#include "section_geometry/mass_line_shape.h"

#include <algorithm>
#include <utility>

#include "road_model/names/mass_types.h"
#include "road_model/sections/section.h"
#include "section_geometry/line_cleanup.h"
#include "section_geometry/line_measures.h"
#include "section_geometry/mass_box.h"
#include "section_geometry/mass_polygon.h"
#include "section_geometry/tolerances.h"

namespace {

constexpr int kLayersMethod = 0;
constexpr int kOutlineMethod = 1;

// Adds the piece from `from` to `to`; a piece that does not go on from the
// line's last point starts a new part.
void vAddPiece(LiLine* line, const ViPoint2d& from, const ViPoint2d& to) {
  ViPoint2d last{};
  const LiElm lastElm = LiElmGetLast(line);
  if (lastElm != kLiNoElm) vLiElmGetP2d(line, lastElm, &last);
  if (lastElm == kLiNoElm) {
    LiLineAddP2d(line, from.x, from.y);
  } else if (!boViIsCommonPoint(last, from)) {
    LiLineAddPInvisible(line, from.x, from.y);
  }
  LiLineAddP2d(line, to.x, to.y);
}

// The part of the straight from `a` to `b` within the box's x range.
void vAddClipped(LiLine* line, const RmPoint* a, const RmPoint* b, const ViExtent& box) {
  if (a->X == b->X) {
    if (a->X >= box.dMinX && a->X <= box.dMaxX) vAddPiece(line, {a->X, a->Z}, {b->X, b->Z});
    return;
  }
  const double ax = a->X;
  const double bx = b->X;
  double from = std::max(std::min(ax, bx), box.dMinX);
  double to = std::min(std::max(ax, bx), box.dMaxX);
  if (!(from < to)) return;
  if (ax > bx) std::swap(from, to);
  vAddPiece(line, {from, dInterpolateNull(a->X, b->X, a->Z, b->Z, from)},
            {to, dInterpolateNull(a->X, b->X, a->Z, b->Z, to)});
}

LiLine* LayersLine(const RmSection* section, const RmMassType* massType) {
  if (!boMassLayersPresent(section, massType)) return nullptr;
  ViExtent box;
  if (!boMassBox(section, massType, &box)) return nullptr;
  const RmLayerList* list =
      boRmLayerListIsEmpty(&massType->AreaLayers) ? &massType->FromLayers : &massType->AreaLayers;
  LiLine* line = LiLineCreate(false);
  for (const RmLayerListEntry* entry = RmLayerListGetFirst(list); entry; entry = entry->Next) {
    const RmLayer* layer = RmLayerFind(section, entry->Id);
    for (const RmPoint* point = RmPointsGetFirst(layer); point && point->Next;
         point = point->Next) {
      if (point->Z > kSgHeightGiven && point->Next->Z > kSgHeightGiven) {
        vAddClipped(line, point, point->Next, box);
      }
    }
  }
  return line;
}

LiLine* OutlineLine(const RmModel* model, const RmSection* section,
                    const RmMassTypes* massTypes, const RmMassType* massType) {
  LiLine* outline = MassPolygon(model, section, massTypes, massType, 1);
  if (!outline) return nullptr;
  vLineSplitAtInvisible(outline);
  vLiLineSetPolygon(outline, false);
  return outline;
}

}  // namespace

LiLine* MassLineShape(const RmModel* model, const RmSection* section,
                      const RmMassTypes* massTypes, const RmMassType* massType) {
  if (!section || !massType) return nullptr;
  LiLine* line = nullptr;
  if (massType->ComposedType == kLayersMethod) {
    line = LayersLine(section, massType);
  } else if (massType->ComposedType == kOutlineMethod) {
    line = OutlineLine(model, section, massTypes, massType);
  }
  if (line && iLiLineGetElmCount(line) < 2) vLiLineDelete(&line);
  return line;
}
