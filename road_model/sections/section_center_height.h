// The height of a cross section at the centre line, from its physical
// layers, and the heights that the vertical lines read from the model's
// cross sections inside ranges of differential altitudes.
#pragma once

#include "road_model/sections/section_heights.h"
#include "road_model/sections/section_set.h"

// The height at offset 0 of the first physical layer (of the model's
// CalcPhys type, 2 without a model) that has one, asking the numbers 21 to
// 25, 16 to 20, 11 to 15 and 1 to 10 in that order; -99999.0 if none.
double dRmSectionGetCenterHeight(const RmModel* model, const RmSection* section);

// The section heights source of the vertical lines (section_heights.h):
// the first cross section at or beyond `chain` and the one before it, with
// their centre heights. False when the model has no cross section set.
bool boRmCrossSectionHeights(const RmModel* model, double chain, RmSectionHeights* heights);
