#include "model_file/records/head/mass_calc_record.h"

#include "model_file/records/frame/keyword_lines.h"
#include "road_model/model/model.h"

namespace {

// SUPERSTRUCTUREMODE belongs to the surface tables object; a model without
// one writes 0, and the reader has nowhere to put it.
constexpr RmKeywordLine<RmModel> kLines[] = {
    {.Keyword = "BUILDMODE", .Format = "%d", .Integer = &RmModel::BuildMode},
    {.Keyword = "CALCMODE", .Format = "%d", .Integer = &RmModel::CalcMode},
    {.Keyword = "REDUNDANTPOINTTOL", .Format = "%.3lf", .Real = &RmModel::RedundantPointTol},
    {.Keyword = "TUNNELMODE", .Format = "%d", .Integer = &RmModel::TunnelMode},
    {.Keyword = "CALCSTANDARD", .Format = "%d", .Integer = &RmModel::CalcStandard},
    {.Keyword = "CALCTHEO", .Format = "%d", .Integer = &RmModel::CalcTheo},
    {.Keyword = "CALCPHYS", .Format = "%d", .Integer = &RmModel::CalcPhys},
    {.Keyword = "ROADTYPE", .Format = "%d", .Integer = &RmModel::RoadType},
    {.Keyword = "WORKAREA", .Format = "%d", .Integer = &RmModel::WorkArea},
    {.Keyword = "WORKAREASTART",
     .Format = "%.3lf",
     .GetReal = [](const RmModel& model) { return model.WorkAreaRange.Low; },
     .SetReal = [](RmModel* model, double value) { model->WorkAreaRange.Low = value; }},
    {.Keyword = "WORKAREAEND",
     .Format = "%.3lf",
     .GetReal = [](const RmModel& model) { return model.WorkAreaRange.High; },
     .SetReal = [](RmModel* model, double value) { model->WorkAreaRange.High = value; }},
    {.Keyword = "SUPERSTRUCTUREMODE",
     .Format = "%d",
     .GetInteger = [](const RmModel&) { return int32_t{0}; }},
};

// The defaults of a MASSCALC section for the keywords that it leaves out.
void vSetDefaults(RmModel* model) {
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

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model, const RmRecordFamily&) {
  vRmKeywordLinesWrite<RmModel>(file, section, *model, kLines);
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  vSetDefaults(model);
  vRmKeywordLinesRead<RmModel>(file, section, model, kLines);
}

}  // namespace

const RmRecordFamily kRmMassCalcFamily = {
    .Keyword = "MASSCALC",
    .Letter = 'O',
    .Write = vWrite,
    .Read = vRead,
};
