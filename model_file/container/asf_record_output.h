// The output of one record: its lines are gathered in a buffer and written
// in large pieces, so that a net of many points costs few writes.
#pragma once

#include <cstddef>

#include "base/printf_format.h"
#include "geometry/point.h"
#include "model_file/container/asf_handle.h"

// The most bytes that a line started with pAsfOutputLineBegin may hold.
inline constexpr size_t kAsfOutputLineRoom = 640;

struct AsfRecordOutput {
  AsfFile* pFile;
  size_t uLength;
  bool boOk;  // false once a write has come up short
  char acBuffer[8192];
};

void vAsfOutputInit(AsfRecordOutput* output, AsfFile* file);

// Readies the output of an object's record: false for a handle that does
// not write or a section that is not of `type`. Otherwise grows the
// section's extent by the object's extent (an empty one changes nothing) and
// starts the section's body; false when that fails.
bool boAsfRecordBegin(AsfRecordOutput* output, AsfFile* file, AsfSection* section, int type,
                      const ViExtent& extent);

// Room for one line of up to kAsfOutputLineRoom - 1 bytes; what is written
// there becomes a line with vAsfOutputLineEnd.
char* pAsfOutputLineBegin(AsfRecordOutput* output);
// Ends the line begun last at `end` with CR LF.
void vAsfOutputLineEnd(AsfRecordOutput* output, char* end);

// A line of a fixed text, or of a text with one formatted argument, cut to
// the room of a line.
void vAsfOutputText(AsfRecordOutput* output, const char* text);
void vAsfOutputFormat(AsfRecordOutput* output, const char* format, ...)
    KVRVIPS_PRINTF_FORMAT(2, 3);

// The object's `_EXTENT` line, in the unpadded form.
void vAsfOutputExtent(AsfRecordOutput* output, const ViExtent& extent);

// Writes what is gathered. False if this or any earlier write of the output
// came up short.
bool boAsfOutputFlush(AsfRecordOutput* output);
