// The result side of the document: result sections with their model and
// terrain parts.
#include "design_model/document_writer.h"

namespace NpDesignModel {

namespace {

void vWritePoint(JsonText& json, const CRPoint& point) {
  json.BeginObject();
  json.Member("distance", point.GetDistance());
  json.Member("elevation", point.GetElevation());
  json.EndObject();
}

void vWritePointMember(JsonText& json, const CRPoint& point) {
  json.Key("point");
  vWritePoint(json, point);
}

void vWriteSurfacePoint(JsonText& json, const CRSurfacePoint& point) {
  json.BeginObject();
  vWritePointMember(json, *point.GetPoint());
  vWriteSurfaceNumber(json, "surfaceNumber", point.GetSurfaceNumber());
  json.EndObject();
}

void vWriteLayerPoint(JsonText& json, const CRLayerPoint& point) {
  json.BeginObject();
  vWritePointMember(json, *point.GetPoint());
  vWriteSurfaceNumber(json, "surfaceNumber", point.GetSurfaceNumber());
  json.EndObject();
}

void vWritePavementLayer(JsonText& json, const CRPavementLayer& layer) {
  json.BeginObject();
  json.Member("layerType", layer.GetLayerType());
  vWriteList(json, "layerPoints", layer.GetLayerPoints(), vWriteLayerPoint);
  json.EndObject();
}

void vWriteSplitSodding(JsonText& json, const CRSplitSodding& sodding) {
  json.BeginObject();
  json.Member("id", sodding.GetID());
  json.Member("number", sodding.GetNumber());
  vWriteList(json, "points", sodding.GetPoints(), vWritePoint);
  json.EndObject();
}

void vWriteClosedDrainage(JsonText& json, const CRClosedDrainage& drainage) {
  json.BeginObject();
  vWriteList(json, "points", drainage.GetPoints(), vWritePoint);
  json.EndObject();
}

void vWriteModelSection(JsonText& json, const CRModelSection& model) {
  json.Key("model");
  json.BeginObject();
  json.Member("refElevation", model.GetRefElevation());
  json.Member("railwayRefElevation", model.GetRailwayRefElevation());
  vWriteList(json, "surfacesLeft", model.GetSurfacesLeft(), vWriteSurfacePoint);
  vWriteList(json, "surfacesRight", model.GetSurfacesRight(), vWriteSurfacePoint);
  vWriteList(json, "pavementLayers", model.GetPavementLayers(), vWritePavementLayer);
  vWriteList(json, "deepBlastings", model.GetDeepBlastings(), vWritePoint);
  vWriteList(json, "landscapingsLeft", model.GetLandscapingsLeft(), vWritePoint);
  vWriteList(json, "landscapingsRight", model.GetLandscapingsRight(), vWritePoint);
  vWriteList(json, "soddingsLeft", model.GetSoddingsLeft(), vWritePoint);
  vWriteList(json, "soddingsRight", model.GetSoddingsRight(), vWritePoint);
  vWriteList(json, "removalBed", model.GetRemovalBed(), vWritePoint);
  vWriteList(json, "edgeReinforcesLeft", model.GetEdgeReinforcesLeft(), vWritePoint);
  vWriteList(json, "edgeReinforcesRight", model.GetEdgeReinforcesRight(), vWritePoint);
  vWriteList(json, "roadBed", model.GetRoadBed(), vWritePoint);
  vWriteList(json, "splitSoddings", model.GetSplitSoddings(), vWriteSplitSodding);
  vWriteList(json, "closedDrainages", model.GetClosedDrainages(), vWriteClosedDrainage);
  json.EndObject();
}

void vWriteLayerElevations(JsonText& json, const CRLayerElevations& column) {
  json.BeginObject();
  json.Member("distance", column.GetDistance());
  json.Member("surface", column.GetSurface());
  json.Key("subSurfaces");
  json.BeginArray();
  for (double height : column.GetSubSurfaces()) json.Number(height);
  json.EndArray();
  json.EndObject();
}

void vWriteObject(JsonText& json, const CRObject& object) {
  json.BeginObject();
  json.Member("level", object.GetLevel());
  json.Member("code", object.GetCode());
  vWriteList(json, "points", object.GetPoints(), vWritePoint);
  json.EndObject();
}

void vWriteTerrainSection(JsonText& json, const CRTerrainSection& terrain) {
  json.Key("terrain");
  json.BeginObject();
  json.Member("elevation", terrain.GetElevation());
  json.Key("materials");
  json.BeginArray();
  for (CRTerrainSection::MaterialEnums material : terrain.GetMaterials()) {
    json.Integer(material);
  }
  json.EndArray();
  vWriteList(json, "layerElevations", terrain.GetLayerElevations(), vWriteLayerElevations);
  vWriteList(json, "objects", terrain.GetObjects(), vWriteObject);
  json.EndObject();
}

void vWriteResultSection(JsonText& json, const CRResultSection& section) {
  json.BeginObject();
  json.Member("chainage", section.GetChainage());
  vWriteModelSection(json, *section.GetModel());
  vWriteTerrainSection(json, *section.GetTerrain());
  json.EndObject();
}

}  // namespace

void vWriteResultData(JsonText& json, const CResultData& results) {
  json.BeginObject();
  vWriteList(json, "sections", results.GetSections(), vWriteResultSection);
  json.EndObject();
}

}  // namespace NpDesignModel
