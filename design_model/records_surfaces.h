// The held form of surfaces, their boundaries and edge alignments.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "design_model/export.h"
#include "design_model/input_surfaces.h"

namespace NpDesignModel {

class NP_DESIGN_MODEL_API SurfaceSectionRecord final : public CISurfaceSection {
 public:
  double chainage = 0.0;
  double width = 0.0;
  double slope = 0.0;

  static void Describe(auto& self, auto& member) {
    member("chainage", self.chainage);
    member("width", self.width);
    member("slope", self.slope);
  }

  double GetChainage() const override;
  double GetSlope() const override;
  double GetWidth() const override;
};

class NP_DESIGN_MODEL_API SurfaceRecord final : public CISurface {
 public:
  std::u16string name;
  CSurfaceNumber surfaceNumber;
  std::vector<SurfaceSectionRecord> descriptions;

  static void Describe(auto& self, auto& member) {
    member("name", self.name);
    member("surfaceNumber", self.surfaceNumber);
    member("descriptions", self.descriptions);
  }

  std::vector<const CISurfaceSection*> GetDescriptions() const override;
  std::u16string GetName() const override;
  CSurfaceNumber GetSurfaceNumber() const override;
};

class NP_DESIGN_MODEL_API SurfaceBoundaryRecord final : public CISurfaceBoundary {
 public:
  double chainage = 0.0;
  double distance = 0.0;
  CSurfaceNumber surfaceNumber;
  int32_t alignmentId = 0;

  static void Describe(auto& self, auto& member) {
    member("chainage", self.chainage);
    member("distance", self.distance);
    member("surfaceNumber", self.surfaceNumber);
    member("alignmentId", self.alignmentId);
  }

  int32_t GetAlignmentId() const override;
  double GetChainage() const override;
  double GetDistance() const override;
  CSurfaceNumber GetSurfaceNumber() const override;
};

class NP_DESIGN_MODEL_API SurfaceEdgeAlignmentRecord final : public CISurfaceEdgeAlignment {
 public:
  CSurfaceNumber surfaceNumber;
  CSurfaceNumber freeSurfaceNumber;
  double fromChainage = 0.0;
  double toChainage = 0.0;
  MethodEnums method{};
  int32_t alignmentId = 0;

  static void Describe(auto& self, auto& member) {
    member("surfaceNumber", self.surfaceNumber);
    member("freeSurfaceNumber", self.freeSurfaceNumber);
    member("fromChainage", self.fromChainage);
    member("toChainage", self.toChainage);
    member("method", self.method);
    member("alignmentId", self.alignmentId);
  }

  int32_t GetAlignmentId() const override;
  CSurfaceNumber GetFreeSurfaceNumber() const override;
  double GetFromChainage() const override;
  MethodEnums GetMethod() const override;
  CSurfaceNumber GetSurfaceNumber() const override;
  double GetToChainage() const override;
};

}  // namespace NpDesignModel
