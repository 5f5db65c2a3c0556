// Annotation types (CSECTANOTATIONTYPES, LSECTANOTATIONTYPES): how sections
// are to be annotated. One list for cross sections (kind 0) and one for long
// sections (kind 1), each ascending by number.
#pragma once

#include <cstdint>

#include "base/slink.h"
#include "road_model/codes/layer_id.h"

struct RmAnnotationType {
  RmAnnotationType* Next;
  int32_t Number;                  // :ANNOTATIONTYPE
  char* Name;                      // :ANNOTATIONTYPE; owned
  int32_t AnnotationMethod;        // ANNOTATIONMETHOD
  int32_t AnnotationPosition;      // ANNOTATIONPOSITION
  RmLayerId Layer;                 // LAYER; none when cleared
  char* AppLayer;                  // APPLAYER; owned
  int32_t Flags;                   // FLAGS
  char* SurfaceCodes;              // SURFACECODES; owned, null when absent
  double AnnotOffset;              // ANNOTOFFSET
  double ChainDepth;               // CHAINDEPTH
  RmLayerId DiffLayer;             // DIFFLAYER
  RmLayerId Diff2Layer;            // DIFF2LAYER
  double RemoveValuesHeightRelCl;  // REMOVEVALUESHEIGHTRELCL; -99999.0: none
  int32_t RemoveNegValues;         // REMOVENEGVALUES
  int32_t DiffMarkMethod;          // DIFFMARKMETHOD
  int32_t DiffFlags;               // DIFFFLAGS
  double DiffApproxDist;           // DIFFAPPROXDIST
  double DiffMax;                  // DIFFMAX
  int32_t Pcode;                   // PCODE
  double Distance;                 // DISTANCE
  char* LineName;                  // LINENAME; owned
  int32_t LinesFlags;              // LINESFLAGS
  int32_t AnnotationPen;           // ANNOTATIONPEN
  int32_t TextPen;                 // TEXTPEN
  double TextHeight;               // TEXTHEIGHT
};

struct RmAnnotationTypes {
  ListHead Types;  // of RmAnnotationType
  int32_t Kind;    // 0 cross sections, 1 long sections
};

// The annotation method that annotates a line, named by LINENAME.
inline constexpr int32_t kRmAnnotateLine = 2;

RmAnnotationTypes* RmAnnotationTypesCreate(int32_t kind);
void vRmAnnotationTypesDelete(RmAnnotationTypes** types);
// Makes `to` a deep copy of `from`, its kind included.
void vRmAnnotationTypesCopy(RmAnnotationTypes* to, const RmAnnotationTypes* from);
RmAnnotationType* RmAnnotationTypesGetFirst(const RmAnnotationTypes* types);
RmAnnotationType* RmAnnotationTypeGetNext(const RmAnnotationType* type);
RmAnnotationType* RmAnnotationTypeFind(const RmAnnotationTypes* types, int32_t number);

// A new type with the defaults at its place by number, in front of a type of
// the same number; null when memory ran out.
RmAnnotationType* RmAnnotationTypeAdd(RmAnnotationTypes* types, int32_t number);
// Unlinks and deletes the type with its texts.
void vRmAnnotationTypeRemove(RmAnnotationTypes* types, RmAnnotationType* type);
// Every field of `from` into `to` but the link.
void vRmAnnotationTypeCopy(RmAnnotationType* to, const RmAnnotationType* from);
// Frees what the type owns and sets every field to its default.
void vRmAnnotationTypeDefaults(RmAnnotationType* type);

// Line annotations of older files named their line by the type's name: a
// type of method 2 without a line name takes its name.
void vRmAnnotationTypesNameLines(RmAnnotationTypes* types);
