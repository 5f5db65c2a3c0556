// The designed lines of every computed section of the design, read into
// the cross sections of the model; for a railway, the rail reference
// heights as the reference heights of surface group 1.
#pragma once

#include <cstdio>

struct RmModel;
struct RmSurfGen;

namespace NpDesignModel {
class CInData;
class CResultData;
}  // namespace NpDesignModel

// For each result section of the design, in order: the cross section at its
// chainage (made, in chainage order, where none stands within 0.00001),
// and in it the surface line, the pavement layers and the other designed
// lines of theoretical type 3 (theoretical_layers.h). From model version
// 10.0 on the split soddings take the place of the soddings of each side
// when the section has any.
//
// With `modelType` 2 and surface group 1 in `surfGen`, each section adds a
// row of the negated rail reference elevation to the group's reference
// heights; the heights that a straight line gives anyway are then thinned
// out, and a table that says nothing (two rows of 0) goes. A table that
// remains is logged.
void vVipsReadTheoreticalProfiles(const NpDesignModel::CResultData* res,
                                  const NpDesignModel::CInData* in, std::FILE* log,
                                  RmModel* model, RmSurfGen* surfGen, int modelType);
