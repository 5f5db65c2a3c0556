// The side tables of a design that hang on chainage stretches: elevation
// differences, ditches, rock shelves, closed drainages, connected models,
// subgrades and the removal of top soil and soft spots.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "design_model/export.h"
#include "design_model/values.h"

namespace NpDesignModel {

class NP_DESIGN_MODEL_API CIElevationDifference {
 public:
  virtual double GetDifference() const = 0;
  virtual double GetFromChainage() const = 0;
  virtual double GetToChainage() const = 0;

 protected:
  ~CIElevationDifference() = default;
};

class NP_DESIGN_MODEL_API CIEmbankmentDitch {
 public:
  // 1 left, 2 right, 3 both.
  enum PositionEnums : int32_t {};

  virtual double GetFromChainage() const = 0;
  virtual PositionEnums GetPosition() const = 0;
  virtual double GetToChainage() const = 0;
  virtual bool IsType() const = 0;

 protected:
  ~CIEmbankmentDitch() = default;
};

class NP_DESIGN_MODEL_API CIRockShelf {
 public:
  virtual double GetAdditionalWidth() const = 0;
  virtual double GetFromChainage() const = 0;
  virtual double GetMinHeigth() const = 0;
  virtual double GetMinWidth() const = 0;
  virtual double GetSlope() const = 0;
  virtual double GetToChainage() const = 0;

 protected:
  ~CIRockShelf() = default;
};

class NP_DESIGN_MODEL_API CIDitchDepth {
 public:
  virtual double GetFromChainage() const = 0;
  virtual double GetMinDepthLeft() const = 0;
  virtual double GetMinDepthRight() const = 0;
  virtual double GetToChainage() const = 0;

 protected:
  ~CIDitchDepth() = default;
};

// A point of a closed drainage section: offset and height.
class NP_DESIGN_MODEL_API CIClosedDrainagePoint {
 public:
  virtual double GetDistance() const = 0;
  virtual double GetElevation() const = 0;

 protected:
  ~CIClosedDrainagePoint() = default;
};

class NP_DESIGN_MODEL_API CIClosedDrainageSection {
 public:
  virtual double GetChainage() const = 0;
  // Negative marks a gap after this section.
  virtual int32_t GetElevationMode() const = 0;
  virtual std::vector<const CIClosedDrainagePoint*> GetPoints() const = 0;

 protected:
  ~CIClosedDrainageSection() = default;
};

// A closed drainage, walked section by section.
class NP_DESIGN_MODEL_API CIClosedDrainage {
 public:
  // Null when the drainage has no section.
  virtual const CIClosedDrainageSection* FirstSection() const = 0;
  // The section after `section`, a section of this drainage; null after the
  // last one and for a section that is not of this drainage.
  virtual const CIClosedDrainageSection* NextSectionOf(
      const CIClosedDrainageSection* section) const = 0;

 protected:
  ~CIClosedDrainage() = default;
};

// A model connected along a stretch of the road.
class NP_DESIGN_MODEL_API CIConnectedWSModels {
 public:
  virtual double GetFromChainage() const = 0;
  virtual double GetToChainage() const = 0;
  // Name or path of the connected model.
  virtual std::u16string GetWSModel() const = 0;

 protected:
  ~CIConnectedWSModels() = default;
};

class NP_DESIGN_MODEL_API CISubGrade {
 public:
  enum CalculatedTypeEnums : int32_t {};
  enum GivenTypeEnums : int32_t {};

  virtual CalculatedTypeEnums GetCalculatedType() const = 0;
  // End of the stretch that the row describes.
  virtual double GetChainage() const = 0;
  virtual GivenTypeEnums GetGivenType() const = 0;

 protected:
  ~CISubGrade() = default;
};

class NP_DESIGN_MODEL_API CITopSoilRemoval {
 public:
  enum CutCodeEnums : int32_t {};
  enum FillCodeEnums : int32_t {};

  virtual int32_t GetCriteria() const = 0;
  virtual CutCodeEnums GetCutCode() const = 0;
  virtual double GetCutSlope() const = 0;
  virtual FillCodeEnums GetFillCode() const = 0;
  virtual double GetFillSlope() const = 0;
  virtual double GetFromChainage() const = 0;
  // 0 means the default.
  virtual double GetMaxTerrainSlope() const = 0;
  // 0 means the default.
  virtual double GetMinFillHeight() const = 0;
  virtual double GetToChainage() const = 0;
  virtual bool IsRemovalOnRock() const = 0;

 protected:
  ~CITopSoilRemoval() = default;
};

class NP_DESIGN_MODEL_API CISoftSpotRemoval {
 public:
  enum DesignModeEnums : int32_t {};

  virtual double GetBoundaryRayCorrectionLeft() const = 0;
  virtual double GetBoundaryRayCorrectionRight() const = 0;
  virtual CSurfaceNumber GetBoundaryRayStartLeft() const = 0;
  virtual CSurfaceNumber GetBoundaryRayStartRight() const = 0;
  virtual double GetDepth() const = 0;
  virtual DesignModeEnums GetDesignMode() const = 0;
  virtual double GetFromChainage() const = 0;
  virtual double GetSlopeOfBoundaryRayLeft() const = 0;
  virtual double GetSlopeOfBoundaryRayRight() const = 0;
  virtual double GetSlopeOfCutLeft() const = 0;
  virtual double GetSlopeOfCutRight() const = 0;
  virtual double GetToChainage() const = 0;

 protected:
  ~CISoftSpotRemoval() = default;
};

}  // namespace NpDesignModel
