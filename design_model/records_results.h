// The held form of the result side: result sections with their model and
// terrain parts.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "design_model/export.h"
#include "design_model/result_data.h"

namespace NpDesignModel {

class NP_DESIGN_MODEL_API PointRecord final : public CRPoint {
 public:
  double distance = 0.0;
  double elevation = 0.0;

  PointRecord() = default;
  PointRecord(double distanceValue, double elevationValue)
      : distance(distanceValue), elevation(elevationValue) {}

  static void Describe(auto& self, auto& member) {
    member("distance", self.distance);
    member("elevation", self.elevation);
  }

  double GetDistance() const override;
  double GetElevation() const override;
};

class NP_DESIGN_MODEL_API SurfacePointRecord final : public CRSurfacePoint {
 public:
  PointRecord point;
  CSurfaceNumber surfaceNumber;

  static void Describe(auto& self, auto& member) {
    member("point", self.point);
    member("surfaceNumber", self.surfaceNumber);
  }

  const CRPoint* GetPoint() const override;
  CSurfaceNumber GetSurfaceNumber() const override;
};

class NP_DESIGN_MODEL_API LayerPointRecord final : public CRLayerPoint {
 public:
  PointRecord point;
  CSurfaceNumber surfaceNumber;

  static void Describe(auto& self, auto& member) {
    member("point", self.point);
    member("surfaceNumber", self.surfaceNumber);
  }

  const CRPoint* GetPoint() const override;
  CSurfaceNumber GetSurfaceNumber() const override;
};

class NP_DESIGN_MODEL_API PavementLayerRecord final : public CRPavementLayer {
 public:
  LayerTypeEnums layerType{};
  std::vector<LayerPointRecord> layerPoints;

  static void Describe(auto& self, auto& member) {
    member("layerType", self.layerType);
    member("layerPoints", self.layerPoints);
  }

  std::vector<const CRLayerPoint*> GetLayerPoints() const override;
  LayerTypeEnums GetLayerType() const override;
};

class NP_DESIGN_MODEL_API SplitSoddingRecord final : public CRSplitSodding {
 public:
  int32_t id = 0;
  double number = 0.0;
  std::vector<PointRecord> points;

  static void Describe(auto& self, auto& member) {
    member("id", self.id);
    member("number", self.number);
    member("points", self.points);
  }

  int32_t GetID() const override;
  double GetNumber() const override;
  std::vector<const CRPoint*> GetPoints() const override;
};

class NP_DESIGN_MODEL_API ResultClosedDrainageRecord final : public CRClosedDrainage {
 public:
  std::vector<PointRecord> points;

  static void Describe(auto& self, auto& member) { member("points", self.points); }

  std::vector<const CRPoint*> GetPoints() const override;
};

class NP_DESIGN_MODEL_API ModelSectionRecord final : public CRModelSection {
 public:
  double refElevation = 0.0;
  double railwayRefElevation = 0.0;
  std::vector<SurfacePointRecord> surfacesLeft;
  std::vector<SurfacePointRecord> surfacesRight;
  std::vector<PavementLayerRecord> pavementLayers;
  std::vector<PointRecord> deepBlastings;
  std::vector<PointRecord> landscapingsLeft;
  std::vector<PointRecord> landscapingsRight;
  std::vector<PointRecord> soddingsLeft;
  std::vector<PointRecord> soddingsRight;
  std::vector<PointRecord> removalBed;
  std::vector<PointRecord> edgeReinforcesLeft;
  std::vector<PointRecord> edgeReinforcesRight;
  std::vector<PointRecord> roadBed;
  std::vector<SplitSoddingRecord> splitSoddings;
  std::vector<ResultClosedDrainageRecord> closedDrainages;

  static void Describe(auto& self, auto& member) {
    member("refElevation", self.refElevation);
    member("railwayRefElevation", self.railwayRefElevation);
    member("surfacesLeft", self.surfacesLeft);
    member("surfacesRight", self.surfacesRight);
    member("pavementLayers", self.pavementLayers);
    member("deepBlastings", self.deepBlastings);
    member("landscapingsLeft", self.landscapingsLeft);
    member("landscapingsRight", self.landscapingsRight);
    member("soddingsLeft", self.soddingsLeft);
    member("soddingsRight", self.soddingsRight);
    member("removalBed", self.removalBed);
    member("edgeReinforcesLeft", self.edgeReinforcesLeft);
    member("edgeReinforcesRight", self.edgeReinforcesRight);
    member("roadBed", self.roadBed);
    member("splitSoddings", self.splitSoddings);
    member("closedDrainages", self.closedDrainages);
  }

  std::vector<const CRClosedDrainage*> GetClosedDrainages() const override;
  std::vector<const CRPoint*> GetDeepBlastings() const override;
  std::vector<const CRPoint*> GetEdgeReinforcesLeft() const override;
  std::vector<const CRPoint*> GetEdgeReinforcesRight() const override;
  std::vector<const CRPoint*> GetLandscapingsLeft() const override;
  std::vector<const CRPoint*> GetLandscapingsRight() const override;
  std::vector<const CRPavementLayer*> GetPavementLayers() const override;
  double GetRailwayRefElevation() const override;
  double GetRefElevation() const override;
  std::vector<const CRPoint*> GetRemovalBed() const override;
  std::vector<const CRPoint*> GetRoadBed() const override;
  std::vector<const CRPoint*> GetSoddingsLeft() const override;
  std::vector<const CRPoint*> GetSoddingsRight() const override;
  std::vector<const CRSplitSodding*> GetSplitSoddings() const override;
  std::vector<const CRSurfacePoint*> GetSurfacesLeft() const override;
  std::vector<const CRSurfacePoint*> GetSurfacesRight() const override;
};

class NP_DESIGN_MODEL_API LayerElevationsRecord final : public CRLayerElevations {
 public:
  double distance = 0.0;
  double surface = 0.0;
  std::vector<double> subSurfaces;

  static void Describe(auto& self, auto& member) {
    member("distance", self.distance);
    member("surface", self.surface);
    member("subSurfaces", self.subSurfaces);
  }

  double GetDistance() const override;
  std::vector<double> GetSubSurfaces() const override;
  double GetSurface() const override;
};

class NP_DESIGN_MODEL_API ObjectRecord final : public CRObject {
 public:
  int32_t level = 0;
  std::u16string code;
  std::vector<PointRecord> points;

  static void Describe(auto& self, auto& member) {
    member("level", self.level);
    member("code", self.code);
    member("points", self.points);
  }

  std::u16string GetCode() const override;
  int32_t GetLevel() const override;
  std::vector<const CRPoint*> GetPoints() const override;
};

class NP_DESIGN_MODEL_API TerrainSectionRecord final : public CRTerrainSection {
 public:
  double elevation = 0.0;
  std::vector<MaterialEnums> materials;
  std::vector<LayerElevationsRecord> layerElevations;
  std::vector<ObjectRecord> objects;

  static void Describe(auto& self, auto& member) {
    member("elevation", self.elevation);
    member("materials", self.materials);
    member("layerElevations", self.layerElevations);
    member("objects", self.objects);
  }

  double GetElevation() const override;
  std::vector<const CRLayerElevations*> GetLayerElevations() const override;
  std::vector<MaterialEnums> GetMaterials() const override;
  std::vector<const CRObject*> GetObjects() const override;
};

class NP_DESIGN_MODEL_API ResultSectionRecord final : public CRResultSection {
 public:
  double chainage = 0.0;
  ModelSectionRecord model;
  TerrainSectionRecord terrain;

  static void Describe(auto& self, auto& member) {
    member("chainage", self.chainage);
    member("model", self.model);
    member("terrain", self.terrain);
  }

  double GetChainage() const override;
  const CRModelSection* GetModel() const override;
  const CRTerrainSection* GetTerrain() const override;
};

class NP_DESIGN_MODEL_API ResultDataRecord final : public CResultData {
 public:
  std::vector<ResultSectionRecord> sections;

  static void Describe(auto& self, auto& member) { member("sections", self.sections); }

  std::vector<const CRResultSection*> GetSections() const override;
};

}  // namespace NpDesignModel
