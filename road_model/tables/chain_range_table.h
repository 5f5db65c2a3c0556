// The chain range table: rows valid from one chainage to another, in one
// list or in a left and a right list, as its kind says (chain_range_kind.h,
// the members in chain_range_members.h). One table type serves every member.
//
// A row is the range and then the kind's values struct; a row's values are
// read and written all at once. Rows are kept in the order they were put in;
// the add by range start keeps a list that was ordered ordered.
#pragma once

#include <cstring>

#include "base/dlink.h"
#include "road_model/codes/code_ranges.h"
#include "road_model/tables/chain_range_kind.h"

struct RmChainRangeRow {
  RmChainRangeRow* Next;
  RmChainRangeRow* Prev;
  RmChainRange Range;  // Low: chainage from, High: chainage to; not checked
  // The kind's values struct follows.
};

// A list of rows; knows the kind of its rows.
struct RmChainRangeList {
  ListHead Rows;  // RmChainRangeRow and values, heap nodes
  const RmChainRangeKind* Kind;
};

struct RmChainRangeTable {
  const RmChainRangeKind* Kind;
  RmChainRangeList Lists[2];                   // the one list, or left and right
  double Values[kRmChainRangeMaxTableFields];  // the kind's table fields
};

// An empty table of the kind, its table fields at their defaults; null for
// no kind or when memory ran out.
RmChainRangeTable* RmChainRangeTableCreate(const RmChainRangeKind* kind);
// Deletes the rows and the table, and nulls the pointer. Null is accepted.
void vRmChainRangeTableDelete(RmChainRangeTable** table);
// Makes `to` a deep copy of `from`, its kind included.
void vRmChainRangeTableCopy(RmChainRangeTable* to, const RmChainRangeTable* from);
// Whether a list of the table has a row; false for null.
bool boRmChainRangeTableHasRows(const RmChainRangeTable* table);

// The list of a side: 0 the list of a one-sided table, 1 left and 2 right of a
// two-sided one; null for a side that the table does not have.
RmChainRangeList* RmChainRangeTableGetSide(const RmChainRangeTable* table, int side);
inline RmChainRangeList* RmChainRangeTableGetRows(const RmChainRangeTable* table) {
  return RmChainRangeTableGetSide(table, 0);
}
inline RmChainRangeList* RmChainRangeTableGetLeft(const RmChainRangeTable* table) {
  return RmChainRangeTableGetSide(table, 1);
}
inline RmChainRangeList* RmChainRangeTableGetRight(const RmChainRangeTable* table) {
  return RmChainRangeTableGetSide(table, 2);
}

// A table field of the kind by its index; 0.0 for one the kind lacks.
double dRmChainRangeTableGetValue(const RmChainRangeTable* table, int index);
void vRmChainRangeTableSetValue(RmChainRangeTable* table, int index, double value);

RmChainRangeRow* RmChainRangeGetFirst(const RmChainRangeList* list);
RmChainRangeRow* RmChainRangeGetNext(const RmChainRangeRow* row);

// A new row in front of `before`, at the end with `before` null: its range 0
// to 0 and its fields at the kind's values for a new row. Null when memory ran
// out.
RmChainRangeRow* RmChainRangeAddBefore(RmChainRangeList* list, RmChainRangeRow* before);
// A new row in front of the first row that starts further on than `from`,
// starting at `from` and ending at 0.
RmChainRangeRow* RmChainRangeAdd(RmChainRangeList* list, double from);

void vRmChainRangeSetRange(RmChainRangeRow* row, double from, double to);

// The row's values struct, as bytes; for readers that go field by field.
inline void* pRmChainRangeRowValues(RmChainRangeRow* row) { return row + 1; }
inline const void* pRmChainRangeRowValues(const RmChainRangeRow* row) { return row + 1; }
// One field of the row as a real (an integer field converted).
double dRmChainRangeRowGetField(const RmChainRangeRow* row, const RmChainRangeField& field);
void vRmChainRangeRowSetField(RmChainRangeRow* row, const RmChainRangeField& field, double value);

// The row's values all at once, as the member's values struct V. Nothing is
// read or written when the list is not of V's kind.
template <typename V>
void vRmChainRangeGetRow(const RmChainRangeList* list, const RmChainRangeRow* row, V* values) {
  if (list && row && values && list->Kind == V::Kind) {
    std::memcpy(values, pRmChainRangeRowValues(row), sizeof(V));
  }
}
template <typename V>
void vRmChainRangeSetRow(const RmChainRangeList* list, RmChainRangeRow* row, const V& values) {
  if (list && row && list->Kind == V::Kind) {
    std::memcpy(pRmChainRangeRowValues(row), &values, sizeof(V));
  }
}

// Orders the rows by range start, keeping the order of starts within 1e-5.
void vRmChainRangeSort(RmChainRangeList* list);
// The position of the row in the list, -1 if it is not there.
int iRmChainRangeGetIndex(const RmChainRangeList* list, const RmChainRangeRow* row);
// The first row with from <= chain <= to, or null.
RmChainRangeRow* RmChainRangeFindAt(const RmChainRangeList* list, double chain);
