// Mass types (CSECTMASSTYPES, LSECTMASSTYPES): how each mass, a quantity
// between layers, is defined. The model has one list for cross sections
// (kind 0) and one for long sections (kind 1); the types of a list stand
// ascending by number, and a number is unique in its list.
#pragma once

#include <cstdint>

#include "base/slink.h"
#include "road_model/codes/layer_id.h"
#include "road_model/names/layer_list.h"
#include "road_model/names/presentation.h"

// A range of chainages with two numbers.
struct RmMassChainRange {
  RmMassChainRange* Next;
  double Range[2];
  int32_t A;
  int32_t B;
};

// The numbers of masses that a mass is taken from or given to.
struct RmMassNumbers {
  int32_t* Numbers;  // owned
  int32_t Count;
};

struct RmMassType {
  RmMassType* Next;
  int32_t ListKind;              // -1 until the list stamps its kind
  int32_t Number;                // :MASSTYPE
  int32_t Category;              // CATEGORY
  char* StandardCodeGroup;       // STANDARDCODEGROUP
  char* Name;                    // :MASSTYPE
  char* StdCode;                 // STDCODE
  char* CpCode;                  // CPCODE
  int32_t BalAccount;            // BALACCOUNT
  double BalFactor;              // BALFACTOR
  double MinThickness;           // MINTHICKNESS
  double ScaleFactor;            // SCALEFACTOR, 1.0
  double ConversionFactor;       // CONVERSIONFACTOR, 1.0
  char* ConversionUnit;          // CONVERSIONUNIT
  double PointInterval;          // POINTINTERVAL
  double ResLayerExt;            // RESLAYEREXT
  double ResLayerExtRight;       // RESLAYEREXT_RIGHT; -99999.0: as ResLayerExt
  int32_t ResLineLeft;           // RESLINELEFT, -99999
  int32_t ResLineRight;          // RESLINERIGHT, -99999
  char* ResLayerSur;             // RESLAYERSUR; null when absent
  int32_t ExtentAllTheo;         // EXTENTALLTHEO
  int32_t GenerateLayer;         // GENERATELAYER
  int32_t CalcType;              // CALCTYPE
  int32_t ComposedType;          // COMPOSEDTYPE; 2: stands for BaseMassId
  int32_t CombinedAreaOpType;    // COMBINED_AREA_OPTYPE
  int32_t CombinedAreaJoinMethod;  // COMBINED_AREA_JOINMETHOD
  RmLayerList FromLayers;        // FLAYERS, FROMLAYERSJOIN: mode 0, join 1
  RmLayerList ToLayers;          // TOLAYERS, TOLAYERSJOIN: mode 1, join 0
  RmLayerList AreaLayers;        // AREALAYERS, AREALAYERSJOIN: mode 2, join 2
  ListHead ChainRanges;          // CHAINRANGES: RmMassChainRange, by start
  RmLayerId RestrictionLayer;    // RESTRICTIONLAYER; none when cleared
  RmPresentation Pres;           // PRES
  RmMassNumbers FromMasses;      // FMASSES
  RmMassNumbers ToMasses;        // TOMASSES
  int32_t BaseMassId;            // BASEMASSID
  char* Info;                    // INFO
};

struct RmMassTypes {
  ListHead Types;  // of RmMassType
  int32_t Kind;    // 0 cross sections, 1 long sections
};

inline constexpr int32_t kRmMassTypesCross = 0;
inline constexpr int32_t kRmMassTypesLong = 1;

// ---- The list ----

RmMassTypes* RmMassTypesCreate(int32_t kind);
void vRmMassTypesDelete(RmMassTypes** types);
// Makes `to` a deep copy of `from`, its kind included.
void vRmMassTypesCopy(RmMassTypes* to, const RmMassTypes* from);
RmMassType* RmMassTypesGetFirst(const RmMassTypes* types);
RmMassType* RmMassTypeGetNext(const RmMassType* type);
int iRmMassTypesGetKind(const RmMassTypes* types);
// Stamps the list's kind into each of its types.
void vRmMassTypesStampKind(RmMassTypes* types);

RmMassType* RmMassTypeFind(const RmMassTypes* types, int32_t number);
// The highest number; 0 for an empty list.
int iRmMassTypesMaxNumber(const RmMassTypes* types);
// The position of the type of `number` from 0; -1 when there is none.
int iRmMassTypesGetIndex(const RmMassTypes* types, int32_t number);

// A new type with the defaults, at its place by number; null when the
// number is taken or memory ran out.
RmMassType* RmMassTypeAdd(RmMassTypes* types, int32_t number);
// The same with a list kind of its own; unique by number and kind.
RmMassType* RmMassTypeAddWithKind(RmMassTypes* types, int32_t number, int32_t listKind);
// A type made outside any list, with the defaults; it goes into a list by
// vRmMassTypesPut or is deleted by vRmMassTypeDelete.
RmMassType* RmMassTypeCreate();
void vRmMassTypeDelete(RmMassType** type);
// Puts a type made by RmMassTypeCreate into the list: it takes the place of
// the type of the same number, which is deleted, or goes to its place.
void vRmMassTypesPut(RmMassTypes* types, RmMassType* type);
// Unlinks and deletes the type with its lists and texts.
void vRmMassTypeRemove(RmMassTypes* types, RmMassType* type);

// ---- Types ----

// Every field of `from` into `to` but the link.
void vRmMassTypeCopy(RmMassType* to, const RmMassType* from);
// Frees what the type owns and sets every field to its default.
void vRmMassTypeDefaults(RmMassType* type);
// "%d: %s" of number and name, as a temporary text.
const char* sRmMassTypeToText(const RmMassType* type);
// The number in front of ':' of such a text; 0 for an empty text.
int iRmMassTypeNumberOfText(const char* text);
// For side 2 ResLayerExtRight when it is set, else ResLayerExt; ResLayerExt
// for side 1; 0.0 for any other side.
double dRmMassTypeGetResLayerExt(const RmMassType* type, int side);

// Chain ranges, ascending by start.
RmMassChainRange* RmMassChainRangeAdd(RmMassType* type, double start, double end, int32_t a,
                                      int32_t b);
// The first range that holds `chain`, ends included.
RmMassChainRange* RmMassChainRangeFind(const RmMassType* type, double chain);

void vRmMassNumbersSet(RmMassNumbers* numbers, const int32_t* values, int32_t count);
void vRmMassNumbersAdd(RmMassNumbers* numbers, int32_t value);
