// Tunnel data: the tunnel sections and rotations along the road, and the
// packages of tunnel standards with their surface groups. The same object
// describes the model's tunnel (TUNNELDATA) and each tunnel block.
#pragma once

#include <cstdint>

#include "base/slink.h"

inline constexpr int kRmTunnelNameSize = 80;
inline constexpr int kRmTunnelDescrSize = 200;

// A tunnel section placed at a chainage, by name.
struct RmTunnelSection {
  RmTunnelSection* Next;
  double Chain;
  char Name[kRmTunnelNameSize];
};

struct RmTunnelRotation {
  RmTunnelRotation* Next;
  double Chain;
  int32_t Method;
  double Value;
};

// The dimensions of a tunnel standard.
struct RmTunnelStandard {
  char Descr[kRmTunnelDescrSize];  // empty: none
  double TotalWidth;
  double LaneWidth;
  double CentreDistHR;
  double CentreHeightWR;
  double WallRadius;
  double CentreHeightHR;
  double HangRadius;
  int32_t VerticalLeft;
  int32_t VerticalRight;
};

// One row of a surface group: an integer, three reals, two integers.
struct RmTunnelSurfaceRow {
  RmTunnelSurfaceRow* Next;
  int32_t Number;
  double Values[3];
  int32_t Marks[2];
};

struct RmTunnelSurfaceGroup {
  RmTunnelSurfaceGroup* Next;
  uint32_t LayerId;
  uint32_t ClipLayer;  // 0: none
  int32_t RotationMethod;
  int32_t StartType;  // 0, 1 or 2, as for surface groups
  double StartLayerNoOrExtraLine;
  double StartPcode2;
  double StartXOffset;
  double StartYOffset;
  ListHead Rows;  // RmTunnelSurfaceRow, heap nodes
};

struct RmTunnelPackage {
  RmTunnelPackage* Next;
  char Name[kRmTunnelNameSize];
  RmTunnelStandard* Standard;  // owned; null: none
  ListHead SurfaceGroups;      // RmTunnelSurfaceGroup, heap nodes
};

struct RmTunnelData {
  int32_t InterpolMethod;
  int32_t RoadbedLayerNo;
  ListHead Sections;   // RmTunnelSection, heap nodes
  ListHead Rotations;  // RmTunnelRotation, heap nodes
  ListHead Packages;   // RmTunnelPackage, heap nodes
};

// Empty tunnel data; null when memory ran out.
RmTunnelData* RmTunnelDataCreate();
// Deletes everything and the object, and nulls the pointer. Null is accepted.
void vRmTunnelDataDelete(RmTunnelData** data);
// Makes `to` a deep copy of `from`.
void vRmTunnelDataCopy(RmTunnelData* to, const RmTunnelData* from);

// Whether the data has a tunnel section or a rotation row.
bool boRmTunnelDataHasRows(const RmTunnelData* data);

// Each adds at the end and returns the new entry; null when memory ran out.
RmTunnelSection* RmTunnelSectionAdd(RmTunnelData* data, double chain, const char* name);
RmTunnelRotation* RmTunnelRotationAdd(RmTunnelData* data, double chain, int method, double value);
RmTunnelPackage* RmTunnelPackageAdd(RmTunnelData* data, const char* name);
// The package's standard, made zeroed when it has none.
RmTunnelStandard* RmTunnelPackageMakeStandard(RmTunnelPackage* package);
// A group with no start (start marks -99999.0, offsets 0).
RmTunnelSurfaceGroup* RmTunnelSurfaceGroupAdd(RmTunnelPackage* package, uint32_t layerId);
RmTunnelSurfaceRow* RmTunnelSurfaceRowAdd(RmTunnelSurfaceGroup* group);
