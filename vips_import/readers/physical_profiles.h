// The terrain of the design's computed sections: the model's cross sections
// with one terrain layer per material, and the long section drawn from them.
#pragma once

#include <cstdio>

namespace NpDesignModel {
class CInData;
class CResultData;
}  // namespace NpDesignModel
struct RmModel;

// Logs its heading and makes the model's cross sections anew: the set is
// emptied (made when the model has none) and gets one section per computed
// section of the design, in the design's order, placed on the main line.
// Each material of a section's terrain becomes a terrain layer (type 4,
// numbered by the material) with one point per column of the terrain: its
// offset, and as height the column's surface for the first material and its
// sub-surface of the material's place for the others, each above the
// terrain's base height; a column without that sub-surface gives no height.
// A material without columns gets no layer. The layers are named by the
// design's sub-surface materials, else by the factory settings. Ends with
// the long section rebuilt. `in` may be null.
void vVipsReadPhysicalProfiles(const NpDesignModel::CResultData* res,
                               const NpDesignModel::CInData* in, std::FILE* log, RmModel* model);

// Replaces the model's long sections with the one that its cross sections
// give; without cross sections the model keeps none.
void vVipsRebuildLongSections(RmModel* model);
