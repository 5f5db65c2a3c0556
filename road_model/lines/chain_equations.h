// Chain equations of a plan line: places where the chainage numbering of the
// line jumps.
//
// At an equation the numbering has reached its back value and goes on from
// its ahead value. The equations of a line are kept in the order in which
// they were given.
#pragma once

#include <cstdint>

struct RmChainEquation {
  double ChainAhead;  // the value the numbering goes on from
  double ChainBack;   // the value the numbering has reached
  char* Text;         // owned, null when empty
};

struct RmChainEquations {
  int32_t Count;
  int32_t Capacity;
  RmChainEquation* Items;  // owned, Capacity entries
};

// An empty list; null when memory ran out.
RmChainEquations* RmChainEquationsCreate();
// Frees the equations with their texts and the list, and nulls the pointer.
void vRmChainEquationsDelete(RmChainEquations** equations);
// Makes `to` a deep copy of `from`.
void vRmChainEquationsCopy(RmChainEquations* to, const RmChainEquations* from);

int iRmChainEquationsGetCount(const RmChainEquations* equations);
// The equation at `index`, or null.
RmChainEquation* RmChainEquationAt(const RmChainEquations* equations, int index);
// Appends an equation; null when memory ran out.
RmChainEquation* RmChainEquationAdd(RmChainEquations* equations, double chainAhead,
                                    double chainBack, const char* text);
// The text, the empty text when there is none.
const char* sRmChainEquationGetText(const RmChainEquation* equation);

