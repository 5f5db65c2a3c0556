#include "road_model/params/nrm_conversion.h"

#include <cmath>
#include <cstdint>
#include <utility>

#include "base/numbers.h"
#include "road_model/params/nrm_params.h"

namespace {

struct CodeMove {
  int32_t From;
  int32_t To;
};

// The old codes and their numbers today; a code that is not here is
// dropped. The lone general superstructure thickness 20 has been spread
// over 24 and 25 before this map runs.
constexpr CodeMove kOldCodes[] = {
    {11, 110},  {12, 220},  {13, 210},  {14, 120},  {15, 9001}, {16, 9002}, {17, 360},  {18, 340},
    {19, 370},  {21, 1111}, {22, 1112}, {23, 1141}, {24, 1161}, {25, 1162}, {30, 111},  {31, 211},
    {32, 9201}, {33, 212},  {35, 361},  {36, 371},  {40, 411},  {41, 412},  {42, 420},  {50, 610},
    {51, 510},  {52, 710},  {53, 791},  {54, 790},  {55, 230},  {56, 591},  {73, 9101}, {74, 9102},
};

constexpr int32_t kSignChanged[] = {111, 211, 212, 361, 371, 411, 710, 791, 9201};

// The code that a parameter takes while it is being split, so that the
// values of the split do not land in it.
constexpr int32_t kSetAside = 9999;

constexpr double kSplitTolerance = 1e-5;

bool boExists(const RmNrmParams* params, int32_t code) {
  return pNrmParamsFind(params, code) != nullptr;
}

void vRemoveIf(RmNrmParams* params, bool (*drop)(const NrmParam* param)) {
  NrmParam* param = ListFirst<NrmParam>(&params->codes);
  while (param) {
    NrmParam* next = param->next;
    if (drop(param)) vNrmParamsRemove(params, param);
    param = next;
  }
}

// Every value of the parameter, by the caller's rule, under other codes.
template <typename Add>
void vForEachValue(const NrmParam* param, Add add) {
  for (const NrmValue* value = ListFirst<NrmValue>(&param->values); value; value = value->next) {
    add(*value);
  }
}

void vSetCode(RmNrmParams* params, int32_t from, int32_t to) {
  if (NrmParam* param = pNrmParamsFind(params, from)) param->CODE = to;
  vNrmParamsSortCodes(params);
}

// A percentage with a sign under `a` becomes its magnitude as a ratio under
// `a` and its direction, -100 or 100, under `b`; zero and "no value" give 0
// and no direction.
void vSplit(RmNrmParams* params, int32_t a, int32_t b) {
  NrmParam* param = pNrmParamsFind(params, a);
  if (!param) return;
  param->CODE = kSetAside;
  vNrmParamsSortCodes(params);
  vForEachValue(param, [&](const NrmValue& value) {
    if (std::fabs(value.value) < kSplitTolerance || !boIsPresent(value.value)) {
      vNrmParamsAddValue(params, a, value.chain, 0.0, value.side);
      vNrmParamsAddValue(params, b, value.chain, kNrmNoValue, value.side);
    } else {
      vNrmParamsAddValue(params, a, value.chain, std::fabs(value.value / 100.0), value.side);
      vNrmParamsAddValue(params, b, value.chain, value.value < 0.0 ? -100.0 : 100.0, value.side);
    }
  });
  vNrmParamsRemove(params, pNrmParamsFind(params, kSetAside));
}

// The old 412 was relative to 411; 410 holds it as a ratio.
void vRework412(RmNrmParams* params) {
  NrmParam* relative = pNrmParamsFind(params, 412);
  if (!relative) return;
  vForEachValue(relative, [&](const NrmValue& value) {
    double base = 0.0;
    boNrmParamsValueAt(params, value.side, value.chain, &base);
    const double ratio = boEqual(base, 0.0) ? 0.0 : std::fabs(value.value / base);
    vNrmParamsAddValue(params, 410, value.chain, ratio, value.side);
  });
  vNrmParamsRemove(params, pNrmParamsFind(params, 412));
}

void vAddZeros(RmNrmParams* params, int32_t from, int32_t to) {
  const NrmParam* param = pNrmParamsFind(params, from);
  if (!param) return;
  vForEachValue(param, [&](const NrmValue& value) {
    vNrmParamsAddValue(params, to, value.chain, 0.0, value.side);
  });
}

// Both codes change in one step; the values stay with their parameter.
void vExchange(RmNrmParams* params, int32_t a, int32_t b) {
  for (NrmParam* param = ListFirst<NrmParam>(&params->codes); param; param = param->next) {
    if (param->CODE == a) {
      param->CODE = b;
    } else if (param->CODE == b) {
      param->CODE = a;
    }
  }
  vNrmParamsSortCodes(params);
}

}  // namespace

void vNrmParamsConvertOldCodes(RmNrmParams* params) {
  if (!params) return;
  vRemoveIf(params, [](const NrmParam* param) {
    return param->CODE >= 20 && param->CODE <= 25 && !boNrmParamHasValue(param);
  });
  NrmParam* general = pNrmParamsFind(params, 20);
  if (general && !boExists(params, 21) && !boExists(params, 22) && !boExists(params, 23) &&
      !boExists(params, 24) && !boExists(params, 25)) {
    general->CODE = 24;
    vForEachValue(general, [&](const NrmValue& value) {
      vNrmParamsAddValue(params, 25, value.chain, value.value, value.side);
    });
  }
  vRemoveIf(params, [](const NrmParam* param) {
    for (const CodeMove& move : kOldCodes) {
      if (move.From == param->CODE) return false;
    }
    return true;
  });
  for (NrmParam* param = ListFirst<NrmParam>(&params->codes); param; param = param->next) {
    for (const CodeMove& move : kOldCodes) {
      if (move.From == param->CODE) {
        param->CODE = move.To;
        break;
      }
    }
  }
  vNrmParamsSortCodes(params);
  vNrmParamsSortValues(params);
}

void vNrmParamsChangeOldSigns(RmNrmParams* params) {
  if (!params) return;
  for (int32_t code : kSignChanged) {
    NrmParam* param = pNrmParamsFind(params, code);
    if (!param) continue;
    for (NrmValue* value = ListFirst<NrmValue>(&param->values); value; value = value->next) {
      value->value *= -1.0;
    }
  }
}

void vNrmParamsSplitOldParams(RmNrmParams* params) {
  if (!params) return;
  vSetCode(params, 211, 221);
  vSplit(params, 210, 211);
  vSplit(params, 340, 341);
  vRework412(params);
  vAddZeros(params, 420, 421);
  vExchange(params, 510, 511);
  vExchange(params, 610, 611);
  vExchange(params, 710, 711);
}
