#include "road_model/sections/layer_gaps.h"

#include <cmath>
#include <cstdlib>

#include "road_model/codes/code_ranges.h"
#include "road_model/codes/pcode.h"

namespace {

bool boIsGap(const RmPoint* point) { return !boRmPointHasHeight(point); }

// The first pass of the normalisation: see vRmLayerNormalizeGaps.
void vDropLoneAndRepeatedGaps(RmLayer* layer) {
  int gapsInRow = 0;
  int validInRow = 0;
  RmPoint* point = RmPointsGetFirst(layer);
  while (point) {
    RmPoint* next = point->Next;
    if (!boIsGap(point)) {
      for (; gapsInRow > 1; --gapsInRow) vRmPointRemove(layer, point->Prev);
      RmPoint* gap = point->Prev;
      if (gapsInRow == 1 && gap && !gap->Prev) vRmPointRemove(layer, gap);
      ++validInRow;
      gapsInRow = 0;
    } else {
      if (validInRow == 1) {
        // A lone valid point draws nothing: it goes with the gap before it.
        RmPoint* lone = point->Prev;
        RmPoint* before = lone->Prev;
        vRmPointRemove(layer, lone);
        if (before) vRmPointRemove(layer, before);
      }
      ++gapsInRow;
      validInRow = 0;
    }
    if (!next) {
      if (validInRow == 1) vRmPointRemove(layer, point);
      for (RmPoint* last = RmPointsGetLast(layer); last && boIsGap(last);
           last = RmPointsGetLast(layer)) {
        vRmPointRemove(layer, last);
      }
    }
    point = next;
  }
}

// The second pass: a gap between two points at its own offset breaks
// nothing that they do not break already.
void vDropGapsOnVerticals(RmLayer* layer) {
  RmPoint* point = RmPointsGetFirst(layer);
  while (point) {
    RmPoint* next = point->Next;
    RmPoint* previous = point->Prev;
    if (boIsGap(point) && previous && next && std::fabs(previous->X - point->X) < kRmOffsetEqual &&
        std::fabs(next->X - point->X) < kRmOffsetEqual) {
      bool sameHeight = previous->Z == next->Z;
      vRmPointRemove(layer, point);
      if (sameHeight) {
        RmPoint* behind = next->Next;
        vRmPointRemove(layer, next);
        next = behind;
      }
    }
    point = next;
  }
}

// Builds a filtered copy by the border rules shared by the code and the
// mark filter.
template <typename Matches>
RmLayer* FilteredCopy(const RmLayer* layer, Matches matches) {
  RmLayer* result = RmLayerCreateFree();
  if (!result) return nullptr;
  result->Id = layer->Id;
  auto addGap = [&](const RmPoint* at) { RmPointAdd(result, nullptr, at->X, kRmNoHeight, 0); };
  auto copy = [&](const RmPoint* point) { RmPointCopyBefore(result, nullptr, point); };

  bool inserted = true;
  bool afterGap = false;
  for (const RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
    int pcode = iRmPointGetPcode(point);
    int side = pcode == 0 ? 0 : (pcode < 0 ? kRmSideLeft : kRmSideRight);
    const RmPoint* next = point->Next;
    const RmPoint* previous = point->Prev;
    bool nextMatches = next && matches(next);
    bool previousMatches = previous && matches(previous);
    if (afterGap && !inserted) {
      addGap(point);
      inserted = true;
    }
    if (matches(point)) {
      copy(point);
      inserted = false;
    } else if (side == 0 && (nextMatches || previousMatches)) {
      // An uncoded point next to a kept one closes the run.
      copy(point);
      inserted = false;
    } else if ((side == 0 || side == kRmSideRight) && nextMatches) {
      addGap(point);
      copy(point);
      inserted = false;
    } else if ((side == 0 || side == kRmSideLeft) && previousMatches) {
      copy(point);
      addGap(point);
      inserted = true;
    } else if (!inserted) {
      addGap(point);
      inserted = true;
    }
    afterGap = boIsGap(point);
  }
  vRmLayerNormalizeGaps(result);
  return result;
}

bool boIsEmptyText(const char* text) { return !text || !*text; }

}  // namespace

void vRmLayerNormalizeGaps(RmLayer* layer) {
  if (!layer) return;
  vDropLoneAndRepeatedGaps(layer);
  vDropGapsOnVerticals(layer);
}

int iRmLayerTrimGaps(RmLayer* layer) {
  int trimmed = 0;
  for (RmPoint* first = RmPointsGetFirst(layer); first && boIsGap(first);
       first = RmPointsGetFirst(layer)) {
    vRmPointRemove(layer, first);
    trimmed = 1;
  }
  for (RmPoint* last = RmPointsGetLast(layer); last && boIsGap(last);
       last = RmPointsGetLast(layer)) {
    vRmPointRemove(layer, last);
    trimmed = 1;
  }
  return trimmed;
}

RmLayer* RmLayerFilterByCode(const RmLayer* layer, const char* codeFilter) {
  if (!layer) return nullptr;
  return FilteredCopy(layer, [codeFilter](const RmPoint* point) {
    return boRmCodeFilterMatches(codeFilter, iRmPointGetPcode(point));
  });
}

RmLayer* RmLayerFilterByMark(const RmLayer* layer, const char* markFilter) {
  if (!layer) return nullptr;
  int mark = boIsEmptyText(markFilter) ? 0 : std::atoi(markFilter);
  return FilteredCopy(layer, [mark](const RmPoint* point) {
    return mark < 1 || iRmPointGetMark(point) == mark;
  });
}

RmLayer* RmLayerFilterByCodeAndMark(const RmLayer* layer, const char* markFilter,
                                    const char* codeFilter) {
  if (!layer) return nullptr;
  if (boIsEmptyText(markFilter)) return RmLayerFilterByCode(layer, codeFilter);
  RmLayer* byMark = RmLayerFilterByMark(layer, markFilter);
  if (!byMark) return nullptr;
  RmLayer* result = RmLayerFilterByCode(byMark, codeFilter);
  vRmLayerDeleteFree(byMark);
  return result;
}

RmLayer* RmLayerFilterValid(const RmLayer* layer, const char* codeFilter) {
  if (!layer) return nullptr;
  RmLayer* result = RmLayerCreateFree();
  if (!result) return nullptr;
  result->Id = layer->Id;
  bool dropping = false;
  for (const RmPoint* point = RmPointsGetFirst(layer); point; point = point->Next) {
    bool keep = !boIsGap(point) && boRmCodeFilterMatches(codeFilter, iRmPointGetPcode(point));
    if (keep) {
      RmPointCopyBefore(result, nullptr, point);
    } else if (!dropping) {
      RmPointAdd(result, nullptr, point->X, kRmNoHeight, 0);
    }
    dropping = !keep;
  }
  iRmLayerTrimGaps(result);
  return result;
}
