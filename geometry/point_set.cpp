#include "geometry/point_set.h"

#include <cmath>
#include <cstring>

namespace {

constexpr const char* kAttribNames[kViPointAttribTypeCount] = {"INTENSITY", "CLASSIFICATION"};

bool boKnownType(int type) { return type >= 0 && type < kViPointAttribTypeCount; }

}  // namespace

const char* sViPointAttribName(int type) {
  return boKnownType(type) ? kAttribNames[type] : nullptr;
}

int iViPointAttribType(const char* name) {
  if (name == nullptr) return -1;
  for (int type = 0; type < kViPointAttribTypeCount; ++type) {
    if (strcmp(name, kAttribNames[type]) == 0) return type;
  }
  return -1;
}

void vViPointSetExpand(ViPointSet* set, int count) {
  if (count <= 0 || static_cast<size_t>(count) <= set->points.size()) return;
  set->points.resize(static_cast<size_t>(count), ViPoint3d{0.0, 0.0, 0.0});
  for (int type = 0; type < kViPointAttribTypeCount; ++type) {
    if (set->boUseAttrib[type]) set->attribs[type].resize(static_cast<size_t>(count), 0);
  }
}

void vViPointSetSetP(ViPointSet* set, int index, double x, double y, double z) {
  if (index < 0) return;
  vViPointSetExpand(set, index + 1);
  set->points[static_cast<size_t>(index)] = {x, y, z};
}

bool boViPointSetGetP(const ViPointSet& set, int index, ViPoint3d* point) {
  if (index < 0 || static_cast<size_t>(index) >= set.points.size()) {
    *point = {0.0, 0.0, 0.0};
    return false;
  }
  *point = set.points[static_cast<size_t>(index)];
  return true;
}

void vViPointSetAddExtent(const ViPointSet& set, ViExtent* extent) {
  for (const ViPoint3d& point : set.points) vViExtentAddPoint(extent, point.x, point.y);
}

bool boViPointSetUsesAttrib(const ViPointSet& set, int type) {
  return boKnownType(type) && set.boUseAttrib[type];
}

void vViPointSetUseAttrib(ViPointSet* set, int type, bool use) {
  if (!boKnownType(type) || set->boUseAttrib[type] == use) return;
  set->boUseAttrib[type] = use;
  if (use) {
    set->attribs[type].assign(set->points.size(), 0);
  } else {
    std::vector<int32_t>().swap(set->attribs[type]);
  }
}

bool boViPointSetSetAttrib(ViPointSet* set, int type, int index, int32_t value) {
  if (!boViPointSetUsesAttrib(*set, type) || index < 0 ||
      static_cast<size_t>(index) >= set->attribs[type].size()) {
    return false;
  }
  set->attribs[type][static_cast<size_t>(index)] = value;
  return true;
}

int32_t iViPointSetGetAttrib(const ViPointSet& set, int type, int index) {
  if (!boViPointSetUsesAttrib(set, type) || index < 0 ||
      static_cast<size_t>(index) >= set.attribs[type].size()) {
    return 0;
  }
  return set.attribs[type][static_cast<size_t>(index)];
}

bool boViPointSetBestOffset(const ViPointSet& set, int* size, double* offsetX, double* offsetY) {
  if (set.points.empty()) return false;
  ViExtent extent;
  vViExtentClear(&extent);
  vViPointSetAddExtent(set, &extent);
  const double x = std::floor(extent.dMinX);
  const double y = std::floor(extent.dMinY);
  const double widest = 2147483647.0 * kViCompressedUnit;
  if (!(extent.dMaxX - x < widest) || !(extent.dMaxY - y < widest)) return false;
  *size = kViCompressedSize;
  *offsetX = x;
  *offsetY = y;
  return true;
}
