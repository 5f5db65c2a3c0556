#include "tools/inspect/section_plot.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "road_model/codes/pcode.h"
#include "tools/inspect/layer_colours.h"
#include "tools/inspect/plot_grid.h"
#include "tools/inspect/svg_writer.h"

namespace {

// Panel layout in user units.
constexpr double kPlotWidth = 800.0;      // the widest the drawing area gets
constexpr double kPlotMaxHeight = 600.0;  // the highest
constexpr double kPlotMinHeight = 120.0;  // flat sections get room above and below
constexpr double kLeft = 70.0;            // height labels
constexpr double kTop = 36.0;             // the chainage
constexpr double kBottom = 36.0;          // offset labels
constexpr double kLegendWidth = 240.0;
constexpr double kLegendLine = 16.0;
constexpr double kMarkerRadius = 2.5;

struct Extent {
  double MinX = 0.0, MaxX = 0.0, MinZ = 0.0, MaxZ = 0.0;
  bool Empty = true;
  void Add(double x, double z) {
    if (Empty) {
      MinX = MaxX = x;
      MinZ = MaxZ = z;
      Empty = false;
      return;
    }
    MinX = std::min(MinX, x);
    MaxX = std::max(MaxX, x);
    MinZ = std::min(MinZ, z);
    MaxZ = std::max(MaxZ, z);
  }
};

// How one section maps to its panel: world offset and height to user units.
struct Panel {
  double MinX, MaxZ;  // world values at the left and top of the drawing area
  double Scale;       // units per metre of offset
  double Exaggeration;
  double Width, Height;  // of the drawing area
  double Step;           // grid step in metres, offsets
  double StepZ;          // grid step in metres, heights
  double MinZ;

  SvgPoint At(double x, double z) const {
    return {kLeft + (x - MinX) * Scale, kTop + (MaxZ - z) * Scale * Exaggeration};
  }
};

Panel PanelFor(const SectionDetail& section, double exaggeration) {
  Extent extent;
  for (const SectionLayerDetail& layer : section.Layers) {
    for (const SectionPointRow& point : layer.Points) {
      if (!point.Gap) extent.Add(point.Offset, point.Height);
    }
  }
  if (extent.Empty) {
    extent.Add(-10.0, 0.0);
    extent.Add(10.0, 5.0);
  }
  // A margin of 5 % around the points, and at least a metre of span.
  double spanX = std::max(extent.MaxX - extent.MinX, 1.0);
  double spanZ = std::max(extent.MaxZ - extent.MinZ, 0.5);
  double minX = extent.MinX - 0.05 * spanX;
  double maxX = extent.MinX + 1.05 * spanX;
  double minZ = extent.MinZ - 0.05 * spanZ;
  double maxZ = extent.MinZ + 1.05 * spanZ;
  spanX = maxX - minX;
  spanZ = maxZ - minZ;
  double scale = std::min(kPlotWidth / spanX, kPlotMaxHeight / (spanZ * exaggeration));
  double height = spanZ * scale * exaggeration;
  if (height < kPlotMinHeight) {
    // Widen the height range evenly rather than stretch the drawing.
    double extra = (kPlotMinHeight - height) / (scale * exaggeration);
    minZ -= extra / 2.0;
    maxZ += extra / 2.0;
    height = kPlotMinHeight;
  }
  Panel panel{minX, maxZ, scale, exaggeration, spanX * scale, height, 0.0, 0.0, minZ};
  panel.Step = dGridStep(spanX, 8);
  panel.StepZ = dGridStep(maxZ - minZ, 5);
  return panel;
}

void vDrawGrid(SvgWriter& svg, const Panel& panel) {
  svg.BeginGroup("class=\"grid\"");
  svg.Rect(kLeft, kTop, panel.Width, panel.Height, "none", "#808080");
  double maxX = panel.MinX + panel.Width / panel.Scale;
  for (double x = std::ceil(panel.MinX / panel.Step) * panel.Step; x <= maxX + 1e-9;
       x += panel.Step) {
    SvgPoint top = panel.At(x, panel.MaxZ);
    SvgPoint bottom = panel.At(x, panel.MinZ);
    svg.Line(top, bottom, "#e0e0e0", 0.5);
    svg.Text({bottom.X, bottom.Y + 14.0}, sGridLabel(x, panel.Step), 10.0, "middle", "#404040");
  }
  for (double z = std::ceil(panel.MinZ / panel.StepZ) * panel.StepZ; z <= panel.MaxZ + 1e-9;
       z += panel.StepZ) {
    SvgPoint left = panel.At(panel.MinX, z);
    SvgPoint right = panel.At(maxX, z);
    svg.Line(left, right, "#e0e0e0", 0.5);
    svg.Text({left.X - 4.0, left.Y + 3.5}, sGridLabel(z, panel.StepZ), 10.0, "end", "#404040");
  }
  SvgPoint corner = panel.At(maxX, panel.MinZ);
  svg.Text({corner.X, corner.Y + 28.0}, "offset (m)", 10.0, "end", "#404040");
  svg.Text({kLeft - 4.0, kTop - 6.0}, "height (m)", 10.0, "end", "#404040");
  svg.EndGroup();
}

void vDrawLayer(SvgWriter& svg, const Panel& panel, const SectionLayerDetail& layer) {
  const char* colour = sLayerColour(layer.Id);
  int number = iRmLayerIdToFile(layer.Id);
  svg.BeginGroup(fmt::format("class=\"layer\" data-layer=\"{}\"", number));
  std::vector<SvgPoint> run;
  run.reserve(layer.Points.size());
  // A lone point between gaps draws no line: it gets a dot.
  auto flush = [&] {
    if (run.size() == 1) svg.Circle(run.front(), 1.5, colour, "");
    if (run.size() > 1) svg.Polyline(run, colour, 1.5, "");
    run.clear();
  };
  for (const SectionPointRow& point : layer.Points) {
    if (point.Gap) {
      flush();
      continue;
    }
    run.push_back(panel.At(point.Offset, point.Height));
  }
  flush();
  for (const SectionPointRow& point : layer.Points) {
    if (point.Gap || point.Pcode == kRmPcodeNone) continue;
    svg.Circle(panel.At(point.Offset, point.Height), kMarkerRadius, colour,
               fmt::format("PCODE {}", sRmPcodeToText(point.Pcode)));
  }
  svg.EndGroup();
}

void vDrawLegend(SvgWriter& svg, const Panel& panel, const SectionDetail& section) {
  double x = kLeft + panel.Width + 20.0;
  double y = kTop + 4.0;
  svg.BeginGroup("class=\"legend\"");
  if (section.Layers.empty()) {
    svg.Text({x, y + 8.0}, "no layers", 11.0, "start", "#404040");
  }
  for (const SectionLayerDetail& layer : section.Layers) {
    svg.Line({x, y + 4.0}, {x + 18.0, y + 4.0}, sLayerColour(layer.Id), 3.0);
    std::string label = fmt::format("{}", iRmLayerIdToFile(layer.Id));
    if (!layer.Name.empty()) label += " " + layer.Name;
    svg.Text({x + 24.0, y + 8.0}, label, 11.0, "start", "#202020");
    y += kLegendLine;
  }
  svg.EndGroup();
}

double dPanelHeight(const Panel& panel, const SectionDetail& section) {
  double legend = kTop + 8.0 + kLegendLine * static_cast<double>(section.Layers.size());
  return std::max(kTop + panel.Height + kBottom, legend) + 10.0;
}

}  // namespace

std::string sSectionsSvg(const std::vector<SectionDetail>& sections, double exaggeration) {
  if (!(exaggeration > 0.0)) exaggeration = 1.0;
  std::vector<Panel> panels;
  panels.reserve(sections.size());
  double width = 0.0;
  double height = 0.0;
  for (const SectionDetail& section : sections) {
    panels.push_back(PanelFor(section, exaggeration));
    width = std::max(width, kLeft + panels.back().Width + kLegendWidth);
    height += dPanelHeight(panels.back(), section);
  }
  SvgWriter svg(std::max(width, kLeft + kLegendWidth), std::max(height, 1.0));
  double y = 0.0;
  for (size_t i = 0; i < sections.size(); ++i) {
    const SectionDetail& section = sections[i];
    const Panel& panel = panels[i];
    svg.BeginGroup(fmt::format("class=\"section\" data-chain=\"{:.3f}\" "
                               "transform=\"translate(0 {})\"",
                               section.Chain, sSvgNumber(y)));
    std::string title = fmt::format("Chainage {:.3f}", section.Chain);
    if (exaggeration != 1.0) title += fmt::format(", heights exaggerated {}x", exaggeration);
    svg.Text({kLeft, 18.0}, title, 14.0, "start", "#000000");
    vDrawGrid(svg, panel);
    for (const SectionLayerDetail& layer : section.Layers) vDrawLayer(svg, panel, layer);
    vDrawLegend(svg, panel, section);
    svg.EndGroup();
    y += dPanelHeight(panel, section);
  }
  return svg.Finish();
}
