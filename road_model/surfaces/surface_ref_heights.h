// The reference heights of a surface group (:SURFACEREFHEIGHTS): heights by
// chainage, ascending, between which the height runs straight. A height not
// above -99998.0 is a gap: no reference height holds next to it.
#pragma once

#include "base/dlink.h"

struct RmSurfaceRefHeight {
  RmSurfaceRefHeight* Next;
  RmSurfaceRefHeight* Prev;
  double Chain;
  float Height;
};

struct RmSurfaceRefHeights {
  ListHead Rows;  // of RmSurfaceRefHeight, heap nodes
};

RmSurfaceRefHeights* RmSurfaceRefHeightsCreate();
void vRmSurfaceRefHeightsDelete(RmSurfaceRefHeights** list);
void vRmSurfaceRefHeightsCopy(RmSurfaceRefHeights* to, const RmSurfaceRefHeights* from);

RmSurfaceRefHeight* RmSurfaceRefHeightsGetFirst(const RmSurfaceRefHeights* list);
// A new row in front of the first one of a greater chainage; only its
// chainage is set.
RmSurfaceRefHeight* RmSurfaceRefHeightAdd(RmSurfaceRefHeights* list, double chain);
// The first row at `chain` or later.
RmSurfaceRefHeight* RmSurfaceRefHeightFindFrom(const RmSurfaceRefHeights* list, double chain);
// Removes every row that the straight line between its neighbours gives
// anyway (within 1e-5). A list left with two rows of height 0 says nothing:
// it is deleted and the pointer nulled.
void vRmSurfaceRefHeightsThin(RmSurfaceRefHeights** list);
// The height at `chain`, straight between the rows around it; false (and 0)
// outside the rows, next to a gap, or between two rows of one chainage.
bool boRmSurfaceRefHeightAt(const RmSurfaceRefHeights* list, double chain, float* height);
