#include "road_model/tunnel/tunnel_param_data.h"

#include <cstdlib>

namespace {

void vClear(RmTunnelParamData* data) {
  for (auto* layer = ListFirst<RmTunnelParamLayer>(&data->Layers); layer; layer = layer->Next) {
    for (auto* range = ListFirst<RmTunnelParamRange>(&layer->Ranges); range; range = range->Next) {
      std::free(range->Info);
    }
    vSLinkClear(&layer->Ranges);
  }
  vSLinkClear(&data->Layers);
}

}  // namespace

RmTunnelParamData* RmTunnelParamDataCreate() {
  auto* data = static_cast<RmTunnelParamData*>(std::calloc(1, sizeof(RmTunnelParamData)));
  if (data) SLinkInit(&data->Layers, sizeof(RmTunnelParamLayer), nullptr);
  return data;
}

void vRmTunnelParamDataDelete(RmTunnelParamData** data) {
  if (!data || !*data) return;
  vClear(*data);
  std::free(*data);
  *data = nullptr;
}

void vRmTunnelParamDataCopy(RmTunnelParamData* to, const RmTunnelParamData* from) {
  if (!to || !from || to == from) return;
  vClear(to);
  for (auto* layer = ListFirst<RmTunnelParamLayer>(&from->Layers); layer; layer = layer->Next) {
    RmTunnelParamLayer* layerCopy = RmTunnelParamLayerAdd(to, layer->LayerId);
    if (!layerCopy) return;
    for (auto* range = ListFirst<RmTunnelParamRange>(&layer->Ranges); range; range = range->Next) {
      RmTunnelParamRange* copy = RmTunnelParamRangeAdd(layerCopy, range->FromChain, range->ToChain);
      if (!copy) return;
      RmTunnelParamRange* next = copy->Next;
      *copy = *range;
      copy->Next = next;
      copy->Info = nullptr;
      if (range->Info) {
        RmTunnelParamInfo* info = RmTunnelParamRangeMakeInfo(copy);
        if (info) *info = *range->Info;
      }
    }
  }
}

RmTunnelParamLayer* RmTunnelParamLayerAdd(RmTunnelParamData* data, uint32_t layerId) {
  if (!data) return nullptr;
  auto* layer = SLinkNewObjAs<RmTunnelParamLayer>(&data->Layers);
  if (!layer) return nullptr;
  layer->LayerId = layerId;
  SLinkInit(&layer->Ranges, sizeof(RmTunnelParamRange), nullptr);
  return layer;
}

RmTunnelParamRange* RmTunnelParamRangeAdd(RmTunnelParamLayer* layer, double from, double to) {
  if (!layer) return nullptr;
  auto* range = SLinkNewObjAs<RmTunnelParamRange>(&layer->Ranges);
  if (!range) return nullptr;
  range->FromChain = from;
  range->ToChain = to;
  return range;
}

RmTunnelParamInfo* RmTunnelParamRangeMakeInfo(RmTunnelParamRange* range) {
  if (!range) return nullptr;
  if (!range->Info) {
    range->Info = static_cast<RmTunnelParamInfo*>(std::calloc(1, sizeof(RmTunnelParamInfo)));
  }
  return range->Info;
}
