#include "vips_import/readers/pavement_templates.h"

#include <cctype>
#include <string>
#include <vector>

#include "base/numbers.h"
#include "design_model/design_model.h"
#include "road_model/codes/pcode.h"
#include "road_model/tables/pavement.h"
#include "road_model/tables/pavement_packages.h"
#include "vips_import/readers/surface_code.h"
#include "vips_import/readers/wide_text.h"

namespace {

using NpDesignModel::CIPavementTemplate;
using NpDesignModel::CIPavementTemplateInnerSlope;
using NpDesignModel::CIPavementTemplateSurface;

void vReadName(const CIPavementTemplate* tmpl, RmPavementPackage* package) {
  std::string name = sVipsNarrow(tmpl->GetName());
  for (char& c : name) {
    if (std::iscntrl(static_cast<unsigned char>(c))) c = ' ';
  }
  vRmPavementPackageSetName(package, name.c_str());
}

void vReadUnderMedian(const CIPavementTemplate* tmpl, RmPavementPackage* package) {
  for (const auto* layer : tmpl->GetAreUnderMedian()) {
    int i = iVipsTemplateLayerIndex(layer->GetLayerType());
    if (i >= 0) package->UnderMedian[i] = layer->IsValue() ? 1 : 0;
  }
}

void vReadInnerSlope(const CIPavementTemplateInnerSlope* slope, RmPavementPackage* package,
                     int side) {
  if (!slope) return;
  vRmPavementPackageSetOuterEdgeToTerrain(package, side, slope->IsExtendToTerrain() ? 1 : 0);
  vRmPavementPackageSetOuterEdgeToTerrainSlope(package, side, slope->GetGradient());
  vRmPavementPackageSetUseSurfaceEdge(package, side, slope->IsStatus() ? 1 : 0);
}

// The surface with its thickness per layer; a surface with an edge code
// also gets its edge, made at its first layer, with width and slope.
void vReadSurface(const CIPavementTemplateSurface* source, RmPavementPackage* package) {
  int code = iVipsSurfaceCode(source->GetSurfaceNumber().GetDecimal());
  RmPavementSurface* surface = RmPavementSurfaceAdd(package, code);
  if (!surface) return;
  const int edgeCode = source->GetEdgeCode();
  const bool validCode = boRmPcodeCheck(code);
  RmPavementSurfaceEdge* edge = nullptr;
  for (const auto* layer : source->GetLayers()) {
    int i = iVipsTemplateLayerIndex(layer->GetLayerType());
    if (!validCode || i < 0) continue;
    surface->Thickness[i] = layer->GetThickness();
    if (edgeCode == 0) continue;
    if (!edge && (edge = RmPavementSurfaceEdgeAdd(package, code))) edge->Code = edgeCode;
    if (!edge) continue;
    edge->Width[i] = layer->GetWidth();
    edge->Slope[i] = layer->GetSlope();
  }
}

void vReadGradualLayers(const CIPavementTemplate* tmpl, RmPavementPackage* package) {
  for (const auto* source : tmpl->GetGradualLayerSurfaces()) {
    RmPavementGradualLayer* layer =
        RmPavementGradualAdd(package, iVipsSurfaceCode(source->GetSurfaceNumber().GetDecimal()));
    if (!layer) continue;
    layer->ExtraWidth = source->GetExtraWidth();
    layer->Gradient = source->GetLoadGradient();
    layer->TransitionGradient = source->GetTransitionGradient();
  }
}

bool boEdgeUsed(const NpDesignModel::CIPavementTemplateExistingRoadEdge* edge) {
  return edge && (edge->GetRefId() != 0 || !boEqual(edge->GetSlope(), 0.0));
}

}  // namespace

int iVipsTemplateLayerIndex(int layerType) {
  switch (layerType) {
    case 1: return 0;
    case 2: return 1;
    case 3: return 2;
    case 11: return 3;
    case 12: return 4;
    case 13: return 5;
    case 21: return 6;
    case 22: return 7;
    case 23: return 8;
    case 29: return 9;
    default: return -1;
  }
}

void vVipsReadPavementTemplates(const NpDesignModel::CInData* in, RmPavement* pavement,
                                int* rehabUsed) {
  if (!in || !pavement) return;
  for (const CIPavementTemplate* tmpl : in->GetPvmtTmpls()) {
    RmPavementPackage* package = RmPavementPackageAdd(pavement, tmpl->GetId());
    if (!package) continue;
    vReadName(tmpl, package);
    vReadUnderMedian(tmpl, package);
    vReadInnerSlope(tmpl->GetInnerSlopesLeft(), package, 1);
    vReadInnerSlope(tmpl->GetInnerSlopesRight(), package, 2);
    for (const CIPavementTemplateSurface* surface : tmpl->GetPvmtSurfaces()) {
      vReadSurface(surface, package);
    }
    vReadGradualLayers(tmpl, package);
    vVipsCheckRehabDetails(tmpl->GetRehab(), rehabUsed);
  }
}

void vVipsCheckRehabDetails(const NpDesignModel::CIPavementTemplateRehabDetails* rehab,
                            int* rehabUsed) {
  if (!rehab || !rehabUsed) return;
  if (boEdgeUsed(rehab->GetExistRoadEdgeLeft()) || boEdgeUsed(rehab->GetExistRoadEdgeRight())) {
    *rehabUsed = 1;
  }
}
