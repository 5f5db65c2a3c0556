// Surface border lines: along ranges of chainage a surface of the road ends
// at an alignment instead of at its own width, by a method of building, and
// may hand over to a free surface.
//
// One list of rows, ordered by surface and then by the start of the range.
// The model holds one table (SURFACEBORDERLINES) and each surface group may
// hold one of its own.
#pragma once

#include <cstdint>

#include "base/slink.h"
#include "road_model/codes/code_ranges.h"

struct RmSurfaceBorderLine {
  RmSurfaceBorderLine* Next;
  int32_t Surface;      // a surface number
  RmChainRange Range;   // from, to
  int32_t Method;
  int32_t LineId;       // an alignment id, -99999 when absent
  int32_t FreeSurface;  // a surface number, -99999 when absent
};

struct RmSurfaceBorderLines {
  ListHead Rows;  // RmSurfaceBorderLine, heap nodes
};

// ---- Life cycle ----

// An empty table; null when memory ran out.
RmSurfaceBorderLines* RmSurfaceBorderLinesCreate();
// Deletes the rows and the table, and nulls the pointer. Null is accepted.
void vRmSurfaceBorderLinesDelete(RmSurfaceBorderLines** lines);
// Makes the rows of `to` copies of those of `from`.
void vRmSurfaceBorderLinesCopy(RmSurfaceBorderLines* to, const RmSurfaceBorderLines* from);
// False for null.
bool boRmSurfaceBorderLinesHasRows(const RmSurfaceBorderLines* lines);

// ---- Rows ----

RmSurfaceBorderLine* RmSurfaceBorderLinesGetFirst(const RmSurfaceBorderLines* lines);
RmSurfaceBorderLine* RmSurfaceBorderLineGetNext(const RmSurfaceBorderLine* row);
// A new row of `surface` starting at `from`, with a zero end, method 0 and
// alignment and free surface absent. It goes behind every row of a smaller
// surface and behind the rows of the same surface that start at or before
// `from`.
RmSurfaceBorderLine* RmSurfaceBorderLineAdd(RmSurfaceBorderLines* lines, int32_t surface,
                                            double from);
void vRmSurfaceBorderLineRemove(RmSurfaceBorderLines* lines, RmSurfaceBorderLine* row);
// The position of the row, -1 if it is not in the table.
int iRmSurfaceBorderLineGetIndex(const RmSurfaceBorderLines* lines,
                                 const RmSurfaceBorderLine* row);

// ---- Lookups ----

// The first row of `surface` whose range, widened by 0.0005 at both ends,
// holds `chain`; null if none.
RmSurfaceBorderLine* RmSurfaceBorderLineFind(const RmSurfaceBorderLines* lines, int32_t surface,
                                             double chain);
// The first row with that free surface whose range holds `chain`; null if
// none.
RmSurfaceBorderLine* RmSurfaceBorderLineFindByFree(const RmSurfaceBorderLines* lines,
                                                   int32_t freeSurface, double chain);
// Whether RmSurfaceBorderLineFind finds a row.
bool boRmSurfaceBorderLineCovers(const RmSurfaceBorderLines* lines, int32_t surface,
                                 double chain);
