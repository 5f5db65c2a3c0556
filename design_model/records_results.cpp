#include "design_model/records_results.h"

#include "design_model/record_lists.h"

namespace NpDesignModel {

double PointRecord::GetDistance() const { return distance; }
double PointRecord::GetElevation() const { return elevation; }

const CRPoint* SurfacePointRecord::GetPoint() const { return &point; }
CSurfaceNumber SurfacePointRecord::GetSurfaceNumber() const { return surfaceNumber; }

const CRPoint* LayerPointRecord::GetPoint() const { return &point; }
CSurfaceNumber LayerPointRecord::GetSurfaceNumber() const { return surfaceNumber; }

std::vector<const CRLayerPoint*> PavementLayerRecord::GetLayerPoints() const {
  return PointersTo<CRLayerPoint>(layerPoints);
}
LayerTypeEnums PavementLayerRecord::GetLayerType() const { return layerType; }

int32_t SplitSoddingRecord::GetID() const { return id; }
double SplitSoddingRecord::GetNumber() const { return number; }
std::vector<const CRPoint*> SplitSoddingRecord::GetPoints() const {
  return PointersTo<CRPoint>(points);
}

std::vector<const CRPoint*> ResultClosedDrainageRecord::GetPoints() const {
  return PointersTo<CRPoint>(points);
}

std::vector<const CRClosedDrainage*> ModelSectionRecord::GetClosedDrainages() const {
  return PointersTo<CRClosedDrainage>(closedDrainages);
}
std::vector<const CRPoint*> ModelSectionRecord::GetDeepBlastings() const {
  return PointersTo<CRPoint>(deepBlastings);
}
std::vector<const CRPoint*> ModelSectionRecord::GetEdgeReinforcesLeft() const {
  return PointersTo<CRPoint>(edgeReinforcesLeft);
}
std::vector<const CRPoint*> ModelSectionRecord::GetEdgeReinforcesRight() const {
  return PointersTo<CRPoint>(edgeReinforcesRight);
}
std::vector<const CRPoint*> ModelSectionRecord::GetLandscapingsLeft() const {
  return PointersTo<CRPoint>(landscapingsLeft);
}
std::vector<const CRPoint*> ModelSectionRecord::GetLandscapingsRight() const {
  return PointersTo<CRPoint>(landscapingsRight);
}
std::vector<const CRPavementLayer*> ModelSectionRecord::GetPavementLayers() const {
  return PointersTo<CRPavementLayer>(pavementLayers);
}
double ModelSectionRecord::GetRailwayRefElevation() const { return railwayRefElevation; }
double ModelSectionRecord::GetRefElevation() const { return refElevation; }
std::vector<const CRPoint*> ModelSectionRecord::GetRemovalBed() const {
  return PointersTo<CRPoint>(removalBed);
}
std::vector<const CRPoint*> ModelSectionRecord::GetRoadBed() const {
  return PointersTo<CRPoint>(roadBed);
}
std::vector<const CRPoint*> ModelSectionRecord::GetSoddingsLeft() const {
  return PointersTo<CRPoint>(soddingsLeft);
}
std::vector<const CRPoint*> ModelSectionRecord::GetSoddingsRight() const {
  return PointersTo<CRPoint>(soddingsRight);
}
std::vector<const CRSplitSodding*> ModelSectionRecord::GetSplitSoddings() const {
  return PointersTo<CRSplitSodding>(splitSoddings);
}
std::vector<const CRSurfacePoint*> ModelSectionRecord::GetSurfacesLeft() const {
  return PointersTo<CRSurfacePoint>(surfacesLeft);
}
std::vector<const CRSurfacePoint*> ModelSectionRecord::GetSurfacesRight() const {
  return PointersTo<CRSurfacePoint>(surfacesRight);
}

double LayerElevationsRecord::GetDistance() const { return distance; }
std::vector<double> LayerElevationsRecord::GetSubSurfaces() const { return subSurfaces; }
double LayerElevationsRecord::GetSurface() const { return surface; }

std::u16string ObjectRecord::GetCode() const { return code; }
int32_t ObjectRecord::GetLevel() const { return level; }
std::vector<const CRPoint*> ObjectRecord::GetPoints() const { return PointersTo<CRPoint>(points); }

double TerrainSectionRecord::GetElevation() const { return elevation; }
std::vector<const CRLayerElevations*> TerrainSectionRecord::GetLayerElevations() const {
  return PointersTo<CRLayerElevations>(layerElevations);
}
std::vector<CRTerrainSection::MaterialEnums> TerrainSectionRecord::GetMaterials() const {
  return materials;
}
std::vector<const CRObject*> TerrainSectionRecord::GetObjects() const {
  return PointersTo<CRObject>(objects);
}

double ResultSectionRecord::GetChainage() const { return chainage; }
const CRModelSection* ResultSectionRecord::GetModel() const { return &model; }
const CRTerrainSection* ResultSectionRecord::GetTerrain() const { return &terrain; }

std::vector<const CRResultSection*> ResultDataRecord::GetSections() const {
  return PointersTo<CRResultSection>(sections);
}

}  // namespace NpDesignModel
