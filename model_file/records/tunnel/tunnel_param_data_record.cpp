#include "model_file/records/frame/record_line.h"
#include "model_file/records/tunnel/tunnel_param_data_record.h"

#include <cstring>

#include "base/fields.h"
#include "base/text.h"
#include "model_file/records/frame/keyword_lines.h"
#include "road_model/model/model_parts.h"
#include "road_model/tunnel/tunnel_param_data.h"

namespace {

constexpr char kLayers[] = ":TUNNELPARAMLAYERS";
constexpr char kRange[] = ":TUNNELPARAMRANGE";
constexpr char kInfo[] = ":TUNNELPARAMINFO";
constexpr char kName[] = "NAME";
constexpr char kType[] = "TYPE";
constexpr char kAttribute[] = "ATTRIBUTE";
constexpr char kRoadConPcodes[] = "ROADCONPCODES";

using Info = RmTunnelParamInfo;

// The profile's single values, in the order of the file, before its pairs.
constexpr RmKeywordLine<Info> kInfoLines[] = {
    {.Keyword = "CURVEDWALLS", .Format = "%d", .Integer = &Info::CurvedWalls},
    {.Keyword = "FLATROOF", .Format = "%d", .Integer = &Info::FlatRoof},
    {.Keyword = "TRANSITIONCURVES", .Format = "%d", .Integer = &Info::TransitionCurves},
    {.Keyword = "WALLRADIUS", .Format = "%.4f", .Real = &Info::WallRadius},
    {.Keyword = "WALLRADIUSLEFT", .Format = "%.4f", .Real = &Info::WallRadiusLeft},
    {.Keyword = "WALLRADIUSRIGHT", .Format = "%.4f", .Real = &Info::WallRadiusRight},
    {.Keyword = "REFERENCETUNNELWIDTH", .Format = "%.4f", .Real = &Info::ReferenceTunnelWidth},
    {.Keyword = "ARCCENTREHEIGHT", .Format = "%.4f", .Real = &Info::ArcCentreHeight},
    {.Keyword = "ANGLEALPHA", .Format = "%.6f", .Real = &Info::AngleAlpha},
    {.Keyword = "ANGLEALPHALEFT", .Format = "%.6f", .Real = &Info::AngleAlphaLeft},
    {.Keyword = "ANGLEALPHARIGHT", .Format = "%.6f", .Real = &Info::AngleAlphaRight},
    {.Keyword = "DELTAALPHA", .Format = "%.6f", .Real = &Info::DeltaAlpha},
    {.Keyword = "DELTAALPHALEFT", .Format = "%.6f", .Real = &Info::DeltaAlphaLeft},
    {.Keyword = "DELTAALPHARIGHT", .Format = "%.6f", .Real = &Info::DeltaAlphaRight},
    {.Keyword = "ANGLEBETA", .Format = "%.6f", .Real = &Info::AngleBeta},
    {.Keyword = "DELTABETA", .Format = "%.6f", .Real = &Info::DeltaBeta},
    {.Keyword = "WALLHEIGHT", .Format = "%.4f", .Real = &Info::WallHeight},
    {.Keyword = "WALLHEIGHTLEFT", .Format = "%.4f", .Real = &Info::WallHeightLeft},
    {.Keyword = "WALLHEIGHTRIGHT", .Format = "%.4f", .Real = &Info::WallHeightRight},
    {.Keyword = "TRANSITIONRADIUS", .Format = "%.4f", .Real = &Info::TransitionRadius},
    {.Keyword = "STARTTRANSITIONRADIUS", .Format = "%.4f", .Real = &Info::StartTransitionRadius},
    {.Keyword = "PRIMARYANGLE", .Format = "%d", .Integer = &Info::PrimaryAngle},
    {.Keyword = "SELECTIONFORSTRAIGHTWALLS",
     .Format = "%d",
     .Integer = &Info::SelectionForStraightWalls},
    {.Keyword = "TUNNELROTATIONMODE", .Format = "%d", .Integer = &Info::TunnelRotationMode},
};

// The pairs of point codes of the profile, in the order of the file.
struct CodePair {
  const char* Keyword;
  int32_t (Info::*Codes)[2];
};
constexpr CodePair kInfoPairs[] = {
    {"TUNNELROTATIONPCODES", &Info::TunnelRotationPcodes},
    {"LEFTWALLROTATIONPCODES", &Info::LeftWallRotationPcodes},
    {"RIGHTWALLROTATIONPCODES", &Info::RightWallRotationPcodes},
};

// The profile's last values, behind its pairs.
constexpr RmKeywordLine<Info> kInfoEndLines[] = {
    {.Keyword = "NEUTRALCONTRACTIONPOINT",
     .Format = "%d",
     .Integer = &Info::NeutralContractionPoint},
    {.Keyword = "BASELINEROADPOINT", .Format = "%d", .Integer = &Info::BaselineRoadPoint},
};


bool boPresent(const RmModel* model, const RmRecordFamily&) {
  const RmTunnelParamData* data = RmModelGetTunnelParamData(model);
  return data && data->Layers.first;
}

void vWriteInfo(AsfFile* file, AsfSection* section, const Info& info) {
  boRecordWrite(file, section, "%s", kInfo);
  vRmKeywordLinesWrite<Info>(file, section, info, kInfoLines);
  for (const CodePair& pair : kInfoPairs) {
    boRecordWrite(file, section, "%s %d %d", pair.Keyword, (info.*pair.Codes)[0],
                  (info.*pair.Codes)[1]);
  }
  vRmKeywordLinesWrite<Info>(file, section, info, kInfoEndLines);
}

void vWriteRange(AsfFile* file, AsfSection* section, const RmTunnelParamRange* range) {
  char quoted[kRecordQuoteSize];
  boRecordWrite(file, section, "%s %.4f %.4f", kRange, range->FromChain, range->ToChain);
  if (range->Name[0]) {
    boRecordWrite(file, section, "%s %s", kName, sQuote(quoted, sizeof quoted, range->Name));
  }
  boRecordWrite(file, section, "%s %d", kType, range->Type);
  boRecordWrite(file, section, "%s %.4f", kAttribute, range->Attribute);
  boRecordWrite(file, section, "%s %d %d", kRoadConPcodes, range->RoadConPcodes[0],
                range->RoadConPcodes[1]);
  if (range->Info) vWriteInfo(file, section, *range->Info);
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model, const RmRecordFamily&) {
  const RmTunnelParamData* data = RmModelGetTunnelParamData(model);
  for (auto* layer = ListFirst<RmTunnelParamLayer>(&data->Layers); layer; layer = layer->Next) {
    boRecordWrite(file, section, "%s %u", kLayers, layer->LayerId);
    for (auto* range = ListFirst<RmTunnelParamRange>(&layer->Ranges); range; range = range->Next) {
      vWriteRange(file, section, range);
    }
  }
}

// The keywords of a range; false for another keyword.
bool boReadRangeLine(RecordLine* line, RmTunnelParamRange* range) {
  const char* keyword = line->Token;
  if (boRecordIs(keyword, kName)) {
    sCopy(range->Name, sRecordToken(line), sizeof range->Name);
  } else if (boRecordIs(keyword, kType)) {
    range->Type = iRecordInteger(line);
  } else if (boRecordIs(keyword, kAttribute)) {
    range->Attribute = dRecordNumber(line);
  } else if (boRecordIs(keyword, kRoadConPcodes)) {
    range->RoadConPcodes[0] = iRecordInteger(line);
    range->RoadConPcodes[1] = iRecordInteger(line);
  } else {
    return false;
  }
  return true;
}

void vReadInfoLine(RecordLine* line, Info* info) {
  for (const CodePair& pair : kInfoPairs) {
    if (!boRecordIs(line->Token, pair.Keyword)) continue;
    (info->*pair.Codes)[0] = iRecordInteger(line);
    (info->*pair.Codes)[1] = iRecordInteger(line);
    return;
  }
  if (!boRmKeywordLineRead<Info>(line, info, kInfoLines)) {
    boRmKeywordLineRead<Info>(line, info, kInfoEndLines);
  }
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  RmTunnelParamData* data = RmTunnelParamDataCreate();
  RmTunnelParamLayer* layer = nullptr;
  RmTunnelParamRange* range = nullptr;
  for (RecordLine line; data && boRecordNextLine(file, section, &line);) {
    const char* keyword = line.Token;
    if (boRecordIs(keyword, kLayers)) {
      layer = RmTunnelParamLayerAdd(data, static_cast<uint32_t>(iRecordInteger(&line)));
      range = nullptr;
    } else if (boRecordIs(keyword, kRange)) {
      double from = dRecordNumber(&line);
      range = RmTunnelParamRangeAdd(layer, from, dRecordNumber(&line));
    } else if (!range) {
      continue;
    } else if (boRecordIs(keyword, kInfo)) {
      RmTunnelParamRangeMakeInfo(range);
    } else if (!boReadRangeLine(&line, range) && range->Info) {
      vReadInfoLine(&line, range->Info);
    }
  }
  // A reader that fails leaves no parameters in the model.
  vRmModelSetTunnelParamData(model, data);
}

}  // namespace

const RmRecordFamily kRmTunnelParamDataFamily = {
    .Keyword = "TUNNELPARAMDATA",
    .Letter = 'O',
    .HasContent = boPresent,
    .Write = vWrite,
    .Read = vRead,
};
