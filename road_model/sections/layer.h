// Layers of a section and the lists of their points.
//
// A section holds one layer per kind of surface at its chainage (terrain,
// design surface, formation, ...), sorted by layer type and then number. A
// layer is a polyline across the road in the section's plane: a list of
// RmPoint nodes, in ascending offset except where vertical pieces make equal
// neighbours or a closed outline runs around. A point without a height is a
// gap that breaks the polyline.
//
// Layers and points of a section come from the section set's pool; a layer
// made outside a section (RmLayerCreateFree) takes its points from the heap.
#pragma once

#include <cstdint>

#include "base/dlink.h"
#include "road_model/codes/layer_id.h"
#include "road_model/codes/point_code.h"

struct RmLayerNames;
struct RmSection;

// How the section builder makes a layer; absent until a field is set.
struct RmLayerBuildInfo {
  int32_t BuildMethod;      // BUILDMETHOD, 1 when made
  int32_t InterMethod;      // INTERMETHOD
  char* BlockName;          // BLOCKNAME, owned; null when empty
  uint8_t OppositeDiagonal; // OPPOSITEDIAGONAL
};

struct RmLayer {
  RmLayer* Next;
  RmLayer* Prev;
  ListHead Points;              // of RmPoint
  RmLayerId Id;                 // LAYER
  RmLayerBuildInfo* BuildInfo;  // owned, null until set
};

// Two points closer than this in offset are one position.
inline constexpr double kRmPointTolerance = 0.001;
// Offsets that are equal within this count as the same offset.
inline constexpr double kRmOffsetEqual = 1e-5;

// ---- Layers of a section ----

RmLayer* RmSectionLayersGetFirst(const RmSection* section);
RmLayer* RmSectionLayersGetLast(const RmSection* section);
RmLayer* RmLayerGetNext(const RmLayer* layer);
RmLayer* RmLayerGetPrev(const RmLayer* layer);
int iRmSectionLayersGetCount(const RmSection* section);

// The layer with exactly this id; null if none.
RmLayer* RmLayerFind(const RmSection* section, RmLayerId id);
bool boRmSectionHasLayerType(const RmSection* section, uint32_t type);

// A new, empty layer in front of `before` (null: at the end), without a
// check of the order. Null when memory ran out.
RmLayer* RmLayerAddAt(RmSection* section, RmLayer* before, RmLayerId id);
// A new, empty layer in its sorted place: in front of the first layer of a
// larger type, or of the same type and a larger number. A duplicate goes
// behind the existing one.
RmLayer* RmLayerAdd(RmSection* section, RmLayerId id);
// RmLayerAdd, and the layer names get a record of `id` when they have none,
// named by the factory settings' default name of the id.
RmLayer* RmLayerAddNamed(RmSection* section, RmLayerId id, RmLayerNames* layerNames);
// Clears the layer's points, frees its build info and removes it.
void vRmLayerRemove(RmSection* section, RmLayer* layer);
// Removes the theoretical layers (type 1) below number 100.
void vRmSectionRemoveTheoreticalLayers(RmSection* section);
// Sorts the layers by type and then number.
void vRmSectionSortLayers(RmSection* section);

// A layer outside any section, with heap nodes; null when memory ran out.
RmLayer* RmLayerCreateFree();
// Clears the points, frees the build info and the node. Null is accepted.
void vRmLayerDeleteFree(RmLayer* layer);

// Replaces the points of `to` by copies of those of `from` and copies id
// and build info. Between a theoretical kind (type 1, 3 or 8) and a
// physical kind (type 2 or 4) the codes of the copies are cleared; the rest
// of the code word is kept.
void vRmLayerCopy(RmLayer* to, const RmLayer* from);
// The same, keeping the id of `to`.
void vRmLayerCopyKeepId(RmLayer* to, const RmLayer* from);

// ---- Points of a layer ----

RmPoint* RmPointsGetFirst(const RmLayer* layer);
RmPoint* RmPointsGetLast(const RmLayer* layer);
RmPoint* RmPointGetNext(const RmPoint* point);
RmPoint* RmPointGetPrev(const RmPoint* point);
int iRmPointsGetCount(const RmLayer* layer);

// The neighbour away from the centre on `side` (1: the previous point, 2:
// the next one), and the one towards it. Null for any other side or a null
// point.
RmPoint* RmPointGetOutward(const RmPoint* point, int side);
RmPoint* RmPointGetInward(const RmPoint* point, int side);

// A new zeroed point in front of `before` (null: at the end); null when
// memory ran out.
RmPoint* RmPointAddBefore(RmLayer* layer, RmPoint* before);
// A copy of `source`'s offset, height, radius and code word.
RmPoint* RmPointCopyBefore(RmLayer* layer, RmPoint* before, const RmPoint* source);
// A new point with offset, height and PCODE; the mark and the bits above it
// are 0.
RmPoint* RmPointAdd(RmLayer* layer, RmPoint* before, double x, double z, int pcode);
// The same in front of the first point whose offset is not below `x`.
RmPoint* RmPointAddSorted(RmLayer* layer, double x, double z, int pcode);
// The same at the left end for side 1, at the right end otherwise.
RmPoint* RmPointAddAtEnd(RmLayer* layer, int side, double x, double z, int pcode);
// A point `dist` outward from `from` on `side`, at offset from.X -/+ dist
// and height from.Z + dist*slope, linked on the outer side of `from`. On
// side 2 a null `from` is the last point; on side 1 it fails.
RmPoint* RmPointAddSlope(RmLayer* layer, int side, RmPoint* from, double dist, double slope,
                         int pcode);

void vRmPointRemove(RmLayer* layer, RmPoint* point);
// Moves `point` in front of `before` (null: to the end).
void vRmPointMoveBefore(RmLayer* layer, RmPoint* point, RmPoint* before);
void vRmPointsClear(RmLayer* layer);
// Reverses the order of the points.
void vRmLayerReversePoints(RmLayer* layer);

// Offset and height.
void vRmPointCopyPosition(RmPoint* to, const RmPoint* from);
// Offset, height, radius, PCODE and mark; the other bits of `to` stay.
void vRmPointCopyAll(RmPoint* to, const RmPoint* from);
// Additions in single precision.
void vRmPointAddHeight(RmPoint* point, double dz);
void vRmPointMove(RmPoint* point, double dx, double dz);
void vRmPointGetXz(const RmPoint* point, double* x, double* z);
void vRmPointSetXz(RmPoint* point, double x, double z);

// ---- Identity and build info ----

uint32_t iRmLayerGetType(const RmLayer* layer);
int iRmLayerGetNumber(const RmLayer* layer);

// Frees the build info; the layer has none afterwards.
void vRmLayerClearBuildInfo(RmLayer* layer);
// Without build info the getters give 0, the empty text and false. A setter
// makes the build info first: method 1, interpolation 0, no block name, no
// opposite diagonal.
int iRmLayerGetBuildMethod(const RmLayer* layer);
void vRmLayerSetBuildMethod(RmLayer* layer, int method);
int iRmLayerGetInterMethod(const RmLayer* layer);
void vRmLayerSetInterMethod(RmLayer* layer, int method);
// The empty text when there is none.
const char* sRmLayerGetBlockName(const RmLayer* layer);
void vRmLayerSetBlockName(RmLayer* layer, const char* name);
bool boRmLayerGetOppositeDiagonal(const RmLayer* layer);
void vRmLayerSetOppositeDiagonal(RmLayer* layer, bool on);
