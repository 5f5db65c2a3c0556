// The line of a mass that is measured by its length: a stretch of layers
// across the section, or the outline of the mass's area.
#pragma once

#include "geometry/line.h"

struct RmModel;
struct RmMassType;
struct RmMassTypes;
struct RmSection;

// By COMPOSEDTYPE: 0 gives the runs of the layers of AREALAYERS (of FLAYERS
// when that list is empty) that lie within the mass's working box, each run
// a part; 1 gives the outline of the mass's area, each ring a part that
// ends on its first point; any other composition gives null, as does a
// missing layer or an empty result. The caller owns the line.
LiLine* MassLineShape(const RmModel* model, const RmSection* section,
                      const RmMassTypes* massTypes, const RmMassType* massType);
