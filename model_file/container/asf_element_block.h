// The element block of a line or polygon record: a dimension line ("/XYZ",
// "/XYH height" or "/XY") and a line per element, its point and what makes
// the element more than a straight:
//
//   x y [z]                      straight (types 0 and 98)
//   x y [z] a2p R [1]            arc by two points: radius, large-arc flag
//   x y [z] a3p                  arc by three points, then the middle point
//   xm ym [zm]                   in a line of its own
//   x y [z] clot R1 R2 A         clothoid: start radius, end radius, A
//   x y [z] invis                invisible move
//   !?                           an element of a type without a form
//
// and behind any of them " elmdata (text)" with the caller's extra data.
// The words of a piece stand on the line of its start point: "x y a2p R"
// says that the line goes on from (x, y) to the next point along an arc.
// Elements of type 3 are left out. A line holds at most 127 bytes. On
// reading, an arc or clothoid that cannot be laid between its points stays
// a straight; so does a clothoid that would turn more than 200 radians.
#pragma once

#include "geometry/line.h"
#include "model_file/container/asf_record_output.h"

// Writes the dimension line and the element lines of `line`. `callback` (may
// be null) gives each element's extra data.
void vAsfElementBlockWrite(AsfRecordOutput* output, const LiLine* line,
                           AsfElmDataCallback callback, void* datum);

// Reads the element lines of the record being read into `line`, up to the
// next ":" or "[" line, which waits for the next read. The dimension and
// fixed height are those of the record's head. Every `elmdata` goes to the
// handle's element read callback with the handle's read datum.
void vAsfElementBlockRead(AsfFile* file, LiLine* line);
