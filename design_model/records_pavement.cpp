#include "design_model/records_pavement.h"

#include "design_model/record_lists.h"

namespace NpDesignModel {

double PavementSectionRecord::GetFromChainage() const { return fromChainage; }
int32_t PavementSectionRecord::GetPavementTemplateId() const { return pavementTemplateId; }
double PavementSectionRecord::GetToChainage() const { return toChainage; }

LayerTypeEnums PavementTemplateIsUnderMedianRecord::GetLayerType() const { return layerType; }
bool PavementTemplateIsUnderMedianRecord::IsValue() const { return value; }

double PavementTemplateInnerSlopeRecord::GetGradient() const { return gradient; }
bool PavementTemplateInnerSlopeRecord::IsExtendToTerrain() const { return extendToTerrain; }
bool PavementTemplateInnerSlopeRecord::IsStatus() const { return status; }

LayerTypeEnums PavementTemplateSurfaceLayerRecord::GetLayerType() const { return layerType; }
double PavementTemplateSurfaceLayerRecord::GetSlope() const { return slope; }
double PavementTemplateSurfaceLayerRecord::GetThickness() const { return thickness; }
double PavementTemplateSurfaceLayerRecord::GetWidth() const { return width; }

CIPavementTemplateSurface::EdgeCodeEnums PavementTemplateSurfaceRecord::GetEdgeCode() const {
  return edgeCode;
}
std::vector<const CIPavementTemplateSurfaceLayer*> PavementTemplateSurfaceRecord::GetLayers()
    const {
  return PointersTo<CIPavementTemplateSurfaceLayer>(layers);
}
CSurfaceNumber PavementTemplateSurfaceRecord::GetSurfaceNumber() const { return surfaceNumber; }

double PavementTemplateGradualLayerSurfaceRecord::GetExtraWidth() const { return extraWidth; }
double PavementTemplateGradualLayerSurfaceRecord::GetLoadGradient() const { return loadGradient; }
CSurfaceNumber PavementTemplateGradualLayerSurfaceRecord::GetSurfaceNumber() const {
  return surfaceNumber;
}
double PavementTemplateGradualLayerSurfaceRecord::GetTransitionGradient() const {
  return transitionGradient;
}

double PavementTemplateExistingRoadEdgeRecord::GetOffset() const { return offset; }
int32_t PavementTemplateExistingRoadEdgeRecord::GetRefId() const { return refId; }
CIPavementTemplateExistingRoadEdge::RefIdTypeEnums
PavementTemplateExistingRoadEdgeRecord::GetRefIdType() const {
  return refIdType;
}
double PavementTemplateExistingRoadEdgeRecord::GetSlope() const { return slope; }

const CIPavementTemplateExistingRoadEdge* PavementTemplateRehabDetailsRecord::GetExistRoadEdgeLeft()
    const {
  return &existRoadEdgeLeft;
}
const CIPavementTemplateExistingRoadEdge*
PavementTemplateRehabDetailsRecord::GetExistRoadEdgeRight() const {
  return &existRoadEdgeRight;
}
int32_t PavementTemplateRehabDetailsRecord::GetLowerTopLayer() const { return lowerTopLayer; }
double PavementTemplateRehabDetailsRecord::GetPvmtMinThickness() const { return pvmtMinThickness; }
double PavementTemplateRehabDetailsRecord::GetRedusedPvmtMinWidth() const {
  return redusedPvmtMinWidth;
}
double PavementTemplateRehabDetailsRecord::GetScarifyingAdditional() const {
  return scarifyingAdditional;
}
double PavementTemplateRehabDetailsRecord::GetScarifyingFixed() const { return scarifyingFixed; }
double PavementTemplateRehabDetailsRecord::GetStdPvmtMinWidth() const { return stdPvmtMinWidth; }

std::vector<const CIPavementTemplateIsUnderMedian*> PavementTemplateRecord::GetAreUnderMedian()
    const {
  return PointersTo<CIPavementTemplateIsUnderMedian>(areUnderMedian);
}
std::vector<const CIPavementTemplateGradualLayerSurface*>
PavementTemplateRecord::GetGradualLayerSurfaces() const {
  return PointersTo<CIPavementTemplateGradualLayerSurface>(gradualLayerSurfaces);
}
int32_t PavementTemplateRecord::GetId() const { return id; }
const CIPavementTemplateInnerSlope* PavementTemplateRecord::GetInnerSlopesLeft() const {
  return &innerSlopesLeft;
}
const CIPavementTemplateInnerSlope* PavementTemplateRecord::GetInnerSlopesRight() const {
  return &innerSlopesRight;
}
std::u16string PavementTemplateRecord::GetName() const { return name; }
std::vector<const CIPavementTemplateSurface*> PavementTemplateRecord::GetPvmtSurfaces() const {
  return PointersTo<CIPavementTemplateSurface>(pvmtSurfaces);
}
const CIPavementTemplateRehabDetails* PavementTemplateRecord::GetRehab() const { return &rehab; }

double DetailedPavementSurfaceSectionRecord::GetBeamSlope() const { return beamSlope; }
double DetailedPavementSurfaceSectionRecord::GetChainage() const { return chainage; }
double DetailedPavementSurfaceSectionRecord::GetElevation() const { return elevation; }
double DetailedPavementSurfaceSectionRecord::GetSlope() const { return slope; }
CIDetailedPavementSurfaceSection::SlopeMethodEnums
DetailedPavementSurfaceSectionRecord::GetSlopeMethod() const {
  return slopeMethod;
}
CSurfaceNumber DetailedPavementSurfaceSectionRecord::GetSlopeSurfNo() const { return slopeSurfNo; }
double DetailedPavementSurfaceSectionRecord::GetWidth() const { return width; }
int32_t DetailedPavementSurfaceSectionRecord::GetWidthAlignId() const { return widthAlignId; }
CIDetailedPavementSurfaceSection::WidthMethodEnums
DetailedPavementSurfaceSectionRecord::GetWidthMethod() const {
  return widthMethod;
}
double DetailedPavementSurfaceSectionRecord::GetWidthOffset() const { return widthOffset; }
CSurfaceNumber DetailedPavementSurfaceSectionRecord::GetWidthSurfNo() const { return widthSurfNo; }
bool DetailedPavementSurfaceSectionRecord::IsEndSurfaceAfterThis() const {
  return endSurfaceAfterThis;
}

std::vector<const CIDetailedPavementSurfaceSection*> DetailedPavementSurfaceRecord::GetSections()
    const {
  return PointersTo<CIDetailedPavementSurfaceSection>(sections);
}
bool DetailedPavementSurfaceRecord::IsEndSurface() const { return endSurface; }

LayerTypeEnums DetailedPavementLayerRecord::GetLayerType() const { return layerType; }
std::vector<const CIDetailedPavementSurface*> DetailedPavementLayerRecord::GetSurfacesLeft() const {
  return PointersTo<CIDetailedPavementSurface>(surfacesLeft);
}
std::vector<const CIDetailedPavementSurface*> DetailedPavementLayerRecord::GetSurfacesRight()
    const {
  return PointersTo<CIDetailedPavementSurface>(surfacesRight);
}

}  // namespace NpDesignModel
