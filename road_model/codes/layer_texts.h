// The texts of layers: a layer type's short name and a layer's name from the
// factory settings, unless the model's layer names hold one of their own.
//
// A layer text reads "Teo   6: Planum": the short name of the type, the
// number in a width of 3, ": " and the name.
#pragma once

#include <cstdint>

#include "road_model/codes/layer_id.h"

struct RmLayerNames;

// The settings' name of a layer: theoretical types read "SectLayerTheoName",
// physical ones "SectLayerPhysName", type 9 "SectLayerAdvancedName", each by
// the layer number. Any other type, and a missing entry, give the empty text.
const char* sRmLayerIdDefaultName(RmLayerId id);

// The layer text of the pair, with the name that `names` holds for it, else
// the default name. In the per-thread format buffer.
const char* sLayerText(const RmLayerNames* names, int type, int number);

// The layer text made short for the types 1, 2 and 8: behind the first point
// everything up to and including the next blank goes, and with no blank
// behind the point the text ends at the point. A temporary text.
const char* sLayerShortText(const RmLayerNames* names, int type, int number);

// The pair of a layer text, type in the low 32 bits and number in the high
// ones; 0 when the text is null or empty, has no ": " or starts with it, or
// its type word is no type's short name. The word matches a short name that
// begins with it; the types are tried in the order 1, 2, 3, 4, 5, 8, 9.
int64_t iLayerFromText(const char* text);
// The same with only `typeA` and `typeB` tried.
int64_t iLayerFromTextFor(const char* text, int typeA, int typeB);
