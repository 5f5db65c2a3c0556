// The held form of the side tables: elevation differences, ditches, rock
// shelves, closed drainages, connected models, subgrades, top soil and soft
// spot removals.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "design_model/export.h"
#include "design_model/input_tables.h"

namespace NpDesignModel {

class NP_DESIGN_MODEL_API ElevationDifferenceRecord final : public CIElevationDifference {
 public:
  double fromChainage = 0.0;
  double toChainage = 0.0;
  double difference = 0.0;

  static void Describe(auto& self, auto& member) {
    member("fromChainage", self.fromChainage);
    member("toChainage", self.toChainage);
    member("difference", self.difference);
  }

  double GetDifference() const override;
  double GetFromChainage() const override;
  double GetToChainage() const override;
};

class NP_DESIGN_MODEL_API EmbankmentDitchRecord final : public CIEmbankmentDitch {
 public:
  double fromChainage = 0.0;
  double toChainage = 0.0;
  PositionEnums position{};
  bool type = false;

  static void Describe(auto& self, auto& member) {
    member("fromChainage", self.fromChainage);
    member("toChainage", self.toChainage);
    member("position", self.position);
    member("type", self.type);
  }

  double GetFromChainage() const override;
  PositionEnums GetPosition() const override;
  double GetToChainage() const override;
  bool IsType() const override;
};

class NP_DESIGN_MODEL_API RockShelfRecord final : public CIRockShelf {
 public:
  double fromChainage = 0.0;
  double toChainage = 0.0;
  double minWidth = 0.0;
  double additionalWidth = 0.0;
  double minHeigth = 0.0;
  double slope = 0.0;

  static void Describe(auto& self, auto& member) {
    member("fromChainage", self.fromChainage);
    member("toChainage", self.toChainage);
    member("minWidth", self.minWidth);
    member("additionalWidth", self.additionalWidth);
    member("minHeigth", self.minHeigth);
    member("slope", self.slope);
  }

  double GetAdditionalWidth() const override;
  double GetFromChainage() const override;
  double GetMinHeigth() const override;
  double GetMinWidth() const override;
  double GetSlope() const override;
  double GetToChainage() const override;
};

class NP_DESIGN_MODEL_API DitchDepthRecord final : public CIDitchDepth {
 public:
  double fromChainage = 0.0;
  double toChainage = 0.0;
  double minDepthLeft = 0.0;
  double minDepthRight = 0.0;

  static void Describe(auto& self, auto& member) {
    member("fromChainage", self.fromChainage);
    member("toChainage", self.toChainage);
    member("minDepthLeft", self.minDepthLeft);
    member("minDepthRight", self.minDepthRight);
  }

  double GetFromChainage() const override;
  double GetMinDepthLeft() const override;
  double GetMinDepthRight() const override;
  double GetToChainage() const override;
};

class NP_DESIGN_MODEL_API ClosedDrainagePointRecord final : public CIClosedDrainagePoint {
 public:
  double distance = 0.0;
  double elevation = 0.0;

  static void Describe(auto& self, auto& member) {
    member("distance", self.distance);
    member("elevation", self.elevation);
  }

  double GetDistance() const override;
  double GetElevation() const override;
};

class NP_DESIGN_MODEL_API ClosedDrainageSectionRecord final : public CIClosedDrainageSection {
 public:
  double chainage = 0.0;
  int32_t elevationMode = 0;
  std::vector<ClosedDrainagePointRecord> points;

  static void Describe(auto& self, auto& member) {
    member("chainage", self.chainage);
    member("elevationMode", self.elevationMode);
    member("points", self.points);
  }

  double GetChainage() const override;
  int32_t GetElevationMode() const override;
  std::vector<const CIClosedDrainagePoint*> GetPoints() const override;
};

class NP_DESIGN_MODEL_API ClosedDrainageRecord final : public CIClosedDrainage {
 public:
  std::vector<ClosedDrainageSectionRecord> sections;

  static void Describe(auto& self, auto& member) { member("sections", self.sections); }

  const CIClosedDrainageSection* FirstSection() const override;
  const CIClosedDrainageSection* NextSectionOf(
      const CIClosedDrainageSection* section) const override;
};

class NP_DESIGN_MODEL_API ConnectedWSModelsRecord final : public CIConnectedWSModels {
 public:
  double fromChainage = 0.0;
  double toChainage = 0.0;
  std::u16string wsModel;

  static void Describe(auto& self, auto& member) {
    member("fromChainage", self.fromChainage);
    member("toChainage", self.toChainage);
    member("wsModel", self.wsModel);
  }

  double GetFromChainage() const override;
  double GetToChainage() const override;
  std::u16string GetWSModel() const override;
};

class NP_DESIGN_MODEL_API SubGradeRecord final : public CISubGrade {
 public:
  double chainage = 0.0;
  GivenTypeEnums givenType{};
  CalculatedTypeEnums calculatedType{};

  static void Describe(auto& self, auto& member) {
    member("chainage", self.chainage);
    member("givenType", self.givenType);
    member("calculatedType", self.calculatedType);
  }

  CalculatedTypeEnums GetCalculatedType() const override;
  double GetChainage() const override;
  GivenTypeEnums GetGivenType() const override;
};

class NP_DESIGN_MODEL_API TopSoilRemovalRecord final : public CITopSoilRemoval {
 public:
  double fromChainage = 0.0;
  double toChainage = 0.0;
  int32_t criteria = 0;
  CutCodeEnums cutCode{};
  double cutSlope = 0.0;
  FillCodeEnums fillCode{};
  double fillSlope = 0.0;
  double maxTerrainSlope = 0.0;
  double minFillHeight = 0.0;
  bool removalOnRock = false;

  static void Describe(auto& self, auto& member) {
    member("fromChainage", self.fromChainage);
    member("toChainage", self.toChainage);
    member("criteria", self.criteria);
    member("cutCode", self.cutCode);
    member("cutSlope", self.cutSlope);
    member("fillCode", self.fillCode);
    member("fillSlope", self.fillSlope);
    member("maxTerrainSlope", self.maxTerrainSlope);
    member("minFillHeight", self.minFillHeight);
    member("removalOnRock", self.removalOnRock);
  }

  int32_t GetCriteria() const override;
  CutCodeEnums GetCutCode() const override;
  double GetCutSlope() const override;
  FillCodeEnums GetFillCode() const override;
  double GetFillSlope() const override;
  double GetFromChainage() const override;
  double GetMaxTerrainSlope() const override;
  double GetMinFillHeight() const override;
  double GetToChainage() const override;
  bool IsRemovalOnRock() const override;
};

class NP_DESIGN_MODEL_API SoftSpotRemovalRecord final : public CISoftSpotRemoval {
 public:
  double fromChainage = 0.0;
  double toChainage = 0.0;
  DesignModeEnums designMode{};
  double depth = 0.0;
  double boundaryRayCorrectionLeft = 0.0;
  double boundaryRayCorrectionRight = 0.0;
  CSurfaceNumber boundaryRayStartLeft;
  CSurfaceNumber boundaryRayStartRight;
  double slopeOfBoundaryRayLeft = 0.0;
  double slopeOfBoundaryRayRight = 0.0;
  double slopeOfCutLeft = 0.0;
  double slopeOfCutRight = 0.0;

  static void Describe(auto& self, auto& member) {
    member("fromChainage", self.fromChainage);
    member("toChainage", self.toChainage);
    member("designMode", self.designMode);
    member("depth", self.depth);
    member("boundaryRayCorrectionLeft", self.boundaryRayCorrectionLeft);
    member("boundaryRayCorrectionRight", self.boundaryRayCorrectionRight);
    member("boundaryRayStartLeft", self.boundaryRayStartLeft);
    member("boundaryRayStartRight", self.boundaryRayStartRight);
    member("slopeOfBoundaryRayLeft", self.slopeOfBoundaryRayLeft);
    member("slopeOfBoundaryRayRight", self.slopeOfBoundaryRayRight);
    member("slopeOfCutLeft", self.slopeOfCutLeft);
    member("slopeOfCutRight", self.slopeOfCutRight);
  }

  double GetBoundaryRayCorrectionLeft() const override;
  double GetBoundaryRayCorrectionRight() const override;
  CSurfaceNumber GetBoundaryRayStartLeft() const override;
  CSurfaceNumber GetBoundaryRayStartRight() const override;
  double GetDepth() const override;
  DesignModeEnums GetDesignMode() const override;
  double GetFromChainage() const override;
  double GetSlopeOfBoundaryRayLeft() const override;
  double GetSlopeOfBoundaryRayRight() const override;
  double GetSlopeOfCutLeft() const override;
  double GetSlopeOfCutRight() const override;
  double GetToChainage() const override;
};

}  // namespace NpDesignModel
