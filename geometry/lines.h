// Line containers: lines with unique ids, a block of user data per line, and
// a table of named text fields with a value per line.
//
// Lines made with an id stand in ascending id order; lines made in front of
// another, or moved, stand where they were put. The field table has no fixed
// fields: a field takes its place in the order in which it is first named.
// Line pointers stay valid until the line is deleted.
#pragma once

#include "geometry/line.h"

struct LiLines {
  std::vector<LiLine*> lines;
  int iUserDataSize = 0;
  bool boPolygons = false;  // lines made here are polygons
  std::vector<std::string> fieldNames;
};

// A container whose lines carry `userDataSize` bytes of user data each,
// zeroed when a line is made, and a field table made for `fieldCapacity`
// fields (it grows beyond that as needed).
LiLines* LiLinesCreate(int userDataSize, int fieldCapacity);
// Deletes every line and the container, and nulls the pointer. What user data
// points to is the caller's to free first.
void vLiLinesDelete(LiLines** lines);
// Deletes every line; the field names stay.
void vLiLinesClear(LiLines* lines);

int iLiLinesGetCount(const LiLines* lines);
LiLine* LiLinesGetFirst(const LiLines* lines);
LiLine* LiLinesGetLast(const LiLines* lines);
LiLine* LiLinesGetNext(const LiLines* lines, const LiLine* line);
LiLine* LiLinesGetPrev(const LiLines* lines, const LiLine* line);
LiLine* LiLinesFindID(const LiLines* lines, long id);
// The highest id plus 1, or 1 when no id is above 0.
long lLiLinesGetNextId(const LiLines* lines);

// A new line with the id `id`, placed in front of the first line with a
// greater id. Null if the id is taken.
LiLine* LiLinesCreate2dLine(LiLines* lines, long id);
LiLine* LiLinesCreate3dLine(LiLines* lines, long id);
// A new line with the next free id, placed in front of `before` (null: at
// the end).
LiLine* LiLinesCreate2dLineBefore(LiLines* lines, LiLine* before);
LiLine* LiLinesCreate3dLineBefore(LiLines* lines, LiLine* before);
// Gives a line of the container another id; false if another line has it.
// The line keeps its place.
bool boLiLineSetID(LiLine* line, long id);
void vLiLinesDeleteLine(LiLines* lines, LiLine* line);
// Moves `line` in front of `before` (null: to the end). False when either is
// not a line of this container or the line is `before` itself.
bool boLiLinesMoveLine(LiLines* lines, LiLine* line, LiLine* before);

// Bytes that the container holds but does not use: free room of the element
// stores and texts that were replaced. Copying a line into a fresh one gives
// them back.
long lLiLinesGetMemPoolGarbage(const LiLines* lines);

// ---- User data -----------------------------------------------------------------

// The line's user data block, aligned for any type; null when it has none.
void* pLiLineGetUserData(LiLine* line);

// ---- Fields ---------------------------------------------------------------------

int iLiLinesGetFieldCount(const LiLines* lines);
// Fields before this index are fixed; here there are none, so it is 0.
int iLiLinesGetFixedFieldCount(const LiLines* lines);
// Null for an index out of range.
const char* sLiLinesGetFieldName(const LiLines* lines, int index);
// Exact match of the name; -1 if absent.
int iLiLinesFindField(const LiLines* lines, const char* name);
// The index of the field, adding it at the end if it is new; -1 for a null
// or empty name.
int iLiLinesAddField(LiLines* lines, const char* name);
// The line's value of a field; "" when unset, out of range or not in a
// container.
const char* sLiLineGetField(const LiLine* line, int index);
bool boLiLineSetField(LiLine* line, int index, const char* value);
const char* sLiLineGetFieldByName(const LiLine* line, const char* name);
// Sets the value, adding the field to the container's table if it is new.
bool boLiLineSetFieldByName(LiLine* line, const char* name, const char* value);
// Empties the line's values of the fields from `first` on.
void vLiLineClearFields(LiLine* line, int first);
