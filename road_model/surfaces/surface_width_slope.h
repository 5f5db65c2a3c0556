// The width and slope of one surface in one section, as the section's
// builder asks for them while it walks outward across the road.
#pragma once

struct RmModel;
struct RmSection;
struct RmSurface;
struct RmSurfaceGroup;

// The inner edge of the surface being built: its offset along the section
// (negative to the left) and its height. The build runs outward from edge
// to edge.
struct RmSurfaceEdge {
  double Offset;
  double Height;
};

// The width and slope of `surface` of `group` in `section`, in the plane of
// the section (through its tilt, see tilt.h: call vRmTiltBegin first).
//
// A break row at the section's chainage decides first. Otherwise the
// surface's break values are asked for when it is broken off there (and the
// section has no theoretical layer 0 of the second kind, which a break does
// not touch), else, or when that gives nothing, its ordinary values. A
// surface whose outer edge follows a line takes its width from where that
// line crosses the section: the string line of its number in its group's
// layer when the model is built from string lines (CALCMODE 3), else the
// line of the group's border line for the surface at the chainage. `extra`
// tells whether the width came from such a line.
//
// With a value, `edge` (when given) moves to the surface's outer edge, and
// the result is 1; without one the outputs are unset and the result 0.
int iRmSurfaceWidthAndSlope(const RmModel* model, const RmSurfaceGroup* group,
                            const RmSurface* surface, const RmSection* section,
                            RmSurfaceEdge* edge, double* width, double* slope, int* extra);
