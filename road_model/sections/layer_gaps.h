// Gaps in a layer, and layers filtered by code and mark.
//
// A gap point (no height) breaks the polyline. Normalised, a layer has no
// gap at either end, no two gaps in a row and no lone valid point between
// gaps: such a point draws nothing.
#pragma once

#include "road_model/sections/layer.h"

// Brings the gaps of a layer into the normal form. First pass: runs of
// gaps shrink to one, a gap at the start goes, a lone valid point goes
// with the gap in front of it, a lone last point goes, and gaps at the end
// go. Second pass: a gap between two points at its own offset goes, and the
// point behind it too when both stand at the same height.
void vRmLayerNormalizeGaps(RmLayer* layer);

// Deletes gaps at the start and at the end; 1 if anything went, else 0.
int iRmLayerTrimGaps(RmLayer* layer);

// A new free layer of the same id with the points whose PCODE matches the
// code filter (see boRmCodeFilterMatches), and the points at the borders of
// each kept run that the section builder needs to close it; a gap stands
// where points were dropped. The result is normalised. Null when memory ran
// out or the layer is null.
RmLayer* RmLayerFilterByCode(const RmLayer* layer, const char* codeFilter);
// The same walk over the marks: an empty filter keeps every point, a number
// of at least 1 keeps the points of that mark.
RmLayer* RmLayerFilterByMark(const RmLayer* layer, const char* markFilter);
// The mark filter when it is not empty, then the code filter.
RmLayer* RmLayerFilterByCodeAndMark(const RmLayer* layer, const char* markFilter,
                                    const char* codeFilter);
// A new free layer with the valid points that match; one gap where a run
// was dropped, none at the ends.
RmLayer* RmLayerFilterValid(const RmLayer* layer, const char* codeFilter);
