// A section in plan and in space: from offsets to plan coordinates, the
// tilted section plane, and placing a section on a plan line.
//
// A section stands at its origin (ClX, ClY) on the line; positive offsets
// run in the direction Direction + Skew. A tilted section (flag 16) lies in
// a plane turned about a pivot at TiltHeight by the angle atan(TiltSlope).
#pragma once

#include "road_model/lines/plan_lines.h"
#include "road_model/sections/section_set.h"

struct RmSectParams;

// The plan point at `offset`.
void vRmSectionOffsetToPlan(const RmSection* section, double offset, double* x, double* y);
// Sets LeftEnd at offset -LeftDist and RightEnd at +RightDist.
void vRmSectionUpdateEnds(RmSection* section);

// A height in the section's plane from a height in space, and back; the
// height itself when the section is not tilted.
double dRmSectionHeightToPlane(const RmSection* section, double height);
double dRmSectionHeightFromPlane(const RmSection* section, double z);
// The point in space: x, y and z in `xyz`. A point without a height keeps
// its height as z.
void vRmSectionPointTo3d(const RmSection* section, const RmPoint* point, double xyz[3]);

// Whether any section of the set is tilted.
bool boRmSectionsAnyTilted(const RmSectionSet* set);
// Whether the set is tilted at `chain`: a section within 0.0001 decides;
// otherwise the sections on both sides of the chainage are asked, and false
// results beyond the last section.
bool boRmSectionTiltedAt(const RmSectionSet* set, double chain);

// Fits the section on `line` at its chainage (before the line's start at
// the start, beyond its end at the end): plan point, direction, ends and,
// for a tilted section, the height and slope of the line's vertical line.
// With `sectParams` the reach to each side is taken from DISTLEFT and
// DISTRIGHT, and the clip distances are set 1000 m beyond it without their
// flags. False, with the section unchanged, when the line cannot give a
// point.
bool boRmSectionPlaceOnLine(RmSection* section, const RmLine* line,
                            const RmSectParams* sectParams);
// The same for every section; a null set or line does nothing.
void vRmSectionSetPlaceOnLine(RmSectionSet* set, const RmLine* line,
                              const RmSectParams* sectParams);
