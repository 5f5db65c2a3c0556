#include "model_file/records/road_class/road_class_parameters_record.h"

#include <cerrno>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "model_file/records/frame/record_line.h"
#include "model_file/records/road_class/quantity_line.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"
#include "road_model/params/road_class_parameters.h"

namespace {

using Params = RmRoadClassParameters;

// How a line holds its value and when it is written.
enum class Form {
  kRestOfLine,      // text, the whole rest of the line, always
  kToken,           // text, one token, always
  kTextIfSet,       // text, the rest of the line, when not empty
  kInteger,         // "%u" of an integer quantity, always
  kQuantity,        // number record, when given
  kQuantityAlways,  // number record, always
  kPairs,           // one pair line per place
  kLanes,           // one number record per lane
  kUnsigned,        // "%u", always
  kCount,           // "%zu", always
  kFactor,          // "%.3f", when given
  kFlag,            // "%u", when given
};

struct Line {
  const char* Keyword;
  Form Kind;
  std::string Params::*Text = nullptr;
  IntQuantity Params::*Integer = nullptr;
  Quantity Params::*Number = nullptr;
  std::vector<RmQuantityPair> Params::*Pairs = nullptr;
  std::vector<Quantity> Params::*Lanes = nullptr;
  uint32_t Params::*Unsigned = nullptr;
  size_t Params::*Count = nullptr;
  RmFactor Params::*Factor = nullptr;
  RmGivenFlag Params::*Flag = nullptr;
};

constexpr Line kLines[] = {
    {.Keyword = "PARAMVERSION", .Kind = Form::kRestOfLine, .Text = &Params::ParamVersion},
    {.Keyword = "CLASSNAME", .Kind = Form::kRestOfLine, .Text = &Params::ClassName},
    {.Keyword = "ROADTYPE", .Kind = Form::kToken, .Text = &Params::RoadType},
    {.Keyword = "DESCRIPTION", .Kind = Form::kRestOfLine, .Text = &Params::Description},
    {.Keyword = "AADT_FROM", .Kind = Form::kInteger, .Integer = &Params::AadtFrom},
    {.Keyword = "AADT_TO", .Kind = Form::kInteger, .Integer = &Params::AadtTo},
    {.Keyword = "SPEEDLIMIT", .Kind = Form::kQuantity, .Number = &Params::SpeedLimit},
    {.Keyword = "ADDSAFESPEEDLIMIT", .Kind = Form::kQuantity, .Number = &Params::AddSafeSpeedLimit},
    {.Keyword = "ADDPROFILESPEEDLIMIT",
     .Kind = Form::kPairs,
     .Pairs = &Params::AddProfileSpeedLimit},
    {.Keyword = "LEFTSHOULDER_WIDTH",
     .Kind = Form::kQuantity,
     .Number = &Params::LeftShoulderWidth},
    {.Keyword = "RIGHTSHOULDER_WIDTH",
     .Kind = Form::kQuantity,
     .Number = &Params::RightShoulderWidth},
    {.Keyword = "LEFTSHOULDERBARRIER_WIDTH",
     .Kind = Form::kQuantity,
     .Number = &Params::LeftShoulderBarrierWidth},
    {.Keyword = "RIGHTSHOULDERBARRIER_WIDTH",
     .Kind = Form::kQuantity,
     .Number = &Params::RightShoulderBarrierWidth},
    {.Keyword = "LEFTLANE_WIDTH", .Kind = Form::kLanes, .Lanes = &Params::LeftLaneWidth},
    {.Keyword = "RIGHTLANE_WIDTH", .Kind = Form::kLanes, .Lanes = &Params::RightLaneWidth},
    {.Keyword = "LEFTBARRIER_WIDTH", .Kind = Form::kQuantity, .Number = &Params::LeftBarrierWidth},
    {.Keyword = "RIGHTBARRIER_WIDTH",
     .Kind = Form::kQuantity,
     .Number = &Params::RightBarrierWidth},
    {.Keyword = "BARRIERTYPE", .Kind = Form::kUnsigned, .Unsigned = &Params::BarrierType},
    {.Keyword = "BRAKEFRICTION", .Kind = Form::kFactor, .Factor = &Params::BrakeFriction},
    {.Keyword = "SIDEFRICTION", .Kind = Form::kFactor, .Factor = &Params::SideFriction},
    {.Keyword = "FRICTIONSAFETY", .Kind = Form::kFactor, .Factor = &Params::FrictionSafety},
    {.Keyword = "MAXVERTICALACCEL", .Kind = Form::kQuantity, .Number = &Params::MaxVerticalAccel},
    {.Keyword = "MAXVERTICALSPEED", .Kind = Form::kQuantity, .Number = &Params::MaxVerticalSpeed},
    {.Keyword = "AXLETRACK", .Kind = Form::kQuantity, .Number = &Params::AxleTrack},
    {.Keyword = "REACTIONTIME", .Kind = Form::kQuantity, .Number = &Params::ReactionTime},
    {.Keyword = "DRIVEREYELEVEL", .Kind = Form::kQuantity, .Number = &Params::DriverEyeLevel},
    {.Keyword = "OBJECTHEIGHT", .Kind = Form::kQuantity, .Number = &Params::ObjectHeight},
    {.Keyword = "MEETINGHEIGHT", .Kind = Form::kQuantity, .Number = &Params::MeetingHeight},
    {.Keyword = "SUPERELEVATION", .Kind = Form::kPairs, .Pairs = &Params::SuperElevation},
    {.Keyword = "ROOFFALL", .Kind = Form::kFlag, .Flag = &Params::RoofFall},
    {.Keyword = "MAXVERSLOPE", .Kind = Form::kQuantity, .Number = &Params::MaxVerSlope},
    {.Keyword = "MAXRESSLOPE", .Kind = Form::kQuantity, .Number = &Params::MaxResSlope},
    {.Keyword = "MINRESSLOPE", .Kind = Form::kQuantity, .Number = &Params::MinResSlope},
    {.Keyword = "INTERSECTIONTYPES", .Kind = Form::kCount, .Count = &Params::IntersectionTypes},
    {.Keyword = "INTERSECTIONTYPESATMINRAD",
     .Kind = Form::kCount,
     .Count = &Params::IntersectionTypesAtMinRad},
    {.Keyword = "INTERSECTIONDISTANCE",
     .Kind = Form::kQuantityAlways,
     .Number = &Params::IntersectionDistance},
    {.Keyword = "INTERSECTIONMINHORIZONTAL",
     .Kind = Form::kQuantityAlways,
     .Number = &Params::IntersectionMinHorizontal},
    {.Keyword = "INTERSECTIONMINVERTICAL",
     .Kind = Form::kQuantityAlways,
     .Number = &Params::IntersectionMinVertical},
    {.Keyword = "EXITPERMISSIONS", .Kind = Form::kCount, .Count = &Params::ExitPermissions},
    {.Keyword = "EXITMINVERTICALCREST",
     .Kind = Form::kQuantityAlways,
     .Number = &Params::ExitMinVerticalCrest},
    {.Keyword = "EMERGENCYLAYBYDIST",
     .Kind = Form::kQuantityAlways,
     .Number = &Params::EmergencyLayByDist},
    {.Keyword = "PASSINGCARLANE", .Kind = Form::kCount, .Count = &Params::PassingCarLane},
    {.Keyword = "LIGHTINGTYPE", .Kind = Form::kCount, .Count = &Params::LightingType},
    {.Keyword = "ALTCONSTRUCTION", .Kind = Form::kTextIfSet, .Text = &Params::AltConstruction},
    {.Keyword = "VEHICLECODE", .Kind = Form::kRestOfLine, .Text = &Params::VehicleCode},
    {.Keyword = "DRIVINGSTYLE", .Kind = Form::kCount, .Count = &Params::DrivingStyle},
    {.Keyword = "NARROWROAD", .Kind = Form::kFlag, .Flag = &Params::NarrowRoad},
    {.Keyword = "REDUCTIONOFWIDTHEXPANSION",
     .Kind = Form::kQuantity,
     .Number = &Params::ReductionOfWidthExpansion},
    {.Keyword = "INTERPOLATIONLENGTH",
     .Kind = Form::kQuantity,
     .Number = &Params::InterpolationLength},
    {.Keyword = "STEERINGCLEARANCE", .Kind = Form::kQuantity, .Number = &Params::SteeringClearance},
    {.Keyword = "HORIZONTALSPIRAL", .Kind = Form::kFlag, .Flag = &Params::HorizontalSpiral},
    {.Keyword = "VERTICALPARABOLA", .Kind = Form::kFlag, .Flag = &Params::VerticalParabola},
    {.Keyword = "MINHORIZONTALCURVE",
     .Kind = Form::kQuantity,
     .Number = &Params::MinHorizontalCurve},
    {.Keyword = "MINVERTICALCURVEHI",
     .Kind = Form::kQuantity,
     .Number = &Params::MinVerticalCurveHi},
    {.Keyword = "MINVERTICALCURVELO",
     .Kind = Form::kQuantity,
     .Number = &Params::MinVerticalCurveLo},
    {.Keyword = "JERKFACTOR", .Kind = Form::kQuantity, .Number = &Params::JerkFactor},
};

constexpr size_t kLineCount = sizeof kLines / sizeof kLines[0];

// The model's market that marks a record of the Swedish rules.
constexpr char kSwedishMarket[] = "Swe";
// The class version of a record read from a file.
constexpr int32_t kReadClassVersion = 2;

void vWriteLine(AsfFile* file, AsfSection* section, const Params& params, const Line& line) {
  const char* keyword = line.Keyword;
  switch (line.Kind) {
    case Form::kTextIfSet:
      if ((params.*line.Text).empty()) return;
      [[fallthrough]];
    case Form::kRestOfLine:
    case Form::kToken:
      boRecordWrite(file, section, "%s %s", keyword, (params.*line.Text).c_str());
      return;
    case Form::kInteger:
      boRecordWrite(file, section, "%s %u", keyword,
                    static_cast<unsigned>((params.*line.Integer).value));
      return;
    case Form::kQuantity:
      if (!(params.*line.Number).present) return;
      [[fallthrough]];
    case Form::kQuantityAlways:
      boQuantityWrite(file, section, keyword, params.*line.Number);
      return;
    case Form::kPairs:
      for (const RmQuantityPair& pair : params.*line.Pairs) {
        boQuantityPairWrite(file, section, keyword, pair);
      }
      return;
    case Form::kLanes:
      for (const Quantity& lane : params.*line.Lanes) {
        boQuantityWrite(file, section, keyword, lane);
      }
      return;
    case Form::kUnsigned:
      boRecordWrite(file, section, "%s %u", keyword, unsigned{params.*line.Unsigned});
      return;
    case Form::kCount:
      boRecordWrite(file, section, "%s %zu", keyword, params.*line.Count);
      return;
    case Form::kFactor:
      if ((params.*line.Factor).present) {
        boRecordWrite(file, section, "%s %.3f", keyword,
                      static_cast<double>((params.*line.Factor).value));
      }
      return;
    case Form::kFlag:
      if ((params.*line.Flag).given) {
        boRecordWrite(file, section, "%s %u", keyword, unsigned{(params.*line.Flag).value});
      }
      return;
  }
}

// The rest of the line behind the keyword, leading blanks skipped.
const char* sRestOfLine(RecordLine* line) {
  boRecordAtEnd(line);
  return line->Cursor;
}

// An unsigned number of the line; what cannot be read is 0.
unsigned long long llReadUnsigned(RecordLine* line) {
  const char* text = sRecordToken(line);
  if (*text == '-') return 0;
  errno = 0;
  unsigned long long value = std::strtoull(text, nullptr, 10);
  return errno == 0 ? value : 0;
}

// A factor of the line; what cannot be read as one, or does not fit a
// float, is 0.
double dReadNumber(RecordLine* line) {
  const double value = std::strtod(sRecordToken(line), nullptr);
  return std::isfinite(value) && std::fabs(value) <= FLT_MAX ? value : 0.0;
}

// Reads one line; `seen` counts the lines of the list keyword so far.
void vReadLine(RecordLine* record, Params* params, const Line& line, size_t* seen) {
  switch (line.Kind) {
    case Form::kRestOfLine:
    case Form::kTextIfSet:
      params->*line.Text = sRestOfLine(record);
      return;
    case Form::kToken:
      params->*line.Text = sRecordToken(record);
      return;
    case Form::kInteger:
      boIntQuantityRead(sRecordToken(record), &(params->*line.Integer));
      return;
    case Form::kQuantity:
    case Form::kQuantityAlways:
      boQuantityRead(sRecordToken(record), &(params->*line.Number));
      return;
    case Form::kPairs: {
      std::vector<RmQuantityPair>& pairs = params->*line.Pairs;
      const size_t place = (*seen)++;
      if (place >= pairs.size()) return;
      std::string first = sRecordToken(record);
      vQuantityPairRead(first.c_str(), sRecordToken(record), &pairs[place]);
      return;
    }
    case Form::kLanes: {
      std::vector<Quantity>& lanes = params->*line.Lanes;
      const size_t place = (*seen)++;
      if (place >= lanes.size()) lanes.resize(place + 1);
      boQuantityRead(sRecordToken(record), &lanes[place]);
      return;
    }
    case Form::kUnsigned:
      params->*line.Unsigned = static_cast<uint32_t>(llReadUnsigned(record));
      return;
    case Form::kCount:
      params->*line.Count = static_cast<size_t>(llReadUnsigned(record));
      return;
    case Form::kFactor:
      params->*line.Factor = RmFactor{static_cast<float>(dReadNumber(record)), 1};
      return;
    case Form::kFlag:
      params->*line.Flag = RmGivenFlag{static_cast<uint8_t>(llReadUnsigned(record) != 0), 1};
      return;
  }
}

bool boPresent(const RmModel* model, const RmRecordFamily&) {
  return RmModelGetRoadClassParameters(model) != nullptr;
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model, const RmRecordFamily&) {
  const Params& params = *RmModelGetRoadClassParameters(model);
  for (const Line& line : kLines) vWriteLine(file, section, params, line);
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  Params* params = RmRoadClassParametersCreate();
  if (!params) return;
  params->market = std::strcmp(model->Market, kSwedishMarket) == 0 ? 2 : 1;
  params->classVersion = kReadClassVersion;
  size_t seen[kLineCount] = {};
  for (RecordLine line; boRecordNextLine(file, section, &line);) {
    for (size_t i = 0; i < kLineCount; ++i) {
      if (std::strcmp(line.Token, kLines[i].Keyword) != 0) continue;
      vReadLine(&line, params, kLines[i], &seen[i]);
      break;
    }
  }
  vRmModelSetRoadClassParameters(model, params);
}

}  // namespace

const RmRecordFamily kRmRoadClassParametersFamily = {
    .Keyword = "ROADCLASSPARAMETERS",
    .Letter = 'O',
    .HasContent = boPresent,
    .Write = vWrite,
    .Read = vRead,
};
