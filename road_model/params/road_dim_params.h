// ROADDIMPARAMS: the road's design class.
//
// CLASSVERSION 0 in a model of the Norwegian market is the old form, in which
// SPEED, YDT, BASICROAD, ROADCLASS and VEHICLECLASS all count; in any other
// model only ROADCLASS and CLASSVERSION do.
#pragma once

#include <cstdint>

inline constexpr int kRmRoadClassSize = 40;
inline constexpr int kRmVehicleClassSize = 8;

struct RmRoadDimParams {
  char RoadClass[kRmRoadClassSize];      // ROADCLASS
  int32_t ClassVersion;                  // CLASSVERSION
  int32_t Speed;                         // SPEED
  int32_t Ydt;                           // YDT: yearly average daily traffic
  int32_t BasicRoad;                     // BASICROAD
  char VehicleClass[kRmVehicleClassSize];  // VEHICLECLASS
};

// A new record, all zero; null when memory ran out.
RmRoadDimParams* RmRoadDimParamsCreate();
// Frees the record and nulls the pointer; null is accepted.
void vRmRoadDimParamsDelete(RmRoadDimParams** params);
void vRmRoadDimParamsCopy(RmRoadDimParams* to, const RmRoadDimParams* from);

// Whether the record is in the old form for a model of market `market`.
bool boRmRoadDimParamsIsOldForm(const RmRoadDimParams* params, const char* market);
