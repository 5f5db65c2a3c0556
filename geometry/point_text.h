// Single points and texts: a position, a rotation, and for texts an
// alignment and a label. Each has an id and a GUID text.
#pragma once

#include "geometry/point.h"

// Longest label that a text keeps, in bytes.
inline constexpr int kTeLabelMax = 511;

struct PoPoint {
  long lId;
  ViPoint3d position;
  double dRotation;  // radians
  char sGuid[kViGuidLength + 1];
};

struct TeText {
  long lId;
  ViPoint3d position;
  double dRotation;  // radians
  int iAlign;
  char sLabel[kTeLabelMax + 1];
  char sGuid[kViGuidLength + 1];
};

// Points. Every function takes a null point quietly.
PoPoint* PoPointCreate();
void vPoPointDelete(PoPoint** point);
long lPoPointGetID(const PoPoint* point);
void vPoPointSetID(PoPoint* point, long id);
void vPoPointGetP(const PoPoint* point, ViPoint3d* position);
void vPoPointSetP(PoPoint* point, double x, double y, double z);
double dPoPointGetRotation(const PoPoint* point);
void vPoPointSetRotation(PoPoint* point, double radians);
const char* sPoPointGetGuid(const PoPoint* point);
void vPoPointSetGuid(PoPoint* point, const char* guid);

// Texts. Every function takes a null text quietly.
TeText* TeTextCreate();
void vTeTextDelete(TeText** text);
long lTeTextGetID(const TeText* text);
void vTeTextSetID(TeText* text, long id);
void vTeTextGetP(const TeText* text, ViPoint3d* position);
void vTeTextSetP(TeText* text, double x, double y, double z);
double dTeTextGetRotation(const TeText* text);
void vTeTextSetRotation(TeText* text, double radians);
int iTeTextGetAlign(const TeText* text);
void vTeTextSetAlign(TeText* text, int align);
// The label; never null. Setting keeps at most kTeLabelMax bytes; null
// counts as "".
const char* sTeTextGetLabel(const TeText* text);
void vTeTextSetLabel(TeText* text, const char* label);
const char* sTeTextGetGuid(const TeText* text);
void vTeTextSetGuid(TeText* text, const char* guid);
