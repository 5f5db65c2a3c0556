#include "model_file/records/frame/record_line.h"
#include "model_file/records/tunnel/ditch_param_data_record.h"

#include <cstring>

#include "model_file/records/frame/keyword_lines.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"
#include "road_model/tunnel/ditch_param_data.h"

namespace {

using Ditch = RmDitchParamData;

constexpr char kGroup[] = ":DITCHPARAMS";
constexpr char kDesignBackfill[] = "DESIGNBACKFILL";
constexpr char kDesignBackfillRock[] = "DESIGNBACKFILL_ROCK";
constexpr char kClipLayer[] = "CLIPLAYER";
constexpr char kTrimLayer[] = "TRIMLAYER";
constexpr char kSpaceForPipe[] = "SPACEFORPIPEDIMENSION";
constexpr char kSpaceRefLine[] = "SPACEREFLINE";
constexpr char kFoundationForPipe[] = "FOUNDATIONFORPIPEDIMENSION";
constexpr char kDistLeftWall[] = "DISTLEFTWALL";
constexpr char kDistRightWall[] = "DISTRIGHTWALL";
constexpr char kThicknessFoundation[] = "THICKNESSFOUNDATION";

// The values up to the backfill design, always written.
constexpr RmKeywordLine<Ditch> kWallLines[] = {
    {.Keyword = "BUILDMETHOD", .Format = "%d", .Integer = &Ditch::BuildMethod},
    {.Keyword = "WALLDESIGNTYPE", .Format = "%d", .Integer = &Ditch::WallDesignType},
    {.Keyword = "SLOPEWALL", .Format = "%.4f", .Real = &Ditch::SlopeWall},
    {.Keyword = "SLOPEWALLDEEP", .Format = "%.4f", .Real = &Ditch::SlopeWallDeep},
    {.Keyword = "DEEPDITCHLIMIT", .Format = "%.4f", .Real = &Ditch::DeepDitchLimit},
    {.Keyword = "SHALLOWDEEPDITCHMINLENGTH",
     .Format = "%.4f",
     .Real = &Ditch::ShallowDeepDitchMinLength},
    {.Keyword = "SLOPEWALLEQUALSIDES", .Format = "%d", .Integer = &Ditch::SlopeWallEqualSides},
    {.Keyword = "SLOPEWALLROCK", .Format = "%.4f", .Real = &Ditch::SlopeWallRock},
    {.Keyword = "ROCKBENCHWIDTH", .Format = "%.4f", .Real = &Ditch::RockBenchWidth},
};

// The values behind the backfill design, always written.
constexpr RmKeywordLine<Ditch> kBottomLines[] = {
    {.Keyword = "HEIGHTBACKFILL", .Format = "%.4f", .Real = &Ditch::HeightBackfill},
    {.Keyword = "SLOPEBACKFILL", .Format = "%.4f", .Real = &Ditch::SlopeBackfill},
    {.Keyword = "INCLUDEMANHOLES", .Format = "%d", .Integer = &Ditch::IncludeManholes},
    {.Keyword = "SPACEMANHOLE", .Format = "%.4f", .Real = &Ditch::SpaceManhole},
    {.Keyword = "MINBOTTOMWIDH", .Format = "%.4f", .Real = &Ditch::MinBottomWidth},  // so spelled
    {.Keyword = "TERRACEDBOTTOM", .Format = "%d", .Integer = &Ditch::TerracedBottom},
    {.Keyword = "SLOPETERRACEDBOTTOM", .Format = "%.4f", .Real = &Ditch::SlopeTerracedBottom},
    {.Keyword = "STOPINUNDEFINEDAREA", .Format = "%d", .Integer = &Ditch::StopInUndefinedArea},
};

// The centre-line offset, written together when the parameters have one.
constexpr RmKeywordLine<RmDitchOffsetCl> kOffsetLines[] = {
    {.Keyword = "OFFSETCL_TYPE", .Format = "%d", .Integer = &RmDitchOffsetCl::Type},
    {.Keyword = "OFFSETCL_PIPETYPE", .Format = "%d", .Integer = &RmDitchOffsetCl::PipeType},
    {.Keyword = "OFFSETCL_EXTRALINEID", .Format = "%d", .Integer = &RmDitchOffsetCl::ExtraLineId},
    {.Keyword = "OFFSETCL_EXPANDLENGTH", .Format = "%.4f", .Real = &RmDitchOffsetCl::ExpandLength},
    {.Keyword = "OFFSETCL_ADJUST_WIDTHSLOPE",
     .Format = "%d",
     .Integer = &RmDitchOffsetCl::AdjustWidthSlope},
    {.Keyword = "OFFSETCL_ADJUST_MAXANGLE",
     .Format = "%.8f",
     .Real = &RmDitchOffsetCl::AdjustMaxAngle},
};


bool boPresent(const RmModel* model, const RmRecordFamily&) {
  return RmModelGetDitchParamData(model) != nullptr;
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model, const RmRecordFamily&) {
  const Ditch* ditch = RmModelGetDitchParamData(model);
  boRecordWrite(file, section, "%s", kGroup);
  vRmKeywordLinesWrite<Ditch>(file, section, *ditch, kWallLines);
  boRecordWrite(file, section, "%s %d", kDesignBackfill, ditch->DesignBackfill);
  // The reader gives the rock design the value of the other when it is left
  // out.
  if (ditch->DesignBackfillRock != ditch->DesignBackfill) {
    boRecordWrite(file, section, "%s %d", kDesignBackfillRock, ditch->DesignBackfillRock);
  }
  vRmKeywordLinesWrite<Ditch>(file, section, *ditch, kBottomLines);
  if (ditch->ClipLayer) boRecordWrite(file, section, "%s %u", kClipLayer, ditch->ClipLayer);
  if (ditch->TrimLayer) boRecordWrite(file, section, "%s %d", kTrimLayer, ditch->TrimLayer);
  if (ditch->HasOffsetCl) {
    vRmKeywordLinesWrite<RmDitchOffsetCl>(file, section, ditch->OffsetCl, kOffsetLines);
  }
  for (auto* space = ListFirst<RmDitchPipeSpace>(&ditch->PipeSpaces); space; space = space->Next) {
    boRecordWrite(file, section, "%s %.4f %.4f", kSpaceForPipe, space->LeftWall, space->RightWall);
  }
  boRecordWrite(file, section, "%s %d", kSpaceRefLine, ditch->SpaceRefLine);
  for (auto* foundation = ListFirst<RmDitchPipeFoundation>(&ditch->PipeFoundations); foundation;
       foundation = foundation->Next) {
    boRecordWrite(file, section, "%s %.4f %.4f %.4f", kFoundationForPipe, foundation->Values[0],
                  foundation->Values[1], foundation->Values[2]);
  }
}

// An older file's single wall distance of one side: the space table's one
// entry, made when the table is empty.
void vReadOldWall(RecordLine* line, Ditch* ditch, bool left) {
  double value = dRecordNumber(line);
  if (!ditch->PipeSpaces.first) RmDitchPipeSpaceAdd(ditch, 0.0, 0.0);
  for (auto* space = ListFirst<RmDitchPipeSpace>(&ditch->PipeSpaces); space; space = space->Next) {
    (left ? space->LeftWall : space->RightWall) = value;
  }
}

void vReadOldFoundation(RecordLine* line, Ditch* ditch) {
  double value = dRecordNumber(line);
  if (!ditch->PipeFoundations.first) {
    constexpr double kNone[3] = {0.0, 0.0, 0.0};
    RmDitchPipeFoundationAdd(ditch, kNone);
  }
  for (auto* foundation = ListFirst<RmDitchPipeFoundation>(&ditch->PipeFoundations); foundation;
       foundation = foundation->Next) {
    foundation->Values[0] = value;
  }
}

void vReadLine(RecordLine* line, Ditch* ditch) {
  const char* keyword = line->Token;
  if (boRecordIs(keyword, kDesignBackfill)) {
    ditch->DesignBackfill = iRecordInteger(line);
    ditch->DesignBackfillRock = ditch->DesignBackfill;
  } else if (boRecordIs(keyword, kDesignBackfillRock)) {
    ditch->DesignBackfillRock = iRecordInteger(line);
  } else if (boRecordIs(keyword, kClipLayer)) {
    ditch->ClipLayer = static_cast<uint32_t>(iRecordInteger(line));
  } else if (boRecordIs(keyword, kTrimLayer)) {
    ditch->TrimLayer = iRecordInteger(line);
  } else if (boRecordIs(keyword, kSpaceRefLine)) {
    ditch->SpaceRefLine = iRecordInteger(line);
  } else if (boRecordIs(keyword, kSpaceForPipe)) {
    double left = dRecordNumber(line);
    RmDitchPipeSpaceAdd(ditch, left, dRecordNumber(line));
  } else if (boRecordIs(keyword, kFoundationForPipe)) {
    double values[3];
    for (double& value : values) value = dRecordNumber(line);
    RmDitchPipeFoundationAdd(ditch, values);
  } else if (boRecordIs(keyword, kDistLeftWall) || boRecordIs(keyword, kDistRightWall)) {
    vReadOldWall(line, ditch, boRecordIs(keyword, kDistLeftWall));
  } else if (boRecordIs(keyword, kThicknessFoundation)) {
    vReadOldFoundation(line, ditch);
  } else if (boRmKeywordLineRead<RmDitchOffsetCl>(line, &ditch->OffsetCl, kOffsetLines)) {
    ditch->HasOffsetCl = true;
  } else if (!boRmKeywordLineRead<Ditch>(line, ditch, kWallLines)) {
    boRmKeywordLineRead<Ditch>(line, ditch, kBottomLines);
  }
}

// Reads over the parameters that the model has, or over new ones; the two
// tables are read afresh.
void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  Ditch* ditch = RmModelGetDitchParamData(model);
  if (!ditch) {
    ditch = RmDitchParamDataCreate();
    if (!ditch) return;
    vRmModelSetDitchParamData(model, ditch);
  }
  vSLinkClear(&ditch->PipeSpaces);
  vSLinkClear(&ditch->PipeFoundations);
  for (RecordLine line; boRecordNextLine(file, section, &line);) vReadLine(&line, ditch);
}

}  // namespace

const RmRecordFamily kRmDitchParamDataFamily = {
    .Keyword = "DITCHPARAMDATA",
    .Letter = 'O',
    .HasContent = boPresent,
    .Write = vWrite,
    .Read = vRead,
};
