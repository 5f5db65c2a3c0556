// Ditch parameters: how the ditches along the road are built (walls,
// backfill, manholes, bottom), where a ditch stands off the centre line,
// and two tables by pipe dimension: the space beside a pipe and its
// foundation.
#pragma once

#include <cstdint>

#include "base/slink.h"

// Where a ditch stands off the centre line.
struct RmDitchOffsetCl {
  int32_t Type;
  int32_t PipeType;
  int32_t ExtraLineId;
  double ExpandLength;
  int32_t AdjustWidthSlope;
  double AdjustMaxAngle;
};

// The space beside a pipe: at its left and at its right wall.
struct RmDitchPipeSpace {
  RmDitchPipeSpace* Next;
  double LeftWall;
  double RightWall;
};

// The foundation under a pipe: thickness first, then two further values.
struct RmDitchPipeFoundation {
  RmDitchPipeFoundation* Next;
  double Values[3];
};

struct RmDitchParamData {
  int32_t BuildMethod;
  int32_t WallDesignType;
  double SlopeWall;
  double SlopeWallDeep;
  double DeepDitchLimit;
  double ShallowDeepDitchMinLength;
  int32_t SlopeWallEqualSides;
  double SlopeWallRock;
  double RockBenchWidth;
  int32_t DesignBackfill;
  int32_t DesignBackfillRock;
  double HeightBackfill;
  double SlopeBackfill;
  int32_t IncludeManholes;
  double SpaceManhole;
  double MinBottomWidth;
  int32_t TerracedBottom;
  double SlopeTerracedBottom;
  int32_t StopInUndefinedArea;
  uint32_t ClipLayer;  // 0: none
  int32_t TrimLayer;   // 0: none
  bool HasOffsetCl;
  RmDitchOffsetCl OffsetCl;
  int32_t SpaceRefLine;
  ListHead PipeSpaces;       // RmDitchPipeSpace, heap nodes
  ListHead PipeFoundations;  // RmDitchPipeFoundation, heap nodes
};

// Parameters with every value 0 and empty tables; null when memory ran out.
RmDitchParamData* RmDitchParamDataCreate();
// Deletes the tables and the object, and nulls the pointer. Null is accepted.
void vRmDitchParamDataDelete(RmDitchParamData** data);
// Makes `to` a copy of `from`.
void vRmDitchParamDataCopy(RmDitchParamData* to, const RmDitchParamData* from);

// Each adds at the end; null when memory ran out.
RmDitchPipeSpace* RmDitchPipeSpaceAdd(RmDitchParamData* data, double leftWall, double rightWall);
RmDitchPipeFoundation* RmDitchPipeFoundationAdd(RmDitchParamData* data, const double values[3]);
