#include "road_model/lines/line_fields.h"

#include <cstdlib>

#include "road_model/codes/pcode.h"

namespace {

const char* sField(const RmLine* line, const char* name) {
  return sLiLineGetFieldByName(line, name);
}

void vSetField(RmLine* line, const char* name, const char* value) {
  if (line) boLiLineSetFieldByName(line, name, value ? value : "");
}

void vSetFlag(RmLine* line, const char* name, bool flag) { vSetField(line, name, flag ? "1" : ""); }

bool boNumberFlag(const RmLine* line, const char* name) {
  return std::atoi(sField(line, name)) != 0;
}

}  // namespace

const char* sRmLineGetName(const RmLine* line) { return sField(line, kRmFieldName); }

void vRmLineSetName(RmLine* line, const char* name) { vSetField(line, kRmFieldName, name); }

const char* sRmLineGetGuid(const RmLine* line) { return sField(line, kRmFieldGuid); }

void vRmLineSetGuid(RmLine* line, const char* guid) { vSetField(line, kRmFieldGuid, guid); }

bool boRmLineIsInvisible(const RmLine* line) { return sField(line, kRmFieldInvisible)[0] == '1'; }

void vRmLineSetInvisible(RmLine* line, bool invisible) {
  vSetFlag(line, kRmFieldInvisible, invisible);
}

int iRmLineGetPcode(const RmLine* line) { return iRmPcodeFromText(sField(line, kRmFieldPcode)); }

void vRmLineSetPcode(RmLine* line, int pcode) {
  vSetField(line, kRmFieldPcode, sRmPcodeToText(pcode));
}

bool boRmLineIsCenterLine(const RmLine* line) { return boNumberFlag(line, kRmFieldCenterLine); }

void vRmLineSetCenterLine(RmLine* line, bool centerLine) {
  vSetFlag(line, kRmFieldCenterLine, centerLine);
}

const char* sRmLineGetExternalModel(const RmLine* line) {
  return sField(line, kRmFieldExternalModel);
}

void vRmLineSetExternalModel(RmLine* line, const char* model) {
  vSetField(line, kRmFieldExternalModel, model);
}

int iRmLineGetExternalPcode(const RmLine* line) {
  return iRmPcodeFromText(sField(line, kRmFieldExternalPcode));
}

void vRmLineSetExternalPcode(RmLine* line, int pcode) {
  vSetField(line, kRmFieldExternalPcode, sRmPcodeToText(pcode));
}

bool boRmLineIsLimitation(const RmLine* line) { return boNumberFlag(line, kRmFieldLimitation); }

void vRmLineSetLimitation(RmLine* line) { vSetFlag(line, kRmFieldLimitation, true); }
