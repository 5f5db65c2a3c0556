// Clean-up of section outlines after clipping: rings too small to be a
// mass, spikes that fold back on themselves, parts too short to be a line,
// and parts that are to close exactly.
//
// Each routine works on what it is given and reports nothing; a null line
// is ignored.
#pragma once

#include "geometry/line.h"

// Deletes every part whose area, taken as a ring, is below `area` in
// absolute value (strictly). A polygon left with fewer than 3 elements is
// emptied.
void vPolygonRemoveSmallParts(LiLine* polygon, double area);

// Deletes every part whose length is below `length` (strictly).
void vLineRemoveShortParts(LiLine* line, double length);

// Removes points that repeat their predecessor, and the tips of spikes: a
// point whose two neighbours lie the same way from it (within
// kSgSpikeFoldAngle), each further than kSgSpikeSideLength. The area of the
// removed tips adds up over the call, and a tip that would bring the sum to
// `area` or more stays: one call removes less than `area` of spikes in all,
// so that an honest thin wedge is not eaten step by step. Passes repeat
// while one removed something.
void vLineRemoveSpikes(LiLine* line, double area);

// Makes every part end on its own first point: a part whose last point is
// not a common point of its first gets that point added at its end. The
// line is built anew from its points, straight pieces only.
void vLineSplitAtInvisible(LiLine* line);
