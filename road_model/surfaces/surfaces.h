// The surfaces of a surface group and their rows.
//
// A surface is a band across the road whose width and slope are given at
// chainages. Surfaces are numbered as point codes are: negative to the left
// of the road, ascending across it, so that the group's list runs from the
// outermost left surface to the outermost right one. The rows of a surface
// ascend by chainage; two rows may share a chainage when they differ in
// type: type 0 rows carry the surface's values, type 1 rows say where the
// surface ends or starts again (a break). A width or slope that is not
// present (base/numbers.h) is unset.
//
// Rows that a file or a design lists out of order stay as they are listed,
// and every search by chainage gives what a walk from the first row gives.
// A surface remembers where its last search left off (its search mark), so
// that a road's sections asked in chainage order cost a short walk each and
// not one from the first row. For that mark to stay true, rows are added,
// deleted and moved through the functions below only, and a row's chainage
// is not written once the row is in a list (see vRmSurfaceRowsForgetSearch).
#pragma once

#include <cstdint>

#include "base/dlink.h"

struct RmSurfaceGroup;

struct RmSurfaceRow {
  RmSurfaceRow* Next;
  RmSurfaceRow* Prev;
  int32_t RowType;  // 0: values, 1: break
  double Chain;
  double Width;
  double Slope;
};

struct RmSurface {
  RmSurface* Next;
  RmSurface* Prev;
  ListHead Rows;         // of RmSurfaceRow, heap nodes
  int32_t Number;        // :SURFACE, a surface number
  char* Descr;           // DESCR, owned; null when absent
  int32_t SecondNumber;  // the second number of :SURFACE
  // The search mark: a row of the list or null, such that neither it nor a
  // row in front of it lies beyond SearchTop. A search for a chainage above
  // SearchTop would pass all these rows, so it may begin behind the mark.
  // Not part of the surface's value, hence changed by searches of a const
  // surface too.
  mutable RmSurfaceRow* SearchMark;
  mutable double SearchTop;
};

// ---- Surfaces of a group ----

RmSurface* RmSurfacesGetFirst(const RmSurfaceGroup* group);
RmSurface* RmSurfacesGetLast(const RmSurfaceGroup* group);
RmSurface* RmSurfaceGetNext(const RmSurface* surface);
RmSurface* RmSurfaceGetPrev(const RmSurface* surface);
// The surface of exactly this number, or null.
RmSurface* RmSurfaceFind(const RmSurfaceGroup* group, int32_t number);
// A new surface without rows, in front of the first one of a greater
// number (behind those of the same number). Null when memory ran out.
RmSurface* RmSurfaceAdd(RmSurfaceGroup* group, int32_t number);
// A new surface without rows in front of `before` (null: at the end),
// without a check of the order.
RmSurface* RmSurfaceAddAt(RmSurfaceGroup* group, RmSurface* before, int32_t number);
// Replaces rows, description and numbers of `to` by those of `from`.
void vRmSurfaceCopy(RmSurface* to, const RmSurface* from);
// Takes the surface out of its group and deletes it with its rows.
void vRmSurfaceDelete(RmSurfaceGroup* group, RmSurface* surface);
void vRmSurfaceClearRows(RmSurface* surface);
// Deletes every surface of the group.
void vRmSurfacesClear(RmSurfaceGroup* group);
// Replaces the description (copied); null or "" removes it.
void vRmSurfaceSetDescr(RmSurface* surface, const char* descr);

// The neighbour away from the road's centre on `side` (1: the previous
// surface, 2: the next one), and towards it; null on any other side.
RmSurface* RmSurfaceGetOutward(const RmSurface* surface, int side);
RmSurface* RmSurfaceGetInward(const RmSurface* surface, int side);
// The surface of `side` nearest the centre, where the walk outward starts.
RmSurface* RmSurfaceGetSideStart(const RmSurfaceGroup* group, int side);
// Walking outward from the side start: on side 2 the first surface with a
// number at least `number`, on side 1 the first with a number at most it.
RmSurface* RmSurfaceFindFromSide(const RmSurfaceGroup* group, int32_t number, int side);

// ---- Rows ----

RmSurfaceRow* RmSurfaceRowsGetFirst(const RmSurface* surface);
RmSurfaceRow* RmSurfaceRowsGetLast(const RmSurface* surface);
RmSurfaceRow* RmSurfaceRowGetNext(const RmSurfaceRow* row);
RmSurfaceRow* RmSurfaceRowGetPrev(const RmSurfaceRow* row);
int iRmSurfaceRowsGetCount(const RmSurface* surface);
// The position of the row, or -1.
int iRmSurfaceRowsGetIndexOf(const RmSurface* surface, const RmSurfaceRow* row);
// A new row in front of the first one at `chain` or later, so that it comes
// ahead of a row of equal chainage; only its chainage is set.
RmSurfaceRow* RmSurfaceRowAdd(RmSurface* surface, double chain);
// A new row in front of `before` (null: at the end), without a check of the
// order; only its chainage is set.
RmSurfaceRow* RmSurfaceRowAddBefore(RmSurface* surface, RmSurfaceRow* before, double chain);
// A new row behind every row up to `chain`, those of equal chainage
// included, as a file lists them; only its chainage is set.
RmSurfaceRow* RmSurfaceRowAddBehind(RmSurface* surface, double chain);
// The same with width and slope, of type 0.
RmSurfaceRow* RmSurfaceRowAddValues(RmSurface* surface, double chain, double width,
                                    double slope);
// Takes the row out of the surface's list and deletes it.
void vRmSurfaceRowDelete(RmSurface* surface, RmSurfaceRow* row);
// The first row at `chain` or later: the first one, walking from the first
// row, whose chainage is not below `chain`. Moves the search mark.
RmSurfaceRow* RmSurfaceRowFindFrom(const RmSurface* surface, double chain);
// Where a walk may begin that looks for the first row whose chainage
// `reaches(chain)` holds for, where `reaches` holds for every chainage above
// one that it holds for: the row behind the search mark when `reaches`
// fails for the mark's top (and so for every row up to the mark), else the
// first row. Leaves the mark as it is.
template <typename Reaches>
RmSurfaceRow* RmSurfaceRowsSearchStart(const RmSurface* surface, Reaches reaches) {
  if (!surface) return nullptr;
  if (surface->SearchMark && !reaches(surface->SearchTop)) return surface->SearchMark->Next;
  return static_cast<RmSurfaceRow*>(surface->Rows.first);
}
// Drops the search mark, for code that writes the chainage of rows in the
// list in place; the next search walks from the first row again.
void vRmSurfaceRowsForgetSearch(const RmSurface* surface);
// From `row` on, the first row of `rowType`.
RmSurfaceRow* RmSurfaceRowFindNextOfType(RmSurfaceRow* row, int rowType);
// From the row before `row` back, the first row of type 0.
RmSurfaceRow* RmSurfaceRowFindPrevOfTypeZero(const RmSurfaceRow* row);
// Width or slope is set.
bool boRmSurfaceRowHasValue(const RmSurfaceRow* row);
// Type, chainage, width and slope; the links stay. A row of a list that
// gets another chainage this way needs vRmSurfaceRowsForgetSearch.
void vRmSurfaceRowCopy(RmSurfaceRow* to, const RmSurfaceRow* from);
// Puts the rows in ascending chainage by exchanging neighbours; rows whose
// chainage is unset keep their place against their neighbours.
void vRmSurfaceRowsBubbleByChain(RmSurface* surface);
