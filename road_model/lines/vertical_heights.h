// Heights along vertical lines and plan lines. Every evaluation gives
// -99999.0 when it has no height.
#pragma once

#include "road_model/codes/code_ranges.h"
#include "road_model/lines/plan_lines.h"
#include "road_model/lines/vertical_line.h"

// The height at `chain` from the points and curves alone, and the slope of
// the piece there when `slope` is given.
double dRmVerLineHeightAt(const RmVerLine* verLine, double chain, double* slope);
// The same, except inside a range of the difference table: there the height
// follows the centre heights of the model's cross sections, raised by the
// range's difference (see section_heights.h).
double dRmVerLineHeightDiffAware(const RmVerLine* verLine, double chain, double* slope);
// The difference-aware height of the line's vertical line; without one the
// height of a 3D line at that chainage (the slope is then left alone), or
// -99999.0 for a 2D line.
double dRmLineHeightAt(const RmLine* line, double chain, double* slope);

// The lowest and highest height of the line: the intersection points and
// curve ends of `verLine`, and the heights at the ends of `range` when it is
// given. Without any, the points of a 3D `line`. Only values inside `range`
// (closed) count. False when no height was found.
bool boRmLineHeightRange(const RmVerLine* verLine, const RmLine* line, const RmChainRange* range,
                         double* min, double* max);
