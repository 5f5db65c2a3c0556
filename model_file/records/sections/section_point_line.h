// The point line of a section layer in the model file, the most numerous
// line of the file: " X Z PCODE", " X Z PCODE Radius" or
// " X Z PCODE Radius Mark".
//
// Each number is printed as "%.4f" prints it, closing zeros and a bare point
// dropped, so a small negative number may come out as "-0" (which reads as
// 0). The form is chosen by the code word: all five columns when the mark is
// not 0, otherwise the radius only when it is not 0 (within 0.00001).
//
// Both directions work in the caller's buffer, without allocation.
#pragma once

#include <cstddef>

#include "road_model/codes/point_code.h"

// Room for the longest point line and its terminator.
inline constexpr size_t kRmPointLineSize = 128;

// Writes the point's line into `buffer` (kRmPointLineSize bytes) and
// returns its length.
size_t uRmPointLineFormat(const RmPoint* point, char* buffer);

// Reads the columns of a point line from `text` up to its terminator into
// the point: offset, height, PCODE (the bits above it kept), radius and
// mark, as the model file's number readers read them. A missing column
// reads as 0; a missing mark clears it. "-0" reads as a plain 0 and is
// written back as "0"; "-0.0" reads as a zero with its sign.
void vRmPointLineRead(const char* text, RmPoint* point);

// Prints `value` as "%.4f" does, then drops closing zeros and a bare point.
// Exact for every single-precision value. Returns the end of the text; the
// caller gives at least 24 bytes.
char* pRmPrintCoordinate(char* out, float value);
