// The value of a mass that is combined from other masses of the same
// section (COMPOSEDTYPE 2).
#pragma once

struct RmMass;
struct RmMassType;
struct RmSection;

// The sum of the masses of FMASSES less the sum of those of TOMASSES; with
// both lists empty, the mass of BASEMASSID. A mass that the section does
// not hold counts as 0. The centroid offset is the offsets of the parts
// weighted by their signed values, 0 when the value is 0. The mass keeps no
// outline.
void vMassCombine(const RmSection* section, const RmMassType* massType, RmMass* mass);
