#include "road_model/tables/pavement_packages.h"

#include <cstdlib>

#include "base/text.h"

namespace {

void vInitChildren(RmPavementPackage* package) {
  DLinkInit(&package->Surfaces, sizeof(RmPavementSurface), nullptr);
  SLinkInit(&package->Gradual, sizeof(RmPavementGradualLayer), nullptr);
  SLinkInit(&package->SurfaceEdges, sizeof(RmPavementSurfaceEdge), nullptr);
}

void vClearChildren(RmPavementPackage* package) {
  vDLinkClear(&package->Surfaces);
  vSLinkClear(&package->Gradual);
  vSLinkClear(&package->SurfaceEdges);
  vHeapFree(&package->Name);
}

// The index of a side's values, -1 for another side.
int iSideIndex(int side) { return side == 1 || side == 2 ? side - 1 : -1; }

template <typename T, typename V>
V GetSide(const RmPavementPackage* package, const T (&values)[2], int side, V none) {
  int index = iSideIndex(side);
  return package && index >= 0 ? static_cast<V>(values[index]) : none;
}

template <typename T, typename V>
void vSetSide(T (&values)[2], int side, V value) {
  int index = iSideIndex(side);
  if (index >= 0) values[index] = static_cast<T>(value);
}

// The first element of a list ordered by Number whose number is greater.
template <typename T>
T* FirstGreater(const ListHead* list, int32_t number) {
  T* before = ListFirst<T>(list);
  while (before && before->Number <= number) before = before->Next;
  return before;
}

template <typename T>
T* FindNumber(const ListHead* list, int32_t number) {
  for (T* item = ListFirst<T>(list); item; item = item->Next) {
    if (item->Number == number) return item;
  }
  return nullptr;
}

// The arguments point to element pointers.
int iCompareSurfaces(const void* a, const void* b) {
  int32_t left = (*static_cast<const RmPavementSurface* const*>(a))->Number;
  int32_t right = (*static_cast<const RmPavementSurface* const*>(b))->Number;
  return (left > right) - (left < right);
}

// Positions 5, 6 and 7 to 6, 7 and 9; position 5 empty.
template <typename T>
void vMovePositions(T (&values)[kRmPavementPositions]) {
  values[9] = values[7];
  values[7] = values[6];
  values[6] = values[5];
  values[5] = 0;
}

}  // namespace

// ---- Packages ----

RmPavementPackage* RmPavementPackagesGetFirst(const RmPavement* pavement) {
  return pavement ? ListFirst<RmPavementPackage>(&pavement->Packages) : nullptr;
}

RmPavementPackage* RmPavementPackageGetNext(const RmPavementPackage* package) {
  return package ? package->Next : nullptr;
}

RmPavementPackage* RmPavementPackageAdd(RmPavement* pavement, int32_t number) {
  if (!pavement) return nullptr;
  RmPavementPackage* before = FirstGreater<RmPavementPackage>(&pavement->Packages, number);
  auto* package = SLinkNewObjAs<RmPavementPackage>(&pavement->Packages, before);
  if (!package) return nullptr;
  package->Number = number;
  vInitChildren(package);
  return package;
}

RmPavementPackage* RmPavementPackageFind(const RmPavement* pavement, int32_t number) {
  return pavement ? FindNumber<RmPavementPackage>(&pavement->Packages, number) : nullptr;
}

void vRmPavementPackageRemove(RmPavement* pavement, RmPavementPackage* package) {
  if (!pavement || !package) return;
  vClearChildren(package);
  vSLinkDeleteObj(&pavement->Packages, package);
}

void vRmPavementPackagesClear(RmPavement* pavement) {
  if (!pavement) return;
  for (RmPavementPackage* package = RmPavementPackagesGetFirst(pavement); package;
       package = package->Next) {
    vClearChildren(package);
  }
  vSLinkClear(&pavement->Packages);
}

void vRmPavementPackagesCopy(RmPavement* to, const RmPavement* from) {
  if (!to || !from || to == from) return;
  vRmPavementPackagesClear(to);
  // The byte copy of a package shares its source's name and children, so
  // each copy gets its own.
  SLinkCopy(&from->Packages, &to->Packages, nullptr);
  RmPavementPackage* target = RmPavementPackagesGetFirst(to);
  for (const RmPavementPackage* source = RmPavementPackagesGetFirst(from); source && target;
       source = source->Next, target = target->Next) {
    target->Name = nullptr;
    sHeapSet(&target->Name, source->Name);
    vInitChildren(target);
    DLinkCopy(&source->Surfaces, &target->Surfaces, nullptr);
    SLinkCopy(&source->Gradual, &target->Gradual, nullptr);
    SLinkCopy(&source->SurfaceEdges, &target->SurfaceEdges, nullptr);
  }
}

void vRmPavementPackageSetName(RmPavementPackage* package, const char* name) {
  if (package) sHeapSet(&package->Name, name);
}

int iRmPavementPackageGetOuterEdgeToTerrain(const RmPavementPackage* package, int side) {
  return package ? GetSide(package, package->OuterEdgeToTerrain, side, 0) : 0;
}
double dRmPavementPackageGetOuterEdgeToTerrainSlope(const RmPavementPackage* package, int side) {
  return package ? GetSide(package, package->OuterEdgeToTerrainSlope, side, 0.0) : 0.0;
}
int iRmPavementPackageGetUseSurfaceEdge(const RmPavementPackage* package, int side) {
  return package ? GetSide(package, package->UseSurfaceEdge, side, 0) : 0;
}
int iRmPavementPackageGetOuterEdgeToDeepRockBlast(const RmPavementPackage* package, int side) {
  return package ? GetSide(package, package->OuterEdgeToDeepRockBlast, side, 0) : 0;
}
double dRmPavementPackageGetExcavationSlope(const RmPavementPackage* package, int side) {
  return package ? GetSide(package, package->ExcavationSlope, side, 0.0) : 0.0;
}

void vRmPavementPackageSetOuterEdgeToTerrain(RmPavementPackage* package, int side, int value) {
  if (package) vSetSide(package->OuterEdgeToTerrain, side, value);
}
void vRmPavementPackageSetOuterEdgeToTerrainSlope(RmPavementPackage* package, int side,
                                                  double value) {
  if (package) vSetSide(package->OuterEdgeToTerrainSlope, side, value);
}
void vRmPavementPackageSetUseSurfaceEdge(RmPavementPackage* package, int side, int value) {
  if (package) vSetSide(package->UseSurfaceEdge, side, value);
}
void vRmPavementPackageSetOuterEdgeToDeepRockBlast(RmPavementPackage* package, int side,
                                                   int value) {
  if (package) vSetSide(package->OuterEdgeToDeepRockBlast, side, value);
}
void vRmPavementPackageSetExcavationSlope(RmPavementPackage* package, int side, double value) {
  if (package) vSetSide(package->ExcavationSlope, side, value);
}

// ---- Children ----

RmPavementSurface* RmPavementSurfacesGetFirst(const RmPavementPackage* package) {
  return package ? ListFirst<RmPavementSurface>(&package->Surfaces) : nullptr;
}

RmPavementSurface* RmPavementSurfaceAdd(RmPavementPackage* package, int32_t number) {
  if (!package) return nullptr;
  RmPavementSurface* before = FirstGreater<RmPavementSurface>(&package->Surfaces, number);
  auto* surface = DLinkNewObjAs<RmPavementSurface>(&package->Surfaces, before);
  if (surface) surface->Number = number;
  return surface;
}

RmPavementSurface* RmPavementSurfaceFind(const RmPavementPackage* package, int32_t number) {
  return package ? FindNumber<RmPavementSurface>(&package->Surfaces, number) : nullptr;
}

void vRmPavementSurfaceRemove(RmPavementPackage* package, RmPavementSurface* surface) {
  if (package && surface) vDLinkDeleteObj(&package->Surfaces, surface);
}

RmPavementGradualLayer* RmPavementGradualGetFirst(const RmPavementPackage* package) {
  return package ? ListFirst<RmPavementGradualLayer>(&package->Gradual) : nullptr;
}

RmPavementGradualLayer* RmPavementGradualAdd(RmPavementPackage* package, int32_t layerNumber) {
  if (!package) return nullptr;
  auto* layer = SLinkNewObjAs<RmPavementGradualLayer>(&package->Gradual);
  if (layer) layer->LayerNumber = layerNumber;
  return layer;
}

RmPavementGradualLayer* RmPavementGradualFind(const RmPavementPackage* package,
                                              int32_t layerNumber) {
  for (RmPavementGradualLayer* layer = RmPavementGradualGetFirst(package); layer;
       layer = layer->Next) {
    if (layer->LayerNumber == layerNumber) return layer;
  }
  return nullptr;
}

RmPavementSurfaceEdge* RmPavementSurfaceEdgesGetFirst(const RmPavementPackage* package) {
  return package ? ListFirst<RmPavementSurfaceEdge>(&package->SurfaceEdges) : nullptr;
}

RmPavementSurfaceEdge* RmPavementSurfaceEdgeAdd(RmPavementPackage* package, int32_t number) {
  if (!package) return nullptr;
  RmPavementSurfaceEdge* before =
      FirstGreater<RmPavementSurfaceEdge>(&package->SurfaceEdges, number);
  auto* edge = SLinkNewObjAs<RmPavementSurfaceEdge>(&package->SurfaceEdges, before);
  if (edge) edge->Number = number;
  return edge;
}

RmPavementSurfaceEdge* RmPavementSurfaceEdgeFind(const RmPavementPackage* package, int32_t number) {
  return package ? FindNumber<RmPavementSurfaceEdge>(&package->SurfaceEdges, number) : nullptr;
}

// ---- Whole-table work ----

void vRmPavementPackageNormalize(RmPavement* pavement) {
  for (RmPavementPackage* package = RmPavementPackagesGetFirst(pavement); package;
       package = package->Next) {
    vDLinkSort(&package->Surfaces, iCompareSurfaces);
  }
}

void vRmPavementMapCodes(RmPavement* pavement, int32_t (*map)(int32_t code)) {
  if (!map) return;
  for (RmPavementPackage* package = RmPavementPackagesGetFirst(pavement); package;
       package = package->Next) {
    for (RmPavementSurface* surface = RmPavementSurfacesGetFirst(package); surface;
         surface = surface->Next) {
      surface->Number = map(surface->Number);
    }
    for (RmPavementGradualLayer* layer = RmPavementGradualGetFirst(package); layer;
         layer = layer->Next) {
      layer->LayerNumber = map(layer->LayerNumber);
    }
    for (RmPavementSurfaceEdge* edge = RmPavementSurfaceEdgesGetFirst(package); edge;
         edge = edge->Next) {
      edge->Number = map(edge->Number);
      edge->Code = map(edge->Code);
    }
  }
}

void vRmPavementMoveOldPositions(RmPavement* pavement) {
  for (RmPavementPackage* package = RmPavementPackagesGetFirst(pavement); package;
       package = package->Next) {
    vMovePositions(package->UnderMedian);
    for (RmPavementSurface* surface = RmPavementSurfacesGetFirst(package); surface;
         surface = surface->Next) {
      vMovePositions(surface->Thickness);
      vMovePositions(surface->MaxThickness);
    }
    for (RmPavementSurfaceEdge* edge = RmPavementSurfaceEdgesGetFirst(package); edge;
         edge = edge->Next) {
      vMovePositions(edge->Width);
      vMovePositions(edge->Slope);
    }
  }
}
