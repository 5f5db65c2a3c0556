// The room between two layers that each run once across the section: the
// direct way to the area of a mass between one upper and one lower layer,
// which is what most masses are. It gives the same outline as cutting the
// room above the lower layer by the room above the upper one, without the
// polygon clipping.
#pragma once

#include "geometry/point.h"
#include "geometry/polygon.h"

struct RmLayer;

// Whether the layer is one run: two points or more, every height given,
// offsets strictly rising.
bool boLayerIsSingleRun(const RmLayer* layer);

// The rings where the upper layer, raised by `lift`, lies above the lower
// one, within the x range that both layers and the box share. Each ring
// runs counter-clockwise: along the lower layer from left to right, back
// along the upper one; rings that touch in a point are two rings. Null when
// there is no such room. Both layers must be single runs.
YgPolygon* LayerBandPolygon(const RmLayer* upper, const RmLayer* lower, const ViExtent& box,
                            double lift);
