// Line and polygon records (":L", ":Y"): head lines and the element block.
#pragma once

#include "geometry/line.h"
#include "geometry/polygon.h"
#include "model_file/container/asf_file.h"
#include "model_file/container/asf_object_callbacks.h"

// A line record ":L". `fieldCallback` may be null: every value is then empty.
bool boAsfLineWrite(AsfFile* file, AsfSection* section, const LiLine* line,
                    AsfFieldCallback fieldCallback, void* datum);
// The same with an `elmdata` text for each element that `elmCallback` gives
// one.
bool boAsfLineWriteElmData(AsfFile* file, AsfSection* section, const LiLine* line,
                           AsfFieldCallback fieldCallback, void* datum,
                           AsfElmDataCallback elmCallback, void* elmDatum);
// A polygon record ":Y".
bool boAsfPolygonWrite(AsfFile* file, AsfSection* section, const YgPolygon* polygon,
                       AsfFieldCallback fieldCallback, void* datum);

// Sets the callback that takes the `elmdata` texts of the lines and polygons
// read; null ignores them.
void vAsfElmReadCallbackSet(AsfFile* file, AsfElmReadCallback callback);

// Fill the object with the record that iAsfObjectNext has just found. False
// when that record is of another kind (a line read gives false only when a
// record of another kind is pending).
bool boAsfLineRead(AsfFile* file, AsfSection* section, LiLine* line);
// The same, handing `datum` to the element read callback.
bool boAsfLineReadData(AsfFile* file, AsfSection* section, LiLine* line, void* datum);
bool boAsfPolygonRead(AsfFile* file, AsfSection* section, YgPolygon* polygon);
