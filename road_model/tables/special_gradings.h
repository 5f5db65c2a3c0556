// Special gradings (SPECIALGRADINGS): chainages at which the surface codes of
// a section are overridden. Each chainage holds rows that take the points
// from one code at a distance to another code at a distance.
//
// The chainages are kept ascending; each owns its rows. Elements are heap
// nodes.
#pragma once

#include <cstdint>

#include "base/dlink.h"

struct RmSpecialGradingRow {
  RmSpecialGradingRow* Next;
  RmSpecialGradingRow* Prev;
  int32_t CodeFrom;  // PCODE
  double DistFrom;
  int32_t CodeTo;  // PCODE
  double DistTo;
};

struct RmSpecialGradingChain {
  RmSpecialGradingChain* Next;
  RmSpecialGradingChain* Prev;
  double Chain;   // -99999.0 when the file gave none
  ListHead Rows;  // RmSpecialGradingRow
};

struct RmSpecialGradings {
  ListHead Chains;  // RmSpecialGradingChain
};

// ---- The table ----

// An empty table; null when memory ran out.
RmSpecialGradings* RmSpecialGradingsCreate();
// Deletes the chainages with their rows and the table, and nulls the
// pointer. Null is accepted.
void vRmSpecialGradingsDelete(RmSpecialGradings** table);
// Makes `to` a deep copy of `from`.
void vRmSpecialGradingsCopy(RmSpecialGradings* to, const RmSpecialGradings* from);
// Whether any chainage has a row; false for null.
bool boRmSpecialGradingsHasRows(const RmSpecialGradings* table);
// Applies `map` to every code of every row (CodeFrom and CodeTo).
void vRmSpecialGradingsMapCodes(RmSpecialGradings* table, int32_t (*map)(int32_t code));

// ---- Chainages ----

RmSpecialGradingChain* RmSpecialGradingChainsGetFirst(const RmSpecialGradings* table);
RmSpecialGradingChain* RmSpecialGradingChainGetNext(const RmSpecialGradingChain* chain);
// A new chainage at -99999.0 without rows, in front of `before` (null: at
// the end).
RmSpecialGradingChain* RmSpecialGradingChainAdd(RmSpecialGradings* table,
                                                RmSpecialGradingChain* before);
// A new chainage at `chain`, behind every chainage that is not greater.
RmSpecialGradingChain* RmSpecialGradingChainAddSorted(RmSpecialGradings* table, double chain);
// Deletes the chainage with its rows.
void vRmSpecialGradingChainRemove(RmSpecialGradings* table, RmSpecialGradingChain* chain);
double dRmSpecialGradingChainGet(const RmSpecialGradingChain* chain);
void vRmSpecialGradingChainSet(RmSpecialGradingChain* chain, double value);

// ---- Rows ----

RmSpecialGradingRow* RmSpecialGradingRowsGetFirst(const RmSpecialGradingChain* chain);
RmSpecialGradingRow* RmSpecialGradingRowGetNext(const RmSpecialGradingRow* row);
// A new row of zeroes at the end of the chainage's rows.
RmSpecialGradingRow* RmSpecialGradingRowAdd(RmSpecialGradingChain* chain);

int32_t iRmSpecialGradingRowGetCodeFrom(const RmSpecialGradingRow* row);
void vRmSpecialGradingRowSetCodeFrom(RmSpecialGradingRow* row, int32_t code);
double dRmSpecialGradingRowGetDistFrom(const RmSpecialGradingRow* row);
void vRmSpecialGradingRowSetDistFrom(RmSpecialGradingRow* row, double dist);
int32_t iRmSpecialGradingRowGetCodeTo(const RmSpecialGradingRow* row);
void vRmSpecialGradingRowSetCodeTo(RmSpecialGradingRow* row, int32_t code);
double dRmSpecialGradingRowGetDistTo(const RmSpecialGradingRow* row);
void vRmSpecialGradingRowSetDistTo(RmSpecialGradingRow* row, double dist);
