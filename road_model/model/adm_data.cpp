#include "road_model/model/adm_data.h"

#include <cstdlib>

#include "base/text.h"

RmAdmData* RmAdmDataCreate() {
  return static_cast<RmAdmData*>(std::calloc(1, sizeof(RmAdmData)));
}

void vRmAdmDataDelete(RmAdmData** data) {
  if (!data || !*data) return;
  vHeapFree(&(*data)->ProjectInfo);
  vHeapFree(&(*data)->ProjectDescr);
  vHeapFree(&(*data)->Employer);
  std::free(*data);
  *data = nullptr;
}

void vRmAdmDataCopy(RmAdmData* to, const RmAdmData* from) {
  if (!to || !from || to == from) return;
  sHeapSet(&to->ProjectInfo, from->ProjectInfo);
  sHeapSet(&to->ProjectDescr, from->ProjectDescr);
  sHeapSet(&to->Employer, from->Employer);
}
