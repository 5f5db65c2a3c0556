// Clothoids: curves whose curvature changes linearly with their length.
//
// A clothoid element is given by its two end points, its start and end
// radius (0 standing for a straight end, positive turning left) and its
// parameter A, with A^2 = length / |end curvature - start curvature|. The
// shape that the curvatures and A determine is laid between the two end
// points by a rotation and, to absorb rounding in stored coordinates, a
// uniform scale that is 1 for consistent data. Positions are integrated
// numerically (Gauss-Legendre, with each step turning at most half a radian),
// which keeps them within 1e-9 of the exact curve for lengths of kilometres.
#pragma once

#include "geometry/point.h"

struct VgClothoid {
  double dStartX, dStartY;
  double dStartDirection;  // radians from the x axis towards y
  double dStartCurvature;  // of the unscaled shape; positive turns left
  double dEndCurvature;
  double dLocalLength;  // length of the unscaled shape
  double dScale;        // actual size / unscaled size
};

// Fits the clothoid from (x0, y0) to (x1, y1). Equal curvatures make a
// circular arc (the shorter one) or a straight, for which A is not needed.
// False when the end points coincide, when A is not above 0 for different
// curvatures, or when the shape closes on itself so that its ends meet.
bool boVgClothoidFit(double x0, double y0, double x1, double y1, double startRadius,
                     double endRadius, double a, VgClothoid* clothoid);

double dVgClothoidLength(const VgClothoid& clothoid);

// Point and direction of travel at the length `s` from the start;
// `direction` may be null.
void vVgClothoidPointAt(const VgClothoid& clothoid, double s, ViPoint2d* point, double* direction);

double dVgClothoidDirectionAt(const VgClothoid& clothoid, double s);

// Signed curvature at the length `s`: positive for a left turn.
double dVgClothoidCurvatureAt(const VgClothoid& clothoid, double s);

// Widens `extent` by the whole curve, including the points where it bulges
// furthest along the axes.
void vVgClothoidAddExtent(const VgClothoid& clothoid, ViExtent* extent);

// Distance from (x, y) to the curve and the length along it of the nearest
// point.
double dVgClothoidNearest(const VgClothoid& clothoid, double x, double y, double* s);
