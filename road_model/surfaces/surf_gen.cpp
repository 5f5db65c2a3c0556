#include "road_model/surfaces/surf_gen.h"

#include <cstdlib>

#include "road_model/surfaces/surface_groups.h"
#include "road_model/tables/chain_range_members.h"
#include "road_model/tables/chain_range_table.h"
#include "road_model/tables/closed_ditches.h"
#include "road_model/tables/erosion_protections.h"
#include "road_model/tables/landscapings.h"
#include "road_model/tables/pavement.h"
#include "road_model/tables/special_gradings.h"
#include "road_model/tables/string_lines.h"
#include "road_model/tables/vips_special_gradings.h"

namespace {

// The life cycle of the table type of one slot, with the type erased so
// that the object treats every slot alike.
struct TableType {
  void* (*Create)();
  void (*Delete)(void** table);
  void (*Copy)(void* to, const void* from);
  bool (*HasRows)(const void* table);
  bool HasPending;
};

template <typename Table, Table* (*Create)(), void (*Delete)(Table**),
          void (*Copy)(Table*, const Table*), bool (*HasRows)(const Table*)>
constexpr TableType TypeOf(bool hasPending = true) {
  return TableType{
      []() -> void* { return Create(); },
      [](void** table) {
        auto* typed = static_cast<Table*>(*table);
        Delete(&typed);
        *table = nullptr;
      },
      [](void* to, const void* from) {
        Copy(static_cast<Table*>(to), static_cast<const Table*>(from));
      },
      [](const void* table) { return HasRows(static_cast<const Table*>(table)); },
      hasPending};
}

// A chain range table is made with the kind of its member.
template <const RmChainRangeKind* Kind>
RmChainRangeTable* ChainRangeCreate() {
  return RmChainRangeTableCreate(Kind);
}
template <const RmChainRangeKind* Kind>
constexpr TableType ChainRangeType() {
  return TypeOf<RmChainRangeTable, ChainRangeCreate<Kind>, vRmChainRangeTableDelete,
                vRmChainRangeTableCopy, boRmChainRangeTableHasRows>();
}

// One row per slot, in slot order.
constexpr TableType kTypes[kRmSurfGenSlotCount] = {
    TypeOf<RmSurfaceGroups, RmSurfaceGroupsCreate, vRmSurfaceGroupsDelete,
           vRmSurfaceGroupsCopy, boRmSurfaceGroupsHasRows>(),
    ChainRangeType<&kRmRockBenches>(),
    ChainRangeType<&kRmMinDitchDepths>(),
    TypeOf<RmLandscapings, RmLandscapingsCreate, vRmLandscapingsDelete, vRmLandscapingsCopy,
           boRmLandscapingsHasRows>(),
    TypeOf<RmPavement, RmPavementCreate, vRmPavementDelete, vRmPavementCopy,
           boRmPavementHasRows>(),
    ChainRangeType<&kRmStoneExcavationSlopes>(),
    ChainRangeType<&kRmDeepRockBlasts>(),
    ChainRangeType<&kRmFillDitches>(),
    ChainRangeType<&kRmRemovalTopsoils>(),
    ChainRangeType<&kRmUnsuitableSoils>(),
    ChainRangeType<&kRmSoilCutPlasters>(),
    TypeOf<RmErosionProtections, RmErosionProtectionsCreate, vRmErosionProtectionsDelete,
           vRmErosionProtectionsCopy, boRmErosionProtectionsHasRows>(false),
    TypeOf<RmSpecialGradings, RmSpecialGradingsCreate, vRmSpecialGradingsDelete,
           vRmSpecialGradingsCopy, boRmSpecialGradingsHasRows>(),
    TypeOf<RmVipsSpecialGradings, RmVipsSpecialGradingsCreate, vRmVipsSpecialGradingsDelete,
           vRmVipsSpecialGradingsCopy, boRmVipsSpecialGradingsHasRows>(),
    TypeOf<RmClosedDitches, RmClosedDitchesCreate, vRmClosedDitchesDelete,
           vRmClosedDitchesCopy, boRmClosedDitchesHasRows>(),
    TypeOf<RmStringLines, RmStringLinesCreate, vRmStringLinesDelete, vRmStringLinesCopy,
           boRmStringLinesHasRows>(),
};

bool boSlotValid(RmSurfGenSlot slot) {
  return slot >= 0 && slot < kRmSurfGenSlotCount && kTypes[slot].Create;
}

void vDeleteTable(void** table, RmSurfGenSlot slot) {
  if (*table) kTypes[slot].Delete(table);
}

void* pDuplicate(const void* from, RmSurfGenSlot slot) {
  if (!from) return nullptr;
  void* table = kTypes[slot].Create();
  if (table) kTypes[slot].Copy(table, from);
  return table;
}

void vReplace(void** place, void* table, RmSurfGenSlot slot) {
  if (*place == table) return;
  vDeleteTable(place, slot);
  *place = table;
}

}  // namespace

RmSurfGen* RmSurfGenCreate() { return static_cast<RmSurfGen*>(std::calloc(1, sizeof(RmSurfGen))); }

void vRmSurfGenDelete(RmSurfGen** gen) {
  if (!gen || !*gen) return;
  for (int i = 0; i < kRmSurfGenSlotCount; ++i) {
    if (!boSlotValid(RmSurfGenSlot(i))) continue;
    vDeleteTable(&(*gen)->Tables[i], RmSurfGenSlot(i));
    vDeleteTable(&(*gen)->Pending[i], RmSurfGenSlot(i));
  }
  std::free(*gen);
  *gen = nullptr;
}

void vRmSurfGenCopy(RmSurfGen* to, const RmSurfGen* from) {
  if (!to || !from || to == from) return;
  for (int i = 0; i < kRmSurfGenSlotCount; ++i) {
    const auto slot = RmSurfGenSlot(i);
    if (!boSlotValid(slot)) continue;
    vReplace(&to->Tables[i], pDuplicate(from->Tables[i], slot), slot);
    vReplace(&to->Pending[i], pDuplicate(from->Pending[i], slot), slot);
  }
  to->SuperstructureMode = from->SuperstructureMode;
  to->TunnelMode = from->TunnelMode;
  to->BuildSettings = from->BuildSettings;
  to->Changed = from->Changed;
}

bool boRmSurfGenHasData(const RmSurfGen* gen) {
  if (!gen) return false;
  for (int i = 0; i < kRmSurfGenSlotCount; ++i) {
    if (gen->Tables[i] && kTypes[i].HasRows(gen->Tables[i])) return true;
  }
  return false;
}

bool boRmSurfGenGetBuildFlag(const RmSurfGen* gen, uint32_t mask) {
  return gen && (gen->BuildSettings & mask) != 0;
}

void vRmSurfGenSetBuildFlag(RmSurfGen* gen, uint32_t mask, bool on) {
  if (!gen) return;
  gen->BuildSettings = on ? gen->BuildSettings | mask : gen->BuildSettings & ~mask;
}

bool boRmSurfGenIsChanged(const RmSurfGen* gen) { return gen && gen->Changed != 0; }

void vRmSurfGenClearChanged(RmSurfGen* gen) {
  if (gen) gen->Changed = 0;
}

void* pRmSurfGenGetTable(const RmSurfGen* gen, RmSurfGenSlot slot) {
  return gen && boSlotValid(slot) ? gen->Tables[slot] : nullptr;
}

void vRmSurfGenSetTable(RmSurfGen* gen, RmSurfGenSlot slot, void* table) {
  if (gen && boSlotValid(slot)) vReplace(&gen->Tables[slot], table, slot);
}

void* pRmSurfGenGetPending(const RmSurfGen* gen, RmSurfGenSlot slot) {
  return gen && boSlotValid(slot) ? gen->Pending[slot] : nullptr;
}

void* pRmSurfGenGetEffective(const RmSurfGen* gen, RmSurfGenSlot slot) {
  void* pending = pRmSurfGenGetPending(gen, slot);
  return pending ? pending : pRmSurfGenGetTable(gen, slot);
}

void* pRmSurfGenPrepare(RmSurfGen* gen, RmSurfGenSlot slot) {
  if (!gen || !boSlotValid(slot) || !kTypes[slot].HasPending) return nullptr;
  void*& pending = gen->Pending[slot];
  if (!pending) {
    pending = gen->Tables[slot] ? pDuplicate(gen->Tables[slot], slot) : kTypes[slot].Create();
  }
  return pending;
}

void vRmSurfGenCommit(RmSurfGen* gen, RmSurfGenSlot slot) {
  if (!gen || !boSlotValid(slot) || !gen->Pending[slot]) return;
  vReplace(&gen->Tables[slot], gen->Pending[slot], slot);
  gen->Pending[slot] = nullptr;
  gen->Changed = 1;
}

void vRmSurfGenDiscard(RmSurfGen* gen, RmSurfGenSlot slot) {
  if (gen && boSlotValid(slot)) vDeleteTable(&gen->Pending[slot], slot);
}

void vRmSurfGenCommitTables(RmSurfGen* gen) {
  for (int i = 0; i < kRmSurfGenSlotCount; ++i) vRmSurfGenCommit(gen, RmSurfGenSlot(i));
}
