// One cross section as the tool shows and draws it: its chainage and its
// layers with their names and points.
#pragma once

#include <string>
#include <vector>

#include "road_model/codes/layer_id.h"

struct RmLayerNames;
struct RmSection;

struct SectionPointRow {
  double Offset;
  double Height;  // meaningless for a gap
  bool Gap;       // no height: the layer's polyline breaks here
  int Pcode;      // 0: no code
};

struct SectionLayerDetail {
  RmLayerId Id;
  std::string Name;  // from the layer names, UTF-8; empty when they have none
  std::vector<SectionPointRow> Points;
};

struct SectionDetail {
  double Chain;
  std::vector<SectionLayerDetail> Layers;
};

SectionDetail GatherSectionDetail(const RmSection* section, const RmLayerNames* names);

// The name of a layer from the layer names, UTF-8; empty when none.
std::string sLayerNameOf(const RmLayerNames* names, RmLayerId id);
