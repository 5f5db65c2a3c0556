// Tunnel parameters: per layer, ranges of chainage with a tunnel type and,
// where the range has one, the shape of the tunnel's profile (walls, roof,
// transition curves and how the tunnel rotates).
#pragma once

#include <cstdint>

#include "base/slink.h"

inline constexpr int kRmTunnelParamNameSize = 80;

// The profile of a range.
struct RmTunnelParamInfo {
  int32_t CurvedWalls;
  int32_t FlatRoof;
  int32_t TransitionCurves;
  double WallRadius;
  double WallRadiusLeft;
  double WallRadiusRight;
  double ReferenceTunnelWidth;
  double ArcCentreHeight;
  double AngleAlpha;
  double AngleAlphaLeft;
  double AngleAlphaRight;
  double DeltaAlpha;
  double DeltaAlphaLeft;
  double DeltaAlphaRight;
  double AngleBeta;
  double DeltaBeta;
  double WallHeight;
  double WallHeightLeft;
  double WallHeightRight;
  double TransitionRadius;
  double StartTransitionRadius;
  int32_t PrimaryAngle;
  int32_t SelectionForStraightWalls;
  int32_t TunnelRotationMode;
  int32_t TunnelRotationPcodes[2];
  int32_t LeftWallRotationPcodes[2];
  int32_t RightWallRotationPcodes[2];
  int32_t NeutralContractionPoint;
  int32_t BaselineRoadPoint;
};

struct RmTunnelParamRange {
  RmTunnelParamRange* Next;
  double FromChain;
  double ToChain;
  char Name[kRmTunnelParamNameSize];  // empty: none
  int32_t Type;
  double Attribute;
  int32_t RoadConPcodes[2];
  RmTunnelParamInfo* Info;  // owned; null: none
};

struct RmTunnelParamLayer {
  RmTunnelParamLayer* Next;
  uint32_t LayerId;
  ListHead Ranges;  // RmTunnelParamRange, heap nodes
};

struct RmTunnelParamData {
  ListHead Layers;  // RmTunnelParamLayer, heap nodes
};

// Empty parameters; null when memory ran out.
RmTunnelParamData* RmTunnelParamDataCreate();
// Deletes everything and the object, and nulls the pointer. Null is accepted.
void vRmTunnelParamDataDelete(RmTunnelParamData** data);
// Makes `to` a deep copy of `from`.
void vRmTunnelParamDataCopy(RmTunnelParamData* to, const RmTunnelParamData* from);

// Each adds at the end; null when memory ran out.
RmTunnelParamLayer* RmTunnelParamLayerAdd(RmTunnelParamData* data, uint32_t layerId);
RmTunnelParamRange* RmTunnelParamRangeAdd(RmTunnelParamLayer* layer, double from, double to);
// The range's profile, made zeroed when it has none.
RmTunnelParamInfo* RmTunnelParamRangeMakeInfo(RmTunnelParamRange* range);
