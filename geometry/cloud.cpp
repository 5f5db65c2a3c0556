#include "geometry/cloud.h"

PtCloud* PtCloudCreate() { return new PtCloud; }

void vPtCloudDelete(PtCloud** cloud) {
  if (cloud == nullptr) return;
  delete *cloud;
  *cloud = nullptr;
}

long lPtCloudGetID(const PtCloud* cloud) { return cloud != nullptr ? cloud->lId : 0; }

void vPtCloudSetID(PtCloud* cloud, long id) {
  if (cloud != nullptr) cloud->lId = id;
}

const char* sPtCloudGetGuid(const PtCloud* cloud) { return cloud != nullptr ? cloud->sGuid : ""; }

void vPtCloudSetGuid(PtCloud* cloud, const char* guid) {
  if (cloud != nullptr) vViCopyGuid(cloud->sGuid, guid);
}

int iPtCloudGetPointCount(const PtCloud* cloud) {
  return cloud != nullptr ? static_cast<int>(cloud->points.points.size()) : 0;
}

void vPtCloudExpandPointArray(PtCloud* cloud, int count) {
  if (cloud != nullptr) vViPointSetExpand(&cloud->points, count);
}

void vPtCloudSetP(PtCloud* cloud, int index, double x, double y, double z) {
  if (cloud != nullptr) vViPointSetSetP(&cloud->points, index, x, y, z);
}

bool boPtCloudGetP(const PtCloud* cloud, int index, ViPoint3d* point) {
  if (cloud == nullptr) {
    *point = {0.0, 0.0, 0.0};
    return false;
  }
  return boViPointSetGetP(cloud->points, index, point);
}

void vPtCloudGetExtent(const PtCloud* cloud, ViExtent* extent) {
  vViExtentClear(extent);
  if (cloud != nullptr) vViPointSetAddExtent(cloud->points, extent);
}

bool boPtCloudGetUsePointAttrib(const PtCloud* cloud, int type) {
  return cloud != nullptr && boViPointSetUsesAttrib(cloud->points, type);
}

void vPtCloudSetUsePointAttrib(PtCloud* cloud, int type, bool use) {
  if (cloud != nullptr) vViPointSetUseAttrib(&cloud->points, type, use);
}

bool boPtCloudSetPointAttribInt(PtCloud* cloud, int type, int index, int32_t value) {
  return cloud != nullptr && boViPointSetSetAttrib(&cloud->points, type, index, value);
}

int32_t iPtCloudGetPointAttribInt(const PtCloud* cloud, int type, int index) {
  return cloud != nullptr ? iViPointSetGetAttrib(cloud->points, type, index) : 0;
}

void vPtCloudSetCompressedSizeAndOffset(PtCloud* cloud, int size, double offsetX, double offsetY) {
  if (cloud == nullptr) return;
  cloud->points.iCompressedSize = size;
  cloud->points.dOffsetX = offsetX;
  cloud->points.dOffsetY = offsetY;
}

bool boPtCloudGetCompressedSizeAndOffset(const PtCloud* cloud, int* size, double* offsetX,
                                         double* offsetY) {
  if (cloud == nullptr || cloud->points.iCompressedSize == 0) return false;
  *size = cloud->points.iCompressedSize;
  *offsetX = cloud->points.dOffsetX;
  *offsetY = cloud->points.dOffsetY;
  return true;
}

bool boPtCloudGetBestCompressedSizeOffsetByExtent(const PtCloud* cloud, int* size, double* offsetX,
                                                  double* offsetY) {
  return cloud != nullptr && boViPointSetBestOffset(cloud->points, size, offsetX, offsetY);
}
