// Finding the records of a geometry section and reading their heads: ID,
// field values, GUID and the settings of each kind.
#pragma once

#include "model_file/container/asf_file.h"
#include "model_file/container/asf_object_callbacks.h"

// Moves to the next record of the section's type and reads its head: the
// result is the section's type and `outId` the record's ID, or -1 at the end
// of the section (and for an O section). With a reading filter set, lines,
// polygons, points and texts outside it are passed over.
int iAsfObjectNext(AsfFile* file, AsfSection* section, long* outId);

// Looks for the record with the ID `id` from the start of the section and
// reads its head. False when the section has none.
bool boAsfObjectFind(AsfFile* file, AsfSection* section, long id);
