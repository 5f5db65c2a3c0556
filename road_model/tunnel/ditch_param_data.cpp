#include "road_model/tunnel/ditch_param_data.h"

#include <cstdlib>

namespace {

void vInitTables(RmDitchParamData* data) {
  SLinkInit(&data->PipeSpaces, sizeof(RmDitchPipeSpace), nullptr);
  SLinkInit(&data->PipeFoundations, sizeof(RmDitchPipeFoundation), nullptr);
}

}  // namespace

RmDitchParamData* RmDitchParamDataCreate() {
  auto* data = static_cast<RmDitchParamData*>(std::calloc(1, sizeof(RmDitchParamData)));
  if (data) vInitTables(data);
  return data;
}

void vRmDitchParamDataDelete(RmDitchParamData** data) {
  if (!data || !*data) return;
  vSLinkClear(&(*data)->PipeSpaces);
  vSLinkClear(&(*data)->PipeFoundations);
  std::free(*data);
  *data = nullptr;
}

void vRmDitchParamDataCopy(RmDitchParamData* to, const RmDitchParamData* from) {
  if (!to || !from || to == from) return;
  vSLinkClear(&to->PipeSpaces);
  vSLinkClear(&to->PipeFoundations);
  *to = *from;
  vInitTables(to);
  SLinkCopy(&from->PipeSpaces, &to->PipeSpaces, nullptr);
  SLinkCopy(&from->PipeFoundations, &to->PipeFoundations, nullptr);
}

RmDitchPipeSpace* RmDitchPipeSpaceAdd(RmDitchParamData* data, double leftWall, double rightWall) {
  if (!data) return nullptr;
  auto* space = SLinkNewObjAs<RmDitchPipeSpace>(&data->PipeSpaces);
  if (!space) return nullptr;
  space->LeftWall = leftWall;
  space->RightWall = rightWall;
  return space;
}

RmDitchPipeFoundation* RmDitchPipeFoundationAdd(RmDitchParamData* data, const double values[3]) {
  if (!data) return nullptr;
  auto* foundation = SLinkNewObjAs<RmDitchPipeFoundation>(&data->PipeFoundations);
  if (!foundation) return nullptr;
  for (int i = 0; i < 3; ++i) foundation->Values[i] = values[i];
  return foundation;
}
