// The geometry records of the container: lines, polygons, points, texts,
// triangle nets and point clouds in the sections of types L, Y, P, T, N and
// C. The objects are the geometry library's; the records write and fill them
// through its functions.
//
// Writing: each write first grows the section's extent by the object's
// extent, then starts the section's body, then writes the record. A section
// of another type gives false, as does a write that comes up short.
//
// Reading: iAsfObjectNext moves to the next record of the section and reads
// its head (ID, field values, GUID and settings); a read operation of the
// same kind then fills an object that the caller made. Reading never
// reports: bad records read as far as they go.
#pragma once

#include "geometry/cloud.h"
#include "geometry/line.h"
#include "geometry/net.h"
#include "geometry/point_text.h"
#include "geometry/polygon.h"
#include "model_file/container/asf_file.h"
#include "model_file/container/asf_object_callbacks.h"

// ---- Writing --------------------------------------------------------------------

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
// A point record ":P".
bool boAsfPointWrite(AsfFile* file, AsfSection* section, const PoPoint* point,
                     AsfFieldCallback fieldCallback, void* datum);
// A text record ":T". A text with an empty label is left out: nothing is
// written and the result is true.
bool boAsfTextWrite(AsfFile* file, AsfSection* section, const TeText* text,
                    AsfFieldCallback fieldCallback, void* datum);
// A triangle net record ":N" and a point cloud record ":C".
bool boAsfNetWrite(AsfFile* file, AsfSection* section, const TrNet* net,
                   AsfFieldCallback fieldCallback, void* datum);
bool boAsfCloudWrite(AsfFile* file, AsfSection* section, const PtCloud* cloud,
                     AsfFieldCallback fieldCallback, void* datum);

// ---- Reading --------------------------------------------------------------------

// Sets the callback that takes the `elmdata` texts of the lines and polygons
// read; null ignores them.
void vAsfElmReadCallbackSet(AsfFile* file, AsfElmReadCallback callback);

// Moves to the next record of the section's type and reads its head: the
// result is the section's type and `outId` the record's ID, or -1 at the end
// of the section (and for an O section). With a reading filter set, lines,
// polygons, points and texts outside it are passed over.
int iAsfObjectNext(AsfFile* file, AsfSection* section, long* outId);

// Looks for the record with the ID `id` from the start of the section and
// reads its head. False when the section has none.
bool boAsfObjectFind(AsfFile* file, AsfSection* section, long id);

// Fill the object with the record that iAsfObjectNext has just found. False
// when that record is of another kind (a line read gives false only when a
// record of another kind is pending).
bool boAsfLineRead(AsfFile* file, AsfSection* section, LiLine* line);
// The same, handing `datum` to the element read callback.
bool boAsfLineReadData(AsfFile* file, AsfSection* section, LiLine* line, void* datum);
bool boAsfPolygonRead(AsfFile* file, AsfSection* section, YgPolygon* polygon);
bool boAsfPointRead(AsfFile* file, AsfSection* section, PoPoint* point);
// False also for a text with an empty label.
bool boAsfTextRead(AsfFile* file, AsfSection* section, TeText* text);
bool boAsfNetRead(AsfFile* file, AsfSection* section, TrNet* net);
bool boAsfCloudRead(AsfFile* file, AsfSection* section, PtCloud* cloud);
