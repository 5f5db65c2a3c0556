// The sub-objects of the model: typed access to their slots, and the same
// slots as rows of one table, so that the life cycle of the model (init,
// release, copy, commit, discard) treats them all alike. A sub-object type
// joins the model by adding its row in model_parts.cpp.
#pragma once

#include <span>

struct RmAdmData;
struct RmAnnotationTypes;
struct RmHyperlinks;
struct RmLayerNames;
struct RmMassTypes;
struct RmModel;
struct RmNrmParams;
struct RmRoadClassParameters;
struct RmRoadDimParams;
struct RmSectParams;
struct RmSectTriangulationParams;
struct RmSectionSet;
struct RmSurfGen;
struct RmSideBoundaries;
struct RmSurfaceBorderLines;

struct RmBimAttributes;
struct RmChainData;
struct RmDitchParamData;
struct RmTunnelBlocks;
struct RmTunnelData;
struct RmTunnelParamData;

struct RmModelPart {
  // Creates the object that a new model has; null when a new model has none.
  void (*Init)(RmModel* model);
  // Deletes the committed object.
  void (*Release)(RmModel* model);
  // Deletes the pending object; null when the slot has no pending form.
  void (*DiscardPending)(RmModel* model);
  // Moves a pending object into the committed slot; null as above.
  void (*Commit)(RmModel* model);
  // Replaces the target's objects by deep copies of the source's, the
  // pending one only with `withPending`.
  void (*Copy)(RmModel* target, const RmModel* source, bool withPending);
  // Committed after the pending settings, not with the other objects.
  bool CommitsAfterSettings;
};

// The rows in the order in which a model releases its sub-objects; pending
// objects are discarded and committed in the same order.
std::span<const RmModelPart> RmModelParts();

// ---- Sub-objects ----
//
// Get gives the committed object, GetPending the pending one or null,
// GetEffective the pending one if there is one, else the committed one. A
// setter takes ownership and deletes the object it replaces. Prepare makes a
// pending object if there is none, as a deep copy of the committed one when
// that exists, and returns it. Commit replaces the committed object by a
// pending one and marks the model dirty; with nothing pending it does
// nothing. Discard deletes the pending object.

RmAdmData* RmModelGetAdmData(const RmModel* model);
void vRmModelSetAdmData(RmModel* model, RmAdmData* data);

RmHyperlinks* RmModelGetHyperlinks(const RmModel* model);
void vRmModelSetHyperlinks(RmModel* model, RmHyperlinks* links);

RmSectTriangulationParams* RmModelGetSectTriangulationParams(const RmModel* model);
void vRmModelSetSectTriangulationParams(RmModel* model, RmSectTriangulationParams* params);

RmSectParams* RmModelGetSectParams(const RmModel* model);
void vRmModelSetSectParams(RmModel* model, RmSectParams* params);
RmSectParams* RmModelGetSectParamsPending(const RmModel* model);
RmSectParams* RmModelGetSectParamsEffective(const RmModel* model);
RmSectParams* RmModelPrepareSectParams(RmModel* model);
void vRmModelCommitSectParams(RmModel* model);
void vRmModelDiscardSectParams(RmModel* model);

RmRoadDimParams* RmModelGetRoadDimParams(const RmModel* model);
void vRmModelSetRoadDimParams(RmModel* model, RmRoadDimParams* params);
RmRoadDimParams* RmModelGetRoadDimParamsPending(const RmModel* model);
RmRoadDimParams* RmModelGetRoadDimParamsEffective(const RmModel* model);
RmRoadDimParams* RmModelPrepareRoadDimParams(RmModel* model);
void vRmModelCommitRoadDimParams(RmModel* model);
void vRmModelDiscardRoadDimParams(RmModel* model);

// The parameters along the road (NRMPARAMS) and the road class
// (ROADCLASSPARAMETERS), which has no pending form.

RmNrmParams* RmModelGetNrmParams(const RmModel* model);
void vRmModelSetNrmParams(RmModel* model, RmNrmParams* params);
RmNrmParams* RmModelGetNrmParamsPending(const RmModel* model);
RmNrmParams* RmModelGetNrmParamsEffective(const RmModel* model);
RmNrmParams* RmModelPrepareNrmParams(RmModel* model);
void vRmModelCommitNrmParams(RmModel* model);
void vRmModelDiscardNrmParams(RmModel* model);

RmRoadClassParameters* RmModelGetRoadClassParameters(const RmModel* model);
void vRmModelSetRoadClassParameters(RmModel* model, RmRoadClassParameters* params);

// The side boundaries (SIDEBOUNDARIES) and the surface border lines
// (SURFACEBORDERLINES) of the model; a surface group has border lines of its
// own besides.

RmSideBoundaries* RmModelGetSideBoundaries(const RmModel* model);
void vRmModelSetSideBoundaries(RmModel* model, RmSideBoundaries* boundaries);
RmSideBoundaries* RmModelGetSideBoundariesPending(const RmModel* model);
RmSideBoundaries* RmModelGetSideBoundariesEffective(const RmModel* model);
RmSideBoundaries* RmModelPrepareSideBoundaries(RmModel* model);
void vRmModelCommitSideBoundaries(RmModel* model);
void vRmModelDiscardSideBoundaries(RmModel* model);

RmSurfaceBorderLines* RmModelGetSurfaceBorderLines(const RmModel* model);
void vRmModelSetSurfaceBorderLines(RmModel* model, RmSurfaceBorderLines* lines);
RmSurfaceBorderLines* RmModelGetSurfaceBorderLinesPending(const RmModel* model);
RmSurfaceBorderLines* RmModelGetSurfaceBorderLinesEffective(const RmModel* model);
RmSurfaceBorderLines* RmModelPrepareSurfaceBorderLines(RmModel* model);
void vRmModelCommitSurfaceBorderLines(RmModel* model);
void vRmModelDiscardSurfaceBorderLines(RmModel* model);

// The two section sets: cross sections (CROSSECTIONS) and long sections
// (LONGSECTIONS). The setters stamp the set's kind: 0 for cross sections, 1
// for long sections.

RmSectionSet* RmModelGetCrossSections(const RmModel* model);
void vRmModelSetCrossSections(RmModel* model, RmSectionSet* set);
// The committed set, made empty first when the model has none.
RmSectionSet* RmModelGetOrCreateCrossSections(RmModel* model);
RmSectionSet* RmModelGetCrossSectionsPending(const RmModel* model);
RmSectionSet* RmModelGetCrossSectionsEffective(const RmModel* model);
RmSectionSet* RmModelPrepareCrossSections(RmModel* model);
void vRmModelCommitCrossSections(RmModel* model);
void vRmModelDiscardCrossSections(RmModel* model);

RmSectionSet* RmModelGetLongSections(const RmModel* model);
void vRmModelSetLongSections(RmModel* model, RmSectionSet* set);
RmSectionSet* RmModelGetOrCreateLongSections(RmModel* model);
RmSectionSet* RmModelGetLongSectionsPending(const RmModel* model);
RmSectionSet* RmModelGetLongSectionsEffective(const RmModel* model);
RmSectionSet* RmModelPrepareLongSections(RmModel* model);
void vRmModelCommitLongSections(RmModel* model);
void vRmModelDiscardLongSections(RmModel* model);

// The committed set of a kind (kRmCrossSections or kRmLongSections), for the
// work that treats both sets alike.
RmSectionSet* RmModelGetSectionSet(const RmModel* model, int kind);
void vRmModelSetSectionSet(RmModel* model, int kind, RmSectionSet* set);

// The vocabulary: layer names (LAYERNAMES), the mass types and the
// annotation types of cross sections (kind 0) and long sections (kind 1).
// The setters and Prepare stamp the slot's kind into the list.

RmLayerNames* RmModelGetLayerNames(const RmModel* model);
void vRmModelSetLayerNames(RmModel* model, RmLayerNames* names);
// The committed list, made empty first when the model has none.
RmLayerNames* RmModelGetOrCreateLayerNames(RmModel* model);
RmLayerNames* RmModelGetLayerNamesPending(const RmModel* model);
RmLayerNames* RmModelGetLayerNamesEffective(const RmModel* model);
RmLayerNames* RmModelPrepareLayerNames(RmModel* model);
void vRmModelCommitLayerNames(RmModel* model);
void vRmModelDiscardLayerNames(RmModel* model);

RmMassTypes* RmModelGetCSectMassTypes(const RmModel* model);
void vRmModelSetCSectMassTypes(RmModel* model, RmMassTypes* types);
RmMassTypes* RmModelGetCSectMassTypesPending(const RmModel* model);
RmMassTypes* RmModelGetCSectMassTypesEffective(const RmModel* model);
RmMassTypes* RmModelPrepareCSectMassTypes(RmModel* model);
void vRmModelCommitCSectMassTypes(RmModel* model);
void vRmModelDiscardCSectMassTypes(RmModel* model);

RmMassTypes* RmModelGetLSectMassTypes(const RmModel* model);
void vRmModelSetLSectMassTypes(RmModel* model, RmMassTypes* types);
RmMassTypes* RmModelGetLSectMassTypesPending(const RmModel* model);
RmMassTypes* RmModelGetLSectMassTypesEffective(const RmModel* model);
RmMassTypes* RmModelPrepareLSectMassTypes(RmModel* model);
void vRmModelCommitLSectMassTypes(RmModel* model);
void vRmModelDiscardLSectMassTypes(RmModel* model);

RmAnnotationTypes* RmModelGetCSectAnnotationTypes(const RmModel* model);
void vRmModelSetCSectAnnotationTypes(RmModel* model, RmAnnotationTypes* types);
RmAnnotationTypes* RmModelGetCSectAnnotationTypesPending(const RmModel* model);
RmAnnotationTypes* RmModelGetCSectAnnotationTypesEffective(const RmModel* model);
RmAnnotationTypes* RmModelPrepareCSectAnnotationTypes(RmModel* model);
void vRmModelCommitCSectAnnotationTypes(RmModel* model);
void vRmModelDiscardCSectAnnotationTypes(RmModel* model);

RmAnnotationTypes* RmModelGetLSectAnnotationTypes(const RmModel* model);
void vRmModelSetLSectAnnotationTypes(RmModel* model, RmAnnotationTypes* types);
RmAnnotationTypes* RmModelGetLSectAnnotationTypesPending(const RmModel* model);
RmAnnotationTypes* RmModelGetLSectAnnotationTypesEffective(const RmModel* model);
RmAnnotationTypes* RmModelPrepareLSectAnnotationTypes(RmModel* model);
void vRmModelCommitLSectAnnotationTypes(RmModel* model);
void vRmModelDiscardLSectAnnotationTypes(RmModel* model);

// The surface tables object (road_model/surfaces/surf_gen.h). A loaded
// model always has one. Committing it clears its changed mark.
RmSurfGen* RmModelGetSurfGen(const RmModel* model);
void vRmModelSetSurfGen(RmModel* model, RmSurfGen* gen);
RmSurfGen* RmModelGetSurfGenPending(const RmModel* model);
RmSurfGen* RmModelGetSurfGenEffective(const RmModel* model);
RmSurfGen* RmModelPrepareSurfGen(RmModel* model);
void vRmModelCommitSurfGen(RmModel* model);
void vRmModelDiscardSurfGen(RmModel* model);

// Chain data (CHAINDATA), tunnel data (TUNNELDATA) and tunnel parameters
// (TUNNELPARAMDATA), each with a pending form; the tunnel blocks with their
// inserts (TUNNELBLOCKS, TUNNELBLOCKINSERTS), which a new model has, and the
// ditch parameters (DITCHPARAMDATA), without one.

RmChainData* RmModelGetChainData(const RmModel* model);
void vRmModelSetChainData(RmModel* model, RmChainData* data);
RmChainData* RmModelGetChainDataPending(const RmModel* model);
RmChainData* RmModelGetChainDataEffective(const RmModel* model);
RmChainData* RmModelPrepareChainData(RmModel* model);
void vRmModelCommitChainData(RmModel* model);
void vRmModelDiscardChainData(RmModel* model);

RmTunnelData* RmModelGetTunnelData(const RmModel* model);
void vRmModelSetTunnelData(RmModel* model, RmTunnelData* data);
RmTunnelData* RmModelGetTunnelDataPending(const RmModel* model);
RmTunnelData* RmModelGetTunnelDataEffective(const RmModel* model);
RmTunnelData* RmModelPrepareTunnelData(RmModel* model);
void vRmModelCommitTunnelData(RmModel* model);
void vRmModelDiscardTunnelData(RmModel* model);

RmTunnelParamData* RmModelGetTunnelParamData(const RmModel* model);
void vRmModelSetTunnelParamData(RmModel* model, RmTunnelParamData* data);
RmTunnelParamData* RmModelGetTunnelParamDataPending(const RmModel* model);
RmTunnelParamData* RmModelGetTunnelParamDataEffective(const RmModel* model);
RmTunnelParamData* RmModelPrepareTunnelParamData(RmModel* model);
void vRmModelCommitTunnelParamData(RmModel* model);
void vRmModelDiscardTunnelParamData(RmModel* model);

RmTunnelBlocks* RmModelGetTunnelBlocks(const RmModel* model);
void vRmModelSetTunnelBlocks(RmModel* model, RmTunnelBlocks* blocks);

RmDitchParamData* RmModelGetDitchParamData(const RmModel* model);
void vRmModelSetDitchParamData(RmModel* model, RmDitchParamData* data);

// The BIM store; null unless a host sets one. A copy of a model has none:
// the store's serializers belong to the model they were made for.
RmBimAttributes* RmModelGetBimAttributes(const RmModel* model);
void vRmModelSetBimAttributes(RmModel* model, RmBimAttributes* store);
