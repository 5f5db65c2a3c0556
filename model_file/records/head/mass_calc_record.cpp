#include "model_file/records/head/mass_calc_record.h"

#include "model_file/records/frame/keyword_lines.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"
#include "road_model/surfaces/surf_gen.h"

namespace {

// TUNNELMODE and SUPERSTRUCTUREMODE are settings of the surface tables
// object, which a loaded model always has. TUNNELMODE is kept on the model
// as well, for a model that has no tables object; SUPERSTRUCTUREMODE is
// then written as 0.
constexpr RmKeywordLine<RmModel> kLines[] = {
    {.Keyword = "BUILDMODE", .Format = "%d", .Integer = &RmModel::BuildMode},
    {.Keyword = "CALCMODE", .Format = "%d", .Integer = &RmModel::CalcMode},
    {.Keyword = "REDUNDANTPOINTTOL", .Format = "%.3lf", .Real = &RmModel::RedundantPointTol},
    {.Keyword = "TUNNELMODE",
     .Format = "%d",
     .GetInteger =
         [](const RmModel& model) {
           const RmSurfGen* gen = RmModelGetSurfGen(&model);
           return gen ? gen->TunnelMode : model.TunnelMode;
         },
     .SetInteger =
         [](RmModel* model, int32_t value) {
           model->TunnelMode = value;
           if (RmSurfGen* gen = RmModelGetSurfGen(model)) gen->TunnelMode = value;
         }},
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
     .GetInteger =
         [](const RmModel& model) {
           const RmSurfGen* gen = RmModelGetSurfGen(&model);
           return gen ? gen->SuperstructureMode : int32_t{0};
         },
     .SetInteger =
         [](RmModel* model, int32_t value) {
           if (RmSurfGen* gen = RmModelGetSurfGen(model)) gen->SuperstructureMode = value;
         }},
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
  if (RmSurfGen* gen = RmModelGetSurfGen(model)) {
    gen->TunnelMode = 0;
    gen->SuperstructureMode = 1;
  }
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
