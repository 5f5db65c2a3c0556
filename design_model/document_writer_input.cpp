// The input side of the document: settings, alignments, surfaces and the
// side tables.
#include "design_model/document_writer.h"

namespace NpDesignModel {

namespace {

void vWriteModelSettings(JsonText& json, const CIModelSettings& settings) {
  json.BeginObject();
  json.Member("closedDrainage1", settings.IsClosedDrainage1());
  json.Member("closedDrainage2", settings.IsClosedDrainage2());
  json.Member("closedDrainage3", settings.IsClosedDrainage3());
  json.Member("deepBlasting", settings.IsDeepBlasting());
  json.Member("detailedPavementDescription", settings.IsDetailedPavementDescription());
  json.Member("gradualChangingLayers", settings.IsGradualChangingLayers());
  json.Member("innerSlope", settings.IsInnerSlope());
  json.Member("landscapingLeft", settings.IsLandscapingLeft());
  json.Member("landscapingRight", settings.IsLandscapingRight());
  json.Member("minDitchDepthControl", settings.IsMinDitchDepthControl());
  json.Member("minPavementThicknessControl", settings.IsMinPavementThicknessControl());
  json.Member("rehabAdjustToExistingRoad", settings.IsRehabAdjustToExistingRoad());
  json.Member("rockShelf", settings.IsRockShelf());
  json.Member("sodding", settings.IsSodding());
  json.Member("softSpotRemoval", settings.IsSoftSpotRemoval());
  json.Member("topSoilAndVegetationRemoval", settings.IsTopSoilAndVegetationRemoval());
  json.EndObject();
}

void vWriteHorizontalLineElement(JsonText& json, const CIHorizontalLineElement& element) {
  json.BeginObject();
  json.Member("elementNo", element.GetElementNo());
  json.Member("startChainage", element.GetStartChainage());
  json.Member("endChainage", element.GetEndChainage());
  json.Member("startEast", element.GetStartEast());
  json.Member("startNorth", element.GetStartNorth());
  json.Member("endEast", element.GetEndEast());
  json.Member("endNorth", element.GetEndNorth());
  json.Member("startRadius", element.GetStartRadius());
  json.Member("endRadius", element.GetEndRadius());
  json.Member("clothoidParameter", element.GetClothoidParameter());
  json.Member("startOffset", element.GetStartOffset());
  json.Member("endOffset", element.GetEndOffset());
  json.EndObject();
}

void vWriteVerticalLineAnglePoint(JsonText& json, const CIVerticalLineAnglePoint& point) {
  json.BeginObject();
  json.Member("chainage", point.GetChainage());
  json.Member("elevation", point.GetElevation());
  json.Member("radius", point.GetRadius());
  json.EndObject();
}

void vWriteAlignment(JsonText& json, const CIAlignment& alignment) {
  json.BeginObject();
  json.Member("id", alignment.GetId());
  json.Member("name", alignment.GetName());
  json.Member("guid", alignment.GetGuid());
  vWriteList(json, "horizontalLineElements", alignment.GetHorizontalLineElements(),
             vWriteHorizontalLineElement);
  vWriteList(json, "verticalLineAnglePoints", alignment.GetVerticalLineAnglePoints(),
             vWriteVerticalLineAnglePoint);
  json.EndObject();
}

void vWriteSurfaceSection(JsonText& json, const CISurfaceSection& section) {
  json.BeginObject();
  json.Member("chainage", section.GetChainage());
  json.Member("width", section.GetWidth());
  json.Member("slope", section.GetSlope());
  json.EndObject();
}

void vWriteSurface(JsonText& json, const CISurface& surface) {
  json.BeginObject();
  json.Member("name", surface.GetName());
  vWriteSurfaceNumber(json, "surfaceNumber", surface.GetSurfaceNumber());
  vWriteList(json, "descriptions", surface.GetDescriptions(), vWriteSurfaceSection);
  json.EndObject();
}

void vWriteSurfaceBoundary(JsonText& json, const CISurfaceBoundary& boundary) {
  json.BeginObject();
  json.Member("chainage", boundary.GetChainage());
  json.Member("distance", boundary.GetDistance());
  vWriteSurfaceNumber(json, "surfaceNumber", boundary.GetSurfaceNumber());
  json.Member("alignmentId", boundary.GetAlignmentId());
  json.EndObject();
}

void vWriteSurfaceEdgeAlignment(JsonText& json, const CISurfaceEdgeAlignment& edge) {
  json.BeginObject();
  vWriteSurfaceNumber(json, "surfaceNumber", edge.GetSurfaceNumber());
  vWriteSurfaceNumber(json, "freeSurfaceNumber", edge.GetFreeSurfaceNumber());
  json.Member("fromChainage", edge.GetFromChainage());
  json.Member("toChainage", edge.GetToChainage());
  json.Member("method", edge.GetMethod());
  json.Member("alignmentId", edge.GetAlignmentId());
  json.EndObject();
}

void vWriteElevationDifference(JsonText& json, const CIElevationDifference& row) {
  json.BeginObject();
  json.Member("fromChainage", row.GetFromChainage());
  json.Member("toChainage", row.GetToChainage());
  json.Member("difference", row.GetDifference());
  json.EndObject();
}

void vWriteEmbankmentDitch(JsonText& json, const CIEmbankmentDitch& row) {
  json.BeginObject();
  json.Member("fromChainage", row.GetFromChainage());
  json.Member("toChainage", row.GetToChainage());
  json.Member("position", row.GetPosition());
  json.Member("type", row.IsType());
  json.EndObject();
}

void vWriteRockShelf(JsonText& json, const CIRockShelf& row) {
  json.BeginObject();
  json.Member("fromChainage", row.GetFromChainage());
  json.Member("toChainage", row.GetToChainage());
  json.Member("minWidth", row.GetMinWidth());
  json.Member("additionalWidth", row.GetAdditionalWidth());
  json.Member("minHeigth", row.GetMinHeigth());
  json.Member("slope", row.GetSlope());
  json.EndObject();
}

void vWriteDitchDepth(JsonText& json, const CIDitchDepth& row) {
  json.BeginObject();
  json.Member("fromChainage", row.GetFromChainage());
  json.Member("toChainage", row.GetToChainage());
  json.Member("minDepthLeft", row.GetMinDepthLeft());
  json.Member("minDepthRight", row.GetMinDepthRight());
  json.EndObject();
}

void vWriteClosedDrainagePoint(JsonText& json, const CIClosedDrainagePoint& point) {
  json.BeginObject();
  json.Member("distance", point.GetDistance());
  json.Member("elevation", point.GetElevation());
  json.EndObject();
}

void vWriteClosedDrainage(JsonText& json, const CIClosedDrainage& drainage) {
  json.BeginObject();
  json.Key("sections");
  json.BeginArray();
  for (const CIClosedDrainageSection* section = drainage.FirstSection(); section;
       section = drainage.NextSectionOf(section)) {
    json.BeginObject();
    json.Member("chainage", section->GetChainage());
    json.Member("elevationMode", section->GetElevationMode());
    vWriteList(json, "points", section->GetPoints(), vWriteClosedDrainagePoint);
    json.EndObject();
  }
  json.EndArray();
  json.EndObject();
}

void vWriteConnectedWSModels(JsonText& json, const CIConnectedWSModels& row) {
  json.BeginObject();
  json.Member("fromChainage", row.GetFromChainage());
  json.Member("toChainage", row.GetToChainage());
  json.Member("wsModel", row.GetWSModel());
  json.EndObject();
}

void vWriteSubGrade(JsonText& json, const CISubGrade& row) {
  json.BeginObject();
  json.Member("chainage", row.GetChainage());
  json.Member("givenType", row.GetGivenType());
  json.Member("calculatedType", row.GetCalculatedType());
  json.EndObject();
}

void vWriteTopSoilRemoval(JsonText& json, const CITopSoilRemoval& row) {
  json.BeginObject();
  json.Member("fromChainage", row.GetFromChainage());
  json.Member("toChainage", row.GetToChainage());
  json.Member("criteria", row.GetCriteria());
  json.Member("cutCode", row.GetCutCode());
  json.Member("cutSlope", row.GetCutSlope());
  json.Member("fillCode", row.GetFillCode());
  json.Member("fillSlope", row.GetFillSlope());
  json.Member("maxTerrainSlope", row.GetMaxTerrainSlope());
  json.Member("minFillHeight", row.GetMinFillHeight());
  json.Member("removalOnRock", row.IsRemovalOnRock());
  json.EndObject();
}

void vWriteSoftSpotRemoval(JsonText& json, const CISoftSpotRemoval& row) {
  json.BeginObject();
  json.Member("fromChainage", row.GetFromChainage());
  json.Member("toChainage", row.GetToChainage());
  json.Member("designMode", row.GetDesignMode());
  json.Member("depth", row.GetDepth());
  json.Member("boundaryRayCorrectionLeft", row.GetBoundaryRayCorrectionLeft());
  json.Member("boundaryRayCorrectionRight", row.GetBoundaryRayCorrectionRight());
  vWriteSurfaceNumber(json, "boundaryRayStartLeft", row.GetBoundaryRayStartLeft());
  vWriteSurfaceNumber(json, "boundaryRayStartRight", row.GetBoundaryRayStartRight());
  json.Member("slopeOfBoundaryRayLeft", row.GetSlopeOfBoundaryRayLeft());
  json.Member("slopeOfBoundaryRayRight", row.GetSlopeOfBoundaryRayRight());
  json.Member("slopeOfCutLeft", row.GetSlopeOfCutLeft());
  json.Member("slopeOfCutRight", row.GetSlopeOfCutRight());
  json.EndObject();
}

}  // namespace

void vWriteSurfaceNumber(JsonText& json, std::string_view name, const CSurfaceNumber& number) {
  json.Key(name);
  json.BeginObject();
  json.Member("decimal", number.GetDecimal());
  if (number.HasSerialNumber()) {
    json.Key("serialNumber");
    json.Integer(number.GetSerialNumber());
  }
  json.EndObject();
}

void vWriteInData(JsonText& json, const CInData& in) {
  json.BeginObject();
  json.Member("modelVersionNumber", in.GetModelVersionNumber());
  json.Member("modelType", in.GetModelType());
  json.Member("referenceAlignmentId", in.GetReferenceAlignmentID());
  vWriteSurfaceNumber(json, "elevationReferenceSurface", in.GetElevationReferenceSurface());
  json.Key("railwayParams");
  json.BeginObject();
  json.Member("verticalOffset", in.GetRailwayParams()->GetVerticalOffset());
  json.EndObject();
  json.Key("modelSettings");
  vWriteModelSettings(json, *in.GetModelSettings());
  json.Key("subSurfaceMaterials");
  json.BeginArray();
  for (const std::u16string& material : in.GetSubSurfaceMaterials()) json.Text(material);
  json.EndArray();
  vWriteList(json, "alignments", in.GetAlignments(), vWriteAlignment);
  vWriteList(json, "surfaces", in.GetSurfaces(), vWriteSurface);
  vWriteList(json, "surfaceBoundariesLeft", in.GetSurfaceBoundariesLeft(), vWriteSurfaceBoundary);
  vWriteList(json, "surfaceBoundariesRight", in.GetSurfaceBoundariesRight(), vWriteSurfaceBoundary);
  vWriteList(json, "surfaceEdgeAlignments", in.GetSurfaceEdgeAlignments(),
             vWriteSurfaceEdgeAlignment);
  vWriteList(json, "elevationDifferences", in.GetElevationDifferences(), vWriteElevationDifference);
  vWriteList(json, "embankmentDitchs", in.GetEmbankmentDitchs(), vWriteEmbankmentDitch);
  vWriteList(json, "rockShelfsLeft", in.GetRockShelfsLeft(), vWriteRockShelf);
  vWriteList(json, "rockShelfsRight", in.GetRockShelfsRight(), vWriteRockShelf);
  vWriteList(json, "ditchDepths", in.GetDitchDepths(), vWriteDitchDepth);
  vWriteList(json, "closedDrainages", in.GetClosedDrainages(), vWriteClosedDrainage);
  vWriteList(json, "connectedWSModels", in.GetConnectedWSModels(), vWriteConnectedWSModels);
  vWriteList(json, "pvmtSectionsSoil", in.GetPvmtSectionsSoil(), vWritePavementSection);
  vWriteList(json, "pvmtSectionsRock", in.GetPvmtSectionsRock(), vWritePavementSection);
  vWriteList(json, "pvmtTmpls", in.GetPvmtTmpls(), vWritePavementTemplate);
  vWriteList(json, "subGrades", in.GetSubGrades(), vWriteSubGrade);
  vWriteList(json, "detailedPvmtLayers", in.GetDetailedPvmtLayers(), vWriteDetailedPavementLayer);
  vWriteList(json, "topSoilRemovals", in.GetTopSoilRemovals(), vWriteTopSoilRemoval);
  vWriteList(json, "softSpotRemovals", in.GetSoftSpotRemovals(), vWriteSoftSpotRemoval);
  json.EndObject();
}

}  // namespace NpDesignModel
