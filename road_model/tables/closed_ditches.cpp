#include "road_model/tables/closed_ditches.h"

#include <cstdlib>

#include "base/dlink.h"

namespace {

void vClearSections(RmClosedDitch* ditch) {
  for (RmClosedDitchSection* section = RmClosedDitchSectionsGetFirst(ditch); section;
       section = section->Next) {
    vDLinkClear(&section->Points);
  }
  vDLinkClear(&ditch->Sections);
}

void vClearDitches(RmClosedDitches* ditches) {
  for (RmClosedDitch* ditch = RmClosedDitchesGetFirst(ditches); ditch; ditch = ditch->Next) {
    vClearSections(ditch);
  }
  vSLinkClear(&ditches->Ditches);
}

}  // namespace

RmClosedDitches* RmClosedDitchesCreate() {
  auto* ditches = static_cast<RmClosedDitches*>(std::calloc(1, sizeof(RmClosedDitches)));
  if (ditches) SLinkInit(&ditches->Ditches, sizeof(RmClosedDitch), nullptr);
  return ditches;
}

void vRmClosedDitchesDelete(RmClosedDitches** ditches) {
  if (!ditches || !*ditches) return;
  vClearDitches(*ditches);
  std::free(*ditches);
  *ditches = nullptr;
}

void vRmClosedDitchesCopy(RmClosedDitches* to, const RmClosedDitches* from) {
  if (!to || !from || to == from) return;
  vClearDitches(to);
  for (const RmClosedDitch* ditch = RmClosedDitchesGetFirst(from); ditch; ditch = ditch->Next) {
    RmClosedDitch* copy = SLinkNewObjAs<RmClosedDitch>(&to->Ditches);
    if (!copy) return;
    copy->Id = ditch->Id;
    DLinkInit(&copy->Sections, sizeof(RmClosedDitchSection), nullptr);
    for (const RmClosedDitchSection* section = RmClosedDitchSectionsGetFirst(ditch); section;
         section = section->Next) {
      RmClosedDitchSection* sectionCopy = RmClosedDitchSectionAdd(copy, nullptr);
      if (!sectionCopy) return;
      sectionCopy->Chain = section->Chain;
      sectionCopy->ElevationMode = section->ElevationMode;
      DLinkCopy(&section->Points, &sectionCopy->Points, nullptr);
    }
  }
}

bool boRmClosedDitchesHasRows(const RmClosedDitches* ditches) {
  return ditches && ditches->Ditches.first;
}

RmClosedDitch* RmClosedDitchesGetFirst(const RmClosedDitches* ditches) {
  return ditches ? ListFirst<RmClosedDitch>(&ditches->Ditches) : nullptr;
}

RmClosedDitch* RmClosedDitchGetNext(const RmClosedDitch* ditch) {
  return ditch ? ditch->Next : nullptr;
}

RmClosedDitch* RmClosedDitchAdd(RmClosedDitches* ditches, RmLayerId id) {
  if (!ditches) return nullptr;
  RmClosedDitch* before = RmClosedDitchesGetFirst(ditches);
  while (before && before->Id.Number <= id.Number) before = before->Next;
  auto* ditch = SLinkNewObjAs<RmClosedDitch>(&ditches->Ditches, before);
  if (!ditch) return nullptr;
  ditch->Id = id;
  DLinkInit(&ditch->Sections, sizeof(RmClosedDitchSection), nullptr);
  return ditch;
}

RmClosedDitch* RmClosedDitchFind(const RmClosedDitches* ditches, RmLayerId id) {
  for (RmClosedDitch* ditch = RmClosedDitchesGetFirst(ditches); ditch; ditch = ditch->Next) {
    if (boRmLayerIdEquals(ditch->Id, id)) return ditch;
  }
  return nullptr;
}

void vRmClosedDitchRemove(RmClosedDitches* ditches, RmClosedDitch* ditch) {
  if (!ditches || !ditch) return;
  vClearSections(ditch);
  vSLinkDeleteObj(&ditches->Ditches, ditch);
}

RmClosedDitchSection* RmClosedDitchSectionsGetFirst(const RmClosedDitch* ditch) {
  return ditch ? ListFirst<RmClosedDitchSection>(&ditch->Sections) : nullptr;
}

RmClosedDitchSection* RmClosedDitchSectionGetNext(const RmClosedDitchSection* section) {
  return section ? section->Next : nullptr;
}

RmClosedDitchSection* RmClosedDitchSectionAdd(RmClosedDitch* ditch,
                                              RmClosedDitchSection* before) {
  if (!ditch) return nullptr;
  auto* section = DLinkNewObjAs<RmClosedDitchSection>(&ditch->Sections, before);
  if (section) DLinkInit(&section->Points, sizeof(RmClosedDitchPoint), nullptr);
  return section;
}

RmClosedDitchSection* RmClosedDitchSectionAddSorted(RmClosedDitch* ditch, double chain) {
  RmClosedDitchSection* before = RmClosedDitchSectionsGetFirst(ditch);
  while (before && before->Chain <= chain) before = before->Next;
  RmClosedDitchSection* section = RmClosedDitchSectionAdd(ditch, before);
  if (section) section->Chain = chain;
  return section;
}

void vRmClosedDitchSectionRemove(RmClosedDitch* ditch, RmClosedDitchSection* section) {
  if (!ditch || !section) return;
  vDLinkClear(&section->Points);
  vDLinkDeleteObj(&ditch->Sections, section);
}

RmClosedDitchPoint* RmClosedDitchPointsGetFirst(const RmClosedDitchSection* section) {
  return section ? ListFirst<RmClosedDitchPoint>(&section->Points) : nullptr;
}

RmClosedDitchPoint* RmClosedDitchPointGetNext(const RmClosedDitchPoint* point) {
  return point ? point->Next : nullptr;
}

RmClosedDitchPoint* RmClosedDitchPointAdd(RmClosedDitchSection* section) {
  return section ? DLinkNewObjAs<RmClosedDitchPoint>(&section->Points) : nullptr;
}

double dRmClosedDitchPointGetDistance(const RmClosedDitchPoint* point) {
  return point ? point->Distance : 0.0;
}

double dRmClosedDitchPointGetElevation(const RmClosedDitchPoint* point) {
  return point ? point->Elevation : 0.0;
}
