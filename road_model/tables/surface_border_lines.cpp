#include "road_model/tables/surface_border_lines.h"

#include <cstdlib>

#include "base/numbers.h"

namespace {

// A chainage this close outside a range still finds the row.
constexpr double kRangeWidening = 0.0005;

}  // namespace

RmSurfaceBorderLines* RmSurfaceBorderLinesCreate() {
  auto* lines =
      static_cast<RmSurfaceBorderLines*>(std::calloc(1, sizeof(RmSurfaceBorderLines)));
  if (lines) SLinkInit(&lines->Rows, sizeof(RmSurfaceBorderLine), nullptr);
  return lines;
}

void vRmSurfaceBorderLinesDelete(RmSurfaceBorderLines** lines) {
  if (!lines || !*lines) return;
  vSLinkClear(&(*lines)->Rows);
  std::free(*lines);
  *lines = nullptr;
}

void vRmSurfaceBorderLinesCopy(RmSurfaceBorderLines* to, const RmSurfaceBorderLines* from) {
  if (!to || !from || to == from) return;
  vSLinkClear(&to->Rows);
  SLinkCopy(&from->Rows, &to->Rows, nullptr);
}

bool boRmSurfaceBorderLinesHasRows(const RmSurfaceBorderLines* lines) {
  return lines && lines->Rows.first;
}

RmSurfaceBorderLine* RmSurfaceBorderLinesGetFirst(const RmSurfaceBorderLines* lines) {
  return lines ? ListFirst<RmSurfaceBorderLine>(&lines->Rows) : nullptr;
}

RmSurfaceBorderLine* RmSurfaceBorderLineGetNext(const RmSurfaceBorderLine* row) {
  return row ? row->Next : nullptr;
}

RmSurfaceBorderLine* RmSurfaceBorderLineAdd(RmSurfaceBorderLines* lines, int32_t surface,
                                            double from) {
  if (!lines) return nullptr;
  RmSurfaceBorderLine* before = RmSurfaceBorderLinesGetFirst(lines);
  while (before && (before->Surface < surface ||
                    (before->Surface == surface && before->Range.Low <= from))) {
    before = before->Next;
  }
  auto* row = SLinkNewObjAs<RmSurfaceBorderLine>(&lines->Rows, before);
  if (!row) return nullptr;
  row->Surface = surface;
  row->Range.Low = from;
  row->LineId = kNullInteger;
  row->FreeSurface = kNullInteger;
  return row;
}

void vRmSurfaceBorderLineRemove(RmSurfaceBorderLines* lines, RmSurfaceBorderLine* row) {
  if (lines && row) vSLinkDeleteObj(&lines->Rows, row);
}

int iRmSurfaceBorderLineGetIndex(const RmSurfaceBorderLines* lines,
                                 const RmSurfaceBorderLine* row) {
  int index = 0;
  for (RmSurfaceBorderLine* at = RmSurfaceBorderLinesGetFirst(lines); at;
       at = at->Next, ++index) {
    if (at == row) return index;
  }
  return -1;
}

RmSurfaceBorderLine* RmSurfaceBorderLineFind(const RmSurfaceBorderLines* lines, int32_t surface,
                                             double chain) {
  for (RmSurfaceBorderLine* row = RmSurfaceBorderLinesGetFirst(lines); row; row = row->Next) {
    if (row->Surface != surface) continue;
    RmChainRange range = row->Range;
    vRmChainRangeGrow(&range, kRangeWidening);
    if (boRmChainRangeContainsClosed(range, chain)) return row;
  }
  return nullptr;
}

RmSurfaceBorderLine* RmSurfaceBorderLineFindByFree(const RmSurfaceBorderLines* lines,
                                                   int32_t freeSurface, double chain) {
  for (RmSurfaceBorderLine* row = RmSurfaceBorderLinesGetFirst(lines); row; row = row->Next) {
    if (row->FreeSurface == freeSurface && boRmChainRangeContainsClosed(row->Range, chain)) {
      return row;
    }
  }
  return nullptr;
}

bool boRmSurfaceBorderLineCovers(const RmSurfaceBorderLines* lines, int32_t surface,
                                 double chain) {
  return RmSurfaceBorderLineFind(lines, surface, chain) != nullptr;
}
