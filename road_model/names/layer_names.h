// The model's layer names (LAYERNAMES): which layers exist, what they are
// called and how they are drawn. A list of RmLayerName records, ascending by
// layer type and then by number.
#pragma once

#include <cstdint>

#include "base/slink.h"
#include "road_model/codes/layer_id.h"

inline constexpr int kRmLayerGuidSize = 37;

// How a layer or a mass is drawn. Colour and pen are -1 when not set.
struct RmPresentation {
  int32_t Color;        // Color
  int32_t Material;     // Mat
  int32_t Pen;          // GDPLN
  int32_t LineType;     // LType: the type; 1 is a plain line
  double LinePattern[4];  // LType: the dash lengths of a type above 1
  int32_t LineSymbol;   // LSymb: 0 for none
  double LineSymbolValues[3];
  int32_t HatchFillColor;  // Hatch HFillCol
  int32_t HatchType;       // Hatch HType
  int32_t HatchGdpType;    // Hatch HGdpType
  double HatchAngle;       // Hatch HAng
  double HatchFactor;      // Hatch HFact
};

// One layer of a list of layers: a layer with the codes and values that
// select its part.
struct RmLayerListEntry {
  RmLayerListEntry* Next;
  RmLayerId Id;
  int32_t Kind;    // 1 by default
  float Value;
  char* Filter;    // owned code filter, null when empty
  char* Text;      // owned, null when empty
  int32_t Number;
  uint32_t Flags;  // bit 4 sorts the entry behind those without it
  float Value2;
};

struct RmLayerList {
  ListHead Entries;  // of RmLayerListEntry
  int32_t Mode;
  int32_t Join;
};

struct RmLayerName {
  RmLayerName* Next;
  RmLayerId Id;
  char* Name;                    // owned; null when empty
  char Guid[kRmLayerGuidSize];   // GUID
  int32_t ComposedType;          // COMPOSEDTYPE
  int32_t KeepOpenSpaces;        // KEEPOPENSPACES
  int32_t CloseContour;          // CLOSECONTOUR
  int32_t DeleteRedundantPoints; // DELETEREDUNANTPOINTS
  int32_t AddCenterPointIfMissing;  // ADDCENTERPOINTIFMISSING, 1 by default
  RmLayerList Layers;            // LAYERS
  int32_t LayersJoin;            // LAYERSJOIN, 1 by default
  RmPresentation Pres;
  int32_t Category;              // CATEGORY: 1 to 5 puts a physical layer in a group
  int32_t Priority;              // PRIORITY: -1 takes it out of derivation
};

struct RmLayerNames {
  ListHead Names;  // of RmLayerName
};

// The record of `id`, both halves equal; null when there is none or the list
// is null.
RmLayerName* RmLayerNameFind(const RmLayerNames* names, RmLayerId id);
// The name of the record of `id`; null when there is no record, the empty
// text for a record without a name.
const char* sRmLayerNameGetName(const RmLayerNames* names, RmLayerId id);
