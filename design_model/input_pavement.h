// Pavement of a design: pavement sections, pavement templates with their
// surfaces and layers, and the detailed pavement description.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "design_model/export.h"
#include "design_model/values.h"

namespace NpDesignModel {

// A stretch of road that uses one pavement template.
class NP_DESIGN_MODEL_API CIPavementSection {
 public:
  virtual double GetFromChainage() const = 0;
  // The GetId of the template.
  virtual int32_t GetPavementTemplateId() const = 0;
  virtual double GetToChainage() const = 0;

 protected:
  ~CIPavementSection() = default;
};

class NP_DESIGN_MODEL_API CIPavementTemplateIsUnderMedian {
 public:
  virtual LayerTypeEnums GetLayerType() const = 0;
  virtual bool IsValue() const = 0;

 protected:
  ~CIPavementTemplateIsUnderMedian() = default;
};

class NP_DESIGN_MODEL_API CIPavementTemplateInnerSlope {
 public:
  virtual double GetGradient() const = 0;
  virtual bool IsExtendToTerrain() const = 0;
  virtual bool IsStatus() const = 0;

 protected:
  ~CIPavementTemplateInnerSlope() = default;
};

class NP_DESIGN_MODEL_API CIPavementTemplateSurfaceLayer {
 public:
  virtual LayerTypeEnums GetLayerType() const = 0;
  virtual double GetSlope() const = 0;
  virtual double GetThickness() const = 0;
  virtual double GetWidth() const = 0;

 protected:
  ~CIPavementTemplateSurfaceLayer() = default;
};

class NP_DESIGN_MODEL_API CIPavementTemplateSurface {
 public:
  // 0: a plain surface; otherwise the surface also has an edge record.
  enum EdgeCodeEnums : int32_t {};

  virtual EdgeCodeEnums GetEdgeCode() const = 0;
  virtual std::vector<const CIPavementTemplateSurfaceLayer*> GetLayers() const = 0;
  virtual CSurfaceNumber GetSurfaceNumber() const = 0;

 protected:
  ~CIPavementTemplateSurface() = default;
};

class NP_DESIGN_MODEL_API CIPavementTemplateGradualLayerSurface {
 public:
  virtual double GetExtraWidth() const = 0;
  virtual double GetLoadGradient() const = 0;
  virtual CSurfaceNumber GetSurfaceNumber() const = 0;
  virtual double GetTransitionGradient() const = 0;

 protected:
  ~CIPavementTemplateGradualLayerSurface() = default;
};

class NP_DESIGN_MODEL_API CIPavementTemplateExistingRoadEdge {
 public:
  enum RefIdTypeEnums : int32_t {};

  virtual double GetOffset() const = 0;
  // Nonzero means that rehabilitation data is in use.
  virtual int32_t GetRefId() const = 0;
  virtual RefIdTypeEnums GetRefIdType() const = 0;
  // Nonzero means that rehabilitation data is in use.
  virtual double GetSlope() const = 0;

 protected:
  ~CIPavementTemplateExistingRoadEdge() = default;
};

class NP_DESIGN_MODEL_API CIPavementTemplateRehabDetails {
 public:
  // Never null.
  virtual const CIPavementTemplateExistingRoadEdge* GetExistRoadEdgeLeft() const = 0;
  // Never null.
  virtual const CIPavementTemplateExistingRoadEdge* GetExistRoadEdgeRight() const = 0;
  virtual int32_t GetLowerTopLayer() const = 0;
  virtual double GetPvmtMinThickness() const = 0;
  virtual double GetRedusedPvmtMinWidth() const = 0;
  virtual double GetScarifyingAdditional() const = 0;
  virtual double GetScarifyingFixed() const = 0;
  virtual double GetStdPvmtMinWidth() const = 0;

 protected:
  ~CIPavementTemplateRehabDetails() = default;
};

class NP_DESIGN_MODEL_API CIPavementTemplate {
 public:
  virtual std::vector<const CIPavementTemplateIsUnderMedian*> GetAreUnderMedian() const = 0;
  virtual std::vector<const CIPavementTemplateGradualLayerSurface*> GetGradualLayerSurfaces()
      const = 0;
  // Key of the template.
  virtual int32_t GetId() const = 0;
  // Never null.
  virtual const CIPavementTemplateInnerSlope* GetInnerSlopesLeft() const = 0;
  // Never null.
  virtual const CIPavementTemplateInnerSlope* GetInnerSlopesRight() const = 0;
  // May hold control characters.
  virtual std::u16string GetName() const = 0;
  virtual std::vector<const CIPavementTemplateSurface*> GetPvmtSurfaces() const = 0;
  // Never null.
  virtual const CIPavementTemplateRehabDetails* GetRehab() const = 0;

 protected:
  ~CIPavementTemplate() = default;
};

// One row of a detailed pavement surface.
class NP_DESIGN_MODEL_API CIDetailedPavementSurfaceSection {
 public:
  enum SlopeMethodEnums : int32_t {};
  enum WidthMethodEnums : int32_t {};

  virtual double GetBeamSlope() const = 0;
  // 999999.0 means no row.
  virtual double GetChainage() const = 0;
  virtual double GetElevation() const = 0;
  virtual double GetSlope() const = 0;
  virtual SlopeMethodEnums GetSlopeMethod() const = 0;
  virtual CSurfaceNumber GetSlopeSurfNo() const = 0;
  virtual double GetWidth() const = 0;
  virtual int32_t GetWidthAlignId() const = 0;
  virtual WidthMethodEnums GetWidthMethod() const = 0;
  virtual double GetWidthOffset() const = 0;
  virtual CSurfaceNumber GetWidthSurfNo() const = 0;
  // Closes the surface after this row.
  virtual bool IsEndSurfaceAfterThis() const = 0;

 protected:
  ~CIDetailedPavementSurfaceSection() = default;
};

class NP_DESIGN_MODEL_API CIDetailedPavementSurface {
 public:
  virtual std::vector<const CIDetailedPavementSurfaceSection*> GetSections() const = 0;
  virtual bool IsEndSurface() const = 0;

 protected:
  ~CIDetailedPavementSurface() = default;
};

class NP_DESIGN_MODEL_API CIDetailedPavementLayer {
 public:
  virtual LayerTypeEnums GetLayerType() const = 0;
  virtual std::vector<const CIDetailedPavementSurface*> GetSurfacesLeft() const = 0;
  virtual std::vector<const CIDetailedPavementSurface*> GetSurfacesRight() const = 0;

 protected:
  ~CIDetailedPavementLayer() = default;
};

}  // namespace NpDesignModel
