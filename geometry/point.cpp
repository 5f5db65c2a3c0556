#include "geometry/point.h"

#include <atomic>
#include <cstring>

namespace {

std::atomic<double> g_commonPointRadius{kViDefaultCommonPointRadius};

}  // namespace

void vViExtentClear(ViExtent* extent) {
  extent->dMinX = kViExtentEmptyMin;
  extent->dMinY = kViExtentEmptyMin;
  extent->dMaxX = kViExtentEmptyMax;
  extent->dMaxY = kViExtentEmptyMax;
}

bool boViExtentIsEmpty(const ViExtent& extent) {
  return extent.dMinX > extent.dMaxX || extent.dMinY > extent.dMaxY;
}

void vViExtentAddPoint(ViExtent* extent, double x, double y) {
  if (x < extent->dMinX) extent->dMinX = x;
  if (y < extent->dMinY) extent->dMinY = y;
  if (x > extent->dMaxX) extent->dMaxX = x;
  if (y > extent->dMaxY) extent->dMaxY = y;
}

void vViExtentAddExtent(ViExtent* extent, const ViExtent& add) {
  if (boViExtentIsEmpty(add)) return;
  vViExtentAddPoint(extent, add.dMinX, add.dMinY);
  vViExtentAddPoint(extent, add.dMaxX, add.dMaxY);
}

bool boViIsCommonPoint(double x1, double y1, double x2, double y2) {
  const double radius = g_commonPointRadius.load(std::memory_order_relaxed);
  const double dx = x2 - x1;
  const double dy = y2 - y1;
  return dx * dx + dy * dy <= radius * radius;
}

bool boViIsCommonPoint(const ViPoint2d& a, const ViPoint2d& b) {
  return boViIsCommonPoint(a.x, a.y, b.x, b.y);
}

double dViGetCommonPointRadius() { return g_commonPointRadius.load(std::memory_order_relaxed); }

void vViSetCommonPointRadius(double radius) {
  g_commonPointRadius.store(radius > 0.0 ? radius : 0.0, std::memory_order_relaxed);
}

void vViCopyGuid(char* guid, const char* text) {
  if (text == nullptr) text = "";
  size_t length = strnlen(text, kViGuidLength);
  memmove(guid, text, length);
  guid[length] = '\0';
}
