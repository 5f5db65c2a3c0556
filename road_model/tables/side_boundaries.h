// Side boundaries: where the road's cross section ends on each side, given at
// chainages as a surface code, a distance from the centre line and an
// alignment that the boundary follows.
//
// Rows are point values ascending by chainage, one list for the left side and
// one for the right; between two rows that agree on code and alignment the
// distance runs in a straight line.
#pragma once

#include <cstdint>

#include "base/slink.h"

struct RmSideBoundary {
  RmSideBoundary* Next;
  RmSideBoundary* Prev;
  double Chain;
  int32_t Code;     // a surface number (PCODE), -99999 when absent
  double Distance;  // -99999.0 when absent
  int32_t LineId;   // an alignment id, -99999 when absent
};

// The rows of one side.
struct RmSideBoundaryList {
  ListHead Rows;  // RmSideBoundary, heap nodes
};

struct RmSideBoundaries {
  RmSideBoundaryList Left;
  RmSideBoundaryList Right;
};

// ---- Life cycle ----

// An empty table; null when memory ran out.
RmSideBoundaries* RmSideBoundariesCreate();
// Deletes the rows and the table, and nulls the pointer. Null is accepted.
void vRmSideBoundariesDelete(RmSideBoundaries** boundaries);
// Makes both sides of `to` copies of those of `from`.
void vRmSideBoundariesCopy(RmSideBoundaries* to, const RmSideBoundaries* from);
// A row on either side; false for null.
bool boRmSideBoundariesHasRows(const RmSideBoundaries* boundaries);
// No row on either side; true for null.
bool boRmSideBoundariesIsEmpty(const RmSideBoundaries* boundaries);

// ---- Sides and rows ----

RmSideBoundaryList* RmSideBoundariesGetLeft(RmSideBoundaries* boundaries);
RmSideBoundaryList* RmSideBoundariesGetRight(RmSideBoundaries* boundaries);
// Side 1 is the left, 2 the right; null for any other.
RmSideBoundaryList* RmSideBoundariesGetSide(RmSideBoundaries* boundaries, int side);
const RmSideBoundaryList* RmSideBoundariesGetSide(const RmSideBoundaries* boundaries, int side);

RmSideBoundary* RmSideBoundariesGetFirst(const RmSideBoundaryList* list);
RmSideBoundary* RmSideBoundaryGetNext(const RmSideBoundary* row);
// A new row at `chain` with code, distance and alignment absent, in front of
// the first row of a greater chainage (behind rows of the same one).
RmSideBoundary* RmSideBoundaryAdd(RmSideBoundaryList* list, double chain);
// A new row with all values absent in front of `before`, at the end when
// `before` is null.
RmSideBoundary* RmSideBoundaryAddBefore(RmSideBoundaryList* list, RmSideBoundary* before);
void vRmSideBoundaryRemove(RmSideBoundaryList* list, RmSideBoundary* row);
// The position of the row, -1 if it is not in the list.
int iRmSideBoundaryGetIndex(const RmSideBoundaryList* list, const RmSideBoundary* row);

// ---- Lookups ----

// The first row with Chain >= chain, or null.
RmSideBoundary* RmSideBoundaryFindFrom(const RmSideBoundaryList* list, double chain);
// Whether the list gives a boundary at `chain`: a row at or behind it that is
// at the chainage (1e-5) or has a row in front of it.
bool boRmSideBoundaryCovers(const RmSideBoundaryList* list, double chain);
// Whether a side covers `chain` with the alignment `code`: the row found from
// the chainage on that side has that LineId.
bool boRmSideBoundariesCoverCode(const RmSideBoundaries* boundaries, int32_t code, double chain);

// The boundary at a chainage. A row at the chainage (1e-5) gives its code
// and distance; between two rows of the same code and alignment, at
// different chainages and each with some value, the code is theirs and the
// distance the straight line between them. The alignment is that of the row
// at or behind the chainage. 1 with a value, 0 without; the outputs, which
// may be null, start absent.
int iRmSideBoundaryAt(const RmSideBoundaryList* list, double chain, int32_t* code,
                      double* distance, int32_t* lineId);

// ---- Edits of the whole table ----

// On each side, deletes rows from the start and from the end until the first
// and the last have a chainage.
void vRmSideBoundariesTrimEmpty(RmSideBoundaries* boundaries);
// Deletes the rows that follow an alignment, then trims as above.
void vRmSideBoundariesDropLines(RmSideBoundaries* boundaries);
// Replaces every code that is given by `map(code)`.
void vRmSideBoundariesMapCodes(RmSideBoundaries* boundaries, int32_t (*map)(int32_t code));
