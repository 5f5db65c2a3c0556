// The surface descriptions against the designed surface line of a section.
//
// The design computes its sections from its surface descriptions, but may
// deviate from them: a surface that the design made wider, steeper or that
// ended. Where the surface line of a section deviates from what the
// descriptions of surface group 1 predict, a break row (type 1) with the
// line's width and slope is added to the surface at the section's
// chainage; where a surface of the section before has ended, a row of width
// and slope 0 closes it.
#pragma once

struct RmLayer;
struct RmModel;
struct RmPoint;
struct RmSection;
struct RmSurfaceGroup;

// What the checks of one side of one section share.
struct VipsSurfaceCheck {
  RmModel* model;
  const RmSection* section;
  const RmLayer* layer;   // the surface line (3, 0) of the section
  RmSurfaceGroup* group;  // surface group 1
  int side;               // 1 left, 2 right
  double running;         // the height carried along the side by the evaluation
};

// Checks every coded point of the surface line `layer` of `section` on
// each side, up to the side boundary, and then the surfaces that ended
// since the section before. CALCTHEO is 3 meanwhile. Without surface group
// 1 nothing is done.
void vVipsReconcileSurfaceLine(RmModel* model, const RmSection* section, const RmLayer* layer);

// The width and slope of the piece of the surface line from `point` to its
// neighbour towards the centre line, checked against the surface of the
// point's code.
void vVipsSurfacePointCheck(VipsSurfaceCheck& check, const RmPoint* point);

// Adds a break row to the surface of `code` where the line's `width` and
// `slope` deviate from what the descriptions predict (by more than 0.002 in
// width or 0.001 in height difference), and also where they predict
// nothing. Ditches and slopes (families 4 to 7) the descriptions let grow
// are not checked against a narrower line, nor a ditch whose slope agrees
// where a minimum ditch depth holds, unless a ditch surface beyond it falls.
void vVipsSurfaceRowCheck(VipsSurfaceCheck& check, int code, double width, double slope);

// Closes each surface of family below 4 that the section before has on its
// surface line and `layer` no longer has, with a row of width and slope 0
// at this chainage, unless the surface has ended there anyway.
void vVipsSurfaceEndCheck(RmModel* model, const RmSection* section, const RmLayer* layer,
                          RmSurfaceGroup* group);
