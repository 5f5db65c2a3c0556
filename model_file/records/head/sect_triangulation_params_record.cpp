#include "model_file/records/head/sect_triangulation_params_record.h"

#include "model_file/records/frame/keyword_lines.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"
#include "road_model/params/sect_triangulation_params.h"

namespace {

using Params = RmSectTriangulationParams;

constexpr RmKeywordLine<Params> kLines[] = {
    {.Keyword = "CHAINDEPTH", .Format = "%.4lf", .Real = &Params::ChainDepth},
    {.Keyword = "MAXEDGELEN", .Format = "%.4lf", .Real = &Params::MaxEdgeLen},
    {.Keyword = "MINPOINTDIST", .Format = "%.6lf", .Real = &Params::MinPointDist},
    {.Keyword = "METHOD", .Format = "%d", .Integer = &Params::Method},
    {.Keyword = "SIDEOFFSETCL", .Format = "%.4lf", .Real = &Params::SideOffsetCL},
    {.Keyword = "HEIGHTOFFSETCL", .Format = "%.4lf", .Real = &Params::HeightOffsetCL},
};

bool boPresent(const RmModel* model, const RmRecordFamily&) {
  return RmModelGetSectTriangulationParams(model) != nullptr;
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model, const RmRecordFamily&) {
  vRmKeywordLinesWrite<Params>(file, section, *RmModelGetSectTriangulationParams(model), kLines);
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  Params* params = RmSectTriangulationParamsCreate();
  if (!params) return;
  vRmKeywordLinesRead<Params>(file, section, params, kLines);
  vRmModelSetSectTriangulationParams(model, params);
}

}  // namespace

const RmRecordFamily kRmSectTriangulationParamsFamily = {
    .Keyword = "SECTTRIANGULATIONPARAMS",
    .Letter = 'O',
    .HasContent = boPresent,
    .Write = vWrite,
    .Read = vRead,
};
