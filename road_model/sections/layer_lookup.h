// Finding points of a layer: by offset, height or code, and by side.
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

// ---- Sides ----

// Whether the layer follows the coded side rules: a surface layer kind with
// at least one point of a real PCODE (neither 0 nor -99999).
bool boRmLayerIsCoded(const RmLayer* layer);

// The innermost point of `side`. A coded layer is split by the signs of
// its codes, any other by the sign of the offsets.
RmPoint* RmPointGetSideStart(const RmLayer* layer, int side, bool coded);
// The same, coded when boRmLayerIsCoded says so.
RmPoint* RmPointGetSideStartAuto(const RmLayer* layer, int side);
// The outermost point of `side`: the first point if its PCODE is at most 0
// (side 1), the last if its PCODE is not negative (side 2).
RmPoint* RmPointGetSideOuter(const RmLayer* layer, int side);
// Whether the point lies on `side`: by the sign of its PCODE on a surface
// layer kind (0 lies on both sides), else by the sign of its offset.
bool boRmPointOnSide(const RmPoint* point, RmLayerId layerId, int side);

// ---- Walks outward from the side start ----

// The point of `pcode`, or the one just inside of where it would be. A code
// beyond the outermost code of the side gives the outermost point.
RmPoint* RmPointFindCodeOnSide(const RmLayer* layer, int pcode, int side);
// The first point whose code is at or beyond `pcode` (at least on side 2,
// at most on side 1).
RmPoint* RmPointFindCodeFromSide(const RmLayer* layer, int pcode, int side);
// The point at offset `x` (1e-5), or the one just inside of it.
RmPoint* RmPointFindXOnSide(const RmLayer* layer, double x, int side);
// The first point at or beyond `x`.
RmPoint* RmPointFindXFromSide(const RmLayer* layer, double x, int side);
// The first point strictly beyond `x`.
RmPoint* RmPointFindXBeyondSide(const RmLayer* layer, double x, int side);

// The points of the side whose PCODE has family 6.
int iRmLayerCountFamilySix(const RmLayer* layer, int side);
// Whether a valid PCODE of the side has family 0.
bool boRmLayerHasFamilyZero(const RmLayer* layer, int side);
