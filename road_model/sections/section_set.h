// A set of sections in chainage order: the cross sections of a model (kind
// 0, CROSSECTIONS) or its long sections (kind 1, LONGSECTIONS).
//
// The set owns two pools. Sections, their layers and the layers' points
// come from the section pool, masses from the mass pool, and the whole set
// is released by emptying both; removing a single node only counts it as
// garbage of its pool. Sections stand in ascending chainage: RmSectionAdd
// does not sort, its callers append in order.
#pragma once

#include <cstdint>

#include "base/dlink.h"
#include "base/pool.h"
#include "road_model/sections/section.h"

struct RmModel;

struct RmSectionSet {
  Pool SectionPool;   // sections, layers and points
  Pool MassPool;      // masses
  ListHead Sections;  // of RmSection
  int32_t Kind;       // kRmCrossSections or kRmLongSections
};

inline constexpr int32_t kRmCrossSections = 0;
inline constexpr int32_t kRmLongSections = 1;

inline constexpr uint64_t kRmSectionPoolChunk = 16384;
inline constexpr uint64_t kRmMassPoolChunk = 4096;

// The layer filter that lets every layer through.
inline constexpr RmLayerId kRmAllLayers = {0xFFFFFFFFu, -1};

// ---- Life cycle ----

// An empty set of kind 0; null when memory ran out.
RmSectionSet* RmSectionSetCreate();
// Clears the set, releases both pools, frees it and nulls the pointer.
// Null is accepted.
void vRmSectionSetDelete(RmSectionSet** set);
// Removes every section and empties both pools.
void vRmSectionSetClear(RmSectionSet* set);
// The bytes of removed nodes that the pools hold; a caller may compact the
// set by copying it.
uint64_t lRmSectionSetGetGarbage(const RmSectionSet* set);

// ---- Sections ----

// A new section at `chain` in front of `before` (null: at the end), its
// other fields 0. Null when memory ran out.
RmSection* RmSectionAdd(RmSectionSet* set, RmSection* before, double chain);
// Clears the section's layers and masses and removes it.
void vRmSectionRemove(RmSectionSet* set, RmSection* section);

// Iteration; null at either end.
RmSection* RmSectionsGetFirst(const RmSectionSet* set);
RmSection* RmSectionsGetLast(const RmSectionSet* set);
RmSection* RmSectionsGetNext(const RmSection* section);
RmSection* RmSectionsGetPrev(const RmSection* section);
int iRmSectionsGetCount(const RmSectionSet* set);

// ---- Lookups ----

// Walking from `first`: the first section within 0.0005 of `chain`
// (strict), else null.
RmSection* RmSectionsFindAtChain(const RmSection* first, double chain);
RmSection* RmSectionsFindAtChainInSet(const RmSectionSet* set, double chain);
// Walking from `first` while the distance to `chain` shrinks: the nearest
// section, if it lies closer than `maxDist` (strict), else null.
RmSection* RmSectionsFindNearest(const RmSection* first, double chain, double maxDist);
// The first section at or beyond `chain`, and the last one at or before it.
RmSection* RmSectionsFindFirstFrom(const RmSectionSet* set, double chain);
RmSection* RmSectionsFindLastUpTo(const RmSectionSet* set, double chain);
// Zero-based position, -1 when the section is not in the set.
int iRmSectionsGetIndex(const RmSectionSet* set, const RmSection* section);

// ---- Whole sets ----

// Clears `to` and fills it with copies of the sections of `from`, masses
// included and layers by `layerFilter`; the kind is copied.
void vRmSectionSetCopy(RmSectionSet* to, const RmSectionSet* from, RmLayerId layerFilter);
// Same kind, same count, and section by section the same layer and mass
// counts and boRmSectionsEqual.
bool boRmSectionSetsEqual(const RmSectionSet* a, const RmSectionSet* b, RmLayerId layerFilter,
                          double tolerance);
// Whether any section is locked; false for a null set.
bool boRmSectionSetHasLocked(const RmSectionSet* set);
// Removes the layer, or the mass, from every section that is not locked.
void vRmSectionSetRemoveLayer(RmSectionSet* set, RmLayerId layerId);
void vRmSectionSetRemoveMass(RmSectionSet* set, int massId);
