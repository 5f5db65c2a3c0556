// What the readers of the design's sections share: a section of the cross
// sections at a chainage, placed on the main line, and a layer of a section
// with its name in the model's layer names.
#pragma once

#include "road_model/codes/layer_id.h"

namespace NpDesignModel {
class CInData;
}
struct RmLayer;
struct RmModel;
struct RmSection;
struct RmSectionSet;

// A new section at `chain` in front of `before` (at the end with `before`
// null), placed on the model's main line with the model's section
// parameters when it has both.
RmSection* VipsAddSection(RmSectionSet* set, RmSection* before, double chain, RmModel* model);

// The layer `layerId` of the section, made (in the order of the layers)
// when it is missing. Its name: `name` when it is given and not empty;
// else, for a terrain layer (type 2 or 4) with the design's input at hand,
// the design's sub-surface material of that number; a name found so is
// registered in the model's layer names. Without one the layer keeps the
// name the names already hold, or gets the default name of its id.
RmLayer* VipsGetOrCreateLayer(RmModel* model, RmSection* section, RmLayerId layerId,
                              const char* name, const NpDesignModel::CInData* in);
