#include "section_geometry/mass_polygon.h"

#include <cmath>

#include "road_model/names/mass_types.h"
#include "road_model/sections/section.h"
#include "section_geometry/layer_band.h"
#include "section_geometry/layer_polygons.h"
#include "section_geometry/line_cleanup.h"
#include "section_geometry/line_parts.h"
#include "section_geometry/mass_box.h"
#include "section_geometry/tolerances.h"

namespace {

constexpr int kCalcTypeAreaLayers = 8;

// Replaces `*polygon` by the result of `operation` with `other`.
void vClipInPlace(YgPolygon** polygon, const YgPolygon* other, int operation) {
  YgPolygon* clipped = pYgPolygonPolygonClipAndSortPartsForIslands(*polygon, other, operation, 1);
  vYgPolygonDelete(polygon);
  *polygon = clipped;
}

// A long section measures along the road: the frame of the type's chain
// ranges, as offsets from the section's chainage, over the box's height.
YgPolygon* RangeFrame(const RmSection* section, const RmMassType* massType,
                      const ViExtent& box) {
  const RmMassChainRange* range = ListFirst<RmMassChainRange>(&massType->ChainRanges);
  if (!range) return BoxPolygon(box);
  YgPolygon* frame = YgPolygonCreate();
  for (; range; range = range->Next) {
    const double from = range->Range[0] - section->Chain;
    const double to = range->Range[1] - section->Chain;
    if (!(from < to)) continue;
    if (iYgElmGetCount(frame) == 0) {
      LiLineAddP2d(frame, from, box.dMinY);
    } else {
      LiLineAddPInvisible(frame, from, box.dMinY);
    }
    LiLineAddP2d(frame, to, box.dMinY);
    LiLineAddP2d(frame, to, box.dMaxY);
    LiLineAddP2d(frame, from, box.dMaxY);
  }
  // Overlapping ranges would cancel each other in the clipping: merged.
  YgPolygon* merged = PartRectangles(frame, box);
  vYgPolygonDelete(&frame);
  return merged;
}

bool boInsideBoxSideways(const YgPolygon* polygon, const ViExtent& box) {
  ViExtent extent;
  vYgPolygonGetExtent(polygon, &extent);
  return extent.dMinX >= box.dMinX && extent.dMaxX <= box.dMaxX;
}

// Deletes each outer ring, with the holes that follow it, whose mean
// thickness (area over width) is below `thickness`.
void vRemoveThinParts(YgPolygon* polygon, double thickness) {
  LiElm part = PartFirst(polygon);
  while (part != kLiNoElm) {
    double area = dYgPolygonPartArea(polygon, part, 0);
    ViExtent extent;
    vViExtentClear(&extent);
    LiElm next = part;
    for (bool outer = true; next != kLiNoElm; outer = false) {
      const double ringArea = dYgPolygonPartArea(polygon, next, 0);
      if (!outer && ringArea > 0.0) break;
      if (!outer) area += ringArea;
      const LiElm end = LiElmGetPartEnd(polygon, next);
      for (LiElm elm = next; elm <= end; ++elm) {
        ViPoint2d point;
        vYgElmGetP2d(polygon, elm, &point);
        vViExtentAddPoint(&extent, point.x, point.y);
      }
      next = PartNext(polygon, next);
    }
    const double width = extent.dMaxX - extent.dMinX;
    if (width > 0.0 && std::fabs(area) / width >= thickness) {
      part = next;
      continue;
    }
    const LiElm last = next == kLiNoElm ? LiElmGetLast(polygon) : next - 1;
    for (LiElm elm = last; elm >= part; --elm) vYgPolygonDeleteElm(polygon, elm);
    const LiElm tail = LiElmGetLast(polygon);
    if (next == kLiNoElm && tail != kLiNoElm && YgElmGetType(polygon, tail) == kLiElmInvisible) {
      boYgElmSetType(polygon, tail, kLiElmStraight);
    }
    part = next == kLiNoElm ? kLiNoElm : part;
  }
}

// The lower room less the upper room, by clipping.
YgPolygon* ClippedRoom(const RmSection* section, const RmMassType* massType,
                       const ViExtent& box, double lift) {
  YgPolygon* upper = LayerListPolygon(section, &massType->FromLayers, massType->FromLayers.Join,
                                      kSgCloseToTop, box, lift);
  YgPolygon* lower = LayerListPolygon(section, &massType->ToLayers, massType->ToLayers.Join,
                                      kSgCloseToTop, box, 0.0);
  YgPolygon* result = nullptr;
  if (upper && lower) {
    // Where the upper layers are missing, the room above them takes the
    // whole height of the box: no mass arises there.
    vAddGapRectangles(upper, box);
    result = pYgPolygonPolygonClipAndSortPartsForIslands(lower, upper, kYgClipDifference, 1);
  }
  vYgPolygonDelete(&upper);
  vYgPolygonDelete(&lower);
  return result;
}

// Most masses lie between upper and lower layers that each run once across
// the section: their room is taken directly, from the bottoms of the rooms
// above both groups (layer_envelope.h, layer_band.h). False where that does
// not apply, and the clipping must do.
bool boDirectRoom(const RmSection* section, const RmMassType* massType, const ViExtent& box,
                  double lift, YgPolygon** room) {
  SgHeightLine upper;
  SgHeightLine lower;
  return boLayerListBottom(section, &massType->FromLayers, lift, &upper) &&
         boLayerListBottom(section, &massType->ToLayers, 0.0, &lower) &&
         boLayerBandPolygon(upper, lower, box, room);
}

YgPolygon* AreaLayersPolygon(const RmSection* section, const RmMassType* massType,
                             const ViExtent& box) {
  YgPolygon* area = LayerListPolygon(section, &massType->AreaLayers, massType->AreaLayers.Join,
                                     kSgCloseSelf, box, 0.0);
  if (area && iYgElmGetCount(area) < 3) vYgPolygonDelete(&area);
  return area;
}

}  // namespace

YgPolygon* MassPolygon(const RmModel* model, const RmSection* section,
                       const RmMassTypes* massTypes, const RmMassType* massType, int finish) {
  (void)model;
  if (!section || !massType || !boMassLayersPresent(section, massType)) return nullptr;
  ViExtent box;
  if (!boMassBox(section, massType, &box)) return nullptr;
  if (massType->CalcType == kCalcTypeAreaLayers) return AreaLayersPolygon(section, massType, box);

  const double lift = massType->MinThickness > 0.0 ? kSgThicknessLift : 0.0;
  YgPolygon* result = nullptr;
  // The direct room never reaches past the box sideways.
  const bool direct = boDirectRoom(section, massType, box, lift, &result);
  if (!direct) result = ClippedRoom(section, massType, box, lift);
  if (!result) return nullptr;

  if (iRmMassTypesGetKind(massTypes) == kRmMassTypesLong) {
    YgPolygon* frame = RangeFrame(section, massType, box);
    vClipInPlace(&result, frame, kYgClipIntersection);
    vYgPolygonDelete(&frame);
  } else if (!direct && !boInsideBoxSideways(result, box)) {
    YgPolygon* frame = BoxPolygon(box);
    vClipInPlace(&result, frame, kYgClipIntersection);
    vYgPolygonDelete(&frame);
  }
  if (!result) return nullptr;

  iLiLineRemoveShortElements(result, 1);
  vPolygonRemoveSmallParts(result, kSgSliverArea);
  vLineRemoveSpikes(result, kSgSliverArea);
  if (finish && massType->MinThickness > 0.0) vRemoveThinParts(result, massType->MinThickness);
  if (iYgElmGetCount(result) < 3) vYgPolygonDelete(&result);
  return result;
}
