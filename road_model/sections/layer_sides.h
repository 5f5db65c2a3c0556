// Where the sides of a layer begin, and walks outward from there by code and
// by offset. Sides are 1 (left, negative offsets and codes) and 2 (right);
// every lookup gives null when nothing is found.
#pragma once

#include "road_model/codes/layer_id.h"
#include "road_model/sections/layer.h"

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
