// The design's tables across the road: where the cross section ends on each
// side (side boundaries) and where a surface ends at an alignment (surface
// edge alignments).
#pragma once

#include <cstdio>

struct RmModel;
struct RmSurfGen;

namespace NpDesignModel {
class CInData;
}

// Gives the model a new SIDEBOUNDARIES table (the one it had goes), logs
// its heading and appends the design's boundaries of the left side, then of
// the right, in the design's order. A chainage at or below -99998.0 is
// moved up by 2.0; one of 999999.0 or 999998.0, the design's marks of none,
// leaves chainage and distance absent. A surface number or alignment of 0
// is absent. Returns the number of rows read.
int iVipsReadSurfaceBoundaries(const NpDesignModel::CInData* in, std::FILE* log, RmModel* model);

// Gives surface group 1 of the surface description a new table of border
// lines (the one it had goes), logs its heading and adds the design's edge
// alignments ordered by surface and then by start, rows of the same start
// in the design's order. An alignment of 0 is absent; a free surface of 0
// is the row's own surface. Without a surface description or its group 1
// nothing is done, not even the heading.
void vVipsReadSurfaceEdgeAlignments(const NpDesignModel::CInData* in, std::FILE* log,
                                    RmSurfGen* surfGen);
