// Differential altitudes: ranges of chainage where the height of a vertical
// line is taken from the cross sections, raised by a difference.
//
// The rows are kept ascending by their start chainage; a row added at the
// start of others goes behind them.
#pragma once

#include "base/slink.h"
#include "road_model/codes/code_ranges.h"

struct RmDiffAltitude {
  RmDiffAltitude* Next;
  double FromChain;
  double ToChain;
  double Height;  // the difference added to the section heights
};

struct RmDiffAltitudes {
  ListHead Rows;  // RmDiffAltitude, heap nodes
};

// An empty table; null when memory ran out.
RmDiffAltitudes* RmDiffAltitudesCreate();
// Deletes the rows and the table, and nulls the pointer. Null is accepted.
void vRmDiffAltitudesDelete(RmDiffAltitudes** list);
// Makes the rows of `to` copies of those of `from`.
void vRmDiffAltitudesCopy(RmDiffAltitudes* to, const RmDiffAltitudes* from);

RmDiffAltitude* RmDiffAltitudesGetFirst(const RmDiffAltitudes* list);
RmDiffAltitude* RmDiffAltitudeGetNext(const RmDiffAltitude* entry);
int iRmDiffAltitudesGetCount(const RmDiffAltitudes* list);

// A new row starting at `from`, in front of the first row that starts
// further on; its end and difference are 0 for the caller to set.
RmDiffAltitude* RmDiffAltitudeAdd(RmDiffAltitudes* list, double from);
void vRmDiffAltitudeSetRange(RmDiffAltitude* entry, double from, double to);
void vRmDiffAltitudeGetRange(const RmDiffAltitude* entry, RmChainRange* range);
double dRmDiffAltitudeGetHeight(const RmDiffAltitude* entry);
void vRmDiffAltitudeSetHeight(RmDiffAltitude* entry, double height);
void vRmDiffAltitudeRemove(RmDiffAltitudes* list, RmDiffAltitude* entry);

// The first row with FromChain <= chain <= ToChain, or null.
RmDiffAltitude* RmDiffAltitudeFind(const RmDiffAltitudes* list, double chain);
// The position of the row in the table, -1 if it is not there.
int iRmDiffAltitudeGetIndex(const RmDiffAltitudes* list, const RmDiffAltitude* entry);

// Orders two rows by start chainage; starts within 1e-5 are equal.
int iRmDiffAltitudeCompare(const RmDiffAltitude* a, const RmDiffAltitude* b);
// Sorts the rows by start chainage.
void vRmDiffAltitudesSort(RmDiffAltitudes* list);
