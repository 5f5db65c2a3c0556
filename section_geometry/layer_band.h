// The room between two height lines (layer_envelope.h): the direct way to
// the area of a mass between upper and lower layers that each run once
// across the section, which is what most masses are. It gives the same
// outline as cutting the room above the lower layers by the room above the
// upper ones, without the polygon clipping.
#pragma once

#include "geometry/point.h"
#include "geometry/polygon.h"
#include "section_geometry/layer_envelope.h"

struct RmLayer;

// Whether the layer is one run: two points or more, every height given,
// offsets strictly rising.
bool boLayerIsSingleRun(const RmLayer* layer);

// Into `band`, the rings where the upper line lies above the lower one,
// within the x range that both lines and the box share; null when there is
// no such room. Each ring runs counter-clockwise: along the lower line from
// left to right, back along the upper one; where the upper line touches the
// lower one in a point, the ring passes through it pinched. False, with `band` untouched, when both
// lines step at the same offset: the clipping must do then.
bool boLayerBandPolygon(const SgHeightLine& upper, const SgHeightLine& lower, const ViExtent& box,
                        YgPolygon** band);
