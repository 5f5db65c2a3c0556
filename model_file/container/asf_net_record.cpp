// Triangle net and point cloud records: ":N" and ":C" with their extent,
// field values, GUID, counts and offsets, the points in "/POINTS2" (east and
// north less the offsets), the triangles of a net in "/TRIANGLES2" and a
// "/PATTRIBS" block for each point attribute in use. The older forms
// "/POINTS" and "/TRIANGLES" are read too.
#include "model_file/container/asf_net_record.h"

#include <cmath>
#include <cstring>

#include "model_file/container/asf_field_values.h"
#include "model_file/container/asf_record_input.h"
#include "model_file/container/asf_record_numbers.h"
#include "model_file/container/asf_record_output.h"

namespace {

// Point attribute values in a line.
constexpr int kAttribsPerLine = 16;
// The shortest line of a point or triangle ("0 0 0" and LF).
constexpr int kMinItemLineBytes = 6;
// Offsets closer to 0 than this mean that the points are not compressed.
constexpr double kOffsetMin = 0.00001;

// ---- The points of nets and clouds, under one set of names ----

int iPointCount(const TrNet* net) { return iTrNetGetPointCount(net); }
int iPointCount(const PtCloud* cloud) { return iPtCloudGetPointCount(cloud); }
bool boGetP(const TrNet* net, int index, ViPoint3d* point) {
  return boTrNetGetP(net, index, point);
}
bool boGetP(const PtCloud* cloud, int index, ViPoint3d* point) {
  return boPtCloudGetP(cloud, index, point);
}
void vGetExtent(const TrNet* net, ViExtent* extent) { vTrNetGetExtent(net, extent); }
void vGetExtent(const PtCloud* cloud, ViExtent* extent) { vPtCloudGetExtent(cloud, extent); }
bool boBestOffset(const TrNet* net, int* size, double* x, double* y) {
  return boTrNetGetBestCompressedSizeOffsetByExtent(net, size, x, y);
}
bool boBestOffset(const PtCloud* cloud, int* size, double* x, double* y) {
  return boPtCloudGetBestCompressedSizeOffsetByExtent(cloud, size, x, y);
}
bool boUsesAttrib(const TrNet* net, int type) { return boTrNetGetUsePointAttrib(net, type); }
bool boUsesAttrib(const PtCloud* cloud, int type) {
  return boPtCloudGetUsePointAttrib(cloud, type);
}
int32_t iAttrib(const TrNet* net, int type, int index) {
  return iTrNetGetPointAttribInt(net, type, index);
}
int32_t iAttrib(const PtCloud* cloud, int type, int index) {
  return iPtCloudGetPointAttribInt(cloud, type, index);
}
long lId(const TrNet* net) { return lTrNetGetID(net); }
long lId(const PtCloud* cloud) { return lPtCloudGetID(cloud); }
const char* sGuid(const TrNet* net) { return sTrNetGetGuid(net); }
const char* sGuid(const PtCloud* cloud) { return sPtCloudGetGuid(cloud); }

// ---- Writing ----

template <class Points>
void vWritePoints(AsfRecordOutput* output, const Points* object, double offsetX,
                  double offsetY) {
  int count = iPointCount(object);
  if (count <= 0) return;
  vAsfOutputText(output, "/POINTS2");
  for (int index = 0; index < count; ++index) {
    ViPoint3d point;
    boGetP(object, index, &point);
    char* line = pAsfOutputLineBegin(output);
    char* end = pAsfPrintNumber(line, point.x - offsetX, 4);
    *end++ = ' ';
    end = pAsfPrintNumber(end, point.y - offsetY, 4);
    *end++ = ' ';
    end = pAsfPrintNumber(end, point.z, 4);
    vAsfOutputLineEnd(output, end);
  }
}

void vWriteTriangles(AsfRecordOutput* output, const TrNet* net) {
  int count = iTrNetGetTriangleCount(net);
  if (count <= 0) return;
  vAsfOutputText(output, "/TRIANGLES2");
  for (int index = 0; index < count; ++index) {
    TrTriangle triangle;
    boTrNetGetTriangle(net, index, &triangle);
    char* line = pAsfOutputLineBegin(output);
    char* end = pAsfPrintInteger(line, triangle.iPoint[0]);
    *end++ = ' ';
    end = pAsfPrintInteger(end, triangle.iPoint[1]);
    *end++ = ' ';
    end = pAsfPrintInteger(end, triangle.iPoint[2]);
    vAsfOutputLineEnd(output, end);
  }
}

template <class Points>
void vWriteAttributes(AsfRecordOutput* output, const Points* object) {
  int count = iPointCount(object);
  for (int type = 0; type < kViPointAttribTypeCount; ++type) {
    if (!boUsesAttrib(object, type)) continue;
    vAsfOutputFormat(output, "/PATTRIBS %s", sTrNetGetPointAttribNameFromType(type));
    for (int first = 0; first < count; first += kAttribsPerLine) {
      int last = first + kAttribsPerLine < count ? first + kAttribsPerLine : count;
      char* line = pAsfOutputLineBegin(output);
      char* end = line;
      for (int index = first; index < last; ++index) {
        if (index > first) *end++ = ' ';
        end = pAsfPrintInteger(end, iAttrib(object, type, index));
      }
      vAsfOutputLineEnd(output, end);
    }
  }
}

template <class Points>
bool boWritePointsRecord(AsfFile* file, AsfSection* section, const Points* object, int type,
                         const TrNet* net, AsfFieldCallback fieldCallback, void* datum) {
  if (!object) return false;
  ViExtent extent;
  vGetExtent(object, &extent);
  AsfRecordOutput output;
  if (!boAsfRecordBegin(&output, file, section, type, extent)) return false;
  vAsfOutputFormat(&output, ":%c %ld", type == kAsfTypeNet ? 'N' : 'C', lId(object));
  vAsfOutputExtent(&output, extent);
  vAsfFieldValuesWrite(&output, section, object, fieldCallback, datum);
  vAsfOutputFormat(&output, "GUID %s", sGuid(object));
  vAsfOutputFormat(&output, "_#POINTS %d", iPointCount(object));
  if (net) vAsfOutputFormat(&output, "_#TRIANGLES %d", iTrNetGetTriangleCount(net));
  int size = 0;
  double offsetX = 0.0;
  double offsetY = 0.0;
  if (!boBestOffset(object, &size, &offsetX, &offsetY)) offsetX = offsetY = 0.0;
  vAsfOutputFormat(&output, "_OFFSET_NE %lf %lf", offsetX, offsetY);
  vWritePoints(&output, object, offsetX, offsetY);
  if (net) vWriteTriangles(&output, net);
  vWriteAttributes(&output, object);
  return boAsfOutputFlush(&output);
}

// ---- Reading ----

// Reads up to `count` integers at the cursor; those not there are 0.
// Returns how many were there.
int iScanIntegers(const char** cursor, int* values, int count) {
  int read = 0;
  for (int k = 0; k < count; ++k) {
    long value = 0;
    if (read == k && boAsfScanInteger(cursor, &value)) ++read;
    values[k] = static_cast<int>(value);
  }
  return read;
}

const char* pSkipIndexColon(const char* cursor) {
  while (*cursor == ' ') ++cursor;
  return *cursor == ':' ? cursor + 1 : cursor;
}

// Block readers take the lines of their block and give back the line that
// ends it: a "/" line, a ":" or "[" line, or null at the end of the file.
bool boEndsBlock(const char* line) { return line[0] == '/' || boAsfEndsRecord(line); }

const char* sReadPoints2(AsfFile* file, TrNet* net) {
  double offsetX = file->dOffsetNorth;
  double offsetY = file->dOffsetEast;
  if (std::fabs(offsetX) > kOffsetMin || std::fabs(offsetY) > kOffsetMin) {
    vTrNetSetCompressedSizeAndOffset(net, kViCompressedSize, offsetX, offsetY);
  }
  vTrNetExpandPointArray(net, iAsfBoundedCount(file, file->iPointCount, kMinItemLineBytes));
  int index = 0;
  while (const char* line = sAsfRecordLine(file)) {
    if (boEndsBlock(line)) return line;
    double point[3] = {0.0, 0.0, 0.0};
    if (iAsfScanNumbers(line, point, 3) == 0 || index == INT32_MAX) continue;
    vTrNetSetP(net, index++, point[0] + offsetX, point[1] + offsetY, point[2]);
  }
  return nullptr;
}

// "index[:] x y z", in absolute coordinates. An index may be at most one
// behind the points there are.
const char* sReadOldPoints(AsfFile* file, TrNet* net) {
  vTrNetExpandPointArray(net, iAsfBoundedCount(file, file->iPointCount, kMinItemLineBytes));
  while (const char* line = sAsfRecordLine(file)) {
    if (boEndsBlock(line)) return line;
    long index = 0;
    const char* cursor = line;
    if (!boAsfScanInteger(&cursor, &index)) continue;
    cursor = pSkipIndexColon(cursor);
    double point[3] = {0.0, 0.0, 0.0};
    iAsfScanNumbers(cursor, point, 3);
    if (index < 0 || index > iTrNetGetPointCount(net)) continue;
    vTrNetSetP(net, static_cast<int>(index), point[0], point[1], point[2]);
  }
  return nullptr;
}

const char* sReadTriangles2(AsfFile* file, TrNet* net) {
  vTrNetExpandTringleArray(net,
                           iAsfBoundedCount(file, file->iTriangleCount, kMinItemLineBytes));
  int index = 0;
  const char* line;
  while ((line = sAsfRecordLine(file)) != nullptr && !boEndsBlock(line)) {
    int points[3];
    const char* cursor = line;
    if (iScanIntegers(&cursor, points, 3) == 0 || index == INT32_MAX) continue;
    vTrNetSetTriangle(net, index++, points[0], points[1], points[2]);
  }
  if (index > 0 && file->boPoints2) vTrNetCalcNeighbours(net);
  return line;
}

// "index[:] p0 p1 p2 [( n0 n1 n2]". An index may be at most one behind the
// triangles there are.
const char* sReadOldTriangles(AsfFile* file, TrNet* net) {
  vTrNetExpandTringleArray(net,
                           iAsfBoundedCount(file, file->iTriangleCount, kMinItemLineBytes));
  while (const char* line = sAsfRecordLine(file)) {
    if (boEndsBlock(line)) return line;
    long index = 0;
    const char* cursor = line;
    if (!boAsfScanInteger(&cursor, &index)) continue;
    if (index < 0 || index > iTrNetGetTriangleCount(net)) continue;
    cursor = pSkipIndexColon(cursor);
    int points[3];
    iScanIntegers(&cursor, points, 3);
    vTrNetSetTriangle(net, static_cast<int>(index), points[0], points[1], points[2]);
    while (*cursor == ' ') ++cursor;
    if (*cursor != '(') continue;
    ++cursor;
    int neighbours[3];
    iScanIntegers(&cursor, neighbours, 3);
    boTrNetSetTriangleNeighbours(net, static_cast<int>(index), neighbours[0], neighbours[1],
                                 neighbours[2]);
  }
  return nullptr;
}

// The values of one attribute by running index, over as many lines as they
// take; values beyond the last point are passed.
const char* sReadAttributes(AsfFile* file, TrNet* net, int type) {
  int count = iTrNetGetPointCount(net);
  int index = 0;
  while (const char* line = sAsfRecordLine(file)) {
    if (boEndsBlock(line)) return line;
    long value = 0;
    const char* cursor = line;
    while (index < count && boAsfScanInteger(&cursor, &value)) {
      boTrNetSetPointAttribInt(net, type, index++, static_cast<int32_t>(value));
    }
  }
  return nullptr;
}

const char* sReadAttributeBlock(AsfFile* file, TrNet* net, const char* line) {
  const char* name = strchr(line, ' ');
  int type = name ? iTrNetGetPointAttribTypeFromName(name + 1) : -1;
  if (type < 0) return sAsfRecordLine(file);
  vTrNetSetUsePointAttrib(net, type, true);
  return sReadAttributes(file, net, type);
}

// The body of the pending net or cloud record: points, then blocks up to the
// next record or the end of the section.
void vReadNetBody(AsfFile* file, TrNet* net) {
  vTrNetSetGuid(net, file->acGuid);
  const char* line = file->boPoints2 ? sReadPoints2(file, net) : sReadOldPoints(file, net);
  while (line) {
    if (boAsfEndsRecord(line)) {
      vAsfRecordHold(file);
      return;
    }
    if (boAsfFirstWordIs(line, "/PATTRIBS")) {
      line = sReadAttributeBlock(file, net, line);
    } else if (boAsfFirstWordIs(line, "/TRIANGLES2")) {
      line = sReadTriangles2(file, net);
    } else if (boAsfFirstWordIs(line, "/TRIANGLES")) {
      line = sReadOldTriangles(file, net);
    } else {
      line = sAsfRecordLine(file);
    }
  }
}

bool boTakePending(AsfFile* file, const AsfSection* section, const void* object, int type) {
  if (!file || !section || !object || !file->pReader || file->iPendingType != type) return false;
  file->iPendingType = kAsfNoPendingType;
  return true;
}

}  // namespace

bool boAsfNetWrite(AsfFile* file, AsfSection* section, const TrNet* net,
                   AsfFieldCallback fieldCallback, void* datum) {
  return boWritePointsRecord(file, section, net, kAsfTypeNet, net, fieldCallback, datum);
}

bool boAsfCloudWrite(AsfFile* file, AsfSection* section, const PtCloud* cloud,
                     AsfFieldCallback fieldCallback, void* datum) {
  return boWritePointsRecord(file, section, cloud, kAsfTypeCloud, nullptr, fieldCallback,
                             datum);
}

bool boAsfNetRead(AsfFile* file, AsfSection* section, TrNet* net) {
  if (!boTakePending(file, section, net, kAsfTypeNet)) return false;
  vReadNetBody(file, net);
  return true;
}

bool boAsfCloudRead(AsfFile* file, AsfSection* section, PtCloud* cloud) {
  if (!boTakePending(file, section, cloud, kAsfTypeCloud)) return false;
  TrNet* net = TrNetCreate();
  vReadNetBody(file, net);
  vTrNetConvertToPointCloud(net, cloud);
  vTrNetDelete(&net);
  return true;
}
