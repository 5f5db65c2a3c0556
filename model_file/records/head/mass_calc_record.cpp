// MASSCALC: the model's calculation settings, in every file. When the
// section is there, each keyword that it leaves out takes its default; a
// keyword without its number reads as 0. SUPERSTRUCTUREMODE belongs to the
// surface tables object; a model without one writes 0.
#include <cstring>

#include "model_file/records/head/head_records.h"
#include "model_file/records/frame/record_line.h"
#include "road_model/model/model.h"

namespace {

// The defaults of a MASSCALC section for the keywords that it leaves out.
void vSetMassCalcDefaults(RmModel* model) {
  model->BuildMode = 0;
  model->CalcMode = 1;
  model->RedundantPointTol = 0.001;
  model->TunnelMode = 0;
  model->CalcStandard = 0;
  model->CalcTheo = 1;
  model->CalcPhys = 2;
  model->RoadType = 0;
  model->WorkArea = 0;
  model->WorkAreaRange = RmChainRange{-99999.0, -99999.0};
}

}  // namespace

void vRmMassCalcWrite(AsfFile* file, AsfSection* section, const RmModel* model) {
  boRecordWrite(file, section, "BUILDMODE %d", model->BuildMode);
  boRecordWrite(file, section, "CALCMODE %d", model->CalcMode);
  boRecordWrite(file, section, "REDUNDANTPOINTTOL %.3lf", model->RedundantPointTol);
  boRecordWrite(file, section, "TUNNELMODE %d", model->TunnelMode);
  boRecordWrite(file, section, "CALCSTANDARD %d", model->CalcStandard);
  boRecordWrite(file, section, "CALCTHEO %d", model->CalcTheo);
  boRecordWrite(file, section, "CALCPHYS %d", model->CalcPhys);
  boRecordWrite(file, section, "ROADTYPE %d", model->RoadType);
  boRecordWrite(file, section, "WORKAREA %d", model->WorkArea);
  boRecordWrite(file, section, "WORKAREASTART %.3lf", model->WorkAreaRange.Low);
  boRecordWrite(file, section, "WORKAREAEND %.3lf", model->WorkAreaRange.High);
  boRecordWrite(file, section, "SUPERSTRUCTUREMODE %d", 0);
}

void vRmMassCalcRead(AsfFile* file, AsfSection* section, RmModel* model) {
  vSetMassCalcDefaults(model);
  for (RecordLine line; boRecordNextLine(file, section, &line);) {
    const char* keyword = line.Token;
    if (std::strcmp(keyword, "BUILDMODE") == 0) {
      model->BuildMode = iRecordInteger(&line);
    } else if (std::strcmp(keyword, "CALCMODE") == 0) {
      model->CalcMode = iRecordInteger(&line);
    } else if (std::strcmp(keyword, "REDUNDANTPOINTTOL") == 0) {
      model->RedundantPointTol = dRecordNumber(&line);
    } else if (std::strcmp(keyword, "TUNNELMODE") == 0) {
      model->TunnelMode = iRecordInteger(&line);
    } else if (std::strcmp(keyword, "CALCSTANDARD") == 0) {
      model->CalcStandard = iRecordInteger(&line);
    } else if (std::strcmp(keyword, "CALCTHEO") == 0) {
      model->CalcTheo = iRecordInteger(&line);
    } else if (std::strcmp(keyword, "CALCPHYS") == 0) {
      model->CalcPhys = iRecordInteger(&line);
    } else if (std::strcmp(keyword, "ROADTYPE") == 0) {
      model->RoadType = iRecordInteger(&line);
    } else if (std::strcmp(keyword, "WORKAREA") == 0) {
      model->WorkArea = iRecordInteger(&line);
    } else if (std::strcmp(keyword, "WORKAREASTART") == 0) {
      model->WorkAreaRange.Low = dRecordNumber(&line);
    } else if (std::strcmp(keyword, "WORKAREAEND") == 0) {
      model->WorkAreaRange.High = dRecordNumber(&line);
    }
  }
}
