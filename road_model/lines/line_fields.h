// The named text fields of a plan line.
//
// Every value is a text in the field table of the line's container; a field
// that a line never set reads as the empty text. Flags are "1" or empty.
#pragma once

#include "road_model/lines/plan_lines.h"

inline constexpr const char* kRmFieldName = "NAME";
inline constexpr const char* kRmFieldGuid = "GUID";
inline constexpr const char* kRmFieldInvisible = "INVISIBLE";
inline constexpr const char* kRmFieldPcode = "PCODE";
inline constexpr const char* kRmFieldCenterLine = "CL";
inline constexpr const char* kRmFieldExternalModel = "EXTERNAL_MODEL";
inline constexpr const char* kRmFieldExternalPcode = "EXTERNAL_PCODE";
inline constexpr const char* kRmFieldLimitation = "LIMITATION_LINE";

const char* sRmLineGetName(const RmLine* line);
void vRmLineSetName(RmLine* line, const char* name);

const char* sRmLineGetGuid(const RmLine* line);
void vRmLineSetGuid(RmLine* line, const char* guid);

// True when the text begins with '1'.
bool boRmLineIsInvisible(const RmLine* line);
void vRmLineSetInvisible(RmLine* line, bool invisible);

// The PCODE from its decimal text F.GGNN; 0 when empty.
int iRmLineGetPcode(const RmLine* line);
// Stores the decimal text; a code that has none (0) empties the field.
void vRmLineSetPcode(RmLine* line, int pcode);

// The number in the text, so an empty field is not a centre line.
bool boRmLineIsCenterLine(const RmLine* line);
void vRmLineSetCenterLine(RmLine* line, bool centerLine);

const char* sRmLineGetExternalModel(const RmLine* line);
void vRmLineSetExternalModel(RmLine* line, const char* model);

int iRmLineGetExternalPcode(const RmLine* line);
void vRmLineSetExternalPcode(RmLine* line, int pcode);

bool boRmLineIsLimitation(const RmLine* line);
// Marks the line as a limitation line; the mark is never taken away.
void vRmLineSetLimitation(RmLine* line);
