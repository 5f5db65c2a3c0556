#include "section_geometry/layer_polygons.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "road_model/names/layer_list.h"
#include "road_model/sections/layer.h"
#include "section_geometry/line_parts.h"
#include "section_geometry/tolerances.h"

namespace {

constexpr int kFirstRank = 1;
constexpr int kLastRank = 6;

using Range = std::pair<double, double>;

void vAddPoint(YgPolygon* polygon, bool newRing, double x, double y) {
  if (newRing && iLiLineGetElmCount(polygon) > 0) {
    LiLineAddPInvisible(polygon, x, y);
  } else {
    LiLineAddP2d(polygon, x, y);
  }
}

// The x ranges of the parts, sorted and merged where they overlap.
std::vector<Range> MergedPartRanges(const YgPolygon* polygon) {
  std::vector<Range> ranges;
  for (LiElm part = PartFirst(polygon); part != kLiNoElm; part = PartNext(polygon, part)) {
    const LiElm end = LiElmGetPartEnd(polygon, part);
    Range range{1e300, -1e300};
    for (LiElm elm = part; elm <= end; ++elm) {
      ViPoint2d point;
      vYgElmGetP2d(polygon, elm, &point);
      range.first = std::min(range.first, point.x);
      range.second = std::max(range.second, point.x);
    }
    ranges.push_back(range);
  }
  std::sort(ranges.begin(), ranges.end());
  std::vector<Range> merged;
  for (const Range& range : ranges) {
    if (!merged.empty() && range.first <= merged.back().second) {
      merged.back().second = std::max(merged.back().second, range.second);
    } else {
      merged.push_back(range);
    }
  }
  return merged;
}

int iRankOf(const RmLayerListEntry* entry) {
  return std::clamp(static_cast<int>(entry->Kind), kFirstRank, kLastRank);
}

// Takes `add` into `*into`, by `operation`; both may be null.
void vCombine(YgPolygon** into, YgPolygon* add, int operation) {
  if (!*into) {
    *into = add;
    return;
  }
  if (!add) {
    if (operation == kYgClipIntersection) vYgPolygonDelete(into);
    return;
  }
  YgPolygon* combined = pYgPolygonPolygonClipAndSortPartsForIslands(*into, add, operation, 1);
  vYgPolygonDelete(into);
  vYgPolygonDelete(&add);
  *into = combined;
}

}  // namespace

YgPolygon* BoxPolygon(const ViExtent& box) {
  YgPolygon* polygon = YgPolygonCreate();
  LiLineAddP2d(polygon, box.dMinX, box.dMinY);
  LiLineAddP2d(polygon, box.dMaxX, box.dMinY);
  LiLineAddP2d(polygon, box.dMaxX, box.dMaxY);
  LiLineAddP2d(polygon, box.dMinX, box.dMaxY);
  return polygon;
}

YgPolygon* LayerPolygon(const RmLayer* layer, int close, const ViExtent& box, double lift) {
  YgPolygon* polygon = YgPolygonCreate();
  const RmPoint* point = RmPointsGetFirst(layer);
  while (point) {
    while (point && !(point->Z > kSgHeightGiven)) point = point->Next;
    const RmPoint* first = point;
    int count = 0;
    const RmPoint* last = nullptr;
    for (; point && point->Z > kSgHeightGiven; point = point->Next) {
      last = point;
      ++count;
    }
    if (count < 2) continue;
    bool newRing = true;
    for (const RmPoint* p = first; p != point; p = p->Next) {
      vAddPoint(polygon, newRing, p->X, p->Z + lift);
      newRing = false;
    }
    if (close == kSgCloseToTop) {
      LiLineAddP2d(polygon, last->X, box.dMaxY);
      LiLineAddP2d(polygon, first->X, box.dMaxY);
    }
  }
  if (iYgElmGetCount(polygon) < 3) vYgPolygonDelete(&polygon);
  return polygon;
}

YgPolygon* LayerListPolygon(const RmSection* section, const RmLayerList* list, int join,
                            int close, const ViExtent& box, double lift) {
  const int combine = join == 1 ? kYgClipUnion : kYgClipIntersection;
  const int reduce = join == 1 ? kYgClipDifference : kYgClipUnion;
  YgPolygon* joined = nullptr;
  for (int rank = kFirstRank; rank <= kLastRank; ++rank) {
    YgPolygon* round = nullptr;
    bool any = false;
    for (const RmLayerListEntry* entry = RmLayerListGetFirst(list); entry; entry = entry->Next) {
      if (iRankOf(entry) != rank) continue;
      const RmLayer* layer = RmLayerFind(section, entry->Id);
      if (!layer) continue;
      YgPolygon* polygon = LayerPolygon(layer, close, box, lift);
      if (!any) {
        round = polygon;
        any = true;
      } else {
        vCombine(&round, polygon, combine);
      }
    }
    if (!any) continue;
    if (joined && round) {
      YgPolygon* rectangles = PartRectangles(joined, box);
      YgPolygon* reduced = pYgPolygonPolygonClip(round, rectangles, reduce);
      vYgPolygonDelete(&rectangles);
      vYgPolygonDelete(&round);
      round = reduced;
    }
    if (!joined) {
      joined = round;
    } else if (round) {
      vCombine(&joined, round, combine);
    } else if (combine == kYgClipIntersection) {
      vYgPolygonDelete(&joined);
    }
  }
  return joined;
}

YgPolygon* PartRectangles(const YgPolygon* polygon, const ViExtent& box) {
  if (iYgElmGetCount(polygon) == 0) return nullptr;
  YgPolygon* rectangles = YgPolygonCreate();
  bool newRing = true;
  for (const Range& range : MergedPartRanges(polygon)) {
    vAddPoint(rectangles, newRing, range.first, box.dMinY);
    LiLineAddP2d(rectangles, range.second, box.dMinY);
    LiLineAddP2d(rectangles, range.second, box.dMaxY);
    LiLineAddP2d(rectangles, range.first, box.dMaxY);
    newRing = true;
  }
  return rectangles;
}

void vAddGapRectangles(YgPolygon* polygon, const ViExtent& box) {
  double from = box.dMinX;
  const auto addGap = [&](double to) {
    if (!(from < to)) return;
    vAddPoint(polygon, true, from, box.dMinY);
    LiLineAddP2d(polygon, to, box.dMinY);
    LiLineAddP2d(polygon, to, box.dMaxY);
    LiLineAddP2d(polygon, from, box.dMaxY);
  };
  for (const Range& range : MergedPartRanges(polygon)) {
    addGap(std::min(range.first, box.dMaxX));
    from = std::max(from, range.second);
  }
  addGap(box.dMaxX);
}
