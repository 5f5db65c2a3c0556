// The design's build settings and its surface descriptions: the switches
// of the optional parts as the bits of BUILDSETTINGS, and the surfaces
// across the road with their widths and slopes by chainage, which the
// theoretical profiles refine later.
#pragma once

#include <cstdio>

struct RmModel;
struct RmSurface;
struct RmSurfaceGroup;
struct RmSurfaceRow;
struct RmSurfGen;

namespace NpDesignModel {
class CInData;
}

// Logs its heading and sets or clears each bit of BUILDSETTINGS by the
// design's switch for it.
void vVipsReadModelSettings(const NpDesignModel::CInData* in, std::FILE* log, RmSurfGen* surfGen);

// Gives `surfGen` a new surface description (the one it had goes) with one
// group, that of layer (1, 0), whose reference surface is the design's
// elevation reference surface and whose reference height is the design's
// vertical offset in metres, negated. The design's surfaces follow in the
// design's order, each with its rows: a chainage at or below -99998.0 is
// moved up by 2.0; one of exactly 999998.0 or 999999.0 makes a row without
// any value (none at all as first row); a width or slope of 999999.0 is
// none; a row equal to the one before it is left out. Rows without any
// value are then trimmed from both ends of each surface. Returns the number
// of surfaces.
int iVipsReadSurfaces(const NpDesignModel::CInData* in, std::FILE* log, RmModel* model,
                      RmSurfGen* surfGen);

// Whether chainage, width or slope of the row is a value.
bool boVipsRowHasValue(const RmSurfaceRow* row);
// Removes rows without any value from the head and from the tail.
void vVipsTrimSurfaceRows(RmSurface* surface);
// The same for every surface of the group.
void vVipsTrimSurfaces(RmSurfaceGroup* group);
// Whether chainage, width and slope of the row each differ by less than
// 0.0005 from these.
bool boVipsSurfaceRowEquals(const RmSurfaceRow* row, double chain, double width, double slope);
