// The lines of layer lists and mass lists in the vocabulary sections.
//
// A layer list is one line: the keyword, then one token per entry. A token
// is the layer's file number alone when the entry holds the defaults, else
// eight fields joined by "|": layer, value, code filter, flags, kind,
// number, second value, text ("22|0.500|1.01:1.99|16|1|0|0.000|Kant"). A
// field left empty keeps the entry's default. A list with no entries has no
// line. A mass list is the keyword and one number per mass.
#pragma once

#include "model_file/records/frame/record_line.h"
#include "road_model/codes/layer_id.h"

struct RmLayerList;
struct RmMassNumbers;

// The layer of a file number; a negative number is no layer (the empty id).
RmLayerId RmLayerIdOfFileNumber(long number);

void vRmLayerListLineWrite(AsfFile* file, AsfSection* section, const char* keyword,
                           const RmLayerList* list);
// Appends an entry per token left on the line; either form is read.
void vRmLayerListLineRead(RecordLine* line, RmLayerList* list);

void vRmMassNumbersLineWrite(AsfFile* file, AsfSection* section, const char* keyword,
                             const RmMassNumbers* numbers);
// Appends each number left on the line.
void vRmMassNumbersLineRead(RecordLine* line, RmMassNumbers* numbers);
