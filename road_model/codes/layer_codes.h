// Point codes of a whole layer: numbering, order and plain sequences.
#pragma once

#include "road_model/sections/layer.h"

// Gives every point a PCODE and a mark. A point takes those of the point of
// `reference` (which may be null) within `tol` of its offset; any other
// point counts on from its inner neighbour, one step outward, with that
// neighbour's mark. The walk starts at the first valid point at offset 0 or
// beyond (else at the last point), whose own default is 0.0001 on its side,
// and runs outward on that side, then on the other. Last, the codes are put
// in order (vRmLayerEnforceCodeOrder).
void vRmLayerRenumber(RmLayer* layer, const RmLayer* reference, double tol);

// Gives every point of a designed line a PCODE and a mark that agree with
// the surface line `line` (which may be null): a point takes those of the
// point of `line` within `tol` of its offset, any other counts on one step
// outward from its inner neighbour, with that neighbour's mark. The walk
// starts at the first point at offset 0 or beyond (the last of several at
// 0), whose own default is 0.0001 with mark 0, and runs outward on the
// right, then on the left; a layer without such a point starts at its last
// point with -0.0001 and is walked on the left only. Last, the codes are
// put in order. An empty layer is left alone.
void vRmLayerCodesFromLine(RmLayer* layer, const RmLayer* line, double tol);

// Makes the codes grow outward on each side: a code that does not lie
// beyond its inner neighbour's becomes that code plus one step outward. A
// closed layer is walked from first to last and its codes must rise.
void vRmLayerEnforceCodeOrder(RmLayer* layer);

// PCODEs 1.01, 1.02, ... from the first point: the group runs to 99 and
// then the family goes up.
void vRmLayerCodesSequential(RmLayer* layer);
// PCODEs 1.01, 1.0101, 1.0102, ... from the first point, where a gap starts the
// next family: the gap itself gets no code, and the first point behind it
// gets family + 1, group 1, number 0.
void vRmLayerCodesByRun(RmLayer* layer);
