#include "model_file/records/head/sect_params_record.h"

#include "model_file/records/frame/keyword_lines.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"
#include "road_model/params/sect_params.h"

namespace {

// Files before DATAVERSION 9 knew no MAXCIRCLEDEVXY: when they leave it out
// it is 0, not the default.
constexpr int kLastVersionWithoutCircleDeviation = 8;

constexpr RmKeywordLine<RmSectParams> kLines[] = {
    {.Keyword = "INTERVAL", .Format = "%.3lf", .Real = &RmSectParams::Interval},
    {.Keyword = "TIGHTENANGLE", .Format = "%.8lf", .Real = &RmSectParams::TightenAngle},
    {.Keyword = "MAXCIRCLEDEVXY", .Format = "%.3lf", .Real = &RmSectParams::MaxCircleDevXY},
    {.Keyword = "MAXCIRCLEDEVZ", .Format = "%.3lf", .Real = &RmSectParams::MaxCircleDevZ},
    {.Keyword = "DISTLEFT", .Format = "%.3lf", .Real = &RmSectParams::DistLeft},
    {.Keyword = "DISTRIGHT", .Format = "%.3lf", .Real = &RmSectParams::DistRight},
    {.Keyword = "ALL", .Format = "%d", .Integer = &RmSectParams::All},
    {.Keyword = "CHAINSTART", .Format = "%.4lf", .Real = &RmSectParams::ChainStart},
    {.Keyword = "CHAINEND", .Format = "%.4lf", .Real = &RmSectParams::ChainEnd},
    {.Keyword = "FLAGS", .Format = "%d", .Integer = &RmSectParams::Flags},
    {.Keyword = "APPLAYER",
     .Format = "%s",
     .GetText = [](const RmSectParams& params) { return sRmSectParamsGetAppLayer(&params); },
     .SetText = vRmSectParamsSetAppLayer},
};

bool boPresent(const RmModel* model, const RmRecordFamily&) {
  return RmModelGetSectParams(model) != nullptr;
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model, const RmRecordFamily&) {
  vRmKeywordLinesWrite<RmSectParams>(file, section, *RmModelGetSectParams(model), kLines);
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  RmSectParams* params = RmSectParamsCreate();
  if (!params) return;
  if (model->DataVersion <= kLastVersionWithoutCircleDeviation) params->MaxCircleDevXY = 0.0;
  vRmKeywordLinesRead<RmSectParams>(file, section, params, kLines);
  vRmModelSetSectParams(model, params);
}

}  // namespace

const RmRecordFamily kRmSectParamsFamily = {
    .Keyword = "SECTPARAMS",
    .Letter = 'O',
    .HasContent = boPresent,
    .Write = vWrite,
    .Read = vRead,
};
