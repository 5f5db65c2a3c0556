// The design's pavement: the stretches on soil and on rock with the
// templates that they use, and the stretches of sub-grade, as the PAVEMENT
// table of the surface tables object.
#pragma once

#include <cstdio>

struct RmModel;
struct RmPavement;
struct RmSurfGen;

namespace NpDesignModel {
class CInData;
}

// Makes the PAVEMENT table and puts it into `surfGen` (the table it
// replaces goes, and SUPERSTRUCTUREMODE becomes 0), logs its heading and
// fills it: the stretches of each kind in the design's order, the packages
// of the templates, the sub-grade stretches; then, on each side of every
// package, the innermost surfaces of family 0 that the design left without
// any thickness are removed. Sets *rehabUsed when a template uses
// rehabilitation data. With no `surfGen` the table is read and dropped.
// Result 0.
int iVipsReadPavement(const NpDesignModel::CInData* in, std::FILE* log, const RmModel* model,
                      RmSurfGen* surfGen, int* rehabUsed);

// The appearing rows from the sub-grade points of the design: each point
// ends a stretch of its given type (1, or 0 for any other) that starts at
// the end of the one before, or at the start of the main line (0.0 without
// one); a stretch of the type of the one before lengthens that one.
void vVipsReadSubGrades(const NpDesignModel::CInData* in, const RmModel* model,
                        RmPavement* pavement);
