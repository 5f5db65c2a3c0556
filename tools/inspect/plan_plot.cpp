#include "tools/inspect/plan_plot.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "geometry/line_measure.h"
#include "road_model/lines/line_fields.h"
#include "road_model/model/model_lines.h"
#include "road_model/model/model_parts.h"
#include "road_model/sections/section_set.h"
#include "tools/inspect/plot_grid.h"
#include "tools/inspect/svg_writer.h"
#include "tools/inspect/terminal_text.h"

namespace {

constexpr double kDrawing = 1000.0;  // the longer side of the drawing area
constexpr double kMargin = 40.0;
constexpr double kLegendWidth = 240.0;
constexpr double kLegendLine = 16.0;
constexpr int kMaxChords = 10000;  // per piece, whatever the tolerance asks
constexpr const char* kCentreColour = "#c00000";
constexpr const char* kLineColour = "#1f4e79";
constexpr const char* kTickColour = "#808080";

// Chords for a piece of `length` whose curvature is at most `curvature`: a
// chord of length c on a circle of radius r strays c^2 / (8 r) from it.
int iChords(double length, double curvature, double tolerance) {
  if (!(curvature > 1e-12) || !(length > 0.0)) return 1;
  double chord = std::sqrt(8.0 * tolerance / curvature);
  double chords = std::ceil(length / chord);
  return static_cast<int>(std::clamp(chords, 1.0, static_cast<double>(kMaxChords)));
}

PlanPoint PointOf(const LiLine* line, LiElm elm) {
  ViPoint2d point;
  vLiElmGetP2d(line, elm, &point);
  return {point.x, point.y};
}

struct Bounds {
  double MinX = 0.0, MinY = 0.0, MaxX = 0.0, MaxY = 0.0;
  bool Empty = true;
  void Add(PlanPoint p) {
    if (Empty) {
      MinX = MaxX = p.X;
      MinY = MaxY = p.Y;
      Empty = false;
      return;
    }
    MinX = std::min(MinX, p.X);
    MaxX = std::max(MaxX, p.X);
    MinY = std::min(MinY, p.Y);
    MaxY = std::max(MaxY, p.Y);
  }
};

struct Tick {
  PlanPoint A, B;
};

// The ticks of the cross sections: across the road at the section's plan
// point, as far as the section reaches (a short tick when it has no reach).
std::vector<Tick> SectionTicks(const RmModel* model) {
  std::vector<Tick> ticks;
  const RmSectionSet* set = RmModelGetCrossSections(model);
  if (!set) return ticks;
  for (const RmSection* section = RmSectionsGetFirst(set); section;
       section = RmSectionsGetNext(section)) {
    double direction = section->Direction + section->Skew;
    double ux = std::cos(direction);
    double uy = std::sin(direction);
    double left = section->LeftDist > 0.0f ? section->LeftDist : 1.0;
    double right = section->RightDist > 0.0f ? section->RightDist : 1.0;
    ticks.push_back({{section->ClX - left * ux, section->ClY - left * uy},
                     {section->ClX + right * ux, section->ClY + right * uy}});
  }
  return ticks;
}

struct DrawnLine {
  std::string Label;
  bool Centre;
  std::vector<std::vector<PlanPoint>> Parts;
};

}  // namespace

std::vector<std::vector<PlanPoint>> FlattenPlanLine(const LiLine* line, double tolerance) {
  std::vector<std::vector<PlanPoint>> parts;
  int count = iLiLineGetElmCount(line);
  double along = 0.0;  // length of the line up to the element's point
  for (LiElm elm = 0; elm < count; ++elm) {
    if (boLiElmIsPartStart(line, elm) || parts.empty()) parts.emplace_back();
    std::vector<PlanPoint>& part = parts.back();
    part.push_back(PointOf(line, elm));
    double length = elm + 1 < count ? dLiElmLength(line, elm) : 0.0;
    if (length > 0.0) {
      // Curvature is constant on an arc and changes evenly on a clothoid:
      // the larger of its two ends bounds it.
      double inside = std::min(1e-6, length / 4.0);
      double curvature =
          std::max(std::fabs(dLiLineGetCurvatureAtLength(line, along + inside)),
                   std::fabs(dLiLineGetCurvatureAtLength(line, along + length - inside)));
      int chords = iChords(length, curvature, tolerance);
      for (int i = 1; i < chords; ++i) {
        ViPoint3d point;
        if (boLiLineGetPointAtLength(line, along + length * i / chords, &point, nullptr)) {
          part.push_back({point.x, point.y});
        }
      }
    }
    along += length;
  }
  // A part of one point draws nothing.
  std::erase_if(parts, [](const std::vector<PlanPoint>& part) { return part.size() < 2; });
  return parts;
}

std::string sPlanSvg(const RmModel* model) {
  std::vector<DrawnLine> drawn;
  Bounds bounds;
  if (const RmLines* lines = RmModelGetLines(model)) {
    for (const RmLine* line = RmLinesGetFirst(lines); line; line = RmLinesGetNext(lines, line)) {
      DrawnLine& out = drawn.emplace_back();
      out.Label = fmt::format("{}", lRmLineGetId(line));
      std::string name = sTerminalText(sRmLineGetName(line));
      if (!name.empty()) out.Label += " " + name;
      out.Centre = boRmLineIsCenterLine(line);
      out.Parts = FlattenPlanLine(line, kPlanChordTolerance);
      for (const auto& part : out.Parts) {
        for (PlanPoint p : part) bounds.Add(p);
      }
    }
  }
  std::vector<Tick> ticks = SectionTicks(model);
  for (const Tick& tick : ticks) {
    bounds.Add(tick.A);
    bounds.Add(tick.B);
  }
  if (bounds.Empty) {
    bounds.Add({0.0, 0.0});
    bounds.Add({100.0, 100.0});
  }
  double spanX = std::max(bounds.MaxX - bounds.MinX, 1.0);
  double spanY = std::max(bounds.MaxY - bounds.MinY, 1.0);
  double scale = kDrawing / std::max(spanX, spanY);
  double width = spanX * scale;
  double height = spanY * scale;
  double legendHeight = kLegendLine * static_cast<double>(drawn.size() + 2);
  auto at = [&](PlanPoint p) {
    return SvgPoint{kMargin + (p.X - bounds.MinX) * scale,
                    kMargin + (bounds.MaxY - p.Y) * scale};
  };

  SvgWriter svg(2 * kMargin + width + kLegendWidth,
                2 * kMargin + std::max(height, legendHeight));
  svg.Rect(kMargin, kMargin, width, height, "none", "#c0c0c0");
  svg.BeginGroup("class=\"sections\"");
  for (const Tick& tick : ticks) svg.Line(at(tick.A), at(tick.B), kTickColour, 0.75);
  svg.EndGroup();
  for (const DrawnLine& line : drawn) {
    svg.BeginGroup(fmt::format("class=\"line\" data-label=\"{}\"", sSvgEscape(line.Label)));
    svg.Title(line.Label);
    for (const auto& part : line.Parts) {
      std::vector<SvgPoint> points;
      points.reserve(part.size());
      for (PlanPoint p : part) points.push_back(at(p));
      svg.Polyline(points, line.Centre ? kCentreColour : kLineColour, line.Centre ? 2.0 : 1.25,
                   "");
    }
    svg.EndGroup();
  }

  // Legend: the lines, and the scale as the length of the drawing's longer side.
  double x = 2 * kMargin + width;
  double y = kMargin;
  svg.BeginGroup("class=\"legend\"");
  for (const DrawnLine& line : drawn) {
    svg.Line({x, y + 4.0}, {x + 18.0, y + 4.0}, line.Centre ? kCentreColour : kLineColour, 3.0);
    svg.Text({x + 24.0, y + 8.0}, line.Label, 11.0, "start", "#202020");
    y += kLegendLine;
  }
  double side = std::max(spanX, spanY);
  svg.Text({x, y + 8.0}, fmt::format("frame {} m across", sGridLabel(side, dGridStep(side, 100))),
           11.0, "start", "#404040");
  svg.EndGroup();
  return svg.Finish();
}
