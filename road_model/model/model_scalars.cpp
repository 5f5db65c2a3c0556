// The model settings that have a pending slot: BUILDMODE, CALCMODE,
// TUNNELMODE, CALCSTANDARD and REDUNDANTPOINTTOL.
#include "road_model/model/model.h"
#include "road_model/model/model_scalars.h"

namespace {

// The sentinel of an empty pending slot.
template <typename T>
constexpr T SentinelOf();
template <>
constexpr int32_t SentinelOf<int32_t>() { return kRmPendingNone; }
template <>
constexpr double SentinelOf<double>() { return kRmPendingNoneReal; }

// The two slots of one setting.
template <typename T, T RmModel::*Committed, T RmModel::*Pending>
struct Setting {
  static constexpr T Sentinel = SentinelOf<T>();

  static T Get(const RmModel* model) { return model ? model->*Committed : Sentinel; }
  static void Set(RmModel* model, T value) {
    if (model) model->*Committed = value;
  }
  static T GetPending(const RmModel* model) { return model ? model->*Pending : Sentinel; }
  static T GetEffective(const RmModel* model) {
    if (!model) return Sentinel;
    return model->*Pending != Sentinel ? model->*Pending : model->*Committed;
  }
  static T Prepare(RmModel* model) {
    if (!model) return Sentinel;
    if (model->*Pending == Sentinel) model->*Pending = model->*Committed;
    return model->*Pending;
  }
  static void SetPending(RmModel* model, T value) {
    if (model) model->*Pending = value;
  }
  static void Commit(RmModel* model) {
    if (!model) return;
    T taken = model->*Pending;
    model->*Pending = Sentinel;
    if (taken != Sentinel) model->*Committed = taken;
  }
  static void Discard(RmModel* model) {
    if (model) model->*Pending = Sentinel;
  }
};

using BuildMode = Setting<int32_t, &RmModel::BuildMode, &RmModel::BuildModePending>;
using CalcMode = Setting<int32_t, &RmModel::CalcMode, &RmModel::CalcModePending>;
using TunnelMode =
    Setting<int32_t, &RmModel::TunnelMode, &RmModel::TunnelModePending>;
using CalcStandard =
    Setting<int32_t, &RmModel::CalcStandard, &RmModel::CalcStandardPending>;
using RedundantPointTol = Setting<double, &RmModel::RedundantPointTol,
                                  &RmModel::RedundantPointTolPending>;

}  // namespace

int iRmModelGetBuildMode(const RmModel* model) { return BuildMode::Get(model); }
void vRmModelSetBuildMode(RmModel* model, int value) { BuildMode::Set(model, value); }
int iRmModelGetBuildModePending(const RmModel* model) { return BuildMode::GetPending(model); }
int iRmModelGetBuildModeEffective(const RmModel* model) { return BuildMode::GetEffective(model); }
int iRmModelPrepareBuildMode(RmModel* model) { return BuildMode::Prepare(model); }
void vRmModelSetBuildModePending(RmModel* model, int value) { BuildMode::SetPending(model, value); }
void vRmModelCommitBuildMode(RmModel* model) { BuildMode::Commit(model); }
void vRmModelDiscardBuildMode(RmModel* model) { BuildMode::Discard(model); }

int iRmModelGetCalcMode(const RmModel* model) { return CalcMode::Get(model); }
void vRmModelSetCalcMode(RmModel* model, int value) { CalcMode::Set(model, value); }
int iRmModelGetCalcModePending(const RmModel* model) { return CalcMode::GetPending(model); }
int iRmModelGetCalcModeEffective(const RmModel* model) { return CalcMode::GetEffective(model); }
int iRmModelPrepareCalcMode(RmModel* model) { return CalcMode::Prepare(model); }
void vRmModelSetCalcModePending(RmModel* model, int value) { CalcMode::SetPending(model, value); }
void vRmModelCommitCalcMode(RmModel* model) { CalcMode::Commit(model); }
void vRmModelDiscardCalcMode(RmModel* model) { CalcMode::Discard(model); }

int iRmModelGetTunnelMode(const RmModel* model) { return TunnelMode::Get(model); }
void vRmModelSetTunnelMode(RmModel* model, int value) { TunnelMode::Set(model, value); }
int iRmModelGetTunnelModePending(const RmModel* model) { return TunnelMode::GetPending(model); }
int iRmModelGetTunnelModeEffective(const RmModel* model) {
  return TunnelMode::GetEffective(model);
}
int iRmModelPrepareTunnelMode(RmModel* model) { return TunnelMode::Prepare(model); }
void vRmModelSetTunnelModePending(RmModel* model, int value) {
  TunnelMode::SetPending(model, value);
}
void vRmModelCommitTunnelMode(RmModel* model) { TunnelMode::Commit(model); }
void vRmModelDiscardTunnelMode(RmModel* model) { TunnelMode::Discard(model); }

int iRmModelGetCalcStandard(const RmModel* model) { return CalcStandard::Get(model); }
void vRmModelSetCalcStandard(RmModel* model, int value) { CalcStandard::Set(model, value); }
int iRmModelGetCalcStandardPending(const RmModel* model) {
  return CalcStandard::GetPending(model);
}
int iRmModelGetCalcStandardEffective(const RmModel* model) {
  return CalcStandard::GetEffective(model);
}
int iRmModelPrepareCalcStandard(RmModel* model) { return CalcStandard::Prepare(model); }
void vRmModelSetCalcStandardPending(RmModel* model, int value) {
  CalcStandard::SetPending(model, value);
}
void vRmModelCommitCalcStandard(RmModel* model) { CalcStandard::Commit(model); }
void vRmModelDiscardCalcStandard(RmModel* model) { CalcStandard::Discard(model); }

double dRmModelGetRedundantPointTol(const RmModel* model) {
  return RedundantPointTol::Get(model);
}
void vRmModelSetRedundantPointTol(RmModel* model, double value) {
  RedundantPointTol::Set(model, value);
}
double dRmModelGetRedundantPointTolPending(const RmModel* model) {
  return RedundantPointTol::GetPending(model);
}
double dRmModelGetRedundantPointTolEffective(const RmModel* model) {
  return RedundantPointTol::GetEffective(model);
}
double dRmModelPrepareRedundantPointTol(RmModel* model) {
  return RedundantPointTol::Prepare(model);
}
void vRmModelSetRedundantPointTolPending(RmModel* model, double value) {
  RedundantPointTol::SetPending(model, value);
}
void vRmModelCommitRedundantPointTol(RmModel* model) { RedundantPointTol::Commit(model); }
void vRmModelDiscardRedundantPointTol(RmModel* model) { RedundantPointTol::Discard(model); }
