// Pavement in the document: pavement sections, templates and the detailed
// pavement description.
#include "design_model/document_writer.h"

namespace NpDesignModel {

namespace {

void vWriteIsUnderMedian(JsonText& json, const CIPavementTemplateIsUnderMedian& row) {
  json.BeginObject();
  json.Member("layerType", row.GetLayerType());
  json.Member("value", row.IsValue());
  json.EndObject();
}

void vWriteInnerSlope(JsonText& json, std::string_view name,
                      const CIPavementTemplateInnerSlope& slope) {
  json.Key(name);
  json.BeginObject();
  json.Member("gradient", slope.GetGradient());
  json.Member("extendToTerrain", slope.IsExtendToTerrain());
  json.Member("status", slope.IsStatus());
  json.EndObject();
}

void vWriteSurfaceLayer(JsonText& json, const CIPavementTemplateSurfaceLayer& layer) {
  json.BeginObject();
  json.Member("layerType", layer.GetLayerType());
  json.Member("thickness", layer.GetThickness());
  json.Member("width", layer.GetWidth());
  json.Member("slope", layer.GetSlope());
  json.EndObject();
}

void vWriteTemplateSurface(JsonText& json, const CIPavementTemplateSurface& surface) {
  json.BeginObject();
  vWriteSurfaceNumber(json, "surfaceNumber", surface.GetSurfaceNumber());
  json.Member("edgeCode", surface.GetEdgeCode());
  vWriteList(json, "layers", surface.GetLayers(), vWriteSurfaceLayer);
  json.EndObject();
}

void vWriteGradualLayerSurface(JsonText& json,
                               const CIPavementTemplateGradualLayerSurface& surface) {
  json.BeginObject();
  vWriteSurfaceNumber(json, "surfaceNumber", surface.GetSurfaceNumber());
  json.Member("extraWidth", surface.GetExtraWidth());
  json.Member("loadGradient", surface.GetLoadGradient());
  json.Member("transitionGradient", surface.GetTransitionGradient());
  json.EndObject();
}

void vWriteExistingRoadEdge(JsonText& json, std::string_view name,
                            const CIPavementTemplateExistingRoadEdge& edge) {
  json.Key(name);
  json.BeginObject();
  json.Member("offset", edge.GetOffset());
  json.Member("refId", edge.GetRefId());
  json.Member("refIdType", edge.GetRefIdType());
  json.Member("slope", edge.GetSlope());
  json.EndObject();
}

void vWriteRehab(JsonText& json, const CIPavementTemplateRehabDetails& rehab) {
  json.Key("rehab");
  json.BeginObject();
  vWriteExistingRoadEdge(json, "existRoadEdgeLeft", *rehab.GetExistRoadEdgeLeft());
  vWriteExistingRoadEdge(json, "existRoadEdgeRight", *rehab.GetExistRoadEdgeRight());
  json.Member("lowerTopLayer", rehab.GetLowerTopLayer());
  json.Member("pvmtMinThickness", rehab.GetPvmtMinThickness());
  json.Member("redusedPvmtMinWidth", rehab.GetRedusedPvmtMinWidth());
  json.Member("scarifyingAdditional", rehab.GetScarifyingAdditional());
  json.Member("scarifyingFixed", rehab.GetScarifyingFixed());
  json.Member("stdPvmtMinWidth", rehab.GetStdPvmtMinWidth());
  json.EndObject();
}

void vWriteDetailedSection(JsonText& json, const CIDetailedPavementSurfaceSection& section) {
  json.BeginObject();
  json.Member("chainage", section.GetChainage());
  json.Member("elevation", section.GetElevation());
  json.Member("width", section.GetWidth());
  json.Member("widthMethod", section.GetWidthMethod());
  vWriteSurfaceNumber(json, "widthSurfNo", section.GetWidthSurfNo());
  json.Member("widthAlignId", section.GetWidthAlignId());
  json.Member("widthOffset", section.GetWidthOffset());
  json.Member("slope", section.GetSlope());
  json.Member("slopeMethod", section.GetSlopeMethod());
  vWriteSurfaceNumber(json, "slopeSurfNo", section.GetSlopeSurfNo());
  json.Member("beamSlope", section.GetBeamSlope());
  json.Member("endSurfaceAfterThis", section.IsEndSurfaceAfterThis());
  json.EndObject();
}

void vWriteDetailedSurface(JsonText& json, const CIDetailedPavementSurface& surface) {
  json.BeginObject();
  json.Member("endSurface", surface.IsEndSurface());
  vWriteList(json, "sections", surface.GetSections(), vWriteDetailedSection);
  json.EndObject();
}

}  // namespace

void vWritePavementSection(JsonText& json, const CIPavementSection& section) {
  json.BeginObject();
  json.Member("fromChainage", section.GetFromChainage());
  json.Member("toChainage", section.GetToChainage());
  json.Member("pavementTemplateId", section.GetPavementTemplateId());
  json.EndObject();
}

void vWritePavementTemplate(JsonText& json, const CIPavementTemplate& pavementTemplate) {
  json.BeginObject();
  json.Member("id", pavementTemplate.GetId());
  json.Member("name", pavementTemplate.GetName());
  vWriteList(json, "areUnderMedian", pavementTemplate.GetAreUnderMedian(), vWriteIsUnderMedian);
  vWriteInnerSlope(json, "innerSlopesLeft", *pavementTemplate.GetInnerSlopesLeft());
  vWriteInnerSlope(json, "innerSlopesRight", *pavementTemplate.GetInnerSlopesRight());
  vWriteList(json, "pvmtSurfaces", pavementTemplate.GetPvmtSurfaces(), vWriteTemplateSurface);
  vWriteList(json, "gradualLayerSurfaces", pavementTemplate.GetGradualLayerSurfaces(),
             vWriteGradualLayerSurface);
  vWriteRehab(json, *pavementTemplate.GetRehab());
  json.EndObject();
}

void vWriteDetailedPavementLayer(JsonText& json, const CIDetailedPavementLayer& layer) {
  json.BeginObject();
  json.Member("layerType", layer.GetLayerType());
  vWriteList(json, "surfacesLeft", layer.GetSurfacesLeft(), vWriteDetailedSurface);
  vWriteList(json, "surfacesRight", layer.GetSurfacesRight(), vWriteDetailedSurface);
  json.EndObject();
}

}  // namespace NpDesignModel
