// Point clouds: points with integer attributes, an id and a GUID text.
// Offsets of compressed points are those of x and y. Every function takes a
// null cloud quietly.
#pragma once

#include <cstdint>

#include "geometry/point_set.h"

struct PtCloud {
  long lId = 0;
  char sGuid[kViGuidLength + 1] = {};
  ViPointSet points;
};

PtCloud* PtCloudCreate();
void vPtCloudDelete(PtCloud** cloud);
long lPtCloudGetID(const PtCloud* cloud);
void vPtCloudSetID(PtCloud* cloud, long id);
const char* sPtCloudGetGuid(const PtCloud* cloud);
void vPtCloudSetGuid(PtCloud* cloud, const char* guid);

int iPtCloudGetPointCount(const PtCloud* cloud);
void vPtCloudExpandPointArray(PtCloud* cloud, int count);
void vPtCloudSetP(PtCloud* cloud, int index, double x, double y, double z);
bool boPtCloudGetP(const PtCloud* cloud, int index, ViPoint3d* point);
void vPtCloudGetExtent(const PtCloud* cloud, ViExtent* extent);

bool boPtCloudGetUsePointAttrib(const PtCloud* cloud, int type);
void vPtCloudSetUsePointAttrib(PtCloud* cloud, int type, bool use);
bool boPtCloudSetPointAttribInt(PtCloud* cloud, int type, int index, int32_t value);
int32_t iPtCloudGetPointAttribInt(const PtCloud* cloud, int type, int index);

void vPtCloudSetCompressedSizeAndOffset(PtCloud* cloud, int size, double offsetX, double offsetY);
bool boPtCloudGetCompressedSizeAndOffset(const PtCloud* cloud, int* size, double* offsetX,
                                         double* offsetY);
bool boPtCloudGetBestCompressedSizeOffsetByExtent(const PtCloud* cloud, int* size, double* offsetX,
                                                  double* offsetY);
