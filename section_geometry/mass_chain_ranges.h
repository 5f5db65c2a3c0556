// Where along the road a mass type applies.
#pragma once

struct RmMassType;

// True when the type has no chain ranges, or when `chain` lies in one of
// them, both ends included. A chainage equal (boEqual) to the start of a
// range whose A is not 0, or to the end of one whose B is not 0, stands
// outside: such an end is excluded, and the answer is false at once.
bool boChainInRanges(const RmMassType* massType, double chain);
