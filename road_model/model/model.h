// The road model root: everything that a model file holds hangs from it.
//
// Most sub-objects and several settings have two slots: the committed one,
// which is the model, and a pending one, a private copy that an edit works
// on and then commits into the model or throws away. The conversion works on
// the committed slots only; the file code and the import leave the pending
// ones alone.
//
// The model owns every sub-object: a slot is null or holds an object that no
// other slot shares. The sentinel of a pending setting that has not been
// prepared is -99999 (-99999.0 for a real).
#pragma once

#include <cstdint>

#include "road_model/codes/code_ranges.h"

struct RmAdmData;
struct RmAnnotationTypes;
struct RmBimAttributes;
struct RmChainData;
struct RmDitchParamData;
struct RmHyperlinks;
struct RmLayerNames;
struct RmLines;
struct RmMassTypes;
struct RmNrmParams;
struct RmRoadClassParameters;
struct RmRoadDimParams;
struct RmSectParams;
struct RmSectTriangulationParams;
struct RmSectionSet;
struct RmSideBoundaries;
struct RmSurfaceBorderLines;
struct RmSurfGen;
struct RmTunnelBlocks;
struct RmTunnelData;
struct RmTunnelParamData;

inline constexpr int kRmMarketSize = 10;
inline constexpr int kRmFileNameSize = 257;

// The sentinels of a pending setting that holds nothing.
inline constexpr int32_t kRmPendingNone = -99999;
inline constexpr double kRmPendingNoneReal = -99999.0;

// The DATAVERSION that this program writes; files of a later one are refused.
inline constexpr int kRmDataVersion = 13;

// One plain block of fixed layout, zero-filled when allocated. The keyword
// of the model file stands behind each field that the file holds.
struct RmModel {
  char Market[kRmMarketSize];      // MARKET: "Nor", "Swe", "Eng"
  char FileName[kRmFileNameSize];  // full path of the model file
  char* Guid;                      // GUID: owned, may be null
  int32_t ContainerVersion;        // _VERSION of the file loaded; -1 for none
  int32_t DataVersion;             // DATAVERSION of the file loaded; 0 before
  RmAdmData* AdmData;              // ADMDATA
  RmHyperlinks* Hyperlinks;        // HYPERLINKSDATA
  RmLines* Lines;                  // plan lines
  RmLines* LinesPending;
  RmSectParams* SectParams;        // SECTPARAMS
  RmSectParams* SectParamsPending;
  RmSectTriangulationParams* SectTriangulationParams;  // SECTTRIANGULATIONPARAMS
  RmLayerNames* LayerNames;        // LAYERNAMES
  RmLayerNames* LayerNamesPending;
  RmMassTypes* CSectMassTypes;     // CSECTMASSTYPES, list kind 0
  RmMassTypes* CSectMassTypesPending;
  RmMassTypes* LSectMassTypes;     // LSECTMASSTYPES, list kind 1
  RmMassTypes* LSectMassTypesPending;
  RmBimAttributes* BimAttributes;  // BIM_ATTRIBUTES_DATA; stays null here
  RmTunnelBlocks* TunnelBlocks;    // TUNNELBLOCKS and TUNNELBLOCKINSERTS
  RmDitchParamData* DitchParamData;  // DITCHPARAMDATA
  RmAnnotationTypes* CSectAnnotationTypes;  // CSECTANOTATIONTYPES, list kind 0
  RmAnnotationTypes* CSectAnnotationTypesPending;
  RmAnnotationTypes* LSectAnnotationTypes;  // LSECTANOTATIONTYPES, list kind 1
  RmAnnotationTypes* LSectAnnotationTypesPending;
  RmSectionSet* CrossSections;     // CROSSECTIONS, set kind 0
  RmSectionSet* CrossSectionsPending;
  RmSectionSet* LongSections;      // LONGSECTIONS, set kind 1
  RmSectionSet* LongSectionsPending;
  RmRoadDimParams* RoadDimParams;  // ROADDIMPARAMS
  RmRoadDimParams* RoadDimParamsPending;
  RmRoadClassParameters* RoadClassParameters;  // ROADCLASSPARAMETERS
  RmNrmParams* NrmParams;          // NRMPARAMS
  RmNrmParams* NrmParamsPending;
  RmSideBoundaries* SideBoundaries;  // SIDEBOUNDARIES
  RmSideBoundaries* SideBoundariesPending;
  RmSurfaceBorderLines* SurfaceBorderLines;  // SURFACEBORDERLINES
  RmSurfaceBorderLines* SurfaceBorderLinesPending;
  RmChainData* ChainData;          // CHAINDATA
  RmChainData* ChainDataPending;
  RmSurfGen* SurfGen;              // SURFGEN and most chain tables
  RmSurfGen* SurfGenPending;
  double RedundantPointTol;        // REDUNDANTPOINTTOL, metres
  double RedundantPointTolPending;
  RmTunnelData* TunnelData;        // TUNNELDATA
  RmTunnelData* TunnelDataPending;
  RmTunnelParamData* TunnelParamData;  // TUNNELPARAMDATA
  RmTunnelParamData* TunnelParamDataPending;
  int32_t BuildMode;               // BUILDMODE
  int32_t BuildModePending;
  int32_t CalcMode;                // CALCMODE
  int32_t CalcModePending;
  int32_t TunnelMode;              // TUNNELMODE
  int32_t TunnelModePending;
  int32_t CalcStandard;            // CALCSTANDARD: a "MassCalcStandard" code
  int32_t CalcStandardPending;
  int32_t CalcTheo;                // CALCTHEO: theoretical type for calculation
  int32_t CalcPhys;                // CALCPHYS: physical type for calculation
  int32_t RoadType;                // ROADTYPE
  int32_t Dirty;                   // the model differs from its file
  int32_t DirtySinceLoad;          // set with Dirty, and settable alone
  int32_t WorkArea;                // WORKAREA: nonzero restricts the sections
  RmChainRange WorkAreaRange;      // WORKAREASTART, WORKAREAEND
  uint64_t FileTime;               // last write time of the file, 100 ns ticks
  uint64_t ChangeTime;             // time of the last dirty marking
};

// ---- Life cycle ----

// A new model with its defaults; null when memory ran out.
RmModel* RmModelCreate();
// Releases and frees the model; null is accepted.
void vRmModelDelete(RmModel* model);
// Sets every default and creates the sub-objects that a new model has
// (SECTPARAMS). Only for zeroed storage.
void vRmModelInit(RmModel* model);
// Deletes every sub-object, pending ones first, and zero-fills the block;
// only FileName survives.
void vRmModelRelease(RmModel* model);
// Release and init, keeping FileName and the GUID.
void vRmModelReset(RmModel* model);
// Makes `target` a deep copy of `source`, with the pending slots only when
// `withPending` is set.
void vRmModelCopy(RmModel* target, const RmModel* source, bool withPending);
// Commits every pending sub-object and setting into the model.
void vRmModelCommitAll(RmModel* model);
// Deletes every pending sub-object and sets the pending settings to their
// sentinels.
void vRmModelDiscardPending(RmModel* model);

// ---- Dirty flags ----

// Sets Dirty and DirtySinceLoad to `flag` and stamps ChangeTime.
void vRmModelSetDirty(RmModel* model, bool flag);
void vRmModelSetDirtySinceLoad(RmModel* model, bool flag);
// Dirty, or a table of the surface tables object was committed since.
bool boRmModelIsDirty(const RmModel* model);

// ---- Identity ----

// A copy of the GUID as a temporary text; empty when the model has none.
const char* sRmModelGetGuid(const RmModel* model);
void vRmModelSetGuid(RmModel* model, const char* guid);
const char* sRmModelGetFileName(const RmModel* model);
// Copies at most 256 characters.
void vRmModelSetFileName(RmModel* model, const char* fileName);
const char* sRmModelGetMarket(const RmModel* model);
// Copies at most 9 characters.
void vRmModelSetMarket(RmModel* model, const char* market);

// ---- Plain settings ----

int iRmModelGetCalcTheo(const RmModel* model);
void vRmModelSetCalcTheo(RmModel* model, int calcTheo);
int iRmModelGetCalcPhys(const RmModel* model);
void vRmModelSetCalcPhys(RmModel* model, int calcPhys);
int iRmModelGetRoadType(const RmModel* model);
void vRmModelSetRoadType(RmModel* model, int roadType);
int iRmModelGetWorkArea(const RmModel* model);
void vRmModelSetWorkArea(RmModel* model, int workArea);
RmChainRange RmModelGetWorkAreaRange(const RmModel* model);
void vRmModelSetWorkAreaRange(RmModel* model, RmChainRange range);

// CALCMODE 1 or BUILDMODE 1.
bool boRmModelIsCalcOrBuildOne(const RmModel* model);
