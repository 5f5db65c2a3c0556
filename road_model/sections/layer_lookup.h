// Finding points of a layer: by offset, height or code (by side:
// layer_sides.h).
//
// Offsets and heights are compared on the stored single-precision values.
// Every lookup gives null when nothing is found. Sides are 1 (left,
// negative offsets and codes) and 2 (right).
#pragma once

#include "road_model/sections/layer.h"

// ---- By offset, height and code ----

// The first point within 0.001 of `x` (strict).
RmPoint* RmPointFindNearX(const RmLayer* layer, double x);
// The first point within |tol| of `x` (strict).
RmPoint* RmPointFindNearXTol(const RmLayer* layer, double x, double tol);
// The first point at or beyond `x`; a later point at `x` itself (1e-5)
// takes its place, so that the upper end of a vertical piece is found.
RmPoint* RmPointFindXFromLeft(const RmLayer* layer, double x);
// The last point at or before `x`.
RmPoint* RmPointFindXFromRight(const RmLayer* layer, double x);
// The point nearest in offset, walking from the left until the distance
// grows; of equal ones the first.
RmPoint* RmPointFindClosestX(const RmLayer* layer, double x);
// The first point at or above `z`, and at or below it.
RmPoint* RmPointFindZAbove(const RmLayer* layer, double z);
RmPoint* RmPointFindZBelow(const RmLayer* layer, double z);
// The first point of exactly that PCODE.
RmPoint* RmPointFindCode(const RmLayer* layer, int pcode);
// The first point at (x, z) within 1e-5, or whose piece from the point
// before it spans `x` (inclusive) at a height closer to `z` than `tol`.
RmPoint* RmPointFindAt(const RmLayer* layer, double x, double z, double tol);
// The nearest point in the section plane among those within `radius` in
// both offset and height (inclusive); of equal ones the later.
RmPoint* RmPointFindClosest2d(const RmLayer* layer, double x, double z, double radius);
