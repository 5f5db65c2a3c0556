// Surfaces of a design with their descriptions, boundaries and edge
// alignments.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "design_model/export.h"
#include "design_model/values.h"

namespace NpDesignModel {

// One row of a surface description.
class NP_DESIGN_MODEL_API CISurfaceSection {
 public:
  virtual double GetChainage() const = 0;
  virtual double GetSlope() const = 0;
  virtual double GetWidth() const = 0;

 protected:
  ~CISurfaceSection() = default;
};

class NP_DESIGN_MODEL_API CISurface {
 public:
  // Rows in chainage order.
  virtual std::vector<const CISurfaceSection*> GetDescriptions() const = 0;
  virtual std::u16string GetName() const = 0;
  virtual CSurfaceNumber GetSurfaceNumber() const = 0;

 protected:
  ~CISurface() = default;
};

class NP_DESIGN_MODEL_API CISurfaceBoundary {
 public:
  // 0 means none.
  virtual int32_t GetAlignmentId() const = 0;
  virtual double GetChainage() const = 0;
  virtual double GetDistance() const = 0;
  virtual CSurfaceNumber GetSurfaceNumber() const = 0;

 protected:
  ~CISurfaceBoundary() = default;
};

class NP_DESIGN_MODEL_API CISurfaceEdgeAlignment {
 public:
  enum MethodEnums : int32_t {};

  // 0 means none.
  virtual int32_t GetAlignmentId() const = 0;
  // Decimal 0 means none.
  virtual CSurfaceNumber GetFreeSurfaceNumber() const = 0;
  virtual double GetFromChainage() const = 0;
  virtual MethodEnums GetMethod() const = 0;
  virtual CSurfaceNumber GetSurfaceNumber() const = 0;
  virtual double GetToChainage() const = 0;

 protected:
  ~CISurfaceEdgeAlignment() = default;
};

}  // namespace NpDesignModel
