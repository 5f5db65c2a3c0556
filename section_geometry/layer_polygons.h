// Polygons of the layers of a section within a working box: the box that a
// mass is measured in, a layer closed towards the box's top, a layer's runs
// as closed outlines, the joined polygon of a list of layers, and the
// rectangles that stand over the parts of a polygon.
//
// A layer is a polyline in the section's plane (offset, height). A point
// without a height breaks it into runs; a run needs two points. Every
// polygon returned is a new free one that the caller owns; null stands for
// an empty area.
#pragma once

#include "geometry/point.h"
#include "geometry/polygon.h"

struct RmLayer;
struct RmLayerList;
struct RmSection;

// How the runs of a layer close into rings.
enum : int {
  kSgCloseToTop = 0,  // down to the run, up to the box's top: the room above the layer
  kSgCloseSelf = 2,   // the run closes back to its own first point
};

// The rectangle of the box.
YgPolygon* BoxPolygon(const ViExtent& box);

// The rings of the layer's runs, with the layer's heights raised by `lift`.
YgPolygon* LayerPolygon(const RmLayer* layer, int close, const ViExtent& box, double lift);

// The polygon of the section's layers named in `list`, joined. Entries take
// part by their rank, the entry's Kind held to 1 to 6, from rank 1 up. The
// layers of one rank are united when the list's `join` is 1 and intersected
// otherwise. A later rank is first cut down to where earlier ranks have no
// layer (join 1), or widened over the whole height where they have one
// (otherwise), and then joined to what came before. So with join 1 a layer of
// a higher rank fills the gaps of the lower ranks. Null when no layer of the
// list stands in the section or the join is empty.
YgPolygon* LayerListPolygon(const RmSection* section, const RmLayerList* list, int join,
                            int close, const ViExtent& box, double lift);

// One rectangle over the x range of each part of `polygon`, over the whole
// height of the box; overlapping ranges make one rectangle. Null for an
// empty polygon.
YgPolygon* PartRectangles(const YgPolygon* polygon, const ViExtent& box);

// Adds a rectangle over the whole height of the box wherever, in the box's x
// range, no part of `polygon` stands. The rectangles touch the parts at
// most, so that the polygon's area stays the union of both.
void vAddGapRectangles(YgPolygon* polygon, const ViExtent& box);
