// The curves of a vertical line: slopes of the straight pieces, and for each
// intersection point where its circle or parabola starts and ends.
#pragma once

#include "road_model/lines/vertical_line.h"

// Computes slopes and the curves at the points. 2 when the line has fewer
// than two points, 1 when a curve had to be shortened to fit between its
// neighbours, 0 otherwise.
int iRmVerLineCompute(RmVerLine* verLine);
