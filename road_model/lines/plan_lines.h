// Plan lines of a road model: the centre line of the road and any extra
// lines.
//
// The plan geometry of each line is a LiLine of a line container. The model
// adds to every line a block of line data (start chainage, vertical line,
// chain equations) in the line's user data, and names the line through text
// fields of the container (see line_fields.h). Lines made with an id stand in
// ascending id order; the lookups walk in that order and give the first
// match.
#pragma once

#include "geometry/lines.h"

struct RmChainEquations;
struct RmModel;
struct RmVerLine;

// A plan line of the model is a line of the container.
using RmLine = LiLine;

struct RmLines {
  LiLines* Handle;  // the lines, 24 bytes of line data each
  RmModel* Model;   // the model that holds this object; null when free
};

// The user data block of every line.
struct RmLineData {
  double StartChain;                 // CHAIN: chainage of the line's first point
  RmVerLine* VerLine;                // owned, or null
  RmChainEquations* ChainEquations;  // owned, or null
};
static_assert(sizeof(RmLineData) == 24, "the line data fills the container's 24 bytes per line");

// The name of the default centre line.
inline constexpr const char* kRmDefaultCenterLineName = "Arm, CL";

// ---- Life cycle ----

// An empty object; null when memory ran out.
RmLines* RmLinesCreate();
// An object with the default centre line.
RmLines* RmLinesCreateDefault();
// Deletes every line with its vertical line and equations, then the
// container and the object, and nulls the pointer. Null is accepted.
void vRmLinesDelete(RmLines** lines);
// Deletes every line with its vertical line and equations; the field table
// stays.
void vRmLinesClear(RmLines* lines);
// Makes `to` a deep copy of `from`: field table, lines with their ids, data
// and fields. `to->Model` becomes `model`.
void vRmLinesCopy(RmLines* to, const RmLines* from, RmModel* model);
// Makes the line `to` of `toLines` a copy of the line `from` of
// `fromLines`: vertical line and equations as deep copies, geometry, start
// chainage and field values. The id of `to` stays. Returns `to`.
RmLine* RmLineCopyInto(RmLines* toLines, RmLine* to, const RmLines* fromLines,
                       const RmLine* from);

// ---- Adding and removing lines ----

// The highest id plus 1 when that id is at least 1, otherwise 1.
int iRmLinesNextId(const RmLines* lines);
// A new line with `id` in ascending id order; null if the id is taken.
RmLine* RmLinesAddWithId(RmLines* lines, long id, bool is3d);
// The line with `id`, or a new one with that id when there is none.
RmLine* RmLinesFindOrAddWithId(RmLines* lines, long id, bool is3d);
// A new line with the next free id in front of `before` (null: at the end).
RmLine* RmLinesAddBefore(RmLines* lines, RmLine* before, bool is3d);
// A new 2D line with the next free id, set as centre line and named
// "Arm, CL".
RmLine* RmLinesAddDefault(RmLines* lines);
// Deletes the line with its vertical line and equations.
void vRmLinesRemove(RmLines* lines, RmLine* line);
void vRmLinesRemoveById(RmLines* lines, long id);
// Keeps only the lines that are centre lines.
void vRmLinesRemoveNonCenter(RmLines* lines);

// ---- Walking and looking up ----

int iRmLinesGetCount(const RmLines* lines);
RmLine* RmLinesGetFirst(const RmLines* lines);
RmLine* RmLinesGetNext(const RmLines* lines, const RmLine* line);
long lRmLineGetId(const RmLine* line);

RmLine* RmLinesFindById(const RmLines* lines, long id);
// Names and GUIDs compare without regard to case.
RmLine* RmLinesFindByName(const RmLines* lines, const char* name);
RmLine* RmLinesFindByGuid(const RmLines* lines, const char* guid);
RmLine* RmLinesFindByPcode(const RmLines* lines, int pcode);
// The first line with "CL" set, or null.
RmLine* RmLinesGetCenterLine(const RmLines* lines);

// ---- Order and marks ----

// Ascending by PCODE; lines of equal PCODE keep their order.
void vRmLinesSortByPcode(RmLines* lines);
// Every line that is not a centre line becomes a limitation line.
void vRmLinesMarkLimitations(RmLines* lines);

// ---- Line data ----

// The line's data block; null for a null line or one outside a container.
RmLineData* RmLineGetData(const RmLine* line);

double dRmLineGetStartChain(const RmLine* line);
void vRmLineSetStartChain(RmLine* line, double chain);

RmVerLine* RmLineGetVerLine(const RmLine* line);
// Attaches `verLine` (taking ownership, null detaches) after deleting the one
// the line had, and points its back pointer at `lines`.
void vRmLineSetVerLine(RmLines* lines, RmLine* line, RmVerLine* verLine);
void vRmLineDeleteVerLine(RmLine* line);

RmChainEquations* RmLineGetEquations(const RmLine* line);
// Attaches `equations` (taking ownership) after deleting the old ones.
void vRmLineSetEquations(RmLine* line, RmChainEquations* equations);
void vRmLineDeleteEquations(RmLine* line);
