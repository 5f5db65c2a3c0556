// The model settings that have a pending slot: BUILDMODE, CALCMODE,
// TUNNELMODE, CALCSTANDARD and REDUNDANTPOINTTOL.
//
// For each: Get gives the committed value, GetPending the pending one as it
// stands, GetEffective the pending one unless it is the sentinel; Prepare
// copies the committed value into an empty pending slot and returns the
// pending value; Commit moves a pending value that is not the sentinel into
// the model and empties the pending slot; Discard empties it.
#pragma once

#include "road_model/model/model.h"

int iRmModelGetBuildMode(const RmModel* model);
void vRmModelSetBuildMode(RmModel* model, int value);
int iRmModelGetBuildModePending(const RmModel* model);
int iRmModelGetBuildModeEffective(const RmModel* model);
int iRmModelPrepareBuildMode(RmModel* model);
void vRmModelSetBuildModePending(RmModel* model, int value);
void vRmModelCommitBuildMode(RmModel* model);
void vRmModelDiscardBuildMode(RmModel* model);

int iRmModelGetCalcMode(const RmModel* model);
void vRmModelSetCalcMode(RmModel* model, int value);
int iRmModelGetCalcModePending(const RmModel* model);
int iRmModelGetCalcModeEffective(const RmModel* model);
int iRmModelPrepareCalcMode(RmModel* model);
void vRmModelSetCalcModePending(RmModel* model, int value);
void vRmModelCommitCalcMode(RmModel* model);
void vRmModelDiscardCalcMode(RmModel* model);

int iRmModelGetTunnelMode(const RmModel* model);
void vRmModelSetTunnelMode(RmModel* model, int value);
int iRmModelGetTunnelModePending(const RmModel* model);
int iRmModelGetTunnelModeEffective(const RmModel* model);
int iRmModelPrepareTunnelMode(RmModel* model);
void vRmModelSetTunnelModePending(RmModel* model, int value);
void vRmModelCommitTunnelMode(RmModel* model);
void vRmModelDiscardTunnelMode(RmModel* model);

int iRmModelGetCalcStandard(const RmModel* model);
void vRmModelSetCalcStandard(RmModel* model, int value);
int iRmModelGetCalcStandardPending(const RmModel* model);
int iRmModelGetCalcStandardEffective(const RmModel* model);
int iRmModelPrepareCalcStandard(RmModel* model);
void vRmModelSetCalcStandardPending(RmModel* model, int value);
void vRmModelCommitCalcStandard(RmModel* model);
void vRmModelDiscardCalcStandard(RmModel* model);

double dRmModelGetRedundantPointTol(const RmModel* model);
void vRmModelSetRedundantPointTol(RmModel* model, double value);
double dRmModelGetRedundantPointTolPending(const RmModel* model);
double dRmModelGetRedundantPointTolEffective(const RmModel* model);
double dRmModelPrepareRedundantPointTol(RmModel* model);
void vRmModelSetRedundantPointTolPending(RmModel* model, double value);
void vRmModelCommitRedundantPointTol(RmModel* model);
void vRmModelDiscardRedundantPointTol(RmModel* model);
