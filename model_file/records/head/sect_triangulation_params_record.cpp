// SECTTRIANGULATIONPARAMS: every keyword is written, always, in this order.
#include <cstring>

#include "model_file/records/head/head_records.h"
#include "model_file/records/frame/record_line.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"
#include "road_model/params/sect_triangulation_params.h"

bool boRmSectTriangulationParamsPresent(const RmModel* model) {
  return model->SectTriangulationParams != nullptr;
}

void vRmSectTriangulationParamsWrite(AsfFile* file, AsfSection* section, const RmModel* model) {
  const RmSectTriangulationParams* params = model->SectTriangulationParams;
  boRecordWrite(file, section, "CHAINDEPTH %.4lf", params->ChainDepth);
  boRecordWrite(file, section, "MAXEDGELEN %.4lf", params->MaxEdgeLen);
  boRecordWrite(file, section, "MINPOINTDIST %.6lf", params->MinPointDist);
  boRecordWrite(file, section, "METHOD %d", params->Method);
  boRecordWrite(file, section, "SIDEOFFSETCL %.4lf", params->SideOffsetCL);
  boRecordWrite(file, section, "HEIGHTOFFSETCL %.4lf", params->HeightOffsetCL);
}

void vRmSectTriangulationParamsRead(AsfFile* file, AsfSection* section, RmModel* model) {
  RmSectTriangulationParams* params = RmSectTriangulationParamsCreate();
  if (!params) return;
  for (RecordLine line; boRecordNextLine(file, section, &line);) {
    const char* keyword = line.Token;
    if (std::strcmp(keyword, "CHAINDEPTH") == 0) {
      params->ChainDepth = dRecordNumber(&line);
    } else if (std::strcmp(keyword, "MAXEDGELEN") == 0) {
      params->MaxEdgeLen = dRecordNumber(&line);
    } else if (std::strcmp(keyword, "MINPOINTDIST") == 0) {
      params->MinPointDist = dRecordNumber(&line);
    } else if (std::strcmp(keyword, "METHOD") == 0) {
      params->Method = iRecordInteger(&line);
    } else if (std::strcmp(keyword, "SIDEOFFSETCL") == 0) {
      params->SideOffsetCL = dRecordNumber(&line);
    } else if (std::strcmp(keyword, "HEIGHTOFFSETCL") == 0) {
      params->HeightOffsetCL = dRecordNumber(&line);
    }
  }
  vRmModelSetSectTriangulationParams(model, params);
}
