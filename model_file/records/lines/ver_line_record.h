// VERLINE: the vertical lines of the plan lines. Each line with a vertical
// line has a group ":VERLINE id" with one row per intersection point:
// chainage, height and radius, "P" and the length for a parabola, and "LS"
// for a point with that flag. A file of the older form holds the rows of the
// centre line alone, without a group line.
#pragma once

#include "model_file/records/frame/record_family.h"

struct RmLines;

extern const RmRecordFamily kRmVerLinesFamily;

// The same records serve the string lines of a layer under other section
// names.

// Whether any line has a vertical line.
bool boRmLinesHaveVerLines(const RmLines* lines);
void vRmVerLinesWriteRecords(AsfFile* file, AsfSection* section, const RmLines* lines);
// Gives each line of a group a new vertical line, adding the line when it is
// missing, and computes it.
void vRmVerLinesReadRecords(AsfFile* file, AsfSection* section, RmLines* lines, int dataVersion);
