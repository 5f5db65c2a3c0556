// The summary of a road model that `kvrvips show` prints: plan and vertical
// lines, both section sets with their layers, the surface groups, the
// tables with their row counts and the mass types. Texts are UTF-8.
#pragma once

#include <string>
#include <vector>

#include "road_model/codes/layer_id.h"
#include "tools/inspect/table_rows.h"

struct RmModel;

struct PlanLineSummary {
  long Id;
  std::string Name;
  double Length;  // in plan, along arcs and clothoids
  double StartChain;
  double EndChain;
  bool CentreLine;
};

struct VerticalLineSummary {
  long LineId;  // the plan line it belongs to
  int Points;   // intersection points
  double StartChain;  // of the first and the last point; 0 without points
  double EndChain;
};

struct LayerSummary {
  RmLayerId Id;
  std::string Name;  // from the layer names; empty when they have none
  int Sections;      // how many sections of the set hold the layer
};

struct SectionSetSummary {
  int Count = 0;
  double StartChain = 0.0;  // 0 for an empty set
  double EndChain = 0.0;
  std::vector<LayerSummary> Layers;  // by type, then number
};

struct SurfaceGroupSummary {
  RmLayerId Id;
  std::string Name;
  int Surfaces;
};

struct MassTypeSummary {
  int Number;
  std::string Name;
};

struct ModelSummary {
  std::string File;
  int DataVersion = 0;
  std::vector<PlanLineSummary> PlanLines;
  std::vector<VerticalLineSummary> VerticalLines;
  SectionSetSummary CrossSections;
  SectionSetSummary LongSections;
  std::vector<SurfaceGroupSummary> SurfaceGroups;
  std::vector<TableRows> Tables;
  std::vector<MassTypeSummary> CrossMassTypes;
  std::vector<MassTypeSummary> LongMassTypes;
};

ModelSummary GatherModelSummary(const RmModel* model, const std::string& file);
