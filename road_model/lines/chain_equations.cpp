#include "road_model/lines/chain_equations.h"

#include <cstdlib>

#include "base/text.h"

namespace {

void vFreeTexts(RmChainEquations* equations) {
  for (int32_t i = 0; i < equations->Count; ++i) vHeapFree(&equations->Items[i].Text);
  equations->Count = 0;
}

bool boReserve(RmChainEquations* equations, int32_t capacity) {
  if (capacity <= equations->Capacity) return true;
  void* items = std::realloc(equations->Items, static_cast<size_t>(capacity) * sizeof(RmChainEquation));
  if (!items) return false;
  equations->Items = static_cast<RmChainEquation*>(items);
  equations->Capacity = capacity;
  return true;
}

}  // namespace

RmChainEquations* RmChainEquationsCreate() {
  return static_cast<RmChainEquations*>(std::calloc(1, sizeof(RmChainEquations)));
}

void vRmChainEquationsDelete(RmChainEquations** equations) {
  if (!equations || !*equations) return;
  vFreeTexts(*equations);
  std::free((*equations)->Items);
  std::free(*equations);
  *equations = nullptr;
}

void vRmChainEquationsCopy(RmChainEquations* to, const RmChainEquations* from) {
  if (!to || !from || to == from) return;
  vFreeTexts(to);
  if (!boReserve(to, from->Count)) return;
  for (int32_t i = 0; i < from->Count; ++i) {
    const RmChainEquation& source = from->Items[i];
    RmChainEquationAdd(to, source.ChainAhead, source.ChainBack, source.Text);
  }
}

int iRmChainEquationsGetCount(const RmChainEquations* equations) {
  return equations ? equations->Count : 0;
}

RmChainEquation* RmChainEquationAt(const RmChainEquations* equations, int index) {
  if (!equations || index < 0 || index >= equations->Count) return nullptr;
  return &equations->Items[index];
}

RmChainEquation* RmChainEquationAdd(RmChainEquations* equations, double chainAhead,
                                    double chainBack, const char* text) {
  if (!equations) return nullptr;
  if (equations->Count == equations->Capacity &&
      !boReserve(equations, equations->Capacity ? equations->Capacity * 2 : 4)) {
    return nullptr;
  }
  RmChainEquation* equation = &equations->Items[equations->Count++];
  equation->ChainAhead = chainAhead;
  equation->ChainBack = chainBack;
  equation->Text = nullptr;
  sHeapSet(&equation->Text, text);
  return equation;
}

const char* sRmChainEquationGetText(const RmChainEquation* equation) {
  return equation ? sOrEmpty(equation->Text) : "";
}
