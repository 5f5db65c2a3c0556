// The line section with the empty name: one ":L" record per plan line, with
// the start chainage in the field CHAIN, the line's text fields behind it,
// and the text of each element as its `elmdata`.
#pragma once

#include "model_file/records/frame/record_family.h"

struct RmLines;

extern const RmRecordFamily kRmPlanLinesFamily;

// The same records serve the string lines of a layer under other section
// names.

// The field names of the section: CHAIN, then the free fields of the lines'
// field table in their order. Runs before the head is written.
void vRmLinesSetFieldNames(AsfFile* file, AsfSection* section, const RmLines* lines);
// One ":L" record per line, in the lines' order.
void vRmLinesWriteRecords(AsfFile* file, AsfSection* section, const RmLines* lines);
// Adds a line for each record: geometry, start chainage and field values.
// Files of DATAVERSION 2 or older hold the one centre line.
void vRmLinesReadRecords(AsfFile* file, AsfSection* section, RmLines* lines, int dataVersion);
