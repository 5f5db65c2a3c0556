// The area of a mass in a section, as a polygon: the room below the upper
// layers (FLAYERS) and above the lower layers (TOLAYERS), or the outline of
// the area layers (AREALAYERS) for a mass of CALCTYPE 8.
#pragma once

#include "geometry/polygon.h"

struct RmModel;
struct RmMassType;
struct RmMassTypes;
struct RmSection;

// Lift of the upper layers while a mass with a minimum thickness is cut, so
// that layers that touch do not leave a seam of area.
inline constexpr double kSgThicknessLift = 0.0005;

// The mass polygon of the type in the section, cleaned; null when a named
// layer is missing, the layers hold no area, or nothing is left after the
// clean-up. With `finish` and a MINTHICKNESS above 0, parts thinner than it
// are dropped as well. The caller owns the result.
//
// Steps: the working box (mass_box.h); the joined polygons of the upper and
// the lower layers, each the room above its layers up to the box's top;
// where the upper layers are missing the room above them is the whole
// height, so that no mass arises there; the lower room less the upper room;
// on long sections only the type's chain ranges (relative to the section's
// chainage), elsewhere only the box; then the short pieces, the sliver rings
// and the spikes go.
YgPolygon* MassPolygon(const RmModel* model, const RmSection* section,
                       const RmMassTypes* massTypes, const RmMassType* massType, int finish);
