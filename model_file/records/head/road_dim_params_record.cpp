#include "model_file/records/head/road_dim_params_record.h"

#include <cstring>

#include "base/text.h"
#include "model_file/records/frame/record_line.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"
#include "road_model/params/road_class_parameters.h"
#include "road_model/params/road_dim_params.h"

namespace {

// The file keeps this many characters of a vehicle class.
constexpr size_t kVehicleClassRead = 4;

constexpr char kSpeed[] = "SPEED";
constexpr char kYdt[] = "YDT";
constexpr char kBasicRoad[] = "BASICROAD";
constexpr char kRoadClass[] = "ROADCLASS";
constexpr char kVehicleClass[] = "VEHICLECLASS";
constexpr char kClassVersion[] = "CLASSVERSION";

// A fixed field as a terminated text, also when it fills its whole array.
template <size_t N>
const char* sTerminated(const char (&field)[N], char (&out)[N + 1]) {
  std::memcpy(out, field, N);
  out[N] = 0;
  return out;
}


bool boPresent(const RmModel* model, const RmRecordFamily&) {
  return RmModelGetRoadDimParams(model) != nullptr;
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model, const RmRecordFamily&) {
  const RmRoadDimParams* params = model->RoadDimParams;
  char roadClass[kRmRoadClassSize + 1];
  sTerminated(params->RoadClass, roadClass);
  if (boRmRoadDimParamsIsOldForm(params, model->Market)) {
    char vehicleClass[kRmVehicleClassSize + 1];
    boRecordWrite(file, section, "%s %d", kSpeed, params->Speed);
    boRecordWrite(file, section, "%s %d", kYdt, params->Ydt);
    boRecordWrite(file, section, "%s %d", kBasicRoad, params->BasicRoad);
    boRecordWrite(file, section, "%s %s", kRoadClass, roadClass);
    boRecordWrite(file, section, "%s %s", kVehicleClass,
                  sTerminated(params->VehicleClass, vehicleClass));
  } else {
    boRecordWrite(file, section, "%s %s", kRoadClass, roadClass);
    boRecordWrite(file, section, "%s %d", kClassVersion, params->ClassVersion);
  }
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  RmRoadDimParams* params = RmRoadDimParamsCreate();
  if (!params) return;
  // A file without CLASSVERSION has the version of the model's road class.
  if (const RmRoadClassParameters* roadClass = RmModelGetRoadClassParameters(model)) {
    params->ClassVersion = roadClass->classVersion;
  }
  for (RecordLine line; boRecordNextLine(file, section, &line);) {
    const char* keyword = line.Token;
    if (boRecordIs(keyword, kSpeed)) {
      params->Speed = iRecordInteger(&line);
    } else if (boRecordIs(keyword, kYdt)) {
      params->Ydt = iRecordInteger(&line);
    } else if (boRecordIs(keyword, kBasicRoad)) {
      params->BasicRoad = iRecordInteger(&line);
    } else if (boRecordIs(keyword, kRoadClass)) {
      sCopy(params->RoadClass, sRecordToken(&line), sizeof params->RoadClass);
    } else if (boRecordIs(keyword, kVehicleClass)) {
      sCopy(params->VehicleClass, sRecordToken(&line), kVehicleClassRead + 1);
    } else if (boRecordIs(keyword, kClassVersion)) {
      params->ClassVersion = iRecordInteger(&line, params->ClassVersion);
    }
  }
  vRmModelSetRoadDimParams(model, params);
}

}  // namespace

const RmRecordFamily kRmRoadDimParamsFamily = {
    .Keyword = "ROADDIMPARAMS",
    .Letter = 'O',
    .HasContent = boPresent,
    .Write = vWrite,
    .Read = vRead,
};
