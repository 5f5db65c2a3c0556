// The packages of the pavement table and their children: surfaces,
// gradually changing layers and surface edges (see pavement.h).
#pragma once

#include <cstdint>

#include "road_model/tables/pavement.h"

// ---- Packages ----

RmPavementPackage* RmPavementPackagesGetFirst(const RmPavement* pavement);
RmPavementPackage* RmPavementPackageGetNext(const RmPavementPackage* package);
// A new package of `number`, without name, values or children, in front of
// the first package of a greater number: equal numbers follow one another.
// Null when memory ran out.
RmPavementPackage* RmPavementPackageAdd(RmPavement* pavement, int32_t number);
// The first package of `number`, or null.
RmPavementPackage* RmPavementPackageFind(const RmPavement* pavement, int32_t number);
// Unlinks and deletes the package with its children.
void vRmPavementPackageRemove(RmPavement* pavement, RmPavementPackage* package);
// Deletes every package with its children.
void vRmPavementPackagesClear(RmPavement* pavement);
// Replaces the packages of `to` by deep copies of those of `from`.
void vRmPavementPackagesCopy(RmPavement* to, const RmPavement* from);
void vRmPavementPackageSetName(RmPavementPackage* package, const char* name);

// The values of a side, 1 left or 2 right; 0 for another side.
int iRmPavementPackageGetOuterEdgeToTerrain(const RmPavementPackage* package, int side);
double dRmPavementPackageGetOuterEdgeToTerrainSlope(const RmPavementPackage* package, int side);
int iRmPavementPackageGetUseSurfaceEdge(const RmPavementPackage* package, int side);
int iRmPavementPackageGetOuterEdgeToDeepRockBlast(const RmPavementPackage* package, int side);
double dRmPavementPackageGetExcavationSlope(const RmPavementPackage* package, int side);
// Sets them; another side is ignored.
void vRmPavementPackageSetOuterEdgeToTerrain(RmPavementPackage* package, int side, int value);
void vRmPavementPackageSetOuterEdgeToTerrainSlope(RmPavementPackage* package, int side,
                                                  double value);
void vRmPavementPackageSetUseSurfaceEdge(RmPavementPackage* package, int side, int value);
void vRmPavementPackageSetOuterEdgeToDeepRockBlast(RmPavementPackage* package, int side, int value);
void vRmPavementPackageSetExcavationSlope(RmPavementPackage* package, int side, double value);

// ---- Children of a package ----

RmPavementSurface* RmPavementSurfacesGetFirst(const RmPavementPackage* package);
// A new surface of `number`, its values 0, in front of the first surface of
// a greater number.
RmPavementSurface* RmPavementSurfaceAdd(RmPavementPackage* package, int32_t number);
RmPavementSurface* RmPavementSurfaceFind(const RmPavementPackage* package, int32_t number);
void vRmPavementSurfaceRemove(RmPavementPackage* package, RmPavementSurface* surface);

RmPavementGradualLayer* RmPavementGradualGetFirst(const RmPavementPackage* package);
// A new gradually changing layer at the end, its values 0.
RmPavementGradualLayer* RmPavementGradualAdd(RmPavementPackage* package, int32_t layerNumber);
RmPavementGradualLayer* RmPavementGradualFind(const RmPavementPackage* package,
                                              int32_t layerNumber);

RmPavementSurfaceEdge* RmPavementSurfaceEdgesGetFirst(const RmPavementPackage* package);
// A new edge of `number`, its values 0, in front of the first edge of a
// greater number.
RmPavementSurfaceEdge* RmPavementSurfaceEdgeAdd(RmPavementPackage* package, int32_t number);
RmPavementSurfaceEdge* RmPavementSurfaceEdgeFind(const RmPavementPackage* package, int32_t number);

// ---- Whole-table work ----

// Puts the surfaces of every package in order outward from the centre on
// each side: the innermost surfaces of family 0 on a side (the greatest
// negative number on the left, the smallest on the right) start it, and the
// others follow them outward, as the order by number has it. A package
// whose surfaces were added out of order by other means than
// RmPavementSurfaceAdd is ordered again.
void vRmPavementPackageNormalize(RmPavement* pavement);

// Applies `map` to every PCODE of the packages: the numbers of surfaces,
// gradually changing layers and edges, and the codes of the edges.
void vRmPavementMapCodes(RmPavement* pavement, int32_t (*map)(int32_t code));

// Packages of older files knew fewer layer positions: in every package the
// values at positions 5, 6 and 7 of the thicknesses, maximum thicknesses,
// edge widths and slopes and of UNDERMEDIAN move to 6, 7 and 9, and
// position 5 becomes 0.
void vRmPavementMoveOldPositions(RmPavement* pavement);
