#include "model_file/records/frame/record_line.h"
#include "model_file/records/tunnel/tunnel_data_lines.h"

#include <cmath>
#include <cstring>

#include "base/fields.h"
#include "base/numbers.h"
#include "base/text.h"
#include "model_file/records/frame/keyword_lines.h"
#include "road_model/tunnel/tunnel_data.h"

namespace {

constexpr char kInterpolMethod[] = "INTERPOLMETHOD";
constexpr char kRoadbedLayerNo[] = "ROADBEDLAYERNO";
constexpr char kSection[] = ":TUNNELSECTION";
constexpr char kRotation[] = ":TUNNELROTATION";
constexpr char kPackage[] = ":TUNNELPACKAGE";
constexpr char kStandard[] = ":TUNNELSTANARD";  // the file's spelling
constexpr char kDescr[] = "DESCR";
constexpr char kVerticalSide[] = "VERTICALSIDE";
constexpr char kSurfaces[] = ":TUNNELSURFACES";
constexpr char kClipLayer[] = "CLIPLAYER";
constexpr char kRotationMethod[] = "ROTATIONMETHOD";
constexpr char kStartType[] = "STARTTYPE";
constexpr char kStartLayerNoOrExtraLine[] = "STARTLAYERNOOREXTRALINE";
constexpr char kStartPcode2[] = "STARTPCODE2";
constexpr char kStartXOffset[] = "STARTXOFFSET";
constexpr char kStartYOffset[] = "STARTYOFFSET";
constexpr char kTemplateChain[] = "TEMPLATECHAIN";

// An offset this close to 0 is not written.
constexpr double kUnset = 0.00001;

// The dimensions of a standard, each always written.
constexpr RmKeywordLine<RmTunnelStandard> kStandardLines[] = {
    {.Keyword = "TOTALWIDTH", .Format = "%.3f", .Real = &RmTunnelStandard::TotalWidth},
    {.Keyword = "LANEWIDTH", .Format = "%.3f", .Real = &RmTunnelStandard::LaneWidth},
    {.Keyword = "CENTREDISTHR", .Format = "%.3f", .Real = &RmTunnelStandard::CentreDistHR},
    {.Keyword = "CENTREHEIGHTWR", .Format = "%.3f", .Real = &RmTunnelStandard::CentreHeightWR},
    {.Keyword = "WALLRADIUS", .Format = "%.3f", .Real = &RmTunnelStandard::WallRadius},
    {.Keyword = "CENTREHEIGHTHR", .Format = "%.3f", .Real = &RmTunnelStandard::CentreHeightHR},
    {.Keyword = "HANGRADIUS", .Format = "%.3f", .Real = &RmTunnelStandard::HangRadius},
};


void vWriteGroup(AsfFile* file, AsfSection* section, const RmTunnelSurfaceGroup* group) {
  boRecordWrite(file, section, "%s %u", kSurfaces, group->LayerId);
  if (group->ClipLayer) boRecordWrite(file, section, "%s %u", kClipLayer, group->ClipLayer);
  if (group->RotationMethod) {
    boRecordWrite(file, section, "%s %ld", kRotationMethod, long{group->RotationMethod});
  }
  boRecordWrite(file, section, "%s %ld", kStartType, long{group->StartType});
  if (group->StartType != 0) {
    boRecordWrite(file, section, "%s %.4f", kStartLayerNoOrExtraLine,
                  group->StartLayerNoOrExtraLine);
  }
  if (group->StartType == 1) {
    boRecordWrite(file, section, "%s %.4f", kStartPcode2, group->StartPcode2);
  }
  if (std::fabs(group->StartXOffset) >= kUnset) {
    boRecordWrite(file, section, "%s %.4f", kStartXOffset, group->StartXOffset);
  }
  if (std::fabs(group->StartYOffset) >= kUnset) {
    boRecordWrite(file, section, "%s %.4f", kStartYOffset, group->StartYOffset);
  }
  for (auto* row = ListFirst<RmTunnelSurfaceRow>(&group->Rows); row; row = row->Next) {
    boRecordWrite(file, section, " %d %.4f %.4f %.4f %d %d", row->Number, row->Values[0],
                  row->Values[1], row->Values[2], row->Marks[0], row->Marks[1]);
  }
}

void vWritePackage(AsfFile* file, AsfSection* section, const RmTunnelPackage* package) {
  char quoted[kRecordQuoteSize];
  boRecordWrite(file, section, "%s %s", kPackage, sQuote(quoted, sizeof quoted, package->Name));
  if (const RmTunnelStandard* standard = package->Standard) {
    boRecordWrite(file, section, "%s", kStandard);
    if (standard->Descr[0]) {
      boRecordWrite(file, section, "%s %s", kDescr, sQuote(quoted, sizeof quoted, standard->Descr));
    }
    vRmKeywordLinesWrite<RmTunnelStandard>(file, section, *standard, kStandardLines);
    boRecordWrite(file, section, "%s %d %d", kVerticalSide, standard->VerticalLeft,
                  standard->VerticalRight);
  }
  for (auto* group = ListFirst<RmTunnelSurfaceGroup>(&package->SurfaceGroups); group;
       group = group->Next) {
    vWriteGroup(file, section, group);
  }
}

// Reads a row of numbers into the open group.
void vReadRow(RecordLine* line, RmTunnelSurfaceGroup* group) {
  RmTunnelSurfaceRow* row = RmTunnelSurfaceRowAdd(group);
  if (!row) return;
  vRecordLineStart(line, line->Text);
  row->Number = iRecordInteger(line);
  for (double& value : row->Values) value = dRecordNumber(line);
  for (int32_t& mark : row->Marks) mark = iRecordInteger(line);
}

// The keywords of a surface group; false for another keyword.
bool boReadGroupLine(RecordLine* line, RmTunnelSurfaceGroup* group) {
  const char* keyword = line->Token;
  if (boRecordIs(keyword, kClipLayer)) {
    group->ClipLayer = static_cast<uint32_t>(iRecordInteger(line));
  } else if (boRecordIs(keyword, kRotationMethod)) {
    group->RotationMethod = iRecordInteger(line);
  } else if (boRecordIs(keyword, kStartType)) {
    group->StartType = iRecordInteger(line);
  } else if (boRecordIs(keyword, kStartLayerNoOrExtraLine)) {
    group->StartLayerNoOrExtraLine = dRecordNumber(line, kNullNumber);
  } else if (boRecordIs(keyword, kStartPcode2)) {
    group->StartPcode2 = dRecordNumber(line, kNullNumber);
  } else if (boRecordIs(keyword, kStartXOffset)) {
    group->StartXOffset = dRecordNumber(line);
  } else if (boRecordIs(keyword, kStartYOffset)) {
    group->StartYOffset = dRecordNumber(line);
  } else {
    return false;
  }
  return true;
}

// The keywords of a standard; false for another keyword.
bool boReadStandardLine(RecordLine* line, RmTunnelStandard* standard) {
  if (boRecordIs(line->Token, kDescr)) {
    sCopy(standard->Descr, sRecordToken(line), sizeof standard->Descr);
  } else if (boRecordIs(line->Token, kVerticalSide)) {
    standard->VerticalLeft = iRecordInteger(line);
    standard->VerticalRight = iRecordInteger(line);
  } else {
    return boRmKeywordLineRead<RmTunnelStandard>(line, standard, kStandardLines);
  }
  return true;
}

}  // namespace

void vRmTunnelDataWrite(AsfFile* file, AsfSection* section, const RmTunnelData* data) {
  if (!data) return;
  char quoted[kRecordQuoteSize];
  boRecordWrite(file, section, "%s %ld", kInterpolMethod, long{data->InterpolMethod});
  boRecordWrite(file, section, "%s %ld", kRoadbedLayerNo, long{data->RoadbedLayerNo});
  for (auto* entry = ListFirst<RmTunnelSection>(&data->Sections); entry; entry = entry->Next) {
    boRecordWrite(file, section, "%s %.4f %s", kSection, entry->Chain,
                  sQuote(quoted, sizeof quoted, entry->Name));
  }
  for (auto* entry = ListFirst<RmTunnelRotation>(&data->Rotations); entry; entry = entry->Next) {
    boRecordWrite(file, section, "%s %.4f %ld %.4f", kRotation, entry->Chain, long{entry->Method},
                  entry->Value);
  }
  for (auto* package = ListFirst<RmTunnelPackage>(&data->Packages); package;
       package = package->Next) {
    vWritePackage(file, section, package);
  }
}

void vRmTunnelDataReadLine(RmTunnelDataReading* reading, RecordLine* line) {
  RmTunnelData* data = reading->Data;
  const char* keyword = line->Token;
  if (boRecordIsRow(line->Text)) {
    if (reading->Group) vReadRow(line, reading->Group);
  } else if (boRecordIs(keyword, kInterpolMethod)) {
    data->InterpolMethod = iRecordInteger(line);
  } else if (boRecordIs(keyword, kRoadbedLayerNo)) {
    data->RoadbedLayerNo = iRecordInteger(line);
  } else if (boRecordIs(keyword, kTemplateChain)) {
    if (reading->TemplateChain) *reading->TemplateChain = dRecordNumber(line);
  } else if (boRecordIs(keyword, kSection)) {
    double chain = dRecordNumber(line);
    RmTunnelSectionAdd(data, chain, sRecordToken(line));
  } else if (boRecordIs(keyword, kRotation)) {
    double chain = dRecordNumber(line);
    int method = iRecordInteger(line);
    RmTunnelRotationAdd(data, chain, method, dRecordNumber(line));
  } else if (boRecordIs(keyword, kPackage)) {
    reading->Package = RmTunnelPackageAdd(data, sRecordToken(line));
    reading->Group = nullptr;
  } else if (boRecordIs(keyword, kStandard)) {
    RmTunnelPackageMakeStandard(reading->Package);
  } else if (boRecordIs(keyword, kSurfaces)) {
    reading->Group =
        RmTunnelSurfaceGroupAdd(reading->Package, static_cast<uint32_t>(iRecordInteger(line)));
  } else if (reading->Group && boReadGroupLine(line, reading->Group)) {
    return;
  } else if (reading->Package && reading->Package->Standard) {
    boReadStandardLine(line, reading->Package->Standard);
  }
}
