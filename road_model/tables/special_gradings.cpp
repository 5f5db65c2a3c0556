#include "road_model/tables/special_gradings.h"

#include <cstdlib>

#include "base/numbers.h"

namespace {

void vInitChain(RmSpecialGradingChain* chain, double value) {
  chain->Chain = value;
  DLinkInit(&chain->Rows, sizeof(RmSpecialGradingRow), nullptr);
}

void vClearChains(RmSpecialGradings* table) {
  for (RmSpecialGradingChain* chain = RmSpecialGradingChainsGetFirst(table); chain;
       chain = chain->Next) {
    vDLinkClear(&chain->Rows);
  }
  vDLinkClear(&table->Chains);
}

}  // namespace

RmSpecialGradings* RmSpecialGradingsCreate() {
  auto* table = static_cast<RmSpecialGradings*>(std::calloc(1, sizeof(RmSpecialGradings)));
  if (table) DLinkInit(&table->Chains, sizeof(RmSpecialGradingChain), nullptr);
  return table;
}

void vRmSpecialGradingsDelete(RmSpecialGradings** table) {
  if (!table || !*table) return;
  vClearChains(*table);
  std::free(*table);
  *table = nullptr;
}

void vRmSpecialGradingsCopy(RmSpecialGradings* to, const RmSpecialGradings* from) {
  if (!to || !from || to == from) return;
  vClearChains(to);
  for (const RmSpecialGradingChain* source = RmSpecialGradingChainsGetFirst(from); source;
       source = source->Next) {
    RmSpecialGradingChain* chain = RmSpecialGradingChainAdd(to, nullptr);
    if (!chain) return;
    chain->Chain = source->Chain;
    DLinkCopy(&source->Rows, &chain->Rows, nullptr);
  }
}

bool boRmSpecialGradingsHasRows(const RmSpecialGradings* table) {
  for (const RmSpecialGradingChain* chain = RmSpecialGradingChainsGetFirst(table); chain;
       chain = chain->Next) {
    if (chain->Rows.first) return true;
  }
  return false;
}

void vRmSpecialGradingsMapCodes(RmSpecialGradings* table, int32_t (*map)(int32_t code)) {
  if (!map) return;
  for (RmSpecialGradingChain* chain = RmSpecialGradingChainsGetFirst(table); chain;
       chain = chain->Next) {
    for (RmSpecialGradingRow* row = RmSpecialGradingRowsGetFirst(chain); row; row = row->Next) {
      row->CodeFrom = map(row->CodeFrom);
      row->CodeTo = map(row->CodeTo);
    }
  }
}

RmSpecialGradingChain* RmSpecialGradingChainsGetFirst(const RmSpecialGradings* table) {
  return table ? ListFirst<RmSpecialGradingChain>(&table->Chains) : nullptr;
}

RmSpecialGradingChain* RmSpecialGradingChainGetNext(const RmSpecialGradingChain* chain) {
  return chain ? chain->Next : nullptr;
}

RmSpecialGradingChain* RmSpecialGradingChainAdd(RmSpecialGradings* table,
                                                RmSpecialGradingChain* before) {
  if (!table) return nullptr;
  auto* chain = DLinkNewObjAs<RmSpecialGradingChain>(&table->Chains, before);
  if (chain) vInitChain(chain, kNullNumber);
  return chain;
}

RmSpecialGradingChain* RmSpecialGradingChainAddSorted(RmSpecialGradings* table, double chain) {
  RmSpecialGradingChain* before = RmSpecialGradingChainsGetFirst(table);
  while (before && before->Chain <= chain) before = before->Next;
  RmSpecialGradingChain* added = RmSpecialGradingChainAdd(table, before);
  if (added) added->Chain = chain;
  return added;
}

void vRmSpecialGradingChainRemove(RmSpecialGradings* table, RmSpecialGradingChain* chain) {
  if (!table || !chain) return;
  vDLinkClear(&chain->Rows);
  vDLinkDeleteObj(&table->Chains, chain);
}

double dRmSpecialGradingChainGet(const RmSpecialGradingChain* chain) {
  return chain ? chain->Chain : kNullNumber;
}

void vRmSpecialGradingChainSet(RmSpecialGradingChain* chain, double value) {
  if (chain) chain->Chain = value;
}

RmSpecialGradingRow* RmSpecialGradingRowsGetFirst(const RmSpecialGradingChain* chain) {
  return chain ? ListFirst<RmSpecialGradingRow>(&chain->Rows) : nullptr;
}

RmSpecialGradingRow* RmSpecialGradingRowGetNext(const RmSpecialGradingRow* row) {
  return row ? row->Next : nullptr;
}

RmSpecialGradingRow* RmSpecialGradingRowAdd(RmSpecialGradingChain* chain) {
  return chain ? DLinkNewObjAs<RmSpecialGradingRow>(&chain->Rows) : nullptr;
}

int32_t iRmSpecialGradingRowGetCodeFrom(const RmSpecialGradingRow* row) {
  return row ? row->CodeFrom : kNullInteger;
}

void vRmSpecialGradingRowSetCodeFrom(RmSpecialGradingRow* row, int32_t code) {
  if (row) row->CodeFrom = code;
}

double dRmSpecialGradingRowGetDistFrom(const RmSpecialGradingRow* row) {
  return row ? row->DistFrom : kNullNumber;
}

void vRmSpecialGradingRowSetDistFrom(RmSpecialGradingRow* row, double dist) {
  if (row) row->DistFrom = dist;
}

int32_t iRmSpecialGradingRowGetCodeTo(const RmSpecialGradingRow* row) {
  return row ? row->CodeTo : kNullInteger;
}

void vRmSpecialGradingRowSetCodeTo(RmSpecialGradingRow* row, int32_t code) {
  if (row) row->CodeTo = code;
}

double dRmSpecialGradingRowGetDistTo(const RmSpecialGradingRow* row) {
  return row ? row->DistTo : kNullNumber;
}

void vRmSpecialGradingRowSetDistTo(RmSpecialGradingRow* row, double dist) {
  if (row) row->DistTo = dist;
}
