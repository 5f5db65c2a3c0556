// The held form of the input side: settings, railway parameters and the lists
// of every input table.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "design_model/export.h"
#include "design_model/input_data.h"
#include "design_model/records_alignments.h"
#include "design_model/records_pavement.h"
#include "design_model/records_surfaces.h"
#include "design_model/records_tables.h"

namespace NpDesignModel {

class NP_DESIGN_MODEL_API ModelSettingsRecord final : public CIModelSettings {
 public:
  bool closedDrainage1 = false;
  bool closedDrainage2 = false;
  bool closedDrainage3 = false;
  bool deepBlasting = false;
  bool detailedPavementDescription = false;
  bool gradualChangingLayers = false;
  bool innerSlope = false;
  bool landscapingLeft = false;
  bool landscapingRight = false;
  bool minDitchDepthControl = false;
  bool minPavementThicknessControl = false;
  bool rehabAdjustToExistingRoad = false;
  bool rockShelf = false;
  bool sodding = false;
  bool softSpotRemoval = false;
  bool topSoilAndVegetationRemoval = false;

  static void Describe(auto& self, auto& member) {
    member("closedDrainage1", self.closedDrainage1);
    member("closedDrainage2", self.closedDrainage2);
    member("closedDrainage3", self.closedDrainage3);
    member("deepBlasting", self.deepBlasting);
    member("detailedPavementDescription", self.detailedPavementDescription);
    member("gradualChangingLayers", self.gradualChangingLayers);
    member("innerSlope", self.innerSlope);
    member("landscapingLeft", self.landscapingLeft);
    member("landscapingRight", self.landscapingRight);
    member("minDitchDepthControl", self.minDitchDepthControl);
    member("minPavementThicknessControl", self.minPavementThicknessControl);
    member("rehabAdjustToExistingRoad", self.rehabAdjustToExistingRoad);
    member("rockShelf", self.rockShelf);
    member("sodding", self.sodding);
    member("softSpotRemoval", self.softSpotRemoval);
    member("topSoilAndVegetationRemoval", self.topSoilAndVegetationRemoval);
  }

  bool IsClosedDrainage1() const override;
  bool IsClosedDrainage2() const override;
  bool IsClosedDrainage3() const override;
  bool IsDeepBlasting() const override;
  bool IsDetailedPavementDescription() const override;
  bool IsGradualChangingLayers() const override;
  bool IsInnerSlope() const override;
  bool IsLandscapingLeft() const override;
  bool IsLandscapingRight() const override;
  bool IsMinDitchDepthControl() const override;
  bool IsMinPavementThicknessControl() const override;
  bool IsRehabAdjustToExistingRoad() const override;
  bool IsRockShelf() const override;
  bool IsSodding() const override;
  bool IsSoftSpotRemoval() const override;
  bool IsTopSoilAndVegetationRemoval() const override;
};

class NP_DESIGN_MODEL_API RailwayParametersRecord final : public CIRailwayParameters {
 public:
  double verticalOffset = 0.0;

  static void Describe(auto& self, auto& member) { member("verticalOffset", self.verticalOffset); }

  double GetVerticalOffset() const override;
};

class NP_DESIGN_MODEL_API InDataRecord final : public CInData {
 public:
  double modelVersionNumber = 0.0;
  ModelTypeEnums modelType{};
  int32_t referenceAlignmentId = 0;
  CSurfaceNumber elevationReferenceSurface;
  RailwayParametersRecord railwayParams;
  ModelSettingsRecord modelSettings;
  std::vector<std::u16string> subSurfaceMaterials;
  std::vector<AlignmentRecord> alignments;
  std::vector<SurfaceRecord> surfaces;
  std::vector<SurfaceBoundaryRecord> surfaceBoundariesLeft;
  std::vector<SurfaceBoundaryRecord> surfaceBoundariesRight;
  std::vector<SurfaceEdgeAlignmentRecord> surfaceEdgeAlignments;
  std::vector<ElevationDifferenceRecord> elevationDifferences;
  std::vector<EmbankmentDitchRecord> embankmentDitchs;
  std::vector<RockShelfRecord> rockShelfsLeft;
  std::vector<RockShelfRecord> rockShelfsRight;
  std::vector<DitchDepthRecord> ditchDepths;
  std::vector<ClosedDrainageRecord> closedDrainages;
  std::vector<ConnectedWSModelsRecord> connectedWSModels;
  std::vector<PavementSectionRecord> pvmtSectionsSoil;
  std::vector<PavementSectionRecord> pvmtSectionsRock;
  std::vector<PavementTemplateRecord> pvmtTmpls;
  std::vector<SubGradeRecord> subGrades;
  std::vector<DetailedPavementLayerRecord> detailedPvmtLayers;
  std::vector<TopSoilRemovalRecord> topSoilRemovals;
  std::vector<SoftSpotRemovalRecord> softSpotRemovals;

  static void Describe(auto& self, auto& member) {
    member("modelVersionNumber", self.modelVersionNumber);
    member("modelType", self.modelType);
    member("referenceAlignmentId", self.referenceAlignmentId);
    member("elevationReferenceSurface", self.elevationReferenceSurface);
    member("railwayParams", self.railwayParams);
    member("modelSettings", self.modelSettings);
    member("subSurfaceMaterials", self.subSurfaceMaterials);
    member("alignments", self.alignments);
    member("surfaces", self.surfaces);
    member("surfaceBoundariesLeft", self.surfaceBoundariesLeft);
    member("surfaceBoundariesRight", self.surfaceBoundariesRight);
    member("surfaceEdgeAlignments", self.surfaceEdgeAlignments);
    member("elevationDifferences", self.elevationDifferences);
    member("embankmentDitchs", self.embankmentDitchs);
    member("rockShelfsLeft", self.rockShelfsLeft);
    member("rockShelfsRight", self.rockShelfsRight);
    member("ditchDepths", self.ditchDepths);
    member("closedDrainages", self.closedDrainages);
    member("connectedWSModels", self.connectedWSModels);
    member("pvmtSectionsSoil", self.pvmtSectionsSoil);
    member("pvmtSectionsRock", self.pvmtSectionsRock);
    member("pvmtTmpls", self.pvmtTmpls);
    member("subGrades", self.subGrades);
    member("detailedPvmtLayers", self.detailedPvmtLayers);
    member("topSoilRemovals", self.topSoilRemovals);
    member("softSpotRemovals", self.softSpotRemovals);
  }

  std::vector<const CIAlignment*> GetAlignments() const override;
  std::vector<const CIClosedDrainage*> GetClosedDrainages() const override;
  std::vector<const CIConnectedWSModels*> GetConnectedWSModels() const override;
  std::vector<const CIDetailedPavementLayer*> GetDetailedPvmtLayers() const override;
  std::vector<const CIDitchDepth*> GetDitchDepths() const override;
  std::vector<const CIElevationDifference*> GetElevationDifferences() const override;
  CSurfaceNumber GetElevationReferenceSurface() const override;
  std::vector<const CIEmbankmentDitch*> GetEmbankmentDitchs() const override;
  const CIModelSettings* GetModelSettings() const override;
  ModelTypeEnums GetModelType() const override;
  double GetModelVersionNumber() const override;
  std::vector<const CIPavementSection*> GetPvmtSectionsRock() const override;
  std::vector<const CIPavementSection*> GetPvmtSectionsSoil() const override;
  std::vector<const CIPavementTemplate*> GetPvmtTmpls() const override;
  const CIRailwayParameters* GetRailwayParams() const override;
  int32_t GetReferenceAlignmentID() const override;
  std::vector<const CIRockShelf*> GetRockShelfsLeft() const override;
  std::vector<const CIRockShelf*> GetRockShelfsRight() const override;
  std::vector<const CISoftSpotRemoval*> GetSoftSpotRemovals() const override;
  std::vector<const CISubGrade*> GetSubGrades() const override;
  std::vector<std::u16string> GetSubSurfaceMaterials() const override;
  std::vector<const CISurfaceBoundary*> GetSurfaceBoundariesLeft() const override;
  std::vector<const CISurfaceBoundary*> GetSurfaceBoundariesRight() const override;
  std::vector<const CISurfaceEdgeAlignment*> GetSurfaceEdgeAlignments() const override;
  std::vector<const CISurface*> GetSurfaces() const override;
  std::vector<const CITopSoilRemoval*> GetTopSoilRemovals() const override;
};

}  // namespace NpDesignModel
