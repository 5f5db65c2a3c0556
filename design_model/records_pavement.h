// The held form of pavement: pavement sections, templates and the detailed
// pavement description.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "design_model/export.h"
#include "design_model/input_pavement.h"

namespace NpDesignModel {

class NP_DESIGN_MODEL_API PavementSectionRecord final : public CIPavementSection {
 public:
  double fromChainage = 0.0;
  double toChainage = 0.0;
  int32_t pavementTemplateId = 0;

  static void Describe(auto& self, auto& member) {
    member("fromChainage", self.fromChainage);
    member("toChainage", self.toChainage);
    member("pavementTemplateId", self.pavementTemplateId);
  }

  double GetFromChainage() const override;
  int32_t GetPavementTemplateId() const override;
  double GetToChainage() const override;
};

class NP_DESIGN_MODEL_API PavementTemplateIsUnderMedianRecord final
    : public CIPavementTemplateIsUnderMedian {
 public:
  LayerTypeEnums layerType{};
  bool value = false;

  static void Describe(auto& self, auto& member) {
    member("layerType", self.layerType);
    member("value", self.value);
  }

  LayerTypeEnums GetLayerType() const override;
  bool IsValue() const override;
};

class NP_DESIGN_MODEL_API PavementTemplateInnerSlopeRecord final
    : public CIPavementTemplateInnerSlope {
 public:
  double gradient = 0.0;
  bool extendToTerrain = false;
  bool status = false;

  static void Describe(auto& self, auto& member) {
    member("gradient", self.gradient);
    member("extendToTerrain", self.extendToTerrain);
    member("status", self.status);
  }

  double GetGradient() const override;
  bool IsExtendToTerrain() const override;
  bool IsStatus() const override;
};

class NP_DESIGN_MODEL_API PavementTemplateSurfaceLayerRecord final
    : public CIPavementTemplateSurfaceLayer {
 public:
  LayerTypeEnums layerType{};
  double thickness = 0.0;
  double width = 0.0;
  double slope = 0.0;

  static void Describe(auto& self, auto& member) {
    member("layerType", self.layerType);
    member("thickness", self.thickness);
    member("width", self.width);
    member("slope", self.slope);
  }

  LayerTypeEnums GetLayerType() const override;
  double GetSlope() const override;
  double GetThickness() const override;
  double GetWidth() const override;
};

class NP_DESIGN_MODEL_API PavementTemplateSurfaceRecord final : public CIPavementTemplateSurface {
 public:
  CSurfaceNumber surfaceNumber;
  EdgeCodeEnums edgeCode{};
  std::vector<PavementTemplateSurfaceLayerRecord> layers;

  static void Describe(auto& self, auto& member) {
    member("surfaceNumber", self.surfaceNumber);
    member("edgeCode", self.edgeCode);
    member("layers", self.layers);
  }

  EdgeCodeEnums GetEdgeCode() const override;
  std::vector<const CIPavementTemplateSurfaceLayer*> GetLayers() const override;
  CSurfaceNumber GetSurfaceNumber() const override;
};

class NP_DESIGN_MODEL_API PavementTemplateGradualLayerSurfaceRecord final
    : public CIPavementTemplateGradualLayerSurface {
 public:
  CSurfaceNumber surfaceNumber;
  double extraWidth = 0.0;
  double loadGradient = 0.0;
  double transitionGradient = 0.0;

  static void Describe(auto& self, auto& member) {
    member("surfaceNumber", self.surfaceNumber);
    member("extraWidth", self.extraWidth);
    member("loadGradient", self.loadGradient);
    member("transitionGradient", self.transitionGradient);
  }

  double GetExtraWidth() const override;
  double GetLoadGradient() const override;
  CSurfaceNumber GetSurfaceNumber() const override;
  double GetTransitionGradient() const override;
};

class NP_DESIGN_MODEL_API PavementTemplateExistingRoadEdgeRecord final
    : public CIPavementTemplateExistingRoadEdge {
 public:
  double offset = 0.0;
  int32_t refId = 0;
  RefIdTypeEnums refIdType{};
  double slope = 0.0;

  static void Describe(auto& self, auto& member) {
    member("offset", self.offset);
    member("refId", self.refId);
    member("refIdType", self.refIdType);
    member("slope", self.slope);
  }

  double GetOffset() const override;
  int32_t GetRefId() const override;
  RefIdTypeEnums GetRefIdType() const override;
  double GetSlope() const override;
};

class NP_DESIGN_MODEL_API PavementTemplateRehabDetailsRecord final
    : public CIPavementTemplateRehabDetails {
 public:
  PavementTemplateExistingRoadEdgeRecord existRoadEdgeLeft;
  PavementTemplateExistingRoadEdgeRecord existRoadEdgeRight;
  int32_t lowerTopLayer = 0;
  double pvmtMinThickness = 0.0;
  double redusedPvmtMinWidth = 0.0;
  double scarifyingAdditional = 0.0;
  double scarifyingFixed = 0.0;
  double stdPvmtMinWidth = 0.0;

  static void Describe(auto& self, auto& member) {
    member("existRoadEdgeLeft", self.existRoadEdgeLeft);
    member("existRoadEdgeRight", self.existRoadEdgeRight);
    member("lowerTopLayer", self.lowerTopLayer);
    member("pvmtMinThickness", self.pvmtMinThickness);
    member("redusedPvmtMinWidth", self.redusedPvmtMinWidth);
    member("scarifyingAdditional", self.scarifyingAdditional);
    member("scarifyingFixed", self.scarifyingFixed);
    member("stdPvmtMinWidth", self.stdPvmtMinWidth);
  }

  const CIPavementTemplateExistingRoadEdge* GetExistRoadEdgeLeft() const override;
  const CIPavementTemplateExistingRoadEdge* GetExistRoadEdgeRight() const override;
  int32_t GetLowerTopLayer() const override;
  double GetPvmtMinThickness() const override;
  double GetRedusedPvmtMinWidth() const override;
  double GetScarifyingAdditional() const override;
  double GetScarifyingFixed() const override;
  double GetStdPvmtMinWidth() const override;
};

class NP_DESIGN_MODEL_API PavementTemplateRecord final : public CIPavementTemplate {
 public:
  int32_t id = 0;
  std::u16string name;
  std::vector<PavementTemplateIsUnderMedianRecord> areUnderMedian;
  PavementTemplateInnerSlopeRecord innerSlopesLeft;
  PavementTemplateInnerSlopeRecord innerSlopesRight;
  std::vector<PavementTemplateSurfaceRecord> pvmtSurfaces;
  std::vector<PavementTemplateGradualLayerSurfaceRecord> gradualLayerSurfaces;
  PavementTemplateRehabDetailsRecord rehab;

  static void Describe(auto& self, auto& member) {
    member("id", self.id);
    member("name", self.name);
    member("areUnderMedian", self.areUnderMedian);
    member("innerSlopesLeft", self.innerSlopesLeft);
    member("innerSlopesRight", self.innerSlopesRight);
    member("pvmtSurfaces", self.pvmtSurfaces);
    member("gradualLayerSurfaces", self.gradualLayerSurfaces);
    member("rehab", self.rehab);
  }

  std::vector<const CIPavementTemplateIsUnderMedian*> GetAreUnderMedian() const override;
  std::vector<const CIPavementTemplateGradualLayerSurface*> GetGradualLayerSurfaces()
      const override;
  int32_t GetId() const override;
  const CIPavementTemplateInnerSlope* GetInnerSlopesLeft() const override;
  const CIPavementTemplateInnerSlope* GetInnerSlopesRight() const override;
  std::u16string GetName() const override;
  std::vector<const CIPavementTemplateSurface*> GetPvmtSurfaces() const override;
  const CIPavementTemplateRehabDetails* GetRehab() const override;
};

class NP_DESIGN_MODEL_API DetailedPavementSurfaceSectionRecord final
    : public CIDetailedPavementSurfaceSection {
 public:
  double chainage = 0.0;
  double elevation = 0.0;
  double width = 0.0;
  WidthMethodEnums widthMethod{};
  CSurfaceNumber widthSurfNo;
  int32_t widthAlignId = 0;
  double widthOffset = 0.0;
  double slope = 0.0;
  SlopeMethodEnums slopeMethod{};
  CSurfaceNumber slopeSurfNo;
  double beamSlope = 0.0;
  bool endSurfaceAfterThis = false;

  static void Describe(auto& self, auto& member) {
    member("chainage", self.chainage);
    member("elevation", self.elevation);
    member("width", self.width);
    member("widthMethod", self.widthMethod);
    member("widthSurfNo", self.widthSurfNo);
    member("widthAlignId", self.widthAlignId);
    member("widthOffset", self.widthOffset);
    member("slope", self.slope);
    member("slopeMethod", self.slopeMethod);
    member("slopeSurfNo", self.slopeSurfNo);
    member("beamSlope", self.beamSlope);
    member("endSurfaceAfterThis", self.endSurfaceAfterThis);
  }

  double GetBeamSlope() const override;
  double GetChainage() const override;
  double GetElevation() const override;
  double GetSlope() const override;
  SlopeMethodEnums GetSlopeMethod() const override;
  CSurfaceNumber GetSlopeSurfNo() const override;
  double GetWidth() const override;
  int32_t GetWidthAlignId() const override;
  WidthMethodEnums GetWidthMethod() const override;
  double GetWidthOffset() const override;
  CSurfaceNumber GetWidthSurfNo() const override;
  bool IsEndSurfaceAfterThis() const override;
};

class NP_DESIGN_MODEL_API DetailedPavementSurfaceRecord final : public CIDetailedPavementSurface {
 public:
  bool endSurface = false;
  std::vector<DetailedPavementSurfaceSectionRecord> sections;

  static void Describe(auto& self, auto& member) {
    member("endSurface", self.endSurface);
    member("sections", self.sections);
  }

  std::vector<const CIDetailedPavementSurfaceSection*> GetSections() const override;
  bool IsEndSurface() const override;
};

class NP_DESIGN_MODEL_API DetailedPavementLayerRecord final : public CIDetailedPavementLayer {
 public:
  LayerTypeEnums layerType{};
  std::vector<DetailedPavementSurfaceRecord> surfacesLeft;
  std::vector<DetailedPavementSurfaceRecord> surfacesRight;

  static void Describe(auto& self, auto& member) {
    member("layerType", self.layerType);
    member("surfacesLeft", self.surfacesLeft);
    member("surfacesRight", self.surfacesRight);
  }

  LayerTypeEnums GetLayerType() const override;
  std::vector<const CIDetailedPavementSurface*> GetSurfacesLeft() const override;
  std::vector<const CIDetailedPavementSurface*> GetSurfacesRight() const override;
};

}  // namespace NpDesignModel
