#include "road_model/model/model.h"

#include <cstdlib>
#include <cstring>

#include "base/file_times.h"
#include "base/temp_text.h"
#include "base/text.h"
#include "road_model/model/model_parts.h"
#include "road_model/model/model_scalars.h"
#include "road_model/surfaces/surf_gen.h"

namespace {

void vSetPendingSettingsToSentinels(RmModel* model) {
  model->BuildModePending = kRmPendingNone;
  model->CalcModePending = kRmPendingNone;
  model->TunnelModePending = kRmPendingNone;
  model->CalcStandardPending = kRmPendingNone;
  model->RedundantPointTolPending = kRmPendingNoneReal;
}

void vCommitPendingSettings(RmModel* model) {
  vRmModelCommitBuildMode(model);
  vRmModelCommitCalcMode(model);
  vRmModelCommitRedundantPointTol(model);
  vRmModelCommitTunnelMode(model);
  vRmModelCommitCalcStandard(model);
}

}  // namespace

RmModel* RmModelCreate() {
  auto* model = static_cast<RmModel*>(std::calloc(1, sizeof(RmModel)));
  if (model) vRmModelInit(model);
  return model;
}

void vRmModelDelete(RmModel* model) {
  if (!model) return;
  vRmModelRelease(model);
  std::free(model);
}

void vRmModelInit(RmModel* model) {
  if (!model) return;
  model->Market[0] = 0;
  model->ContainerVersion = -1;
  model->DataVersion = 0;
  model->RedundantPointTol = 0.001;
  model->BuildMode = 0;
  model->CalcMode = 1;
  model->TunnelMode = 0;
  model->CalcStandard = 0;
  vSetPendingSettingsToSentinels(model);
  model->CalcTheo = 1;
  model->CalcPhys = 2;
  model->RoadType = 0;
  model->Dirty = 0;
  model->DirtySinceLoad = 0;
  model->WorkArea = 0;
  model->WorkAreaRange = RmChainRange{0.0, 0.0};
  model->FileTime = 0;
  model->ChangeTime = 0;
  for (const RmModelPart& part : RmModelParts()) {
    if (part.Init) part.Init(model);
  }
}

void vRmModelRelease(RmModel* model) {
  if (!model) return;
  vRmModelDiscardPending(model);
  for (const RmModelPart& part : RmModelParts()) part.Release(model);
  vHeapFree(&model->Guid);
  char fileName[kRmFileNameSize];
  std::memcpy(fileName, model->FileName, sizeof fileName);
  std::memset(static_cast<void*>(model), 0, sizeof(RmModel));
  std::memcpy(model->FileName, fileName, sizeof fileName);
}

void vRmModelReset(RmModel* model) {
  if (!model) return;
  char* guid = model->Guid;
  model->Guid = nullptr;
  vRmModelRelease(model);
  vRmModelInit(model);
  model->Guid = guid;
}

void vRmModelCopy(RmModel* target, const RmModel* source, bool withPending) {
  if (!target || !source || target == source) return;
  vRmModelReset(target);
  std::memcpy(target->FileName, source->FileName, sizeof target->FileName);
  target->ContainerVersion = source->ContainerVersion;
  target->DataVersion = source->DataVersion;
  std::memcpy(target->Market, source->Market, sizeof target->Market);
  for (const RmModelPart& part : RmModelParts()) part.Copy(target, source, withPending);
  target->RedundantPointTol = source->RedundantPointTol;
  target->BuildMode = source->BuildMode;
  target->CalcMode = source->CalcMode;
  target->TunnelMode = source->TunnelMode;
  target->CalcStandard = source->CalcStandard;
  target->CalcTheo = source->CalcTheo;
  target->CalcPhys = source->CalcPhys;
  target->RoadType = source->RoadType;
  if (withPending) {
    target->RedundantPointTolPending = source->RedundantPointTolPending;
    target->BuildModePending = source->BuildModePending;
    target->CalcModePending = source->CalcModePending;
    target->TunnelModePending = source->TunnelModePending;
    target->CalcStandardPending = source->CalcStandardPending;
  }
  target->WorkArea = source->WorkArea;
  target->WorkAreaRange = source->WorkAreaRange;
  target->Dirty = source->Dirty;
  target->DirtySinceLoad = source->DirtySinceLoad;
  target->FileTime = source->FileTime;
  target->ChangeTime = source->ChangeTime;
  sHeapSet(&target->Guid, source->Guid);
}

void vRmModelCommitAll(RmModel* model) {
  if (!model) return;
  for (const RmModelPart& part : RmModelParts()) {
    if (part.Commit && !part.CommitsAfterSettings) part.Commit(model);
  }
  vCommitPendingSettings(model);
  for (const RmModelPart& part : RmModelParts()) {
    if (part.Commit && part.CommitsAfterSettings) part.Commit(model);
  }
}

void vRmModelDiscardPending(RmModel* model) {
  if (!model) return;
  for (const RmModelPart& part : RmModelParts()) {
    if (part.DiscardPending) part.DiscardPending(model);
  }
  vSetPendingSettingsToSentinels(model);
}

// ---- Dirty flags ----

void vRmModelSetDirty(RmModel* model, bool flag) {
  if (!model) return;
  model->Dirty = flag ? 1 : 0;
  model->DirtySinceLoad = model->Dirty;
  model->ChangeTime = static_cast<uint64_t>(lFileTimeNow());
}

void vRmModelSetDirtySinceLoad(RmModel* model, bool flag) {
  if (model) model->DirtySinceLoad = flag ? 1 : 0;
}

bool boRmModelIsDirty(const RmModel* model) {
  return model && (model->Dirty != 0 || boRmSurfGenIsChanged(model->SurfGen));
}

// ---- Identity ----

const char* sRmModelGetGuid(const RmModel* model) {
  return sTempCopy(model ? model->Guid : nullptr);
}

void vRmModelSetGuid(RmModel* model, const char* guid) {
  if (model) sHeapSet(&model->Guid, guid);
}

const char* sRmModelGetFileName(const RmModel* model) { return model ? model->FileName : ""; }

void vRmModelSetFileName(RmModel* model, const char* fileName) {
  if (model) sCopy(model->FileName, fileName, sizeof model->FileName);
}

const char* sRmModelGetMarket(const RmModel* model) { return model ? model->Market : ""; }

void vRmModelSetMarket(RmModel* model, const char* market) {
  if (model) sCopy(model->Market, market, sizeof model->Market);
}

// ---- Plain settings ----

int iRmModelGetCalcTheo(const RmModel* model) { return model ? model->CalcTheo : 0; }

void vRmModelSetCalcTheo(RmModel* model, int calcTheo) {
  if (model) model->CalcTheo = calcTheo;
}

int iRmModelGetCalcPhys(const RmModel* model) { return model ? model->CalcPhys : 0; }

void vRmModelSetCalcPhys(RmModel* model, int calcPhys) {
  if (model) model->CalcPhys = calcPhys;
}

int iRmModelGetRoadType(const RmModel* model) { return model ? model->RoadType : 0; }

void vRmModelSetRoadType(RmModel* model, int roadType) {
  if (model) model->RoadType = roadType;
}

int iRmModelGetWorkArea(const RmModel* model) { return model ? model->WorkArea : 0; }

void vRmModelSetWorkArea(RmModel* model, int workArea) {
  if (model) model->WorkArea = workArea;
}

RmChainRange RmModelGetWorkAreaRange(const RmModel* model) {
  return model ? model->WorkAreaRange : RmChainRange{0.0, 0.0};
}

void vRmModelSetWorkAreaRange(RmModel* model, RmChainRange range) {
  if (model) model->WorkAreaRange = range;
}

bool boRmModelIsCalcOrBuildOne(const RmModel* model) {
  if (!model) return false;
  return model->CalcMode == 1 || model->BuildMode == 1;
}
