// Chain data: objects placed along the road (signs, posts, barriers). Each
// line of chain data has a type and rows; a row stands at a chainage and a
// position and carries the free field values of its type.
//
// Lines and rows are heap nodes in doubly linked lists. A row node is the
// fixed part below followed by FieldCount field values of 40 characters, so
// the rows of one line all have the size that the line's field count gives.
#pragma once

#include <cstdint>

#include "base/dlink.h"

inline constexpr int kRmChainFieldSize = 40;
inline constexpr int kRmChainCodeSize = 12;

struct RmChainDataRow {
  RmChainDataRow* Next;
  RmChainDataRow* Prev;
  double Chain;
  double X, Y, Z;
  double Value;  // the last real of the CHAIN record
  float OffsLeft, OffsRight;
  float Offs[4];  // the four further values of OFFS
  // A code that begins with '#' marks a row that takes no part in geometry.
  char Code[kRmChainCodeSize];
  // FieldCount values of kRmChainFieldSize characters follow the node.
};

struct RmChainDataLine {
  RmChainDataLine* Next;
  RmChainDataLine* Prev;
  int32_t Type;
  int32_t InfoType;
  int32_t FieldCount;
  ListHead Rows;  // RmChainDataRow, heap nodes of the line's row size
};

struct RmChainData {
  ListHead Lines;         // RmChainDataLine, heap nodes
  uint32_t Exact3dMode;   // EXACT3DMODE: the rows' plan offsets are not used
  double CorridorWidth;   // CORRIDORWIDTH
  double MaxClDeviation;  // MAXCLDEVIATION
  double ExpandStart;     // EXPANDSTARTEND
  double ExpandEnd;
};

// ---- Row kinds ----

// The position of `c` in the key string " SEDMZwsedmzCc"; 0 when it is not
// there.
int iRmChainKeyIndex(char c);
// The character at `index`; a blank outside the string.
char cRmChainKeyChar(int index);

// ---- The object ----

// Empty chain data with its defaults; null when memory ran out.
RmChainData* RmChainDataCreate();
// Deletes the lines and the object, and nulls the pointer. Null is accepted.
void vRmChainDataDelete(RmChainData** data);
// Makes `to` a copy of `from`: the settings, both expansions and the lines.
void vRmChainDataCopy(RmChainData* to, const RmChainData* from);

// ---- Lines ----

// A new line in front of `before` (null: at the end) whose rows carry
// `fieldCount` field values; null when memory ran out.
RmChainDataLine* RmChainDataLineAdd(RmChainData* data, RmChainDataLine* before, int type,
                                    int fieldCount);
void vRmChainDataLineRemove(RmChainData* data, RmChainDataLine* line);
// The first line of that type, or null.
RmChainDataLine* RmChainDataLineFind(const RmChainData* data, int type);
// The first line with an info type, or null.
RmChainDataLine* RmChainDataLineFindWithInfo(const RmChainData* data);
int iRmChainDataLineGetInfoType(const RmChainDataLine* line);
void vRmChainDataLineSetInfoType(RmChainDataLine* line, int infoType);

// ---- Rows ----

// A new zeroed row at the end of the line; null when memory ran out.
RmChainDataRow* RmChainDataRowAdd(RmChainDataLine* line);

// Field `index` of the row; empty for an index outside the line's fields. A
// null line leaves the index unchecked.
const char* sRmChainDataRowGetField(const RmChainDataLine* line, const RmChainDataRow* row,
                                    int index);
// The field read as a number; 0.0 outside the line's fields.
double dRmChainDataRowGetFieldValue(const RmChainDataLine* line, const RmChainDataRow* row,
                                    int index);
// Copies at most 39 characters of `text` into the field.
void vRmChainDataRowSetField(const RmChainDataLine* line, RmChainDataRow* row, int index,
                             const char* text);

// The plan offsets of a row. In exact 3D mode they read as 0.0 and setting
// them does nothing; the stored values stay.
double dRmChainDataRowGetOffsX(const RmChainData* data, const RmChainDataRow* row);
void vRmChainDataRowSetOffsX(const RmChainData* data, RmChainDataRow* row, double value);
double dRmChainDataRowGetOffsY(const RmChainData* data, const RmChainDataRow* row);
void vRmChainDataRowSetOffsY(const RmChainData* data, RmChainDataRow* row, double value);
// The plan position: the row's X and Y plus its offsets.
double dRmChainDataRowPlanX(const RmChainData* data, const RmChainDataRow* row);
double dRmChainDataRowPlanY(const RmChainData* data, const RmChainDataRow* row);
// The plan position and the height.
void vRmChainDataRowPoint(const RmChainData* data, const RmChainDataRow* row, double xyz[3]);

// Whether the row takes part in geometry: its code does not begin with '#'.
bool boRmChainDataRowIsVisible(const RmChainDataRow* row);
// The next and the previous visible row, or null.
RmChainDataRow* RmChainDataRowNextVisible(const RmChainDataRow* row);
RmChainDataRow* RmChainDataRowPrevVisible(const RmChainDataRow* row);

// The plan shift that moves the row `dist` to the side of the polyline
// through the visible rows, mitred at the row. A hidden row gives (0, 0).
void vRmChainDataRowOffsetVector(double* dx, double* dy, const RmChainDataRow* row, double dist);
