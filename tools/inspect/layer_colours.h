// The colour in which a plot draws a layer, by its type: the terrain and
// the physical layers in earth colours, the design layers in greys and
// blues, every other kind in a neutral grey.
#pragma once

#include "road_model/codes/layer_id.h"

// An SVG colour "#rrggbb".
const char* sLayerColour(RmLayerId id);
