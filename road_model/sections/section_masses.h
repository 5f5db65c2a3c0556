// The results of the mass calculation that a section keeps, one per mass
// type, with the outlines of locked sections.
#pragma once

#include "road_model/sections/section.h"

// A new zeroed mass at the end; null when memory ran out.
RmMass* RmMassAdd(RmSection* section, int massId);
// The first mass of that id, or null.
RmMass* RmMassFind(const RmSection* section, int massId);
// Deletes the mass's outlines and the mass.
void vRmMassRemove(RmSection* section, RmMass* mass);
// Replaces the outlines of `to` by copies and copies id, area and offset.
void vRmMassCopy(RmMass* to, const RmMass* from);
// Sorts the masses by ascending id.
void vRmSectionSortMasses(RmSection* section);
int iRmSectionMassesGetCount(const RmSection* section);
RmMass* RmSectionMassesGetFirst(const RmSection* section);
RmMass* RmMassGetNext(const RmMass* mass);
