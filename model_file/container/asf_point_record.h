// Point and text records (":P", ":T"): one position with rotation,
// alignment and label.
#pragma once

#include "geometry/point_text.h"
#include "model_file/container/asf_file.h"
#include "model_file/container/asf_object_callbacks.h"

// A point record ":P".
bool boAsfPointWrite(AsfFile* file, AsfSection* section, const PoPoint* point,
                     AsfFieldCallback fieldCallback, void* datum);
// A text record ":T". A text with an empty label is left out: nothing is
// written and the result is true.
bool boAsfTextWrite(AsfFile* file, AsfSection* section, const TeText* text,
                    AsfFieldCallback fieldCallback, void* datum);

// Fill the object with the record that iAsfObjectNext has just found. False
// when that record is of another kind.
bool boAsfPointRead(AsfFile* file, AsfSection* section, PoPoint* point);
// False also for a text with an empty label.
bool boAsfTextRead(AsfFile* file, AsfSection* section, TeText* text);
