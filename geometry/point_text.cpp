#include "geometry/point_text.h"

#include <cstring>

// ---- Points ----------------------------------------------------------------------

PoPoint* PoPointCreate() { return new PoPoint{}; }

void vPoPointDelete(PoPoint** point) {
  if (point == nullptr) return;
  delete *point;
  *point = nullptr;
}

long lPoPointGetID(const PoPoint* point) { return point != nullptr ? point->lId : 0; }

void vPoPointSetID(PoPoint* point, long id) {
  if (point != nullptr) point->lId = id;
}

void vPoPointGetP(const PoPoint* point, ViPoint3d* position) {
  *position = point != nullptr ? point->position : ViPoint3d{0.0, 0.0, 0.0};
}

void vPoPointSetP(PoPoint* point, double x, double y, double z) {
  if (point != nullptr) point->position = {x, y, z};
}

double dPoPointGetRotation(const PoPoint* point) {
  return point != nullptr ? point->dRotation : 0.0;
}

void vPoPointSetRotation(PoPoint* point, double radians) {
  if (point != nullptr) point->dRotation = radians;
}

const char* sPoPointGetGuid(const PoPoint* point) { return point != nullptr ? point->sGuid : ""; }

void vPoPointSetGuid(PoPoint* point, const char* guid) {
  if (point != nullptr) vViCopyGuid(point->sGuid, guid);
}

// ---- Texts -----------------------------------------------------------------------

TeText* TeTextCreate() { return new TeText{}; }

void vTeTextDelete(TeText** text) {
  if (text == nullptr) return;
  delete *text;
  *text = nullptr;
}

long lTeTextGetID(const TeText* text) { return text != nullptr ? text->lId : 0; }

void vTeTextSetID(TeText* text, long id) {
  if (text != nullptr) text->lId = id;
}

void vTeTextGetP(const TeText* text, ViPoint3d* position) {
  *position = text != nullptr ? text->position : ViPoint3d{0.0, 0.0, 0.0};
}

void vTeTextSetP(TeText* text, double x, double y, double z) {
  if (text != nullptr) text->position = {x, y, z};
}

double dTeTextGetRotation(const TeText* text) { return text != nullptr ? text->dRotation : 0.0; }

void vTeTextSetRotation(TeText* text, double radians) {
  if (text != nullptr) text->dRotation = radians;
}

int iTeTextGetAlign(const TeText* text) { return text != nullptr ? text->iAlign : 0; }

void vTeTextSetAlign(TeText* text, int align) {
  if (text != nullptr) text->iAlign = align;
}

const char* sTeTextGetLabel(const TeText* text) { return text != nullptr ? text->sLabel : ""; }

void vTeTextSetLabel(TeText* text, const char* label) {
  if (text == nullptr) return;
  if (label == nullptr) label = "";
  const size_t length = strnlen(label, kTeLabelMax);
  memmove(text->sLabel, label, length);
  text->sLabel[length] = '\0';
}

const char* sTeTextGetGuid(const TeText* text) { return text != nullptr ? text->sGuid : ""; }

void vTeTextSetGuid(TeText* text, const char* guid) {
  if (text != nullptr) vViCopyGuid(text->sGuid, guid);
}
