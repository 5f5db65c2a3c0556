// The elevation differences of a design: stretches of the main line where
// the height follows the cross sections, raised by a difference, instead of
// the vertical line.
#pragma once

#include <cstdio>

struct RmModel;

namespace NpDesignModel {
class CInData;
}

// Gives the vertical line of the model's centre line (made when the line has
// none) a new difference table of the design's rows, ascending by from
// chainage, a row behind those that start where it starts. Without a centre
// line the rows are read and dropped. Logs the table's heading. True when
// the design had any row.
bool boVipsReadElevationDifferences(const NpDesignModel::CInData* in, std::FILE* log,
                                    RmModel* model);
