// Pavement: which build-up of the road's pavement applies along the road.
//
// Two lists of chainage ranges, one on soil and one on rock, point by number
// to packages. A package describes its surfaces with their thicknesses by
// layer position, its gradually changing layers and the edges of its
// surfaces; the ten values of a "by position" field are one for each of the
// ten layer positions 0 to 9 of a package, which the design's layer kinds
// fill and which this table carries without meaning of its own. The
// appearing rows say which package number holds over a chainage range.
//
// This unit holds the table and its ranges and appearing rows; the packages
// and their children are in pavement_packages.h. Elements are heap nodes.
#pragma once

#include <cstdint>

#include "base/dlink.h"
#include "road_model/codes/code_ranges.h"

// The layer positions of a package.
inline constexpr int kRmPavementPositions = 10;
// The kinds of range: on soil, on rock.
inline constexpr int kRmPavementSoil = 0;
inline constexpr int kRmPavementRock = 1;

struct RmPavementSection {
  RmPavementSection* Next;
  RmChainRange Range;  // Low: chainage from, High: chainage to
  int32_t Package;     // number of the package
};

struct RmPavementSurface {
  RmPavementSurface* Next;
  RmPavementSurface* Prev;
  int32_t Number;  // a surface number, as a PCODE
  double MinThickness;
  double Thickness[kRmPavementPositions];
  double MaxThickness[kRmPavementPositions];
};

struct RmPavementGradualLayer {
  RmPavementGradualLayer* Next;
  int32_t LayerNumber;  // the surface's PCODE
  double ExtraWidth;
  double Gradient;
  double TransitionGradient;
  int32_t ThinnerExtension;  // 0 or 1
};

struct RmPavementSurfaceEdge {
  RmPavementSurfaceEdge* Next;
  int32_t Number;  // the surface's PCODE
  int32_t Code;    // PCODE of the edge
  double Width[kRmPavementPositions];
  double Slope[kRmPavementPositions];
};

// The values of a side are kept at [side - 1]: 1 left, 2 right.
struct RmPavementPackage {
  RmPavementPackage* Next;
  int32_t Number;
  char* Name;  // owned; null for none
  int32_t UnderMedian[kRmPavementPositions];
  int32_t OuterEdgeToTerrain[2];
  double OuterEdgeToTerrainSlope[2];
  int32_t UseSurfaceEdge[2];
  int32_t OuterEdgeToDeepRockBlast[2];
  double ExcavationSlope[2];
  ListHead Surfaces;      // RmPavementSurface, ascending by Number
  ListHead Gradual;       // RmPavementGradualLayer, in the order added
  ListHead SurfaceEdges;  // RmPavementSurfaceEdge, ascending by Number
};

struct RmPavementAppearing {
  RmPavementAppearing* Next;
  RmPavementAppearing* Prev;
  RmChainRange Range;
  int32_t Number;
};

struct RmPavementAppearings {
  ListHead Rows;  // RmPavementAppearing, in the order added
};

struct RmPavement {
  ListHead SoilSections;             // RmPavementSection, ascending by range start
  ListHead RockSections;             // the same
  ListHead Packages;                 // RmPavementPackage, ascending by Number
  RmPavementAppearings* Appearings;  // owned; null for none
  int32_t CutAntifreezeFilling;
  double CutAntifreezeMinFillHeight;  // -99999.0 when absent
  int32_t CutAntifreezeDeepRockBlast;
};

// ---- The table ----

// An empty table; null when memory ran out.
RmPavement* RmPavementCreate();
// Deletes everything the table holds and the table; nulls the pointer.
void vRmPavementDelete(RmPavement** pavement);
// Removes the ranges, the packages with their children and the appearing
// rows; the three cut settings stay.
void vRmPavementClear(RmPavement* pavement);
// Makes `to` a deep copy of `from`.
void vRmPavementCopy(RmPavement* to, const RmPavement* from);
// Whether the table has a range on soil or rock or a package; false for
// null.
bool boRmPavementHasRows(const RmPavement* pavement);

// ---- Ranges on soil (kind 0) and rock (kind 1) ----

// The list of a kind; null for another kind.
ListHead* RmPavementSectionsOf(const RmPavement* pavement, int kind);
RmPavementSection* RmPavementSectionsGetFirst(const RmPavement* pavement, int kind);
RmPavementSection* RmPavementSectionGetNext(const RmPavementSection* section);
// A new range from `from` (to 0, package 0), in front of the first range
// whose start is greater: a range of an equal start goes behind. Null when
// memory ran out.
RmPavementSection* RmPavementSectionAdd(RmPavement* pavement, double from, int kind);
// A new range at the end of the list, whatever its start.
RmPavementSection* RmPavementSectionAppend(RmPavement* pavement, double from, double to,
                                           int32_t package, int kind);
void vRmPavementSectionRemove(RmPavement* pavement, RmPavementSection* section, int kind);

// ---- Appearing rows ----

// The table's appearing rows, made empty when there are none.
RmPavementAppearings* RmPavementGetOrCreateAppearings(RmPavement* pavement);
RmPavementAppearing* RmPavementAppearingsGetFirst(const RmPavementAppearings* list);
// A new row at the end. Null when memory ran out.
RmPavementAppearing* RmPavementAppearingAdd(RmPavementAppearings* list, double from, double to,
                                            int32_t number);
// The first row whose range holds `chain`, ends included; null if none.
RmPavementAppearing* RmPavementAppearingFind(const RmPavementAppearings* list, double chain);
// The number of that row; -1 if none.
int iRmPavementAppearingNumber(const RmPavementAppearings* list, double chain);
