#include "road_model/sections/section_masses.h"

#include "geometry/line.h"
#include "road_model/sections/section.h"

namespace {

int iCompareMassIds(const void* a, const void* b) {
  const auto* first = *static_cast<const RmMass* const*>(a);
  const auto* second = *static_cast<const RmMass* const*>(b);
  if (first->MassId != second->MassId) return first->MassId < second->MassId ? -1 : 1;
  return 0;
}

// `*target` becomes a copy of `source`, or null.
void vReplaceLine(LiLine** target, const LiLine* source) {
  vLiLineDelete(target);
  if (source) *target = LiLineCreateCopy(source);
}

}  // namespace

RmMass* RmMassAdd(RmSection* section, int massId) {
  if (!section) return nullptr;
  RmMass* mass = DLinkNewObjAs<RmMass>(&section->Masses);
  if (mass) mass->MassId = massId;
  return mass;
}

RmMass* RmMassFind(const RmSection* section, int massId) {
  for (RmMass* mass = RmSectionMassesGetFirst(section); mass; mass = mass->Next) {
    if (mass->MassId == massId) return mass;
  }
  return nullptr;
}

void vRmMassRemove(RmSection* section, RmMass* mass) {
  if (!section || !mass) return;
  vLiLineDelete(&mass->ExactLine);
  vLiLineDelete(&mass->ApproxLine);
  vDLinkDeleteObj(&section->Masses, mass);
}

void vRmMassCopy(RmMass* to, const RmMass* from) {
  if (!to || !from || to == from) return;
  vReplaceLine(&to->ExactLine, from->ExactLine);
  vReplaceLine(&to->ApproxLine, from->ApproxLine);
  to->MassId = from->MassId;
  to->Area = from->Area;
  to->CentroidOffset = from->CentroidOffset;
}

void vRmSectionSortMasses(RmSection* section) {
  if (section) vDLinkSort(&section->Masses, iCompareMassIds);
}

int iRmSectionMassesGetCount(const RmSection* section) {
  int count = 0;
  for (RmMass* mass = RmSectionMassesGetFirst(section); mass; mass = mass->Next) ++count;
  return count;
}

RmMass* RmSectionMassesGetFirst(const RmSection* section) {
  return section ? ListFirst<RmMass>(&section->Masses) : nullptr;
}

RmMass* RmMassGetNext(const RmMass* mass) { return mass ? mass->Next : nullptr; }
