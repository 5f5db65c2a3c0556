// kvrvips plot: cross sections or the plan lines of a road model file as
// SVG, into a file, one file per section, or onto standard output.
#pragma once

#include <string>

#include "tools/inspect/inspect_requests.h"

// Reads the model and writes the drawing. Returns kExitDone, or kExitFailed
// (with the reason on standard error) when the model cannot be read, no
// cross section stands in the range asked for, or a file cannot be written.
int iRunPlot(const PlotRequest& request);

// The file of one section drawn with --each: the stem of `output` (its
// ".svg" taken off) with "_" and the chainage in three decimals.
std::string sEachFileName(const std::string& output, double chain);
