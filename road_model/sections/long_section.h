// The long section of a road: the terrain along the centre line, drawn from
// the cross sections.
#pragma once

struct RmSectionSet;

// A new set of long sections (kind 1) with one section at the chainage of
// the first cross section. It holds one layer per terrain layer id (type 4)
// that any cross section has, in the order in which they are first met.
// Each layer has one point per cross section: as offset the chainage from
// the first cross section, as height the cross section's layer at offset 0
// (-99999.0 where that layer has no height there or is missing), so that
// all layers hold as many points as there are cross sections. Null when the
// cross sections are empty or memory ran out.
RmSectionSet* RmSectionSetBuildLongSection(const RmSectionSet* crossSections);
