// String lines: a layer's own set of plan lines, from which the model is
// built when it is calculated from string lines (CALCMODE 2 and 3).
//
// Layers stand ascending by the number half of their id; each owns its line
// collection, which may be absent.
#pragma once

#include "base/slink.h"
#include "road_model/codes/layer_id.h"

struct RmLines;

struct RmStringLineLayer {
  RmStringLineLayer* Next;
  RmLayerId Id;
  RmLines* Lines;  // owned, or null
};

struct RmStringLines {
  ListHead Layers;  // RmStringLineLayer, heap nodes
};

// ---- Life cycle ----

// An empty table; null when memory ran out.
RmStringLines* RmStringLinesCreate();
// Deletes every layer with its lines, then the table, and nulls the pointer.
// Null is accepted.
void vRmStringLinesDelete(RmStringLines** lines);
// Makes `to` a deep copy of `from`, lines included.
void vRmStringLinesCopy(RmStringLines* to, const RmStringLines* from);
// A layer in the table; false for null.
bool boRmStringLinesHasRows(const RmStringLines* lines);

// ---- Layers ----

RmStringLineLayer* RmStringLinesGetFirst(const RmStringLines* lines);
RmStringLineLayer* RmStringLineGetNext(const RmStringLineLayer* layer);
// The layer of exactly this id (both halves), or null.
RmStringLineLayer* RmStringLineFind(const RmStringLines* lines, RmLayerId id);
// A new layer of `id` without lines, in front of the first layer of a
// greater number.
RmStringLineLayer* RmStringLineAdd(RmStringLines* lines, RmLayerId id);
RmLines* RmStringLineGetLines(const RmStringLineLayer* layer);
// Takes ownership of `lines` and deletes those the layer had.
void vRmStringLineSetLines(RmStringLineLayer* layer, RmLines* lines);
// Deletes the layer's lines, then the layer.
void vRmStringLineRemove(RmStringLines* lines, RmStringLineLayer* layer);
