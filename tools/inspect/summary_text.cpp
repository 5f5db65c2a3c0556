#include "tools/inspect/summary_text.h"

#include <fmt/format.h>

#include "road_model/codes/pcode.h"

namespace {

void vAppendSet(std::string& out, const char* title, const SectionSetSummary& set) {
  if (set.Count == 0) {
    out += fmt::format("{}: 0\n", title);
    return;
  }
  out += fmt::format("{}: {}, chainage {:.3f} to {:.3f}\n", title, set.Count, set.StartChain,
                     set.EndChain);
  if (set.Layers.empty()) return;
  out += "   layer  type  number  sections  name\n";
  for (const LayerSummary& layer : set.Layers) {
    out += fmt::format("  {:>6}  {:>4}  {:>6}  {:>8}  {}\n", iRmLayerIdToFile(layer.Id),
                       layer.Id.Type, layer.Id.Number, layer.Sections, layer.Name);
  }
}

void vAppendMassTypes(std::string& out, const char* title,
                      const std::vector<MassTypeSummary>& types) {
  out += fmt::format("{}: {}\n", title, types.size());
  for (const MassTypeSummary& type : types) {
    out += fmt::format("  {:>6}  {}\n", type.Number, type.Name);
  }
}

// The PCODE in its decimal form, empty for none.
std::string sCodeText(int pcode) { return pcode == kRmPcodeNone ? "" : sRmPcodeToText(pcode); }

}  // namespace

std::string sSummaryText(const ModelSummary& summary) {
  std::string out;
  out += fmt::format("Model file: {}\n", summary.File);
  out += fmt::format("Data version: {}\n", summary.DataVersion);

  out += fmt::format("Plan lines: {}\n", summary.PlanLines.size());
  if (!summary.PlanLines.empty()) {
    out += "      id      length  start chain    end chain  centre  name\n";
    for (const PlanLineSummary& line : summary.PlanLines) {
      out += fmt::format("  {:>6}  {:>10.3f}  {:>11.3f}  {:>11.3f}  {:<6}  {}\n", line.Id,
                         line.Length, line.StartChain, line.EndChain,
                         line.CentreLine ? "yes" : "no", line.Name);
    }
  }
  out += fmt::format("Vertical lines: {}\n", summary.VerticalLines.size());
  for (const VerticalLineSummary& line : summary.VerticalLines) {
    if (line.Points == 0) {
      out += fmt::format("  line {}: no points\n", line.LineId);
      continue;
    }
    out += fmt::format("  line {}: {} points, chainage {:.3f} to {:.3f}\n", line.LineId,
                       line.Points, line.StartChain, line.EndChain);
  }

  vAppendSet(out, "Cross sections", summary.CrossSections);
  vAppendSet(out, "Long sections", summary.LongSections);

  out += fmt::format("Surface groups: {}\n", summary.SurfaceGroups.size());
  for (const SurfaceGroupSummary& group : summary.SurfaceGroups) {
    out += fmt::format("  {:>6}  {} surfaces  {}\n", iRmLayerIdToFile(group.Id), group.Surfaces,
                       group.Name);
  }

  out += fmt::format("Tables: {}\n", summary.Tables.size());
  for (const TableRows& table : summary.Tables) {
    out += fmt::format("  {:<22}  {:>6} {}\n", table.Name, table.Rows,
                       table.Rows == 1 ? "row" : "rows");
  }

  vAppendMassTypes(out, "Mass types of cross sections", summary.CrossMassTypes);
  vAppendMassTypes(out, "Mass types of long sections", summary.LongMassTypes);
  return out;
}

std::string sSectionText(const SectionDetail& section) {
  std::string out = fmt::format("Cross section at chainage {:.3f}: {} layers\n", section.Chain,
                                section.Layers.size());
  for (const SectionLayerDetail& layer : section.Layers) {
    std::string name = layer.Name.empty() ? "" : " " + layer.Name;
    out += fmt::format("Layer {} (type {}, number {}){}: {} points\n", iRmLayerIdToFile(layer.Id),
                       layer.Id.Type, layer.Id.Number, name, layer.Points.size());
    if (layer.Points.empty()) continue;
    out += "      offset      height  pcode\n";
    for (const SectionPointRow& point : layer.Points) {
      std::string height = point.Gap ? "gap" : fmt::format("{:.3f}", point.Height);
      out += fmt::format("  {:>10.3f}  {:>10}  {}\n", point.Offset, height,
                         sCodeText(point.Pcode));
    }
  }
  return out;
}
