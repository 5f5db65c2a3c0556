#include "road_model/chain_data/chain_values.h"

#include "road_model/chain_data/chain_data.h"
#include "road_model/params/nrm_params.h"

namespace {

bool boKindInterpolates(int32_t kind) { return cRmChainKeyChar(kind) >= 'a'; }

}  // namespace

const NrmBranch* RmChainValueAt(RmNrmParams* params, int32_t type, double chain) {
  if (!params) return nullptr;
  const NrmBranch* a = nullptr;
  const NrmBranch* b = nullptr;
  for (const NrmBranch* entry = ListFirst<NrmBranch>(&params->branches); entry;
       entry = entry->next) {
    if (entry->branchClass != type) continue;
    if (entry->BRCHAIN <= chain) {
      if (!a || entry->BRCHAIN >= a->BRCHAIN) a = entry;
    } else if (!b || entry->BRCHAIN < b->BRCHAIN) {
      b = entry;
    }
  }
  if (!a) return nullptr;
  RmChainInterpolate(&params->interpolated, a, b, chain);
  return &params->interpolated;
}

void RmChainInterpolate(NrmBranch* cache, const NrmBranch* a, const NrmBranch* b, double chain) {
  if (!cache || !a) return;
  cache->BRCHAIN = chain;
  cache->branchClass = a->branchClass;
  if (lSLinkCount(&cache->rows) != lSLinkCount(&a->rows)) {
    vSLinkClear(&cache->rows);
    for (long i = lSLinkCount(&a->rows); i > 0; --i) {
      if (!SLinkNewObjAs<NrmBranchRow>(&cache->rows)) break;
    }
  }
  const bool between = b && b->BRCHAIN > a->BRCHAIN;
  const double t = between ? (chain - a->BRCHAIN) / (b->BRCHAIN - a->BRCHAIN) : 0.0;
  const NrmBranchRow* partner = b ? ListFirst<NrmBranchRow>(&b->rows) : nullptr;
  NrmBranchRow* out = ListFirst<NrmBranchRow>(&cache->rows);
  for (const NrmBranchRow* row = ListFirst<NrmBranchRow>(&a->rows); row && out;
       row = row->next, out = out->next) {
    out->x = row->x;
    out->y = row->y;
    out->code = row->code;
    if (between && partner && partner->code == row->code && boKindInterpolates(row->code)) {
      out->x += (partner->x - row->x) * t;
      out->y += (partner->y - row->y) * t;
    }
    if (partner) partner = partner->next;
  }
}
