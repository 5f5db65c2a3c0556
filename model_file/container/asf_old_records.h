// The records of the older format, which is read only. A line ":X id" leads
// a record; lines "NAME value" follow, a value in double quotes of up to 29
// characters: the object's field values and the words "poly" (a line drawn
// as a polygon), "rot" and "ANG" (rotation, as it stands), "align" and "lbl"
// (of texts). Then come the number lines: a line's elements, 2D, with the
// element words of the current format, or the position of a point or text.
#pragma once

#include "model_file/container/asf_handle.h"

// Reads the head of the older record whose ":X id" line has just been read,
// up to its first number line. A line or polygon keeps that line waiting as
// its first element, and is read also without one; a point or text takes
// its position from it, at least two numbers, and is passed over without
// one. Returns a kAsfHead... result.
int iAsfOldRecordHead(AsfFile* file, AsfSection* section, int type);
