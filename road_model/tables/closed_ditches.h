// Closed ditches: for a layer, the cross sections of a closed ditch along the
// road, each a chainage with a row of points given as distance and
// elevation.
//
// Ditches stand ascending by the number half of their layer id, sections by
// chainage as they are added, points in the order given.
#pragma once

#include <cstdint>

#include "base/slink.h"
#include "road_model/codes/layer_id.h"

struct RmClosedDitchPoint {
  RmClosedDitchPoint* Next;
  RmClosedDitchPoint* Prev;
  double Distance;
  double Elevation;
};

struct RmClosedDitchSection {
  RmClosedDitchSection* Next;
  RmClosedDitchSection* Prev;
  double Chain;
  int32_t ElevationMode;  // how Elevation is meant
  ListHead Points;        // RmClosedDitchPoint, heap nodes
};

struct RmClosedDitch {
  RmClosedDitch* Next;
  RmLayerId Id;
  ListHead Sections;  // RmClosedDitchSection, heap nodes
};

struct RmClosedDitches {
  ListHead Ditches;  // RmClosedDitch, heap nodes
};

// ---- Life cycle ----

// An empty table; null when memory ran out.
RmClosedDitches* RmClosedDitchesCreate();
// Deletes every ditch with its sections and points, then the table, and
// nulls the pointer. Null is accepted.
void vRmClosedDitchesDelete(RmClosedDitches** ditches);
// Makes `to` a deep copy of `from`.
void vRmClosedDitchesCopy(RmClosedDitches* to, const RmClosedDitches* from);
// A ditch in the table; false for null.
bool boRmClosedDitchesHasRows(const RmClosedDitches* ditches);

// ---- Ditches ----

RmClosedDitch* RmClosedDitchesGetFirst(const RmClosedDitches* ditches);
RmClosedDitch* RmClosedDitchGetNext(const RmClosedDitch* ditch);
// A new ditch of `id` in front of the first ditch of a greater number.
RmClosedDitch* RmClosedDitchAdd(RmClosedDitches* ditches, RmLayerId id);
// The ditch of exactly this id (both halves), or null.
RmClosedDitch* RmClosedDitchFind(const RmClosedDitches* ditches, RmLayerId id);
// Deletes the ditch with its sections.
void vRmClosedDitchRemove(RmClosedDitches* ditches, RmClosedDitch* ditch);

// ---- Sections and points ----

RmClosedDitchSection* RmClosedDitchSectionsGetFirst(const RmClosedDitch* ditch);
RmClosedDitchSection* RmClosedDitchSectionGetNext(const RmClosedDitchSection* section);
// A new empty section in front of `before`, at the end when it is null.
RmClosedDitchSection* RmClosedDitchSectionAdd(RmClosedDitch* ditch,
                                              RmClosedDitchSection* before);
// A new empty section at `chain`, in front of the first section of a greater
// chainage.
RmClosedDitchSection* RmClosedDitchSectionAddSorted(RmClosedDitch* ditch, double chain);
// Deletes the section with its points.
void vRmClosedDitchSectionRemove(RmClosedDitch* ditch, RmClosedDitchSection* section);

RmClosedDitchPoint* RmClosedDitchPointsGetFirst(const RmClosedDitchSection* section);
RmClosedDitchPoint* RmClosedDitchPointGetNext(const RmClosedDitchPoint* point);
// A new point of zeroes at the end of the section.
RmClosedDitchPoint* RmClosedDitchPointAdd(RmClosedDitchSection* section);
double dRmClosedDitchPointGetDistance(const RmClosedDitchPoint* point);
double dRmClosedDitchPointGetElevation(const RmClosedDitchPoint* point);
