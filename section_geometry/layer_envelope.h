// The bottom of the room above a group of layers, as a height line: the
// lowest of the layers where the rooms above them are united, the highest
// where they are intersected. It is taken directly when every layer of the
// group runs once across the section; the polygon clipping covers the rest.
#pragma once

#include <vector>

struct RmLayerList;
struct RmSection;

// A point of a height line. Offsets never fall along the line; two points
// at one offset make a step, from the height just left of it to the height
// just right of it.
struct SgLinePoint {
  double X, Z;
};
using SgHeightLine = std::vector<SgLinePoint>;

// The bottom of the room above the layers of `list`, raised by `lift`, into
// `line`: with the list's join 1 (rooms united) the lowest layer at each
// offset, over the offsets that some layer covers; otherwise (rooms
// intersected) the highest, over the offsets that all of them cover. Points
// stand at the ends, where a layer that forms the bottom has a vertex, and
// where the bottom passes from one layer to another. False, and the
// clipping must do, when a layer is missing or does not run once across the
// section, the entries are of different ranks, or the bottom would break
// into pieces.
bool boLayerListBottom(const RmSection* section, const RmLayerList* list, double lift,
                       SgHeightLine* line);
