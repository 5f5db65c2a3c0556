// How layers stand to each other and to the model's calculation settings.
#pragma once

#include "road_model/codes/layer_id.h"

struct RmLayerNames;
struct RmModel;

// The id with which a layer takes part in the mass calculation: a
// theoretical id takes the model's CALCTHEO as type, a physical id its
// CALCPHYS; the number stays, and any other id stays as it is.
RmLayerId RmLayerIdForCalc(const RmModel* model, RmLayerId id);

// Whether the derived layer `derived` stands for `source`: both of one type,
// `source` not derived itself, and its number in the derived layer's group
// (or, for a physical layer, its CATEGORY in `layerNames` naming that
// group). A layer whose record in `layerNames` has PRIORITY -1 is never a
// source.
bool boRmLayerDerivedFrom(RmLayerId derived, RmLayerId source, const RmLayerNames* layerNames);
