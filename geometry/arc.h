// Circular arcs in the plane, made from two points and a signed radius or
// from three points, and measured along their length.
#pragma once

#include "geometry/point.h"

// An arc of a circle: centre, radius, the direction from the centre to the
// start point, and the signed sweep, positive counter-clockwise (a left turn).
struct GrArc {
  double dCenterX, dCenterY;
  double dRadius;
  double dStartAngle;
  double dSweep;
};

// The arc from (x0, y0) to (x1, y1) with the given radius: a positive radius
// turns left (counter-clockwise), a negative one right. Of the two arcs on
// that circle the shorter one is taken, the longer one (more than half a
// circle) when `large` is set. A radius a little too short for the chord
// (by up to 1e-6 m plus 1e-6 of it, as stored coordinates round) makes a half
// circle. False for a radius of 0, a
// chord of 0, or a radius shorter than half the chord.
bool boGrArcFrom2Points(double x0, double y0, double x1, double y1, double radius, bool large,
                        GrArc* arc);

// The arc from (x0, y0) through (xm, ym) to (x1, y1). False when the three
// points lie on one straight line or two of them coincide.
bool boGrArcFrom3Points(double x0, double y0, double xm, double ym, double x1, double y1,
                        GrArc* arc);

double dGrArcLength(const GrArc& arc);

// Point and direction of travel (radians from the x axis towards y) at the
// length `s` from the start; `direction` may be null.
void vGrArcPointAt(const GrArc& arc, double s, ViPoint2d* point, double* direction);

// Signed curvature: positive for a left turn.
double dGrArcCurvature(const GrArc& arc);

// Widens `extent` by the arc, including the points where it bulges furthest
// along the axes.
void vGrArcAddExtent(const GrArc& arc, ViExtent* extent);

// Distance from (x, y) to the arc and the length along the arc of the
// nearest point.
double dGrArcNearest(const GrArc& arc, double x, double y, double* s);

// Normalises an angle to the range (-pi, pi].
double dGrNormalizeAngle(double angle);
