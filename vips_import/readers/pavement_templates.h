// The design's pavement templates as packages of the pavement table.
#pragma once

struct RmPavement;

namespace NpDesignModel {
class CInData;
class CIPavementTemplateRehabDetails;
}  // namespace NpDesignModel

// The column of a package's ten layer positions that a layer type of the
// design fills: types 1, 2, 3 are 0 to 2, types 11, 12, 13 are 3 to 5, types
// 21, 22, 23 are 6 to 8 and type 29 is 9; -1 for any other type.
int iVipsTemplateLayerIndex(int layerType);

// A package for every template, in ascending order of the template's id: its
// name (control characters as blanks), the layers under the median, the
// inner slopes of each side, the surfaces with the thickness of each layer
// and, for a surface with an edge code, the edge with the width and slope of
// each layer; then the gradually changing layers. A layer of a type without
// a column, or of a surface whose code is no valid PCODE, is left out.
// Sets *rehabUsed when a template uses rehabilitation data.
void vVipsReadPavementTemplates(const NpDesignModel::CInData* in, RmPavement* pavement,
                                int* rehabUsed);

// Rehabilitation data is not carried into the model: this only sets
// *rehabUsed when an existing road edge of either side refers to something
// or has a slope.
void vVipsCheckRehabDetails(const NpDesignModel::CIPavementTemplateRehabDetails* rehab,
                            int* rehabUsed);
