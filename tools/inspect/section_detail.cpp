#include "tools/inspect/section_detail.h"

#include "road_model/names/layer_names.h"
#include "road_model/sections/section.h"
#include "tools/inspect/terminal_text.h"

std::string sLayerNameOf(const RmLayerNames* names, RmLayerId id) {
  return sTerminalText(sRmLayerNameGetName(names, id));
}

SectionDetail GatherSectionDetail(const RmSection* section, const RmLayerNames* names) {
  SectionDetail detail{section->Chain, {}};
  detail.Layers.reserve(iRmSectionLayersGetCount(section));
  for (const RmLayer* layer = RmSectionLayersGetFirst(section); layer;
       layer = RmLayerGetNext(layer)) {
    SectionLayerDetail& out = detail.Layers.emplace_back();
    out.Id = layer->Id;
    out.Name = sLayerNameOf(names, layer->Id);
    out.Points.reserve(iRmPointsGetCount(layer));
    for (const RmPoint* point = RmPointsGetFirst(layer); point; point = RmPointGetNext(point)) {
      out.Points.push_back({point->X, point->Z, !boRmPointHasHeight(point),
                            iRmPointGetPcode(point)});
    }
  }
  return detail;
}
