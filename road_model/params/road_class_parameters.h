// ROADCLASSPARAMETERS: the design values of the road class that the model
// was drawn for. Most values are quantities that count only when given; the
// lists of profile speed limits (three items) and superelevation (four) have
// fixed places, the lane widths one item per lane.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "road_model/params/road_class_quantity.h"

inline constexpr size_t kRmProfileSpeedLimitCount = 3;
inline constexpr size_t kRmSuperElevationCount = 4;

struct RmRoadClassParameters {
  int32_t market = 1;                                // 2 for a model of the Swedish market, else 1
  int32_t classVersion = 0;                          // version of the class rules, 2 once read
  std::string ParamVersion;                          // PARAMVERSION
  std::string ClassName;                             // CLASSNAME
  std::string RoadType;                              // ROADTYPE
  std::string Description;                           // DESCRIPTION
  IntQuantity AadtFrom;                              // AADT_FROM: yearly average daily traffic
  IntQuantity AadtTo;                                // AADT_TO
  Quantity SpeedLimit;                               // SPEEDLIMIT
  Quantity AddSafeSpeedLimit;                        // ADDSAFESPEEDLIMIT
  std::vector<RmQuantityPair> AddProfileSpeedLimit;  // ADDPROFILESPEEDLIMIT: speed, limit
  Quantity LeftShoulderWidth;                        // LEFTSHOULDER_WIDTH
  Quantity RightShoulderWidth;                       // RIGHTSHOULDER_WIDTH
  Quantity LeftShoulderBarrierWidth;                 // LEFTSHOULDERBARRIER_WIDTH
  Quantity RightShoulderBarrierWidth;                // RIGHTSHOULDERBARRIER_WIDTH
  std::vector<Quantity> LeftLaneWidth;               // LEFTLANE_WIDTH, one per lane
  std::vector<Quantity> RightLaneWidth;              // RIGHTLANE_WIDTH
  Quantity LeftBarrierWidth;                         // LEFTBARRIER_WIDTH
  Quantity RightBarrierWidth;                        // RIGHTBARRIER_WIDTH
  uint32_t BarrierType = 0;                          // BARRIERTYPE
  RmFactor BrakeFriction;                            // BRAKEFRICTION
  RmFactor SideFriction;                             // SIDEFRICTION
  RmFactor FrictionSafety;                           // FRICTIONSAFETY
  Quantity MaxVerticalAccel;                         // MAXVERTICALACCEL
  Quantity MaxVerticalSpeed;                         // MAXVERTICALSPEED
  Quantity AxleTrack;                                // AXLETRACK
  Quantity ReactionTime;                             // REACTIONTIME
  Quantity DriverEyeLevel;                           // DRIVEREYELEVEL
  Quantity ObjectHeight;                             // OBJECTHEIGHT
  Quantity MeetingHeight;                            // MEETINGHEIGHT
  std::vector<RmQuantityPair> SuperElevation;        // SUPERELEVATION
  RmGivenFlag RoofFall;                              // ROOFFALL
  Quantity MaxVerSlope;                              // MAXVERSLOPE
  Quantity MaxResSlope;                              // MAXRESSLOPE
  Quantity MinResSlope;                              // MINRESSLOPE
  size_t IntersectionTypes = 0;                      // INTERSECTIONTYPES
  size_t IntersectionTypesAtMinRad = 0;              // INTERSECTIONTYPESATMINRAD
  Quantity IntersectionDistance;                     // INTERSECTIONDISTANCE
  Quantity IntersectionMinHorizontal;                // INTERSECTIONMINHORIZONTAL
  Quantity IntersectionMinVertical;                  // INTERSECTIONMINVERTICAL
  size_t ExitPermissions = 0;                        // EXITPERMISSIONS
  Quantity ExitMinVerticalCrest;                     // EXITMINVERTICALCREST
  Quantity EmergencyLayByDist;                       // EMERGENCYLAYBYDIST
  size_t PassingCarLane = 0;                         // PASSINGCARLANE
  size_t LightingType = 0;                           // LIGHTINGTYPE
  std::string AltConstruction;                       // ALTCONSTRUCTION
  std::string VehicleCode;                           // VEHICLECODE
  size_t DrivingStyle = 0;                           // DRIVINGSTYLE
  RmGivenFlag NarrowRoad;                            // NARROWROAD
  Quantity ReductionOfWidthExpansion;                // REDUCTIONOFWIDTHEXPANSION
  Quantity InterpolationLength;                      // INTERPOLATIONLENGTH
  Quantity SteeringClearance;                        // STEERINGCLEARANCE
  RmGivenFlag HorizontalSpiral;                      // HORIZONTALSPIRAL
  RmGivenFlag VerticalParabola;                      // VERTICALPARABOLA
  Quantity MinHorizontalCurve;                       // MINHORIZONTALCURVE
  Quantity MinVerticalCurveHi;                       // MINVERTICALCURVEHI: crest
  Quantity MinVerticalCurveLo;                       // MINVERTICALCURVELO: sag
  Quantity JerkFactor;                               // JERKFACTOR
};

// A new record: nothing given, three zero profile speed limits and four
// zero superelevation items, every unit 1,1. Null when memory ran out.
RmRoadClassParameters* RmRoadClassParametersCreate();
// Frees the record and nulls the pointer; null is accepted.
void vRmRoadClassParametersDelete(RmRoadClassParameters** params);
void vRmRoadClassParametersCopy(RmRoadClassParameters* to, const RmRoadClassParameters* from);
