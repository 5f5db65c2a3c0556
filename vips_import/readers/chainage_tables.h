// The design's chainage tables that become chain range tables of the
// surface tables object: removal of top soil and vegetation, soft spot
// removals, minimum ditch depths, rock shelves and ditches in fill.
//
// Each reader makes a new table, puts it into its slot of `surfGen` (the
// table it replaces goes), logs its heading and appends one row per row of
// the design, in the design's order. With no `surfGen` the rows are read and
// dropped; with no design only the empty table is made. Each returns the
// number of rows read.
#pragma once

#include <cstdio>

struct RmSurfGen;

namespace NpDesignModel {
class CInData;
}

// REMOVALTOPSOILS. A minimum fill height of 0 becomes 3.0 and a maximum
// terrain slope of 0 becomes 0.16667, the design's defaults.
int iVipsReadTopSoilRemovals(const NpDesignModel::CInData* in, std::FILE* log, RmSurfGen* surfGen);

// UNSUITABLESOILS: the stretch and its design mode. Depth, boundary rays and
// cut slopes have no place in the table.
int iVipsReadSoftSpotRemovals(const NpDesignModel::CInData* in, std::FILE* log,
                              RmSurfGen* surfGen);

// MINDITCHDEPTHS: the minimum depth on either side.
int iVipsReadDitchDepths(const NpDesignModel::CInData* in, std::FILE* log, RmSurfGen* surfGen);

// ROCKBENCHS: the shelves of the left side, then those of the right.
int iVipsReadRockShelves(const NpDesignModel::CInData* in, std::FILE* log, RmSurfGen* surfGen);

// FILLDITCHES: a ditch on the left or on the right side. A ditch on both
// sides cannot be held; it is left out with a warning in the log. Any other
// position is left out silently. Counts the rows of the design.
int iVipsReadEmbankmentDitches(const NpDesignModel::CInData* in, std::FILE* log,
                               RmSurfGen* surfGen);
