// The surface tables object: how the road's surfaces are built along the
// chainage. It holds the surface groups (SURFGEN) and one table per section of
// the model file that describes the road by chainage (rock benches, minimum
// ditch depths, landscapings, pavement, ...), each in a slot.
//
// Most slots come in two forms, as the model's own sub-objects do: the
// committed table and a pending copy that an edit works on and then commits
// or throws away. The erosion protections have the committed form only.
// Committing one table marks the object changed; committing the whole
// object into the model, or saving it, clears that mark.
#pragma once

#include <cstdint>

struct RmChainRangeTable;
struct RmClosedDitches;
struct RmErosionProtections;
struct RmLandscapings;
struct RmPavement;
struct RmSpecialGradings;
struct RmStringLines;
struct RmSurfaceGroups;
struct RmVipsSpecialGradings;

// The slots, in the order in which the tables are committed, copied and
// deleted.
enum RmSurfGenSlot : int {
  kRmSurfaceGroupsSlot,          // SURFGEN
  kRmRockBenchesSlot,            // ROCKBENCHS
  kRmMinDitchDepthsSlot,         // MINDITCHDEPTHS
  kRmLandscapingsSlot,           // LANDSCAPINGS
  kRmPavementSlot,               // PAVEMENT
  kRmStoneExcavationSlopesSlot,  // STONEEXCAVATIONSLOPES
  kRmDeepRockBlastsSlot,         // DEEPROCKBLASTS
  kRmFillDitchesSlot,            // FILLDITCHES
  kRmRemovalTopsoilsSlot,        // REMOVALTOPSOILS
  kRmUnsuitableSoilsSlot,        // UNSUITABLESOILS
  kRmSoilCutPlastersSlot,        // SOILCUTPLASTERS
  kRmErosionProtectionsSlot,     // EROSIONPROTECTIONS, committed form only
  kRmSpecialGradingsSlot,        // SPECIALGRADINGS
  kRmVipsSpecialGradingsSlot,    // VIPSSPECIALGRADINGS
  kRmClosedDitchesSlot,          // CLOSEDDITCHES
  kRmStringLinesSlot,            // STRINGLINESLAYERS
  kRmSurfGenSlotCount
};

struct RmSurfGen {
  void* Tables[kRmSurfGenSlotCount];   // committed tables, owned; null when absent
  void* Pending[kRmSurfGenSlotCount];  // pending copies, owned; null when none
  int32_t SuperstructureMode;          // SUPERSTRUCTUREMODE (kept in MASSCALC)
  int32_t TunnelMode;                  // TUNNELMODE (kept in MASSCALC)
  uint32_t BuildSettings;              // SURFGEN_BUILDSETTINGS, a set of bits
  int32_t Changed;                     // an inner table was committed
};

// An empty object: no tables, every setting 0.
RmSurfGen* RmSurfGenCreate();
// Deletes every table of both forms and the object; nulls the pointer.
void vRmSurfGenDelete(RmSurfGen** gen);
// Replaces every table and setting of `to` by copies of those of `from`.
void vRmSurfGenCopy(RmSurfGen* to, const RmSurfGen* from);
// Whether some table holds a row, or the surface description a group.
bool boRmSurfGenHasData(const RmSurfGen* gen);

bool boRmSurfGenGetBuildFlag(const RmSurfGen* gen, uint32_t mask);
void vRmSurfGenSetBuildFlag(RmSurfGen* gen, uint32_t mask, bool on);
bool boRmSurfGenIsChanged(const RmSurfGen* gen);
void vRmSurfGenClearChanged(RmSurfGen* gen);

// ---- The slots ----
//
// Get gives the committed table; Set stores one, taking ownership and
// deleting the table it replaces. GetPending gives the pending copy or null,
// GetEffective the pending copy if there is one, else the committed table.
// Prepare makes a pending copy if there is none (a deep copy of the
// committed table, or an empty table) and returns it. Commit moves a pending
// copy into the committed slot and marks the object changed; with nothing
// pending it does nothing. Discard deletes the pending copy. The pending
// operations do nothing on a slot of the committed form only.

void* pRmSurfGenGetTable(const RmSurfGen* gen, RmSurfGenSlot slot);
void vRmSurfGenSetTable(RmSurfGen* gen, RmSurfGenSlot slot, void* table);
void* pRmSurfGenGetPending(const RmSurfGen* gen, RmSurfGenSlot slot);
void* pRmSurfGenGetEffective(const RmSurfGen* gen, RmSurfGenSlot slot);
void* pRmSurfGenPrepare(RmSurfGen* gen, RmSurfGenSlot slot);
void vRmSurfGenCommit(RmSurfGen* gen, RmSurfGenSlot slot);
void vRmSurfGenDiscard(RmSurfGen* gen, RmSurfGenSlot slot);
// Commits the pending copy of every slot, in slot order.
void vRmSurfGenCommitTables(RmSurfGen* gen);

// The table type of each slot, for the typed forms below.
template <RmSurfGenSlot S>
struct RmSurfGenSlotTable {
  using Type = RmChainRangeTable;  // the chain range family, unless named below
};
template <>
struct RmSurfGenSlotTable<kRmSurfaceGroupsSlot> {
  using Type = RmSurfaceGroups;
};
template <>
struct RmSurfGenSlotTable<kRmLandscapingsSlot> {
  using Type = RmLandscapings;
};
template <>
struct RmSurfGenSlotTable<kRmPavementSlot> {
  using Type = RmPavement;
};
template <>
struct RmSurfGenSlotTable<kRmErosionProtectionsSlot> {
  using Type = RmErosionProtections;
};
template <>
struct RmSurfGenSlotTable<kRmSpecialGradingsSlot> {
  using Type = RmSpecialGradings;
};
template <>
struct RmSurfGenSlotTable<kRmVipsSpecialGradingsSlot> {
  using Type = RmVipsSpecialGradings;
};
template <>
struct RmSurfGenSlotTable<kRmClosedDitchesSlot> {
  using Type = RmClosedDitches;
};
template <>
struct RmSurfGenSlotTable<kRmStringLinesSlot> {
  using Type = RmStringLines;
};
template <RmSurfGenSlot S>
using RmSurfGenTable = typename RmSurfGenSlotTable<S>::Type;

template <RmSurfGenSlot S>
RmSurfGenTable<S>* RmSurfGenGet(const RmSurfGen* gen) {
  return static_cast<RmSurfGenTable<S>*>(pRmSurfGenGetTable(gen, S));
}
template <RmSurfGenSlot S>
void vRmSurfGenSet(RmSurfGen* gen, RmSurfGenTable<S>* table) {
  vRmSurfGenSetTable(gen, S, table);
}
template <RmSurfGenSlot S>
RmSurfGenTable<S>* RmSurfGenGetEffective(const RmSurfGen* gen) {
  return static_cast<RmSurfGenTable<S>*>(pRmSurfGenGetEffective(gen, S));
}
template <RmSurfGenSlot S>
RmSurfGenTable<S>* RmSurfGenPrepare(RmSurfGen* gen) {
  return static_cast<RmSurfGenTable<S>*>(pRmSurfGenPrepare(gen, S));
}
