// The centre line that the surfaces of a layer are measured from. A model
// calculated from string lines (CALCMODE 3) gives each layer the centre line
// of its own string lines; every other model, and a layer without such a
// line, uses the centre line of the model's plan lines.
#pragma once

#include "road_model/codes/layer_id.h"
#include "road_model/lines/plan_lines.h"

// The centre line for the layer `id`, or null when the model has none.
RmLine* RmModelGetCenterLineFor(const RmModel* model, RmLayerId id);
