#include "design_model/records_surfaces.h"

#include "design_model/record_lists.h"

namespace NpDesignModel {

double SurfaceSectionRecord::GetChainage() const { return chainage; }
double SurfaceSectionRecord::GetSlope() const { return slope; }
double SurfaceSectionRecord::GetWidth() const { return width; }

std::vector<const CISurfaceSection*> SurfaceRecord::GetDescriptions() const {
  return PointersTo<CISurfaceSection>(descriptions);
}
std::u16string SurfaceRecord::GetName() const { return name; }
CSurfaceNumber SurfaceRecord::GetSurfaceNumber() const { return surfaceNumber; }

int32_t SurfaceBoundaryRecord::GetAlignmentId() const { return alignmentId; }
double SurfaceBoundaryRecord::GetChainage() const { return chainage; }
double SurfaceBoundaryRecord::GetDistance() const { return distance; }
CSurfaceNumber SurfaceBoundaryRecord::GetSurfaceNumber() const { return surfaceNumber; }

int32_t SurfaceEdgeAlignmentRecord::GetAlignmentId() const { return alignmentId; }
CSurfaceNumber SurfaceEdgeAlignmentRecord::GetFreeSurfaceNumber() const {
  return freeSurfaceNumber;
}
double SurfaceEdgeAlignmentRecord::GetFromChainage() const { return fromChainage; }
CISurfaceEdgeAlignment::MethodEnums SurfaceEdgeAlignmentRecord::GetMethod() const { return method; }
CSurfaceNumber SurfaceEdgeAlignmentRecord::GetSurfaceNumber() const { return surfaceNumber; }
double SurfaceEdgeAlignmentRecord::GetToChainage() const { return toChainage; }

}  // namespace NpDesignModel
