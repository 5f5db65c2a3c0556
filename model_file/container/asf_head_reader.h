// Reading the head and directory of a container in the current format
// ("[KVRFILE_ASCII]"), and the check of its tail.
#pragma once

#include "model_file/container/asf_handle.h"

// Reads the head keys and the directory, starting behind the first line.
// Head lines may be of any length. Afterwards the line that ended the
// directory is in the line buffer, cut to 9,999 characters. False when no
// section was read.
bool boAsfReadCurrentHead(AsfFile* file);

// Whether the last "[" in the last 100 bytes of the file starts "[END]",
// regardless of case. The reader's position is kept; the line buffer is
// emptied, so that a first section search never takes it for a body head.
bool boAsfTailIsEnd(AsfFile* file);

// Splits a line at its first blank into name and value (no blank: an empty
// value). The blank is overwritten.
void vAsfSplitNameValue(char* line, char** outName, char** outValue);

// Whether a name may be used: it starts with a capital A to Z or "_".
bool boAsfNameUsable(const char* name);

// A decimal integer read as atoi reads it, held to the 32-bit range.
int iAsfParseInt(const char* text);
