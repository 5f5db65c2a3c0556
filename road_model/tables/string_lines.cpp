#include "road_model/tables/string_lines.h"

#include <cstdlib>

#include "road_model/lines/plan_lines.h"

namespace {

void vClearLayers(RmStringLines* lines) {
  for (RmStringLineLayer* layer = RmStringLinesGetFirst(lines); layer; layer = layer->Next) {
    vRmLinesDelete(&layer->Lines);
  }
  vSLinkClear(&lines->Layers);
}

}  // namespace

RmStringLines* RmStringLinesCreate() {
  auto* lines = static_cast<RmStringLines*>(std::calloc(1, sizeof(RmStringLines)));
  if (lines) SLinkInit(&lines->Layers, sizeof(RmStringLineLayer), nullptr);
  return lines;
}

void vRmStringLinesDelete(RmStringLines** lines) {
  if (!lines || !*lines) return;
  vClearLayers(*lines);
  std::free(*lines);
  *lines = nullptr;
}

void vRmStringLinesCopy(RmStringLines* to, const RmStringLines* from) {
  if (!to || !from || to == from) return;
  vClearLayers(to);
  for (const RmStringLineLayer* layer = RmStringLinesGetFirst(from); layer;
       layer = layer->Next) {
    auto* copy = SLinkNewObjAs<RmStringLineLayer>(&to->Layers);
    if (!copy) return;
    copy->Id = layer->Id;
    if (!layer->Lines) continue;
    // The lines of a layer belong to no model of their own.
    copy->Lines = RmLinesCreate();
    vRmLinesCopy(copy->Lines, layer->Lines, nullptr);
  }
}

bool boRmStringLinesHasRows(const RmStringLines* lines) { return lines && lines->Layers.first; }

RmStringLineLayer* RmStringLinesGetFirst(const RmStringLines* lines) {
  return lines ? ListFirst<RmStringLineLayer>(&lines->Layers) : nullptr;
}

RmStringLineLayer* RmStringLineGetNext(const RmStringLineLayer* layer) {
  return layer ? layer->Next : nullptr;
}

RmStringLineLayer* RmStringLineFind(const RmStringLines* lines, RmLayerId id) {
  for (RmStringLineLayer* layer = RmStringLinesGetFirst(lines); layer; layer = layer->Next) {
    if (boRmLayerIdEquals(layer->Id, id)) return layer;
  }
  return nullptr;
}

RmStringLineLayer* RmStringLineAdd(RmStringLines* lines, RmLayerId id) {
  if (!lines) return nullptr;
  RmStringLineLayer* before = RmStringLinesGetFirst(lines);
  while (before && before->Id.Number <= id.Number) before = before->Next;
  auto* layer = SLinkNewObjAs<RmStringLineLayer>(&lines->Layers, before);
  if (layer) layer->Id = id;
  return layer;
}

RmLines* RmStringLineGetLines(const RmStringLineLayer* layer) {
  return layer ? layer->Lines : nullptr;
}

void vRmStringLineSetLines(RmStringLineLayer* layer, RmLines* lines) {
  if (!layer || layer->Lines == lines) return;
  vRmLinesDelete(&layer->Lines);
  layer->Lines = lines;
}

void vRmStringLineRemove(RmStringLines* lines, RmStringLineLayer* layer) {
  if (!lines || !layer) return;
  vRmLinesDelete(&layer->Lines);
  vSLinkDeleteObj(&lines->Layers, layer);
}
