// Alignments of a design: their horizontal elements and vertical angle points.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "design_model/export.h"

namespace NpDesignModel {

// One element of a horizontal alignment: a straight, an arc or a clothoid.
// A radius of 0 means straight at that end; radii are signed.
class NP_DESIGN_MODEL_API CIHorizontalLineElement {
 public:
  virtual double GetClothoidParameter() const = 0;
  virtual int32_t GetElementNo() const = 0;
  virtual double GetEndChainage() const = 0;
  virtual double GetEndEast() const = 0;
  virtual double GetEndNorth() const = 0;
  virtual double GetEndOffset() const = 0;
  virtual double GetEndRadius() const = 0;
  virtual double GetStartChainage() const = 0;
  virtual double GetStartEast() const = 0;
  virtual double GetStartNorth() const = 0;
  virtual double GetStartOffset() const = 0;
  virtual double GetStartRadius() const = 0;

 protected:
  ~CIHorizontalLineElement() = default;
};

// An angle point of a vertical alignment; a radius of 0 is a sharp break.
class NP_DESIGN_MODEL_API CIVerticalLineAnglePoint {
 public:
  virtual double GetChainage() const = 0;
  virtual double GetElevation() const = 0;
  virtual double GetRadius() const = 0;

 protected:
  ~CIVerticalLineAnglePoint() = default;
};

class NP_DESIGN_MODEL_API CIAlignment {
 public:
  virtual std::u16string GetGuid() const = 0;
  // In chainage order, each element joining on the one before.
  virtual std::vector<const CIHorizontalLineElement*> GetHorizontalLineElements() const = 0;
  virtual int32_t GetId() const = 0;
  virtual std::u16string GetName() const = 0;
  // In chainage order.
  virtual std::vector<const CIVerticalLineAnglePoint*> GetVerticalLineAnglePoints() const = 0;

 protected:
  ~CIAlignment() = default;
};

}  // namespace NpDesignModel
