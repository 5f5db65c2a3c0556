// SECTPARAMS: every keyword is written, always, in this order. Files before
// DATAVERSION 9 knew no MAXCIRCLEDEVXY: when they leave it out it is 0.
#include <cstring>

#include "model_file/records/head/head_records.h"
#include "model_file/records/frame/record_line.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"
#include "road_model/params/sect_params.h"

namespace {

constexpr int kLastVersionWithoutCircleDeviation = 8;

}  // namespace

bool boRmSectParamsPresent(const RmModel* model) { return model->SectParams != nullptr; }

void vRmSectParamsWrite(AsfFile* file, AsfSection* section, const RmModel* model) {
  const RmSectParams* params = model->SectParams;
  boRecordWrite(file, section, "INTERVAL %.3lf", params->Interval);
  boRecordWrite(file, section, "TIGHTENANGLE %.8lf", params->TightenAngle);
  boRecordWrite(file, section, "MAXCIRCLEDEVXY %.3lf", params->MaxCircleDevXY);
  boRecordWrite(file, section, "MAXCIRCLEDEVZ %.3lf", params->MaxCircleDevZ);
  boRecordWrite(file, section, "DISTLEFT %.3lf", params->DistLeft);
  boRecordWrite(file, section, "DISTRIGHT %.3lf", params->DistRight);
  boRecordWrite(file, section, "ALL %d", params->All);
  boRecordWrite(file, section, "CHAINSTART %.4lf", params->ChainStart);
  boRecordWrite(file, section, "CHAINEND %.4lf", params->ChainEnd);
  boRecordWrite(file, section, "FLAGS %d", params->Flags);
  boRecordWrite(file, section, "APPLAYER %s", sRmSectParamsGetAppLayer(params));
}

void vRmSectParamsRead(AsfFile* file, AsfSection* section, RmModel* model) {
  RmSectParams* params = RmSectParamsCreate();
  if (!params) return;
  if (model->DataVersion <= kLastVersionWithoutCircleDeviation) params->MaxCircleDevXY = 0.0;
  for (RecordLine line; boRecordNextLine(file, section, &line);) {
    const char* keyword = line.Token;
    if (std::strcmp(keyword, "INTERVAL") == 0) {
      params->Interval = dRecordNumber(&line);
    } else if (std::strcmp(keyword, "TIGHTENANGLE") == 0) {
      params->TightenAngle = dRecordNumber(&line);
    } else if (std::strcmp(keyword, "MAXCIRCLEDEVXY") == 0) {
      params->MaxCircleDevXY = dRecordNumber(&line);
    } else if (std::strcmp(keyword, "MAXCIRCLEDEVZ") == 0) {
      params->MaxCircleDevZ = dRecordNumber(&line);
    } else if (std::strcmp(keyword, "DISTLEFT") == 0) {
      params->DistLeft = dRecordNumber(&line);
    } else if (std::strcmp(keyword, "DISTRIGHT") == 0) {
      params->DistRight = dRecordNumber(&line);
    } else if (std::strcmp(keyword, "ALL") == 0) {
      params->All = iRecordInteger(&line);
    } else if (std::strcmp(keyword, "CHAINSTART") == 0) {
      params->ChainStart = dRecordNumber(&line);
    } else if (std::strcmp(keyword, "CHAINEND") == 0) {
      params->ChainEnd = dRecordNumber(&line);
    } else if (std::strcmp(keyword, "FLAGS") == 0) {
      params->Flags = iRecordInteger(&line);
    } else if (std::strcmp(keyword, "APPLAYER") == 0) {
      vRmSectParamsSetAppLayer(params, sRecordToken(&line));
    }
  }
  vRmModelSetSectParams(model, params);
}
