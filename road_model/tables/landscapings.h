// Landscapings: on each side of the road, a list of landscapings ordered by
// chainage, each with two integers, a real and rows of three reals. What the
// numbers do to a built section is the section builder's; the table stores
// and carries them by position.
#pragma once

#include <cstdint>

#include "base/dlink.h"

struct RmLandscapingRow {
  RmLandscapingRow* Next;
  RmLandscapingRow* Prev;
  double Values[3];
};

struct RmLandscaping {
  RmLandscaping* Next;
  RmLandscaping* Prev;
  double Chain;
  int32_t Integers[2];
  double Real;
  ListHead Rows;  // RmLandscapingRow, heap nodes
};

struct RmLandscapings {
  ListHead Left;   // RmLandscaping, heap nodes
  ListHead Right;  // the same
};

// An empty table; null when memory ran out.
RmLandscapings* RmLandscapingsCreate();
// Deletes every landscaping with its rows and the table; nulls the pointer.
void vRmLandscapingsDelete(RmLandscapings** table);
// Makes `to` a deep copy of `from`.
void vRmLandscapingsCopy(RmLandscapings* to, const RmLandscapings* from);
// Whether a side has a landscaping; false for null.
bool boRmLandscapingsHasRows(const RmLandscapings* table);

// The list of a side: 1 left, 2 right; null for another side.
ListHead* RmLandscapingsGetSide(const RmLandscapings* table, int side);
inline ListHead* RmLandscapingsGetLeft(const RmLandscapings* table) {
  return RmLandscapingsGetSide(table, 1);
}
inline ListHead* RmLandscapingsGetRight(const RmLandscapings* table) {
  return RmLandscapingsGetSide(table, 2);
}

RmLandscaping* RmLandscapingsGetFirst(const ListHead* list);
RmLandscaping* RmLandscapingGetNext(const RmLandscaping* landscaping);

// A new landscaping in front of `before`, at the end with `before` null: at
// chainage 0, its numbers absent and no rows. Null when memory ran out.
RmLandscaping* RmLandscapingAddBefore(ListHead* list, RmLandscaping* before);
// A new landscaping at `chain`, in front of the first that lies further on.
RmLandscaping* RmLandscapingAdd(ListHead* list, double chain);

// Orders the landscapings by chainage, keeping the order of those within
// 1e-5 of each other.
void vRmLandscapingsSort(ListHead* list);
// The position of the landscaping in the list, -1 if it is not there.
int iRmLandscapingGetIndex(const ListHead* list, const RmLandscaping* landscaping);
// The first landscaping at `chain` (within 1e-5), or null.
RmLandscaping* RmLandscapingFindAt(const ListHead* list, double chain);

// A new row at the end of the landscaping's rows, its reals absent. Null
// when memory ran out.
RmLandscapingRow* RmLandscapingRowAdd(RmLandscaping* landscaping);
RmLandscapingRow* RmLandscapingRowsGetFirst(const RmLandscaping* landscaping);
RmLandscapingRow* RmLandscapingRowGetNext(const RmLandscapingRow* row);
