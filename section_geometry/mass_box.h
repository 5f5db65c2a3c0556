// The working box of a mass in a section: the extent of the layers that
// the mass type names (all theoretical layers too with EXTENTALLTHEO),
// reaching 500 m below and above them so that its frame lies well outside
// the section, and narrowed sideways by the type's restriction layer.
#pragma once

#include "geometry/point.h"

struct RmMassType;
struct RmSection;

// How far the box reaches below and above the layers.
inline constexpr double kSgBoxMargin = 500.0;

// The box; false when the named layers hold no point with a height, or the
// restriction layer is named but missing or without points. The string
// lines that may limit a mass sideways (RESLINELEFT, RESLINERIGHT) have no
// offset in a section of this library, and leave the limits as they are.
bool boMassBox(const RmSection* section, const RmMassType* massType, ViExtent* box);

// Whether every layer that the type's three lists name stands in the
// section.
bool boMassLayersPresent(const RmSection* section, const RmMassType* massType);
