// CROSSECTIONS and LONGSECTIONS: one group per section, from ":CHAIN" to the
// next, with the section's plan position, clipping and tilt (cross sections
// only), its masses and its layers with their points.
//
// This is the bulk of a model file: a large road has hundreds of thousands
// of point lines. They are assembled and taken apart in place, without an
// allocation per line; the points come from the set's pool.
#pragma once

#include "model_file/records/frame/record_family.h"

struct RmSectionSet;

extern const RmRecordFamily kRmCrossSectionsFamily;
extern const RmRecordFamily kRmLongSectionsFamily;

// One group per section, from ":CHAIN" to the next.
void vRmSectionSetWriteRecords(AsfFile* file, AsfSection* section, const RmSectionSet* set);
// Appends the sections of the file to `set`, whose kind must be set. False
// only for a null set.
bool boRmSectionSetReadRecords(AsfFile* file, AsfSection* section, RmSectionSet* set);
