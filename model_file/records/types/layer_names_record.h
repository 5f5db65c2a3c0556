// LAYERNAMES: one group per layer name. It starts with the line
// " <layer> <name> [presentation]" and goes on with keyword lines, each left
// out when it holds its default:
//    22 "Forsterkning lag" Color:5 GDPLN:2
//   GUID 3F2504E0-4F89-41D3-9A0C-0305E82C3301
//   COMPOSEDTYPE 1
//   LAYERS 12 22|0.500||16|1|0|0.000|
//   CATEGORY 2
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmLayerNamesFamily;
