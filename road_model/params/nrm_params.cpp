#include "road_model/params/nrm_params.h"

#include <cmath>
#include <new>

#include "base/numbers.h"
#include "road_model/params/nrm_codes.h"

namespace {

// The parameter that boNrmParamsValueAt reads.
constexpr int32_t kValueAtCode = 411;
// A value this close to "no value" is none when a chainage is looked up.
constexpr double kNoValueTolerance = 0.1;

void vInitLists(RmNrmParams* params) {
  SLinkInit(&params->codes, sizeof(NrmParam), nullptr);
  SLinkInit(&params->branches, sizeof(NrmBranch), nullptr);
  SLinkInit(&params->interpolated.rows, sizeof(NrmBranchRow), nullptr);
}

void vClearCodes(ListHead* codes) {
  for (NrmParam* param = ListFirst<NrmParam>(codes); param; param = param->next) {
    vDLinkClear(&param->values);
  }
  vSLinkClear(codes);
}

void vClearBranches(ListHead* branches) {
  for (NrmBranch* branch = ListFirst<NrmBranch>(branches); branch; branch = branch->next) {
    vSLinkClear(&branch->rows);
  }
  vSLinkClear(branches);
}

int iCompareChains(const void* a, const void* b) {
  const NrmValue* first = *static_cast<NrmValue* const*>(a);
  const NrmValue* second = *static_cast<NrmValue* const*>(b);
  return first->chain < second->chain ? -1 : (first->chain > second->chain ? 1 : 0);
}

bool boNoValue(double value) { return std::fabs(value - kNrmNoValue) < kNoValueTolerance; }

}  // namespace

RmNrmParams* pNrmParamsCreate() {
  RmNrmParams* params = new (std::nothrow) RmNrmParams{};
  if (params) vInitLists(params);
  return params;
}

void vNrmParamsDelete(RmNrmParams** params) {
  if (!params || !*params) return;
  vClearCodes(&(*params)->codes);
  vClearBranches(&(*params)->branches);
  vSLinkClear(&(*params)->interpolated.rows);
  delete *params;
  *params = nullptr;
}

void vNrmParamsCopy(RmNrmParams* target, const RmNrmParams* source) {
  if (!target || !source || target == source) return;
  vClearCodes(&target->codes);
  vClearBranches(&target->branches);
  for (NrmParam* param = ListFirst<NrmParam>(&source->codes); param; param = param->next) {
    NrmParam* copy = SLinkNewObjAs<NrmParam>(&target->codes);
    if (!copy) return;
    copy->CODE = param->CODE;
    DLinkInit(&copy->values, sizeof(NrmValue), nullptr);
    DLinkCopy(&param->values, &copy->values, nullptr);
  }
  for (NrmBranch* branch = ListFirst<NrmBranch>(&source->branches); branch; branch = branch->next) {
    NrmBranch* copy = SLinkNewObjAs<NrmBranch>(&target->branches);
    if (!copy) return;
    copy->BRCHAIN = branch->BRCHAIN;
    copy->branchClass = branch->branchClass;
    SLinkInit(&copy->rows, sizeof(NrmBranchRow), nullptr);
    SLinkCopy(&branch->rows, &copy->rows, nullptr);
  }
}

NrmParam* pNrmParamsFind(const RmNrmParams* params, int32_t code) {
  if (!params) return nullptr;
  for (NrmParam* param = ListFirst<NrmParam>(&params->codes); param; param = param->next) {
    if (param->CODE == code) return param;
  }
  return nullptr;
}

NrmParam* pNrmParamsGetOrAdd(RmNrmParams* params, int32_t code) {
  if (!params) return nullptr;
  NrmParam* before = nullptr;
  for (NrmParam* param = ListFirst<NrmParam>(&params->codes); param; param = param->next) {
    if (param->CODE == code) return param;
    if (param->CODE > code) {
      before = param;
      break;
    }
  }
  NrmParam* param = SLinkNewObjAs<NrmParam>(&params->codes, before);
  if (!param) return nullptr;
  param->CODE = code;
  DLinkInit(&param->values, sizeof(NrmValue), nullptr);
  return param;
}

void vNrmParamsAddValue(RmNrmParams* params, int32_t code, double chain, double value,
                        int32_t side) {
  vNrmParamAppendValue(pNrmParamsGetOrAdd(params, code), chain, value, side);
}

void vNrmParamAppendValue(NrmParam* param, double chain, double value, int32_t side) {
  if (!param) return;
  NrmValue* row = DLinkNewObjAs<NrmValue>(&param->values);
  if (!row) return;
  row->chain = chain;
  row->side = side;
  row->value = value;
}

void vNrmParamsRemove(RmNrmParams* params, NrmParam* param) {
  if (!params || !param) return;
  vDLinkClear(&param->values);
  vSLinkDeleteObj(&params->codes, param);
}

void vNrmParamsSortValues(RmNrmParams* params) {
  if (!params) return;
  for (NrmParam* param = ListFirst<NrmParam>(&params->codes); param; param = param->next) {
    vDLinkSort(&param->values, iCompareChains);
  }
}

void vNrmParamsSortCodes(RmNrmParams* params) {
  if (!params) return;
  // Insertion of each parameter behind the last one of a code not greater
  // than its own keeps equal codes in their order.
  NrmParam* unsorted = ListFirst<NrmParam>(&params->codes);
  params->codes.first = nullptr;
  params->codes.last = nullptr;
  while (unsorted) {
    NrmParam* param = unsorted;
    unsorted = unsorted->next;
    param->next = nullptr;
    NrmParam* before = ListFirst<NrmParam>(&params->codes);
    while (before && before->CODE <= param->CODE) before = before->next;
    vSLinkLink(&params->codes, before, param);
  }
}

NrmBranch* pNrmParamsAddBranch(RmNrmParams* params, double chain, int32_t branchClass) {
  if (!params) return nullptr;
  NrmBranch* branch = SLinkNewObjAs<NrmBranch>(&params->branches);
  if (!branch) return nullptr;
  branch->BRCHAIN = chain;
  branch->branchClass = branchClass;
  SLinkInit(&branch->rows, sizeof(NrmBranchRow), nullptr);
  return branch;
}

void vNrmBranchAddRow(NrmBranch* branch, double x, double y, int32_t code) {
  if (!branch) return;
  NrmBranchRow* row = SLinkNewObjAs<NrmBranchRow>(&branch->rows);
  if (!row) return;
  row->x = x;
  row->y = y;
  row->code = code;
}

bool boNrmParamsValueAt(const RmNrmParams* params, int32_t side, double chain, double* outValue) {
  const NrmParam* param = pNrmParamsFind(params, kValueAtCode);
  if (!param || !param->values.last) return false;
  const NrmValue* above = nullptr;
  const NrmValue* at = nullptr;
  for (const NrmValue* value = ListLast<NrmValue>(&param->values); value; value = value->prev) {
    if (value->side != 0 && value->side != side) continue;
    if (value->chain > chain) {
      above = value;
      continue;
    }
    at = value;
    break;
  }
  if (!at || boNoValue(at->value)) return false;
  double result = at->value;
  if (boNrmCodeInterpolates(param->CODE) && above && !boNoValue(above->value) &&
      above->chain > at->chain) {
    result += (above->value - at->value) * (chain - at->chain) / (above->chain - at->chain);
  }
  if (outValue) *outValue = result;
  return true;
}

bool boNrmParamHasValue(const NrmParam* param) {
  if (!param) return false;
  for (const NrmValue* value = ListFirst<NrmValue>(&param->values); value; value = value->next) {
    if (!boEqual(value->value, 0.0) && boIsPresent(value->value)) return true;
  }
  return false;
}
