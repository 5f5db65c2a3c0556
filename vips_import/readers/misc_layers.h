// The "Vips diverse" lines of the design's terrain: objects of level 999 and
// code "T", shown in the cross sections and taking no part in building.
#pragma once

#include <cstdio>

namespace NpDesignModel {
class CInData;
class CResultData;
}  // namespace NpDesignModel
struct RmModel;

// Logs its heading and, in each cross section that stands at the chainage of
// a computed section (within 0.0005), replaces the layers of type 5 of the
// section's terrain materials: each material gets one layer, numbered by the
// material and named as the terrain layer of that number by default, with
// the points of all taken objects one behind the other, their heights as
// they stand. Objects of another level or another code are not taken; a
// material without taken points keeps no layer. Makes no sections, but the
// cross section set when the model has none, and ends with the long section
// rebuilt. `in` may be null.
void vVipsReadMiscLayers(const NpDesignModel::CResultData* res, const NpDesignModel::CInData* in,
                         std::FILE* log, RmModel* model);
