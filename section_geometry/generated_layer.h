// The layer that a mass type with GENERATELAYER puts into a section: type 8,
// numbered as the mass type, drawn along the mass's shape.
#pragma once

#include "geometry/line.h"

struct RmSection;

// Deletes the layer that the mass type of `number` generated earlier.
void vGeneratedLayerRemove(RmSection* section, int number);

// Replaces it by a layer along `shape`: the points of each part in order,
// a ring of a polygon closed by its first point again, and a point without
// a height between two parts.
void vGeneratedLayerBuild(RmSection* section, int number, const LiLine* shape);
