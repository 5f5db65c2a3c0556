#include "design_model/records_tables.h"

#include <cstddef>
#include <cstdint>

#include "design_model/record_lists.h"

namespace NpDesignModel {

double ElevationDifferenceRecord::GetDifference() const { return difference; }
double ElevationDifferenceRecord::GetFromChainage() const { return fromChainage; }
double ElevationDifferenceRecord::GetToChainage() const { return toChainage; }

double EmbankmentDitchRecord::GetFromChainage() const { return fromChainage; }
CIEmbankmentDitch::PositionEnums EmbankmentDitchRecord::GetPosition() const { return position; }
double EmbankmentDitchRecord::GetToChainage() const { return toChainage; }
bool EmbankmentDitchRecord::IsType() const { return type; }

double RockShelfRecord::GetAdditionalWidth() const { return additionalWidth; }
double RockShelfRecord::GetFromChainage() const { return fromChainage; }
double RockShelfRecord::GetMinHeigth() const { return minHeigth; }
double RockShelfRecord::GetMinWidth() const { return minWidth; }
double RockShelfRecord::GetSlope() const { return slope; }
double RockShelfRecord::GetToChainage() const { return toChainage; }

double DitchDepthRecord::GetFromChainage() const { return fromChainage; }
double DitchDepthRecord::GetMinDepthLeft() const { return minDepthLeft; }
double DitchDepthRecord::GetMinDepthRight() const { return minDepthRight; }
double DitchDepthRecord::GetToChainage() const { return toChainage; }

double ClosedDrainagePointRecord::GetDistance() const { return distance; }
double ClosedDrainagePointRecord::GetElevation() const { return elevation; }

double ClosedDrainageSectionRecord::GetChainage() const { return chainage; }
int32_t ClosedDrainageSectionRecord::GetElevationMode() const { return elevationMode; }
std::vector<const CIClosedDrainagePoint*> ClosedDrainageSectionRecord::GetPoints() const {
  return PointersTo<CIClosedDrainagePoint>(points);
}

const CIClosedDrainageSection* ClosedDrainageRecord::FirstSection() const {
  return sections.empty() ? nullptr : &sections.front();
}

const CIClosedDrainageSection* ClosedDrainageRecord::NextSectionOf(
    const CIClosedDrainageSection* section) const {
  if (!section || sections.empty()) return nullptr;
  // The sections lie side by side, so the position follows from the address;
  // it is worked out on plain numbers so that a section of another drainage
  // gives null instead of a wild position.
  const CIClosedDrainageSection* first = &sections.front();
  uintptr_t offset = reinterpret_cast<uintptr_t>(section) - reinterpret_cast<uintptr_t>(first);
  size_t index = offset / sizeof(ClosedDrainageSectionRecord);
  if (offset % sizeof(ClosedDrainageSectionRecord) != 0 || index >= sections.size()) {
    return nullptr;
  }
  if (static_cast<const CIClosedDrainageSection*>(&sections[index]) != section) return nullptr;
  return index + 1 < sections.size() ? &sections[index + 1] : nullptr;
}

double ConnectedWSModelsRecord::GetFromChainage() const { return fromChainage; }
double ConnectedWSModelsRecord::GetToChainage() const { return toChainage; }
std::u16string ConnectedWSModelsRecord::GetWSModel() const { return wsModel; }

CISubGrade::CalculatedTypeEnums SubGradeRecord::GetCalculatedType() const { return calculatedType; }
double SubGradeRecord::GetChainage() const { return chainage; }
CISubGrade::GivenTypeEnums SubGradeRecord::GetGivenType() const { return givenType; }

int32_t TopSoilRemovalRecord::GetCriteria() const { return criteria; }
CITopSoilRemoval::CutCodeEnums TopSoilRemovalRecord::GetCutCode() const { return cutCode; }
double TopSoilRemovalRecord::GetCutSlope() const { return cutSlope; }
CITopSoilRemoval::FillCodeEnums TopSoilRemovalRecord::GetFillCode() const { return fillCode; }
double TopSoilRemovalRecord::GetFillSlope() const { return fillSlope; }
double TopSoilRemovalRecord::GetFromChainage() const { return fromChainage; }
double TopSoilRemovalRecord::GetMaxTerrainSlope() const { return maxTerrainSlope; }
double TopSoilRemovalRecord::GetMinFillHeight() const { return minFillHeight; }
double TopSoilRemovalRecord::GetToChainage() const { return toChainage; }
bool TopSoilRemovalRecord::IsRemovalOnRock() const { return removalOnRock; }

double SoftSpotRemovalRecord::GetBoundaryRayCorrectionLeft() const {
  return boundaryRayCorrectionLeft;
}
double SoftSpotRemovalRecord::GetBoundaryRayCorrectionRight() const {
  return boundaryRayCorrectionRight;
}
CSurfaceNumber SoftSpotRemovalRecord::GetBoundaryRayStartLeft() const {
  return boundaryRayStartLeft;
}
CSurfaceNumber SoftSpotRemovalRecord::GetBoundaryRayStartRight() const {
  return boundaryRayStartRight;
}
double SoftSpotRemovalRecord::GetDepth() const { return depth; }
CISoftSpotRemoval::DesignModeEnums SoftSpotRemovalRecord::GetDesignMode() const {
  return designMode;
}
double SoftSpotRemovalRecord::GetFromChainage() const { return fromChainage; }
double SoftSpotRemovalRecord::GetSlopeOfBoundaryRayLeft() const { return slopeOfBoundaryRayLeft; }
double SoftSpotRemovalRecord::GetSlopeOfBoundaryRayRight() const { return slopeOfBoundaryRayRight; }
double SoftSpotRemovalRecord::GetSlopeOfCutLeft() const { return slopeOfCutLeft; }
double SoftSpotRemovalRecord::GetSlopeOfCutRight() const { return slopeOfCutRight; }
double SoftSpotRemovalRecord::GetToChainage() const { return toChainage; }

}  // namespace NpDesignModel
