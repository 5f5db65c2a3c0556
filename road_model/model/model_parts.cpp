#include "road_model/model/model_parts.h"

#include <cstddef>
#include <type_traits>

#include "road_model/model/adm_data.h"
#include "road_model/model/hyperlinks.h"
#include "road_model/model/model.h"
#include "road_model/model/model_lines.h"
#include "road_model/names/annotation_types.h"
#include "road_model/names/layer_names.h"
#include "road_model/names/mass_types.h"
#include "road_model/params/nrm_params.h"
#include "road_model/params/road_class_parameters.h"
#include "road_model/params/road_dim_params.h"
#include "road_model/params/sect_params.h"
#include "road_model/params/sect_triangulation_params.h"
#include "road_model/sections/section_set.h"
#include "road_model/bim/bim_attributes.h"
#include "road_model/chain_data/chain_data.h"
#include "road_model/tunnel/ditch_param_data.h"
#include "road_model/tunnel/tunnel_blocks.h"
#include "road_model/tunnel/tunnel_data.h"
#include "road_model/tunnel/tunnel_param_data.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/tables/side_boundaries.h"
#include "road_model/tables/surface_border_lines.h"

namespace {

// How a row of the table differs from a plain one.
enum PartOptions : int {
  kPlain = 0,
  kCreatedAtInit = 1,         // a new model has the object
  kCommitsAfterSettings = 2,  // committed after the pending settings
};

// The operations of one slot of the model, made from the slot's members and
// the create, delete and copy operations of its object type. `Pending` is
// nullptr for a slot without a pending form.
template <auto Committed, auto Pending, auto Create, auto Delete, auto Copy>
struct Slot {
  using Object = std::remove_pointer_t<decltype(Create())>;
  static constexpr bool kHasPending = !std::is_same_v<decltype(Pending), std::nullptr_t>;

  static Object* Duplicate(const Object* source) {
    if (!source) return nullptr;
    Object* copy = Create();
    if (copy) Copy(copy, source);
    return copy;
  }

  static void Replace(Object** slot, Object* object) {
    if (*slot == object) return;
    Delete(slot);
    *slot = object;
  }

  static void Init(RmModel* model) { Replace(&(model->*Committed), Create()); }

  static void Release(RmModel* model) { Delete(&(model->*Committed)); }

  static void DiscardPending(RmModel* model) {
    if constexpr (kHasPending) Delete(&(model->*Pending));
  }

  static void Commit(RmModel* model) {
    if constexpr (kHasPending) {
      Object*& pending = model->*Pending;
      if (!pending) return;
      Replace(&(model->*Committed), pending);
      pending = nullptr;
      vRmModelSetDirty(model, true);
    }
  }

  static Object* Prepare(RmModel* model) {
    if constexpr (kHasPending) {
      Object*& pending = model->*Pending;
      if (!pending) {
        pending = Create();
        if (pending && model->*Committed) Copy(pending, model->*Committed);
      }
      return pending;
    }
    return nullptr;
  }

  static void CopySlots(RmModel* target, const RmModel* source, bool withPending) {
    Replace(&(target->*Committed), Duplicate(source->*Committed));
    if constexpr (kHasPending) {
      if (withPending) Replace(&(target->*Pending), Duplicate(source->*Pending));
    }
  }

  static constexpr RmModelPart Row(int options = kPlain) {
    return RmModelPart{(options & kCreatedAtInit) ? Init : nullptr,
                       Release,
                       kHasPending ? DiscardPending : nullptr,
                       kHasPending ? Commit : nullptr,
                       CopySlots,
                       (options & kCommitsAfterSettings) != 0};
  }
};

using AdmDataSlot =
    Slot<&RmModel::AdmData, nullptr, RmAdmDataCreate, vRmAdmDataDelete, vRmAdmDataCopy>;
using HyperlinksSlot = Slot<&RmModel::Hyperlinks, nullptr, RmHyperlinksCreate,
                            vRmHyperlinksDelete, vRmHyperlinksCopy>;
using SectParamsSlot = Slot<&RmModel::SectParams, &RmModel::SectParamsPending,
                            RmSectParamsCreate, vRmSectParamsDelete, vRmSectParamsCopy>;
using SectTriangulationParamsSlot =
    Slot<&RmModel::SectTriangulationParams, nullptr, RmSectTriangulationParamsCreate,
         vRmSectTriangulationParamsDelete, vRmSectTriangulationParamsCopy>;
// A section set is copied whole, every layer with it.
void vCopyWholeSectionSet(RmSectionSet* to, const RmSectionSet* from) {
  vRmSectionSetCopy(to, from, kRmAllLayers);
}
using CrossSectionsSlot = Slot<&RmModel::CrossSections, &RmModel::CrossSectionsPending,
                               RmSectionSetCreate, vRmSectionSetDelete, vCopyWholeSectionSet>;
using LongSectionsSlot = Slot<&RmModel::LongSections, &RmModel::LongSectionsPending,
                              RmSectionSetCreate, vRmSectionSetDelete, vCopyWholeSectionSet>;
// The vocabulary lists are made with the kind of their slot.
RmMassTypes* CrossMassTypesCreate() { return RmMassTypesCreate(kRmMassTypesCross); }
RmMassTypes* LongMassTypesCreate() { return RmMassTypesCreate(kRmMassTypesLong); }
RmAnnotationTypes* CrossAnnotationTypesCreate() {
  return RmAnnotationTypesCreate(kRmMassTypesCross);
}
RmAnnotationTypes* LongAnnotationTypesCreate() { return RmAnnotationTypesCreate(kRmMassTypesLong); }
using LayerNamesSlot = Slot<&RmModel::LayerNames, &RmModel::LayerNamesPending,
                            RmLayerNamesCreate, vRmLayerNamesDelete, vRmLayerNamesCopy>;
using CSectMassTypesSlot = Slot<&RmModel::CSectMassTypes, &RmModel::CSectMassTypesPending,
                                CrossMassTypesCreate, vRmMassTypesDelete, vRmMassTypesCopy>;
using LSectMassTypesSlot = Slot<&RmModel::LSectMassTypes, &RmModel::LSectMassTypesPending,
                                LongMassTypesCreate, vRmMassTypesDelete, vRmMassTypesCopy>;
using CSectAnnotationTypesSlot =
    Slot<&RmModel::CSectAnnotationTypes, &RmModel::CSectAnnotationTypesPending,
         CrossAnnotationTypesCreate, vRmAnnotationTypesDelete, vRmAnnotationTypesCopy>;
using LSectAnnotationTypesSlot =
    Slot<&RmModel::LSectAnnotationTypes, &RmModel::LSectAnnotationTypesPending,
         LongAnnotationTypesCreate, vRmAnnotationTypesDelete, vRmAnnotationTypesCopy>;
using RoadDimParamsSlot = Slot<&RmModel::RoadDimParams, &RmModel::RoadDimParamsPending,
                               RmRoadDimParamsCreate, vRmRoadDimParamsDelete,
                               vRmRoadDimParamsCopy>;
using NrmParamsSlot = Slot<&RmModel::NrmParams, &RmModel::NrmParamsPending, pNrmParamsCreate,
                           vNrmParamsDelete, vNrmParamsCopy>;
using RoadClassParametersSlot =
    Slot<&RmModel::RoadClassParameters, nullptr, RmRoadClassParametersCreate,
         vRmRoadClassParametersDelete, vRmRoadClassParametersCopy>;
using SideBoundariesSlot = Slot<&RmModel::SideBoundaries, &RmModel::SideBoundariesPending,
                                RmSideBoundariesCreate, vRmSideBoundariesDelete,
                                vRmSideBoundariesCopy>;
using SurfaceBorderLinesSlot =
    Slot<&RmModel::SurfaceBorderLines, &RmModel::SurfaceBorderLinesPending,
         RmSurfaceBorderLinesCreate, vRmSurfaceBorderLinesDelete, vRmSurfaceBorderLinesCopy>;
using SurfGenSlot = Slot<&RmModel::SurfGen, &RmModel::SurfGenPending, RmSurfGenCreate,
                        vRmSurfGenDelete, vRmSurfGenCopy>;
// Committing the whole tables object clears its changed mark; then the
// pending tables inside it are committed, which marks it again.
void vCommitSurfGenWithTables(RmModel* model) {
  vRmModelCommitSurfGen(model);
  vRmSurfGenCommitTables(model->SurfGen);
}

using ChainDataSlot = Slot<&RmModel::ChainData, &RmModel::ChainDataPending, RmChainDataCreate,
                           vRmChainDataDelete, vRmChainDataCopy>;
using TunnelDataSlot = Slot<&RmModel::TunnelData, &RmModel::TunnelDataPending,
                            RmTunnelDataCreate, vRmTunnelDataDelete, vRmTunnelDataCopy>;
using TunnelParamDataSlot =
    Slot<&RmModel::TunnelParamData, &RmModel::TunnelParamDataPending, RmTunnelParamDataCreate,
         vRmTunnelParamDataDelete, vRmTunnelParamDataCopy>;
using TunnelBlocksSlot = Slot<&RmModel::TunnelBlocks, nullptr, RmTunnelBlocksCreate,
                              vRmTunnelBlocksDelete, vRmTunnelBlocksCopy>;
using DitchParamDataSlot = Slot<&RmModel::DitchParamData, nullptr, RmDitchParamDataCreate,
                                vRmDitchParamDataDelete, vRmDitchParamDataCopy>;
// The BIM store is never copied; the slot's copy operation is not used.
void vNoBimCopy(RmBimAttributes*, const RmBimAttributes*) {}
using BimAttributesSlot = Slot<&RmModel::BimAttributes, nullptr, RmBimAttributesCreate,
                               vRmBimAttributesDelete, vNoBimCopy>;
void vCopyNoBimAttributes(RmModel*, const RmModel*, bool) {}

// One row per sub-object type, in release order. The model's full order is
// AdmData, Hyperlinks, LayerNames, CSectMassTypes, LSectMassTypes,
// CSectAnnotationTypes, LSectAnnotationTypes (both committed after the
// settings), Lines, SectParams, SectTriangulationParams, CrossSections,
// LongSections, RoadDimParams, NrmParams, ChainData, SideBoundaries,
// SurfaceBorderLines, TunnelData, TunnelParamData, SurfGen,
// RoadClassParameters, TunnelBlocks (made by init), DitchParamData; each
// type takes its place here when it exists.
constexpr RmModelPart kParts[] = {
    AdmDataSlot::Row(),
    HyperlinksSlot::Row(),
    LayerNamesSlot::Row(),
    CSectMassTypesSlot::Row(),
    LSectMassTypesSlot::Row(),
    CSectAnnotationTypesSlot::Row(kCommitsAfterSettings),
    LSectAnnotationTypesSlot::Row(kCommitsAfterSettings),
    // Plan lines point back at the model that holds them, so their slot has
    // operations of its own (road_model/model_lines.h).
    RmModelPart{nullptr, vRmModelReleaseLines, vRmModelDiscardLines, vRmModelCommitLines,
                vRmModelCopyLines, false},
    SectParamsSlot::Row(kCreatedAtInit),
    SectTriangulationParamsSlot::Row(),
    CrossSectionsSlot::Row(),
    LongSectionsSlot::Row(),
    RoadDimParamsSlot::Row(),
    NrmParamsSlot::Row(),
    ChainDataSlot::Row(),
    SideBoundariesSlot::Row(),
    SurfaceBorderLinesSlot::Row(),
    TunnelDataSlot::Row(),
    TunnelParamDataSlot::Row(),
    RmModelPart{nullptr, SurfGenSlot::Release, SurfGenSlot::DiscardPending,
                vCommitSurfGenWithTables, SurfGenSlot::CopySlots, false},
    RoadClassParametersSlot::Row(),
    TunnelBlocksSlot::Row(kCreatedAtInit),
    DitchParamDataSlot::Row(),
    // Not copied with the model: see RmModelGetBimAttributes.
    RmModelPart{nullptr, BimAttributesSlot::Release, nullptr, nullptr, vCopyNoBimAttributes,
                false},
};

}  // namespace

std::span<const RmModelPart> RmModelParts() { return kParts; }

// ---- Typed access to the slots ----

// The typed accessors of a slot without a pending form.
#define KVRVIPS_SINGLE_SLOT(Name, Type, SlotType)       \
  Type* RmModelGet##Name(const RmModel* model) {        \
    return model ? model->Name : nullptr;               \
  }                                                     \
  void vRmModelSet##Name(RmModel* model, Type* object) { \
    if (model) SlotType::Replace(&model->Name, object); \
  }

// The pending object of a slot, and the one that counts: the pending one
// while there is one, else the committed one.
#define KVRVIPS_PENDING_GETTERS(Name, Type)                           \
  Type* RmModelGet##Name##Pending(const RmModel* model) {             \
    return model ? model->Name##Pending : nullptr;                    \
  }                                                                   \
  Type* RmModelGet##Name##Effective(const RmModel* model) {           \
    if (!model) return nullptr;                                       \
    return model->Name##Pending ? model->Name##Pending : model->Name; \
  }

// The typed accessors of a slot with a pending form but its commit.
#define KVRVIPS_PENDING_SLOT_BUT_COMMIT(Name, Type, SlotType)                 \
  KVRVIPS_SINGLE_SLOT(Name, Type, SlotType)                                   \
  KVRVIPS_PENDING_GETTERS(Name, Type)                                         \
  Type* RmModelPrepare##Name(RmModel* model) {                                \
    return model ? SlotType::Prepare(model) : nullptr;                        \
  }                                                                           \
  void vRmModelDiscard##Name(RmModel* model) {                                \
    if (model) SlotType::DiscardPending(model);                               \
  }

// The typed accessors of a slot with a pending form.
#define KVRVIPS_PENDING_SLOT(Name, Type, SlotType)          \
  KVRVIPS_PENDING_SLOT_BUT_COMMIT(Name, Type, SlotType)     \
  void vRmModelCommit##Name(RmModel* model) {               \
    if (model) SlotType::Commit(model);                     \
  }

KVRVIPS_SINGLE_SLOT(AdmData, RmAdmData, AdmDataSlot)
KVRVIPS_SINGLE_SLOT(Hyperlinks, RmHyperlinks, HyperlinksSlot)
KVRVIPS_SINGLE_SLOT(SectTriangulationParams, RmSectTriangulationParams,
                    SectTriangulationParamsSlot)
KVRVIPS_PENDING_SLOT(SectParams, RmSectParams, SectParamsSlot)
KVRVIPS_PENDING_SLOT(RoadDimParams, RmRoadDimParams, RoadDimParamsSlot)
KVRVIPS_PENDING_SLOT(NrmParams, RmNrmParams, NrmParamsSlot)
KVRVIPS_SINGLE_SLOT(RoadClassParameters, RmRoadClassParameters, RoadClassParametersSlot)
KVRVIPS_PENDING_SLOT(SideBoundaries, RmSideBoundaries, SideBoundariesSlot)
KVRVIPS_PENDING_SLOT(SurfaceBorderLines, RmSurfaceBorderLines, SurfaceBorderLinesSlot)
KVRVIPS_PENDING_SLOT(ChainData, RmChainData, ChainDataSlot)
KVRVIPS_PENDING_SLOT(TunnelData, RmTunnelData, TunnelDataSlot)
KVRVIPS_PENDING_SLOT(TunnelParamData, RmTunnelParamData, TunnelParamDataSlot)
KVRVIPS_SINGLE_SLOT(TunnelBlocks, RmTunnelBlocks, TunnelBlocksSlot)
KVRVIPS_SINGLE_SLOT(DitchParamData, RmDitchParamData, DitchParamDataSlot)
KVRVIPS_SINGLE_SLOT(BimAttributes, RmBimAttributes, BimAttributesSlot)

// The surface tables object: committing it also clears its changed mark.
KVRVIPS_PENDING_SLOT_BUT_COMMIT(SurfGen, RmSurfGen, SurfGenSlot)

void vRmModelCommitSurfGen(RmModel* model) {
  if (!model || !model->SurfGenPending) return;
  SurfGenSlot::Commit(model);
  vRmSurfGenClearChanged(model->SurfGen);
}

#undef KVRVIPS_PENDING_SLOT
#undef KVRVIPS_PENDING_SLOT_BUT_COMMIT
#undef KVRVIPS_SINGLE_SLOT

// ---- The section sets and the vocabulary ----

namespace {

template <typename List>
void vStampListKind(List* list, int32_t kind) {
  if (list) list->Kind = kind;
}
// Layer names have no kind.
void vStampListKind(RmLayerNames*, int32_t) {}

}  // namespace

// The typed accessors of a slot with a pending form whose lists carry the
// slot's kind: Set and Prepare stamp `kind` into a list that has a kind.
#define KVRVIPS_KIND_SLOT(Name, Type, SlotType, kind)                                    \
  Type* RmModelGet##Name(const RmModel* model) { return model ? model->Name : nullptr; } \
  void vRmModelSet##Name(RmModel* model, Type* object) {                                 \
    if (!model) return;                                                                  \
    vStampListKind(object, kind);                                                        \
    SlotType::Replace(&model->Name, object);                                             \
  }                                                                                      \
  KVRVIPS_PENDING_GETTERS(Name, Type)                                                    \
  Type* RmModelPrepare##Name(RmModel* model) {                                           \
    if (!model) return nullptr;                                                          \
    Type* pending = SlotType::Prepare(model);                                            \
    vStampListKind(pending, kind);                                                       \
    return pending;                                                                      \
  }                                                                                      \
  void vRmModelCommit##Name(RmModel* model) {                                            \
    if (model) SlotType::Commit(model);                                                  \
  }                                                                                      \
  void vRmModelDiscard##Name(RmModel* model) {                                           \
    if (model) SlotType::DiscardPending(model);                                          \
  }

KVRVIPS_KIND_SLOT(CrossSections, RmSectionSet, CrossSectionsSlot, kRmCrossSections)
KVRVIPS_KIND_SLOT(LongSections, RmSectionSet, LongSectionsSlot, kRmLongSections)

RmSectionSet* RmModelGetOrCreateCrossSections(RmModel* model) {
  if (model && !model->CrossSections) vRmModelSetCrossSections(model, RmSectionSetCreate());
  return RmModelGetCrossSections(model);
}

RmSectionSet* RmModelGetOrCreateLongSections(RmModel* model) {
  if (model && !model->LongSections) vRmModelSetLongSections(model, RmSectionSetCreate());
  return RmModelGetLongSections(model);
}

RmSectionSet* RmModelGetSectionSet(const RmModel* model, int kind) {
  return kind == kRmLongSections ? RmModelGetLongSections(model) : RmModelGetCrossSections(model);
}

void vRmModelSetSectionSet(RmModel* model, int kind, RmSectionSet* set) {
  if (kind == kRmLongSections) {
    vRmModelSetLongSections(model, set);
  } else {
    vRmModelSetCrossSections(model, set);
  }
}

KVRVIPS_KIND_SLOT(LayerNames, RmLayerNames, LayerNamesSlot, -1)
KVRVIPS_KIND_SLOT(CSectMassTypes, RmMassTypes, CSectMassTypesSlot, kRmMassTypesCross)
KVRVIPS_KIND_SLOT(LSectMassTypes, RmMassTypes, LSectMassTypesSlot, kRmMassTypesLong)
KVRVIPS_KIND_SLOT(CSectAnnotationTypes, RmAnnotationTypes, CSectAnnotationTypesSlot,
                  kRmMassTypesCross)
KVRVIPS_KIND_SLOT(LSectAnnotationTypes, RmAnnotationTypes, LSectAnnotationTypesSlot,
                  kRmMassTypesLong)

#undef KVRVIPS_KIND_SLOT
#undef KVRVIPS_PENDING_GETTERS

RmLayerNames* RmModelGetOrCreateLayerNames(RmModel* model) {
  if (model && !model->LayerNames) vRmModelSetLayerNames(model, RmLayerNamesCreate());
  return RmModelGetLayerNames(model);
}
