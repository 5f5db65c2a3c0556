// Steps of a plot's grid: a round step (1, 2 or 5 times a power of ten)
// that divides a span into a readable number of cells, and labels of grid
// values with as many decimals as the step needs.
#pragma once

#include <string>

// The round step that cuts `span` into about `cells` cells; 1 for a span
// that is not positive.
double dGridStep(double span, int cells);
// `value` with the decimals that `step` needs, "-0" written as "0".
std::string sGridLabel(double value, double step);
