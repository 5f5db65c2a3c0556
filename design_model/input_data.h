// The input side of a design: its settings and the lists of its tables.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "design_model/export.h"
#include "design_model/values.h"

namespace NpDesignModel {

class CIAlignment;
class CIClosedDrainage;
class CIConnectedWSModels;
class CIDetailedPavementLayer;
class CIDitchDepth;
class CIElevationDifference;
class CIEmbankmentDitch;
class CIPavementSection;
class CIPavementTemplate;
class CIRockShelf;
class CISoftSpotRemoval;
class CISubGrade;
class CISurface;
class CISurfaceBoundary;
class CISurfaceEdgeAlignment;
class CITopSoilRemoval;

// Switches of the design: which optional parts it uses.
class NP_DESIGN_MODEL_API CIModelSettings {
 public:
  virtual bool IsClosedDrainage1() const = 0;
  virtual bool IsClosedDrainage2() const = 0;
  virtual bool IsClosedDrainage3() const = 0;
  virtual bool IsDeepBlasting() const = 0;
  virtual bool IsDetailedPavementDescription() const = 0;
  virtual bool IsGradualChangingLayers() const = 0;
  virtual bool IsInnerSlope() const = 0;
  virtual bool IsLandscapingLeft() const = 0;
  virtual bool IsLandscapingRight() const = 0;
  virtual bool IsMinDitchDepthControl() const = 0;
  virtual bool IsMinPavementThicknessControl() const = 0;
  virtual bool IsRehabAdjustToExistingRoad() const = 0;
  virtual bool IsRockShelf() const = 0;
  virtual bool IsSodding() const = 0;
  virtual bool IsSoftSpotRemoval() const = 0;
  virtual bool IsTopSoilAndVegetationRemoval() const = 0;

 protected:
  ~CIModelSettings() = default;
};

// Parameters of a railway design; road designs have them too.
class NP_DESIGN_MODEL_API CIRailwayParameters {
 public:
  virtual double GetVerticalOffset() const = 0;

 protected:
  ~CIRailwayParameters() = default;
};

// The input tables of a design.
class NP_DESIGN_MODEL_API CInData {
 public:
  // 1 road, 2 railway, 3 WS; other values pass through.
  enum ModelTypeEnums : int32_t {};

  virtual std::vector<const CIAlignment*> GetAlignments() const = 0;
  virtual std::vector<const CIClosedDrainage*> GetClosedDrainages() const = 0;
  virtual std::vector<const CIConnectedWSModels*> GetConnectedWSModels() const = 0;
  virtual std::vector<const CIDetailedPavementLayer*> GetDetailedPvmtLayers() const = 0;
  virtual std::vector<const CIDitchDepth*> GetDitchDepths() const = 0;
  virtual std::vector<const CIElevationDifference*> GetElevationDifferences() const = 0;
  virtual CSurfaceNumber GetElevationReferenceSurface() const = 0;
  virtual std::vector<const CIEmbankmentDitch*> GetEmbankmentDitchs() const = 0;
  // Never null.
  virtual const CIModelSettings* GetModelSettings() const = 0;
  virtual ModelTypeEnums GetModelType() const = 0;
  virtual double GetModelVersionNumber() const = 0;
  virtual std::vector<const CIPavementSection*> GetPvmtSectionsRock() const = 0;
  virtual std::vector<const CIPavementSection*> GetPvmtSectionsSoil() const = 0;
  virtual std::vector<const CIPavementTemplate*> GetPvmtTmpls() const = 0;
  // Never null, also for road designs.
  virtual const CIRailwayParameters* GetRailwayParams() const = 0;
  virtual int32_t GetReferenceAlignmentID() const = 0;
  virtual std::vector<const CIRockShelf*> GetRockShelfsLeft() const = 0;
  virtual std::vector<const CIRockShelf*> GetRockShelfsRight() const = 0;
  virtual std::vector<const CISoftSpotRemoval*> GetSoftSpotRemovals() const = 0;
  virtual std::vector<const CISubGrade*> GetSubGrades() const = 0;
  // Material n has its name at position n - 1.
  virtual std::vector<std::u16string> GetSubSurfaceMaterials() const = 0;
  virtual std::vector<const CISurfaceBoundary*> GetSurfaceBoundariesLeft() const = 0;
  virtual std::vector<const CISurfaceBoundary*> GetSurfaceBoundariesRight() const = 0;
  virtual std::vector<const CISurfaceEdgeAlignment*> GetSurfaceEdgeAlignments() const = 0;
  virtual std::vector<const CISurface*> GetSurfaces() const = 0;
  virtual std::vector<const CITopSoilRemoval*> GetTopSoilRemovals() const = 0;

 protected:
  ~CInData() = default;
};

}  // namespace NpDesignModel
