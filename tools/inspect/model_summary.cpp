#include "tools/inspect/model_summary.h"

#include <map>
#include <utility>

#include "geometry/line_measure.h"
#include "road_model/lines/line_fields.h"
#include "road_model/lines/vertical_line.h"
#include "road_model/model/model.h"
#include "road_model/model/model_lines.h"
#include "road_model/model/model_parts.h"
#include "road_model/names/layer_names.h"
#include "road_model/names/mass_types.h"
#include "road_model/sections/section_set.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/surfaces/surface_groups.h"
#include "road_model/surfaces/surfaces.h"
#include "tools/inspect/section_detail.h"
#include "tools/inspect/terminal_text.h"

namespace {

void vGatherLines(const RmModel* model, ModelSummary* summary) {
  const RmLines* lines = RmModelGetLines(model);
  if (!lines) return;
  for (const RmLine* line = RmLinesGetFirst(lines); line; line = RmLinesGetNext(lines, line)) {
    double length = dLiLineLength(line);
    double start = dRmLineGetStartChain(line);
    summary->PlanLines.push_back({lRmLineGetId(line), sTerminalText(sRmLineGetName(line)), length,
                                  start, start + length, boRmLineIsCenterLine(line)});
    const RmVerLine* verLine = RmLineGetVerLine(line);
    if (!verLine) continue;
    VerticalLineSummary vertical{lRmLineGetId(line), iRmVerLineGetCount(verLine), 0.0, 0.0};
    bool first = true;
    for (const RmVerPoint* point = RmVerLineGetFirst(verLine); point;
         point = RmVerPointGetNext(point)) {
      if (first) vertical.StartChain = point->Chain;
      vertical.EndChain = point->Chain;
      first = false;
    }
    summary->VerticalLines.push_back(vertical);
  }
}

SectionSetSummary SummariseSet(const RmSectionSet* set, const RmLayerNames* names) {
  SectionSetSummary summary;
  if (!set) return summary;
  summary.Count = iRmSectionsGetCount(set);
  if (summary.Count == 0) return summary;
  summary.StartChain = RmSectionsGetFirst(set)->Chain;
  summary.EndChain = RmSectionsGetLast(set)->Chain;
  // Sections per layer, by type and then number.
  std::map<std::pair<uint32_t, int32_t>, int> holders;
  for (const RmSection* section = RmSectionsGetFirst(set); section;
       section = RmSectionsGetNext(section)) {
    const RmLayer* previous = nullptr;
    for (const RmLayer* layer = RmSectionLayersGetFirst(section); layer;
         layer = RmLayerGetNext(layer)) {
      // A duplicate id in one section counts the section once.
      if (previous && boRmLayerIdEquals(previous->Id, layer->Id)) continue;
      ++holders[{layer->Id.Type, layer->Id.Number}];
      previous = layer;
    }
  }
  for (const auto& [key, count] : holders) {
    RmLayerId id = RmLayerIdMake(key.first, key.second);
    summary.Layers.push_back({id, sLayerNameOf(names, id), count});
  }
  return summary;
}

void vGatherSurfaceGroups(const RmModel* model, ModelSummary* summary) {
  const RmSurfGen* gen = RmModelGetSurfGen(model);
  if (!gen) return;
  const RmLayerNames* names = RmModelGetLayerNames(model);
  const RmSurfaceGroups* groups = RmSurfGenGet<kRmSurfaceGroupsSlot>(gen);
  if (!groups) return;
  for (const RmSurfaceGroup* group = RmSurfaceGroupsGetFirst(groups); group;
       group = RmSurfaceGroupGetNext(group)) {
    int surfaces = 0;
    for (const RmSurface* surface = RmSurfacesGetFirst(group); surface;
         surface = RmSurfaceGetNext(surface)) {
      ++surfaces;
    }
    summary->SurfaceGroups.push_back({group->Id, sLayerNameOf(names, group->Id), surfaces});
  }
}

std::vector<MassTypeSummary> MassTypesOf(const RmMassTypes* types) {
  std::vector<MassTypeSummary> out;
  if (!types) return out;
  for (const RmMassType* type = RmMassTypesGetFirst(types); type; type = RmMassTypeGetNext(type)) {
    out.push_back({type->Number, sTerminalText(type->Name)});
  }
  return out;
}

}  // namespace

ModelSummary GatherModelSummary(const RmModel* model, const std::string& file) {
  ModelSummary summary;
  summary.File = file;
  summary.DataVersion = model->DataVersion;
  vGatherLines(model, &summary);
  const RmLayerNames* names = RmModelGetLayerNames(model);
  summary.CrossSections = SummariseSet(RmModelGetCrossSections(model), names);
  summary.LongSections = SummariseSet(RmModelGetLongSections(model), names);
  vGatherSurfaceGroups(model, &summary);
  summary.Tables = ModelTableRows(model);
  summary.CrossMassTypes = MassTypesOf(RmModelGetCSectMassTypes(model));
  summary.LongMassTypes = MassTypesOf(RmModelGetLSectMassTypes(model));
  return summary;
}
