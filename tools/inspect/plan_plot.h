// The plan lines of a model drawn as one SVG document: each line flattened
// into polylines (one per drawn part) with its arcs and clothoids cut into
// chords within a tolerance, the centre line stronger than the others, the
// cross sections as ticks across the road, and a legend of the line names.
// North is up.
#pragma once

#include <string>
#include <vector>

#include "geometry/line.h"

struct RmModel;

// The largest distance between a curve and the chords that stand for it.
inline constexpr double kPlanChordTolerance = 0.01;

struct PlanPoint {
  double X, Y;
};

// The drawn parts of `line` as runs of plan points: the points of its
// elements and, on curved pieces, points between them so that no chord
// strays more than `tolerance` from the curve.
std::vector<std::vector<PlanPoint>> FlattenPlanLine(const LiLine* line, double tolerance);

std::string sPlanSvg(const RmModel* model);
