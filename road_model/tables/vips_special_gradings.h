// VIPS special gradings (VIPSSPECIALGRADINGS): the detailed pavement of the
// design, kept per layer, side and surface. An entry per layer id, ascending
// by the number of the id; each entry has a list of grading surfaces on the
// left and one on the right, and each surface rows of twelve values by
// chainage.
//
// The entry of layer number 2 carries the codes of its minimum thickness on
// either side, 3.9999 on its side unless set otherwise. Elements are heap
// nodes.
#pragma once

#include <cstdint>

#include "base/dlink.h"
#include "road_model/codes/layer_id.h"

// One row of a grading surface, in the order of the file's row.
struct RmVipsGradingRow {
  RmVipsGradingRow* Next;
  RmVipsGradingRow* Prev;
  double Chain;         // -99999.0 by default
  double Height;        // -99999.0
  double Width;         // -99999.0
  int32_t WidthPcode;   // -99999
  int32_t AlignmentId;  // -99999
  int32_t WidthMethod;  // -1
  double WidthOffset;   // -99999.0
  double Slope;         // -99999.0
  int32_t SlopeMethod;  // -1
  double Extra1;        // -99999.0
  double Extra2;        // -99999.0
  double BeamSlope;     // -99999.0
};

struct RmVipsGradingSurface {
  RmVipsGradingSurface* Next;
  RmVipsGradingSurface* Prev;
  int32_t Surface;  // surface number
  ListHead Rows;    // RmVipsGradingRow
};

struct RmVipsSpecialGrading {
  RmVipsSpecialGrading* Next;
  ListHead Left;   // RmVipsGradingSurface
  ListHead Right;  // RmVipsGradingSurface
  RmLayerId Id;
  int32_t MinThickLeftPcode;
  int32_t MinThickRightPcode;
};

struct RmVipsSpecialGradings {
  ListHead Entries;  // RmVipsSpecialGrading, ascending by Id.Number
};

// The minimum thickness codes of a new entry of layer number 2: the PCODE of
// 3.9999 on each side.
inline constexpr int32_t kRmVipsMinThickLeftDefault = -39999;
inline constexpr int32_t kRmVipsMinThickRightDefault = 39999;
// The layer number whose entries carry minimum thickness codes.
inline constexpr int32_t kRmVipsMinThickLayerNumber = 2;

// ---- The table ----

// An empty table; null when memory ran out.
RmVipsSpecialGradings* RmVipsSpecialGradingsCreate();
// Deletes the entries with all they hold and the table, and nulls the
// pointer. Null is accepted.
void vRmVipsSpecialGradingsDelete(RmVipsSpecialGradings** table);
// Makes `to` a deep copy of `from`.
void vRmVipsSpecialGradingsCopy(RmVipsSpecialGradings* to, const RmVipsSpecialGradings* from);
// Whether the table has an entry; false for null.
bool boRmVipsSpecialGradingsHasRows(const RmVipsSpecialGradings* table);

// ---- Entries ----

RmVipsSpecialGrading* RmVipsSpecialGradingsGetFirst(const RmVipsSpecialGradings* table);
RmVipsSpecialGrading* RmVipsSpecialGradingGetNext(const RmVipsSpecialGrading* entry);
// The entry of `id`, both halves equal; null when there is none.
RmVipsSpecialGrading* RmVipsSpecialGradingFind(const RmVipsSpecialGradings* table, RmLayerId id);
// A new entry of `id` without surfaces, in front of the first entry of a
// greater number. Its minimum thickness codes are -99999, for number 2 the
// defaults above.
RmVipsSpecialGrading* RmVipsSpecialGradingAdd(RmVipsSpecialGradings* table, RmLayerId id);
// Deletes the entry with its surfaces.
void vRmVipsSpecialGradingRemove(RmVipsSpecialGradings* table, RmVipsSpecialGrading* entry);
// The list of surfaces of a side (kRmSideLeft or kRmSideRight); null for any
// other side.
ListHead* RmVipsSpecialGradingSide(RmVipsSpecialGrading* entry, int side);
// Whether the codes of the entry are to be kept in the file: only for layer
// number 2, only a valid code that differs from its default.
bool boRmVipsMinThickLeftKept(const RmVipsSpecialGrading* entry);
bool boRmVipsMinThickRightKept(const RmVipsSpecialGrading* entry);

// ---- Surfaces and rows ----

RmVipsGradingSurface* RmVipsGradingSurfacesGetFirst(const ListHead* side);
RmVipsGradingSurface* RmVipsGradingSurfaceGetNext(const RmVipsGradingSurface* surface);
// A new surface numbered 0 without rows at the end of the side's list.
RmVipsGradingSurface* RmVipsGradingSurfaceAdd(ListHead* side);

RmVipsGradingRow* RmVipsGradingRowsGetFirst(const RmVipsGradingSurface* surface);
RmVipsGradingRow* RmVipsGradingRowGetNext(const RmVipsGradingRow* row);
// A new row of default values at the end of the surface's rows.
RmVipsGradingRow* RmVipsGradingRowAdd(RmVipsGradingSurface* surface);
