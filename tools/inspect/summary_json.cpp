#include "tools/inspect/summary_json.h"

#include "road_model/codes/pcode.h"
#include "tools/inspect/json_writer.h"

namespace {

void vWriteLayerId(JsonWriter& json, RmLayerId id) {
  json.Key("layer").Integer(iRmLayerIdToFile(id));
  json.Key("type").Integer(id.Type);
  json.Key("number").Integer(id.Number);
}

void vWriteSet(JsonWriter& json, const SectionSetSummary& set) {
  json.BeginObject();
  json.Key("count").Integer(set.Count);
  json.Key("startChain").Number(set.StartChain);
  json.Key("endChain").Number(set.EndChain);
  json.Key("layers").BeginArray();
  for (const LayerSummary& layer : set.Layers) {
    json.BeginObject();
    vWriteLayerId(json, layer.Id);
    json.Key("name").String(layer.Name);
    json.Key("sections").Integer(layer.Sections);
    json.EndObject();
  }
  json.EndArray();
  json.EndObject();
}

void vWriteMassTypes(JsonWriter& json, const std::vector<MassTypeSummary>& types) {
  json.BeginArray();
  for (const MassTypeSummary& type : types) {
    json.BeginObject();
    json.Key("number").Integer(type.Number);
    json.Key("name").String(type.Name);
    json.EndObject();
  }
  json.EndArray();
}

}  // namespace

std::string sSummaryJson(const ModelSummary& summary) {
  JsonWriter json;
  json.BeginObject();
  json.Key("file").String(summary.File);
  json.Key("dataVersion").Integer(summary.DataVersion);

  json.Key("planLines").BeginArray();
  for (const PlanLineSummary& line : summary.PlanLines) {
    json.BeginObject();
    json.Key("id").Integer(line.Id);
    json.Key("name").String(line.Name);
    json.Key("length").Number(line.Length);
    json.Key("startChain").Number(line.StartChain);
    json.Key("endChain").Number(line.EndChain);
    json.Key("centreLine").Bool(line.CentreLine);
    json.EndObject();
  }
  json.EndArray();

  json.Key("verticalLines").BeginArray();
  for (const VerticalLineSummary& line : summary.VerticalLines) {
    json.BeginObject();
    json.Key("line").Integer(line.LineId);
    json.Key("points").Integer(line.Points);
    json.Key("startChain").Number(line.StartChain);
    json.Key("endChain").Number(line.EndChain);
    json.EndObject();
  }
  json.EndArray();

  json.Key("crossSections");
  vWriteSet(json, summary.CrossSections);
  json.Key("longSections");
  vWriteSet(json, summary.LongSections);

  json.Key("surfaceGroups").BeginArray();
  for (const SurfaceGroupSummary& group : summary.SurfaceGroups) {
    json.BeginObject();
    vWriteLayerId(json, group.Id);
    json.Key("name").String(group.Name);
    json.Key("surfaces").Integer(group.Surfaces);
    json.EndObject();
  }
  json.EndArray();

  json.Key("tables").BeginArray();
  for (const TableRows& table : summary.Tables) {
    json.BeginObject();
    json.Key("name").String(table.Name);
    json.Key("rows").Integer(table.Rows);
    json.EndObject();
  }
  json.EndArray();

  json.Key("massTypes").BeginObject();
  json.Key("crossSections");
  vWriteMassTypes(json, summary.CrossMassTypes);
  json.Key("longSections");
  vWriteMassTypes(json, summary.LongMassTypes);
  json.EndObject();

  json.EndObject();
  return json.Text();
}

std::string sSectionJson(const SectionDetail& section) {
  JsonWriter json;
  json.BeginObject();
  json.Key("chain").Number(section.Chain);
  json.Key("layers").BeginArray();
  for (const SectionLayerDetail& layer : section.Layers) {
    json.BeginObject();
    vWriteLayerId(json, layer.Id);
    json.Key("name").String(layer.Name);
    json.Key("points").BeginArray();
    for (const SectionPointRow& point : layer.Points) {
      json.BeginObject();
      json.Key("offset").Single(static_cast<float>(point.Offset));
      json.Key("height");
      if (point.Gap) {
        json.Null();
      } else {
        json.Single(static_cast<float>(point.Height));
      }
      json.Key("pcode");
      if (point.Pcode == kRmPcodeNone) {
        json.Null();
      } else {
        json.String(sRmPcodeToText(point.Pcode));
      }
      json.EndObject();
    }
    json.EndArray();
    json.EndObject();
  }
  json.EndArray();
  json.EndObject();
  return json.Text();
}
