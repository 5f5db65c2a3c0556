// The point store shared by triangle nets and point clouds: points, integer
// attributes per point, and the offset with which the points are written in
// compressed form.
#pragma once

#include <cstdint>
#include <vector>

#include "geometry/point.h"

// Point attribute types and their names.
enum : int {
  kViPointAttribIntensity = 0,  // "INTENSITY"
  kViPointAttribClass = 1,      // "CLASSIFICATION"
  kViPointAttribTypeCount = 2,
};

// Compressed points are held as 32-bit multiples of 0.1 mm from the offset:
// the size of such a coordinate in bytes, and the unit.
inline constexpr int kViCompressedSize = 4;
inline constexpr double kViCompressedUnit = 0.0001;

struct ViPointSet {
  std::vector<ViPoint3d> points;
  std::vector<int32_t> attribs[kViPointAttribTypeCount];  // one value per point when in use
  bool boUseAttrib[kViPointAttribTypeCount] = {};
  int iCompressedSize = 0;  // 0: no compression set
  double dOffsetX = 0.0, dOffsetY = 0.0;
};

// The name of an attribute type, null for an unknown type; the type of a
// name (exact match), -1 for an unknown or null name.
const char* sViPointAttribName(int type);
int iViPointAttribType(const char* name);

// Grows the store to at least `count` points; new points and their
// attribute values are 0.
void vViPointSetExpand(ViPointSet* set, int count);
// Sets the point at `index`, growing the store when needed; a negative index
// is ignored.
void vViPointSetSetP(ViPointSet* set, int index, double x, double y, double z);
// False (and a zero point) for an index out of range.
bool boViPointSetGetP(const ViPointSet& set, int index, ViPoint3d* point);
void vViPointSetAddExtent(const ViPointSet& set, ViExtent* extent);

bool boViPointSetUsesAttrib(const ViPointSet& set, int type);
// Turns an attribute on (every point gets 0) or off (its values go).
void vViPointSetUseAttrib(ViPointSet* set, int type, bool use);
// False for an attribute not in use or an index out of range.
bool boViPointSetSetAttrib(ViPointSet* set, int type, int index, int32_t value);
// 0 for an attribute not in use or an index out of range.
int32_t iViPointSetGetAttrib(const ViPointSet& set, int type, int index);

// The offset that makes the written coordinates short and non-negative: the
// minimum of the extent, rounded down to whole metres. False when the set has
// no points, or when its extent is too wide for compressed coordinates.
bool boViPointSetBestOffset(const ViPointSet& set, int* size, double* offsetX, double* offsetY);
