#include "road_model/surfaces/surfaces.h"

#include <algorithm>
#include <limits>

#include "base/numbers.h"
#include "base/text.h"
#include "road_model/surfaces/surface_groups.h"

namespace {

void vFreeSurface(RmSurface* surface) {
  vDLinkClear(&surface->Rows);
  vHeapFree(&surface->Descr);
}

// Whether `row` lies behind the search mark, as far as its neighbours tell:
// right behind the mark, at the tail, or behind a row beyond the mark's top,
// which no row up to the mark is.
bool boBehindMark(const RmSurface* surface, const RmSurfaceRow* row) {
  const RmSurfaceRow* previous = row->Prev;
  return previous == surface->SearchMark || !row->Next ||
         (previous && !(previous->Chain <= surface->SearchTop));
}

// A new row in front of `before` (null: at the end). A row that may have
// landed in front of the search mark with a chainage beyond its top would
// be passed over by searches that begin behind the mark, so the mark goes.
RmSurfaceRow* NewRow(RmSurface* surface, RmSurfaceRow* before, double chain) {
  auto* row = DLinkNewObjAs<RmSurfaceRow>(&surface->Rows, before);
  if (!row) return nullptr;
  row->Chain = chain;
  if (surface->SearchMark && !(chain <= surface->SearchTop) && !boBehindMark(surface, row)) {
    surface->SearchMark = nullptr;
  }
  return row;
}

}  // namespace

// ---- Surfaces of a group ----

RmSurface* RmSurfacesGetFirst(const RmSurfaceGroup* group) {
  return group ? static_cast<RmSurface*>(group->Surfaces.first) : nullptr;
}

RmSurface* RmSurfacesGetLast(const RmSurfaceGroup* group) {
  return group ? static_cast<RmSurface*>(group->Surfaces.last) : nullptr;
}

RmSurface* RmSurfaceGetNext(const RmSurface* surface) { return surface ? surface->Next : nullptr; }

RmSurface* RmSurfaceGetPrev(const RmSurface* surface) { return surface ? surface->Prev : nullptr; }

RmSurface* RmSurfaceFind(const RmSurfaceGroup* group, int32_t number) {
  for (RmSurface* surface = RmSurfacesGetFirst(group); surface; surface = surface->Next) {
    if (surface->Number == number) return surface;
  }
  return nullptr;
}

RmSurface* RmSurfaceAdd(RmSurfaceGroup* group, int32_t number) {
  if (!group) return nullptr;
  RmSurface* before = RmSurfacesGetFirst(group);
  while (before && before->Number <= number) before = before->Next;
  return RmSurfaceAddAt(group, before, number);
}

RmSurface* RmSurfaceAddAt(RmSurfaceGroup* group, RmSurface* before, int32_t number) {
  if (!group) return nullptr;
  auto* surface = DLinkNewObjAs<RmSurface>(&group->Surfaces, before);
  if (!surface) return nullptr;
  DLinkInit(&surface->Rows, sizeof(RmSurfaceRow), nullptr);
  surface->Number = number;
  return surface;
}

void vRmSurfaceCopy(RmSurface* to, const RmSurface* from) {
  if (!to || !from || to == from) return;
  vDLinkClear(&to->Rows);
  DLinkCopy(&from->Rows, &to->Rows, nullptr);
  to->SearchMark = nullptr;
  vRmSurfaceSetDescr(to, from->Descr);
  to->Number = from->Number;
  to->SecondNumber = from->SecondNumber;
}

void vRmSurfaceDelete(RmSurfaceGroup* group, RmSurface* surface) {
  if (!group || !surface) return;
  vFreeSurface(surface);
  vDLinkDeleteObj(&group->Surfaces, surface);
}

void vRmSurfaceClearRows(RmSurface* surface) {
  if (!surface) return;
  vDLinkClear(&surface->Rows);
  surface->SearchMark = nullptr;
}

void vRmSurfacesClear(RmSurfaceGroup* group) {
  if (!group) return;
  for (RmSurface* surface = RmSurfacesGetFirst(group); surface; surface = surface->Next) {
    vFreeSurface(surface);
  }
  vDLinkClear(&group->Surfaces);
}

void vRmSurfaceSetDescr(RmSurface* surface, const char* descr) {
  if (!surface) return;
  if (descr && *descr) {
    sHeapSet(&surface->Descr, descr);
  } else {
    vHeapFree(&surface->Descr);
  }
}

RmSurface* RmSurfaceGetOutward(const RmSurface* surface, int side) {
  if (!surface) return nullptr;
  if (side == 1) return surface->Prev;
  if (side == 2) return surface->Next;
  return nullptr;
}

RmSurface* RmSurfaceGetInward(const RmSurface* surface, int side) {
  if (!surface) return nullptr;
  if (side == 1) return surface->Next;
  if (side == 2) return surface->Prev;
  return nullptr;
}

RmSurface* RmSurfaceGetSideStart(const RmSurfaceGroup* group, int side) {
  if (side == 1) {
    // The last surface that is not right of the centre.
    for (RmSurface* surface = RmSurfacesGetFirst(group); surface; surface = surface->Next) {
      if (surface->Number > 0) return surface->Prev;
    }
    RmSurface* last = RmSurfacesGetLast(group);
    return last && last->Number < 1 ? last : nullptr;
  }
  // The first surface that is not left of the centre.
  for (RmSurface* surface = RmSurfacesGetLast(group); surface; surface = surface->Prev) {
    if (surface->Number < 0) return surface->Next;
  }
  RmSurface* first = RmSurfacesGetFirst(group);
  return first && first->Number >= 0 ? first : nullptr;
}

RmSurface* RmSurfaceFindFromSide(const RmSurfaceGroup* group, int32_t number, int side) {
  for (RmSurface* surface = RmSurfaceGetSideStart(group, side); surface;
       surface = RmSurfaceGetOutward(surface, side)) {
    if (side == 2 ? surface->Number >= number : surface->Number <= number) return surface;
  }
  return nullptr;
}

// ---- Rows ----

RmSurfaceRow* RmSurfaceRowsGetFirst(const RmSurface* surface) {
  return surface ? static_cast<RmSurfaceRow*>(surface->Rows.first) : nullptr;
}

RmSurfaceRow* RmSurfaceRowsGetLast(const RmSurface* surface) {
  return surface ? static_cast<RmSurfaceRow*>(surface->Rows.last) : nullptr;
}

RmSurfaceRow* RmSurfaceRowGetNext(const RmSurfaceRow* row) { return row ? row->Next : nullptr; }

RmSurfaceRow* RmSurfaceRowGetPrev(const RmSurfaceRow* row) { return row ? row->Prev : nullptr; }

int iRmSurfaceRowsGetCount(const RmSurface* surface) {
  int count = 0;
  for (RmSurfaceRow* row = RmSurfaceRowsGetFirst(surface); row; row = row->Next) ++count;
  return count;
}

int iRmSurfaceRowsGetIndexOf(const RmSurface* surface, const RmSurfaceRow* row) {
  int index = 0;
  for (RmSurfaceRow* at = RmSurfaceRowsGetFirst(surface); at; at = at->Next, ++index) {
    if (at == row) return index;
  }
  return -1;
}

RmSurfaceRow* RmSurfaceRowAdd(RmSurface* surface, double chain) {
  if (!surface) return nullptr;
  return NewRow(surface, RmSurfaceRowFindFrom(surface, chain), chain);
}

RmSurfaceRow* RmSurfaceRowAddBefore(RmSurface* surface, RmSurfaceRow* before, double chain) {
  return surface ? NewRow(surface, before, chain) : nullptr;
}

RmSurfaceRow* RmSurfaceRowAddBehind(RmSurface* surface, double chain) {
  if (!surface) return nullptr;
  RmSurfaceRow* before = RmSurfaceRowsGetFirst(surface);
  while (before && before->Chain <= chain) before = before->Next;
  return NewRow(surface, before, chain);
}

RmSurfaceRow* RmSurfaceRowAddValues(RmSurface* surface, double chain, double width,
                                    double slope) {
  RmSurfaceRow* row = RmSurfaceRowAdd(surface, chain);
  if (!row) return nullptr;
  row->RowType = 0;
  row->Width = width;
  row->Slope = slope;
  return row;
}

void vRmSurfaceRowDelete(RmSurface* surface, RmSurfaceRow* row) {
  if (!surface || !row) return;
  // The row in front of the mark keeps what the mark promised.
  if (surface->SearchMark == row) surface->SearchMark = row->Prev;
  vDLinkDeleteObj(&surface->Rows, row);
}

RmSurfaceRow* RmSurfaceRowFindFrom(const RmSurface* surface, double chain) {
  if (!surface) return nullptr;
  const bool behindMark = surface->SearchMark && surface->SearchTop < chain;
  RmSurfaceRow* passed = behindMark ? surface->SearchMark : nullptr;
  double top = behindMark ? surface->SearchTop : -std::numeric_limits<double>::infinity();
  RmSurfaceRow* row = passed ? passed->Next : RmSurfaceRowsGetFirst(surface);
  for (; row && row->Chain < chain; row = row->Next) {
    passed = row;
    top = std::max(top, row->Chain);
  }
  // Every row up to the last one passed lies below `chain`, none beyond `top`.
  if (passed) {
    surface->SearchMark = passed;
    surface->SearchTop = top;
  }
  return row;
}

void vRmSurfaceRowsForgetSearch(const RmSurface* surface) {
  if (surface) surface->SearchMark = nullptr;
}

RmSurfaceRow* RmSurfaceRowFindNextOfType(RmSurfaceRow* row, int rowType) {
  while (row && row->RowType != rowType) row = row->Next;
  return row;
}

RmSurfaceRow* RmSurfaceRowFindPrevOfTypeZero(const RmSurfaceRow* row) {
  RmSurfaceRow* previous = row ? row->Prev : nullptr;
  while (previous && previous->RowType != 0) previous = previous->Prev;
  return previous;
}

bool boRmSurfaceRowHasValue(const RmSurfaceRow* row) {
  return row && (boIsPresent(row->Width) || boIsPresent(row->Slope));
}

void vRmSurfaceRowCopy(RmSurfaceRow* to, const RmSurfaceRow* from) {
  if (!to || !from) return;
  to->RowType = from->RowType;
  to->Chain = from->Chain;
  to->Width = from->Width;
  to->Slope = from->Slope;
}

void vRmSurfaceRowsBubbleByChain(RmSurface* surface) {
  if (!surface) return;
  vRmSurfaceRowsForgetSearch(surface);
  for (bool moved = true; moved;) {
    moved = false;
    for (RmSurfaceRow* row = RmSurfaceRowsGetFirst(surface); row && row->Next;) {
      RmSurfaceRow* next = row->Next;
      if (boIsPresent(row->Chain) && boIsPresent(next->Chain) && next->Chain < row->Chain) {
        vDLinkMove(&surface->Rows, next, row);
        moved = true;
      } else {
        row = next;
      }
    }
  }
}
