#include "road_model/sections/section_set.h"

#include <cmath>
#include <cstdlib>

#include "geometry/line.h"
#include "road_model/sections/section_masses.h"

namespace {

// Frees what the set's nodes own outside the pools: build info of layers,
// outlines of masses. The nodes themselves go with the pools.
void vFreeHeapParts(RmSectionSet* set) {
  for (RmSection* section = RmSectionsGetFirst(set); section; section = section->Next) {
    for (RmLayer* layer = RmSectionLayersGetFirst(section); layer; layer = layer->Next) {
      vRmLayerClearBuildInfo(layer);
    }
    for (RmMass* mass = RmSectionMassesGetFirst(section); mass; mass = mass->Next) {
      vLiLineDelete(&mass->ExactLine);
      vLiLineDelete(&mass->ApproxLine);
    }
  }
}

bool boSameLayerAndMassCounts(const RmSection* a, const RmSection* b) {
  return iRmSectionLayersGetCount(a) == iRmSectionLayersGetCount(b) &&
         iRmSectionMassesGetCount(a) == iRmSectionMassesGetCount(b);
}

}  // namespace

// ---- Life cycle ----

RmSectionSet* RmSectionSetCreate() {
  auto* set = static_cast<RmSectionSet*>(std::calloc(1, sizeof(RmSectionSet)));
  if (!set) return nullptr;
  vPoolInit(&set->SectionPool, kRmSectionPoolChunk);
  vPoolInit(&set->MassPool, kRmMassPoolChunk);
  DLinkInit(&set->Sections, sizeof(RmSection), &set->SectionPool);
  set->Kind = kRmCrossSections;
  return set;
}

void vRmSectionSetDelete(RmSectionSet** set) {
  if (!set || !*set) return;
  vRmSectionSetClear(*set);
  vPoolDelete(&(*set)->SectionPool);
  vPoolDelete(&(*set)->MassPool);
  std::free(*set);
  *set = nullptr;
}

void vRmSectionSetClear(RmSectionSet* set) {
  if (!set) return;
  vFreeHeapParts(set);
  set->Sections.first = nullptr;
  set->Sections.last = nullptr;
  vPoolRelease(&set->SectionPool, nullptr);
  vPoolRelease(&set->MassPool, nullptr);
}

uint64_t lRmSectionSetGetGarbage(const RmSectionSet* set) {
  if (!set) return 0;
  return lPoolGetGarbage(&set->SectionPool) + lPoolGetGarbage(&set->MassPool);
}

// ---- Sections ----

RmSection* RmSectionAdd(RmSectionSet* set, RmSection* before, double chain) {
  if (!set) return nullptr;
  RmSection* section = DLinkNewObjAs<RmSection>(&set->Sections, before);
  if (!section) return nullptr;
  section->Chain = chain;
  DLinkInit(&section->Layers, sizeof(RmLayer), &set->SectionPool);
  DLinkInit(&section->Masses, sizeof(RmMass), &set->MassPool);
  return section;
}

void vRmSectionRemove(RmSectionSet* set, RmSection* section) {
  if (!set || !section) return;
  vRmSectionClearLayers(section);
  vRmSectionClearMasses(section);
  vDLinkDeleteObj(&set->Sections, section);
}

RmSection* RmSectionsGetFirst(const RmSectionSet* set) {
  return set ? ListFirst<RmSection>(&set->Sections) : nullptr;
}

RmSection* RmSectionsGetLast(const RmSectionSet* set) {
  return set ? ListLast<RmSection>(&set->Sections) : nullptr;
}

RmSection* RmSectionsGetNext(const RmSection* section) {
  return section ? section->Next : nullptr;
}

RmSection* RmSectionsGetPrev(const RmSection* section) {
  return section ? section->Prev : nullptr;
}

int iRmSectionsGetCount(const RmSectionSet* set) {
  int count = 0;
  for (RmSection* section = RmSectionsGetFirst(set); section; section = section->Next) ++count;
  return count;
}

// ---- Lookups ----

RmSection* RmSectionsFindAtChain(const RmSection* first, double chain) {
  for (const RmSection* section = first; section; section = section->Next) {
    if (std::fabs(section->Chain - chain) < kRmSectionChainTolerance) {
      return const_cast<RmSection*>(section);
    }
  }
  return nullptr;
}

RmSection* RmSectionsFindAtChainInSet(const RmSectionSet* set, double chain) {
  return RmSectionsFindAtChain(RmSectionsGetFirst(set), chain);
}

RmSection* RmSectionsFindNearest(const RmSection* first, double chain, double maxDist) {
  if (!first) return nullptr;
  const RmSection* best = first;
  double bestDistance = std::fabs(first->Chain - chain);
  double lastDistance = bestDistance;
  for (const RmSection* section = first->Next; section; section = section->Next) {
    double distance = std::fabs(section->Chain - chain);
    if (distance > lastDistance) break;
    if (distance < bestDistance) {
      best = section;
      bestDistance = distance;
    }
    lastDistance = distance;
  }
  return maxDist > bestDistance ? const_cast<RmSection*>(best) : nullptr;
}

RmSection* RmSectionsFindFirstFrom(const RmSectionSet* set, double chain) {
  for (RmSection* section = RmSectionsGetFirst(set); section; section = section->Next) {
    if (section->Chain >= chain) return section;
  }
  return nullptr;
}

RmSection* RmSectionsFindLastUpTo(const RmSectionSet* set, double chain) {
  for (RmSection* section = RmSectionsGetLast(set); section; section = section->Prev) {
    if (section->Chain <= chain) return section;
  }
  return nullptr;
}

int iRmSectionsGetIndex(const RmSectionSet* set, const RmSection* section) {
  int index = 0;
  for (RmSection* walk = RmSectionsGetFirst(set); walk; walk = walk->Next, ++index) {
    if (walk == section) return index;
  }
  return -1;
}

// ---- Whole sets ----

void vRmSectionSetCopy(RmSectionSet* to, const RmSectionSet* from, RmLayerId layerFilter) {
  if (!to || !from || to == from) return;
  vRmSectionSetClear(to);
  for (const RmSection* section = RmSectionsGetFirst(from); section; section = section->Next) {
    RmSection* copy = RmSectionAdd(to, nullptr, section->Chain);
    if (!copy) break;
    vRmSectionCopy(copy, section, layerFilter, true);
  }
  to->Kind = from->Kind;
}

bool boRmSectionSetsEqual(const RmSectionSet* a, const RmSectionSet* b, RmLayerId layerFilter,
                          double tolerance) {
  if (!a || !b) return a == b;
  if (a->Kind != b->Kind || iRmSectionsGetCount(a) != iRmSectionsGetCount(b)) return false;
  const RmSection* p = RmSectionsGetFirst(a);
  const RmSection* q = RmSectionsGetFirst(b);
  for (; p && q; p = p->Next, q = q->Next) {
    if (!boSameLayerAndMassCounts(p, q) || !boRmSectionsEqual(p, q, layerFilter, tolerance)) {
      return false;
    }
  }
  return true;
}

bool boRmSectionSetHasLocked(const RmSectionSet* set) {
  for (RmSection* section = RmSectionsGetFirst(set); section; section = section->Next) {
    if (boRmSectionGetFlag(section, kRmSectionLocked)) return true;
  }
  return false;
}

void vRmSectionSetRemoveLayer(RmSectionSet* set, RmLayerId layerId) {
  for (RmSection* section = RmSectionsGetFirst(set); section; section = section->Next) {
    if (boRmSectionGetFlag(section, kRmSectionLocked)) continue;
    vRmLayerRemove(section, RmLayerFind(section, layerId));
  }
}

void vRmSectionSetRemoveMass(RmSectionSet* set, int massId) {
  for (RmSection* section = RmSectionsGetFirst(set); section; section = section->Next) {
    if (boRmSectionGetFlag(section, kRmSectionLocked)) continue;
    vRmMassRemove(section, RmMassFind(section, massId));
  }
}
