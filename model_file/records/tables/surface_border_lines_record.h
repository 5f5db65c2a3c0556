// SURFACEBORDERLINES: the surface border lines of the model, one row each,
// " surface from to method lineId freeSurface"; ":GROUPEND" ends the rows
// and other lines are passed over. An alignment written as 0 or left out,
// and a free surface left out, read as absent.
//
// The rows of a surface group's own border lines in SURFGEN have the same
// form.
#pragma once

#include "model_file/records/frame/record_family.h"

struct RecordLine;
struct RmSurfaceBorderLine;
struct RmSurfaceBorderLines;

extern const RmRecordFamily kRmSurfaceBorderLinesFamily;

// The section's records of a table, and a new table from them (null only
// when no table could be made); the clipboard uses them too.
void vRmSurfaceBorderLinesWrite(AsfFile* file, AsfSection* section,
                                const RmSurfaceBorderLines* lines);
RmSurfaceBorderLines* RmSurfaceBorderLinesRead(AsfFile* file, AsfSection* section);

void vRmSurfaceBorderLineRowWrite(AsfFile* file, AsfSection* section,
                                  const RmSurfaceBorderLine* row);
// Adds the row of `line` to the table in its order. The whole line is read,
// whatever the line's cursor has passed already.
void vRmSurfaceBorderLineRowRead(RecordLine* line, RmSurfaceBorderLines* table);
