// CSECTANOTATIONTYPES and LSECTANOTATIONTYPES (so spelled in the file): one
// group per annotation type, from ":ANNOTATIONTYPE <number> <name>" to the
// next, with the lines of the type in a fixed order; layers, texts, the
// height limit and REMOVENEGVALUES only when they are set.
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmCrossAnnotationTypesFamily;
extern const RmRecordFamily kRmLongAnnotationTypesFamily;
