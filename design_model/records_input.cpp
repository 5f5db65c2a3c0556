#include "design_model/records_input.h"

#include "design_model/record_lists.h"

namespace NpDesignModel {

bool ModelSettingsRecord::IsClosedDrainage1() const { return closedDrainage1; }
bool ModelSettingsRecord::IsClosedDrainage2() const { return closedDrainage2; }
bool ModelSettingsRecord::IsClosedDrainage3() const { return closedDrainage3; }
bool ModelSettingsRecord::IsDeepBlasting() const { return deepBlasting; }
bool ModelSettingsRecord::IsDetailedPavementDescription() const {
  return detailedPavementDescription;
}
bool ModelSettingsRecord::IsGradualChangingLayers() const { return gradualChangingLayers; }
bool ModelSettingsRecord::IsInnerSlope() const { return innerSlope; }
bool ModelSettingsRecord::IsLandscapingLeft() const { return landscapingLeft; }
bool ModelSettingsRecord::IsLandscapingRight() const { return landscapingRight; }
bool ModelSettingsRecord::IsMinDitchDepthControl() const { return minDitchDepthControl; }
bool ModelSettingsRecord::IsMinPavementThicknessControl() const {
  return minPavementThicknessControl;
}
bool ModelSettingsRecord::IsRehabAdjustToExistingRoad() const { return rehabAdjustToExistingRoad; }
bool ModelSettingsRecord::IsRockShelf() const { return rockShelf; }
bool ModelSettingsRecord::IsSodding() const { return sodding; }
bool ModelSettingsRecord::IsSoftSpotRemoval() const { return softSpotRemoval; }
bool ModelSettingsRecord::IsTopSoilAndVegetationRemoval() const {
  return topSoilAndVegetationRemoval;
}

double RailwayParametersRecord::GetVerticalOffset() const { return verticalOffset; }

std::vector<const CIAlignment*> InDataRecord::GetAlignments() const {
  return PointersTo<CIAlignment>(alignments);
}
std::vector<const CIClosedDrainage*> InDataRecord::GetClosedDrainages() const {
  return PointersTo<CIClosedDrainage>(closedDrainages);
}
std::vector<const CIConnectedWSModels*> InDataRecord::GetConnectedWSModels() const {
  return PointersTo<CIConnectedWSModels>(connectedWSModels);
}
std::vector<const CIDetailedPavementLayer*> InDataRecord::GetDetailedPvmtLayers() const {
  return PointersTo<CIDetailedPavementLayer>(detailedPvmtLayers);
}
std::vector<const CIDitchDepth*> InDataRecord::GetDitchDepths() const {
  return PointersTo<CIDitchDepth>(ditchDepths);
}
std::vector<const CIElevationDifference*> InDataRecord::GetElevationDifferences() const {
  return PointersTo<CIElevationDifference>(elevationDifferences);
}
CSurfaceNumber InDataRecord::GetElevationReferenceSurface() const {
  return elevationReferenceSurface;
}
std::vector<const CIEmbankmentDitch*> InDataRecord::GetEmbankmentDitchs() const {
  return PointersTo<CIEmbankmentDitch>(embankmentDitchs);
}
const CIModelSettings* InDataRecord::GetModelSettings() const { return &modelSettings; }
CInData::ModelTypeEnums InDataRecord::GetModelType() const { return modelType; }
double InDataRecord::GetModelVersionNumber() const { return modelVersionNumber; }
std::vector<const CIPavementSection*> InDataRecord::GetPvmtSectionsRock() const {
  return PointersTo<CIPavementSection>(pvmtSectionsRock);
}
std::vector<const CIPavementSection*> InDataRecord::GetPvmtSectionsSoil() const {
  return PointersTo<CIPavementSection>(pvmtSectionsSoil);
}
std::vector<const CIPavementTemplate*> InDataRecord::GetPvmtTmpls() const {
  return PointersTo<CIPavementTemplate>(pvmtTmpls);
}
const CIRailwayParameters* InDataRecord::GetRailwayParams() const { return &railwayParams; }
int32_t InDataRecord::GetReferenceAlignmentID() const { return referenceAlignmentId; }
std::vector<const CIRockShelf*> InDataRecord::GetRockShelfsLeft() const {
  return PointersTo<CIRockShelf>(rockShelfsLeft);
}
std::vector<const CIRockShelf*> InDataRecord::GetRockShelfsRight() const {
  return PointersTo<CIRockShelf>(rockShelfsRight);
}
std::vector<const CISoftSpotRemoval*> InDataRecord::GetSoftSpotRemovals() const {
  return PointersTo<CISoftSpotRemoval>(softSpotRemovals);
}
std::vector<const CISubGrade*> InDataRecord::GetSubGrades() const {
  return PointersTo<CISubGrade>(subGrades);
}
std::vector<std::u16string> InDataRecord::GetSubSurfaceMaterials() const {
  return subSurfaceMaterials;
}
std::vector<const CISurfaceBoundary*> InDataRecord::GetSurfaceBoundariesLeft() const {
  return PointersTo<CISurfaceBoundary>(surfaceBoundariesLeft);
}
std::vector<const CISurfaceBoundary*> InDataRecord::GetSurfaceBoundariesRight() const {
  return PointersTo<CISurfaceBoundary>(surfaceBoundariesRight);
}
std::vector<const CISurfaceEdgeAlignment*> InDataRecord::GetSurfaceEdgeAlignments() const {
  return PointersTo<CISurfaceEdgeAlignment>(surfaceEdgeAlignments);
}
std::vector<const CISurface*> InDataRecord::GetSurfaces() const {
  return PointersTo<CISurface>(surfaces);
}
std::vector<const CITopSoilRemoval*> InDataRecord::GetTopSoilRemovals() const {
  return PointersTo<CITopSoilRemoval>(topSoilRemovals);
}

}  // namespace NpDesignModel
