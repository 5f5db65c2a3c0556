// Cross sections drawn as one SVG document, one panel per section in a
// column: every layer as a polyline (broken at its gaps) in the colour of
// its type, coded points marked with their PCODE as a tooltip, a grid with
// offsets and heights labelled in metres, and the chainage and the layer
// names in a legend beside the panel. A section without layers is an empty
// frame with its chainage.
//
// Each layer is a group <g class="layer" data-layer="N">, N the layer's file
// number, holding one <polyline> per run of points between gaps (a dot for
// a run of one point) and a <circle> per coded point.
#pragma once

#include <string>
#include <vector>

#include "tools/inspect/section_detail.h"

// `exaggeration` scales heights against offsets (1: true to scale).
std::string sSectionsSvg(const std::vector<SectionDetail>& sections, double exaggeration);
