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

// The records of every kind, for callers that read or write several.
#include "model_file/container/asf_line_record.h"
#include "model_file/container/asf_net_record.h"
#include "model_file/container/asf_object_reader.h"
#include "model_file/container/asf_point_record.h"
