// ROADDIMPARAMS. A model of the Norwegian market with CLASSVERSION 0 is
// written in the old form (speed, traffic, basic road, road and vehicle
// class); every other model writes the road class and its version. The
// reader takes all six keywords wherever they stand.
#include <cstring>

#include "base/text.h"
#include "model_file/records/head/head_records.h"
#include "model_file/records/frame/record_line.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"
#include "road_model/params/road_dim_params.h"

namespace {

// The file keeps this many characters of a vehicle class.
constexpr size_t kVehicleClassRead = 4;

// A fixed field as a terminated text, also when it fills its whole array.
template <size_t N>
const char* sTerminated(const char (&field)[N], char (&out)[N + 1]) {
  std::memcpy(out, field, N);
  out[N] = 0;
  return out;
}

}  // namespace

bool boRmRoadDimParamsPresent(const RmModel* model) { return model->RoadDimParams != nullptr; }

void vRmRoadDimParamsWrite(AsfFile* file, AsfSection* section, const RmModel* model) {
  const RmRoadDimParams* params = model->RoadDimParams;
  char roadClass[kRmRoadClassSize + 1];
  sTerminated(params->RoadClass, roadClass);
  if (boRmRoadDimParamsIsOldForm(params, model->Market)) {
    char vehicleClass[kRmVehicleClassSize + 1];
    boRecordWrite(file, section, "SPEED %d", params->Speed);
    boRecordWrite(file, section, "YDT %d", params->Ydt);
    boRecordWrite(file, section, "BASICROAD %d", params->BasicRoad);
    boRecordWrite(file, section, "ROADCLASS %s", roadClass);
    boRecordWrite(file, section, "VEHICLECLASS %s",
                  sTerminated(params->VehicleClass, vehicleClass));
  } else {
    boRecordWrite(file, section, "ROADCLASS %s", roadClass);
    boRecordWrite(file, section, "CLASSVERSION %d", params->ClassVersion);
  }
}

void vRmRoadDimParamsRead(AsfFile* file, AsfSection* section, RmModel* model) {
  RmRoadDimParams* params = RmRoadDimParamsCreate();
  if (!params) return;
  for (RecordLine line; boRecordNextLine(file, section, &line);) {
    const char* keyword = line.Token;
    if (std::strcmp(keyword, "SPEED") == 0) {
      params->Speed = iRecordInteger(&line);
    } else if (std::strcmp(keyword, "YDT") == 0) {
      params->Ydt = iRecordInteger(&line);
    } else if (std::strcmp(keyword, "BASICROAD") == 0) {
      params->BasicRoad = iRecordInteger(&line);
    } else if (std::strcmp(keyword, "ROADCLASS") == 0) {
      sCopy(params->RoadClass, sRecordToken(&line), sizeof params->RoadClass);
    } else if (std::strcmp(keyword, "VEHICLECLASS") == 0) {
      sCopy(params->VehicleClass, sRecordToken(&line), kVehicleClassRead + 1);
    } else if (std::strcmp(keyword, "CLASSVERSION") == 0) {
      params->ClassVersion = iRecordInteger(&line, params->ClassVersion);
    }
  }
  vRmModelSetRoadDimParams(model, params);
}
