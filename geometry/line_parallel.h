// Parallels of lines: each part moved sideways by a distance, corners joined
// by extending their straights to where they meet.
#pragma once

#include "geometry/line.h"

// A new free line at `distance` beside `line`, positive to the right of its
// direction. Straights stay straights and arcs stay arcs about the same
// centre (an arc whose radius would vanish becomes a straight); clothoids
// and arcs by three points come out as chords within 1e-4 m. Where two
// straights meet at a corner their parallels are cut at their crossing,
// unless that lies more than 10 times the distance from the corner; other
// corners are joined by a straight. A polygon, or a part that ends in its
// first point, is treated as a closed ring. Each point keeps the data, text
// and height of the point it comes from. Null for a null or empty line.
LiLine* LiLineCreateParallel(const LiLine* line, double distance);
