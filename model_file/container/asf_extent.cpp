#include "model_file/container/asf_extent.h"

#include <cmath>
#include <cstdio>
#include <cstring>

void vAsfExtentSetEmpty(AsfExtent* extent) {
  if (!extent) return;
  extent->dMinX = kAsfExtentEmptyMin;
  extent->dMinY = kAsfExtentEmptyMin;
  extent->dMaxX = kAsfExtentEmptyMax;
  extent->dMaxY = kAsfExtentEmptyMax;
}

bool boAsfExtentIsEmpty(const AsfExtent& extent) { return extent.dMaxX < extent.dMinX; }

void vAsfExtentUnion(AsfExtent* extent, const AsfExtent& other) {
  if (!extent) return;
  if (other.dMinX < extent->dMinX) extent->dMinX = other.dMinX;
  if (other.dMinY < extent->dMinY) extent->dMinY = other.dMinY;
  if (other.dMaxX > extent->dMaxX) extent->dMaxX = other.dMaxX;
  if (other.dMaxY > extent->dMaxY) extent->dMaxY = other.dMaxY;
}

void vAsfExtentAddPoint(AsfExtent* extent, double x, double y) {
  vAsfExtentUnion(extent, AsfExtent{x, y, x, y});
}

int32_t iAsfTruncate32(double value) {
  if (value > -2147483649.0 && value < 2147483648.0) return static_cast<int32_t>(value);
  return INT32_MIN;
}

void vAsfExtentRoundOut(const AsfExtent& extent, int32_t out[4]) {
  out[0] = iAsfTruncate32(std::floor(extent.dMinX));
  out[1] = iAsfTruncate32(std::floor(extent.dMinY));
  out[2] = iAsfTruncate32(std::ceil(extent.dMaxX));
  out[3] = iAsfTruncate32(std::ceil(extent.dMaxY));
}

void vAsfExtentLineFormat(const AsfExtent& extent, bool padded, char* out, size_t size) {
  if (!out || size == 0) return;
  int32_t numbers[4];
  vAsfExtentRoundOut(extent, numbers);
  int length = snprintf(out, size, "_EXTENT %ld %ld %ld %ld ", static_cast<long>(numbers[0]),
                        static_cast<long>(numbers[1]), static_cast<long>(numbers[2]),
                        static_cast<long>(numbers[3]));
  if (length < 0) {
    out[0] = 0;
    return;
  }
  size_t used = static_cast<size_t>(length) < size ? static_cast<size_t>(length) : size - 1;
  if (!padded) return;
  size_t width = kAsfPlaceholderWidth < size ? kAsfPlaceholderWidth : size - 1;
  if (used < width) memset(out + used, '!', width - used);
  out[width > used ? width : used] = 0;
}

bool boAsfExtentScan(const char* text, AsfExtent* extent) {
  if (!text || !extent) return false;
  return sscanf(text, "%lf %lf %lf %lf", &extent->dMinX, &extent->dMinY, &extent->dMaxX,
                &extent->dMaxY) == 4;
}
