// Points, extents and the common point test shared by every geometry object.
#pragma once

struct ViPoint2d {
  double x, y;
};

struct ViPoint3d {
  double x, y, z;
};

// Minimum x, minimum y, maximum x, maximum y. An empty extent holds the
// minima 99999999.9 and the maxima -99999999.9, so that any point widens it.
struct ViExtent {
  double dMinX, dMinY, dMaxX, dMaxY;
};

inline constexpr double kViExtentEmptyMin = 99999999.9;
inline constexpr double kViExtentEmptyMax = -99999999.9;

// The common point radius that the library starts with: two points closer
// than this in the plane are one point.
inline constexpr double kViDefaultCommonPointRadius = 0.00001;

// Length of a GUID text without its terminator; longer texts are cut.
inline constexpr int kViGuidLength = 46;

void vViExtentClear(ViExtent* extent);
bool boViExtentIsEmpty(const ViExtent& extent);
void vViExtentAddPoint(ViExtent* extent, double x, double y);
// Union of two extents; an empty `add` changes nothing.
void vViExtentAddExtent(ViExtent* extent, const ViExtent& add);

// True when the plan distance of the two points is at most the common point
// radius.
bool boViIsCommonPoint(double x1, double y1, double x2, double y2);
bool boViIsCommonPoint(const ViPoint2d& a, const ViPoint2d& b);

// The common point radius is process-wide. Callers that need another radius
// for one operation set it and put the old one back afterwards. A negative
// radius counts as 0.
double dViGetCommonPointRadius();
void vViSetCommonPointRadius(double radius);

// Copies `text` (null counts as empty) into a GUID buffer of
// kViGuidLength + 1 bytes, cutting it at kViGuidLength characters.
void vViCopyGuid(char* guid, const char* text);
