// The held form of alignments. Fields carry the names of the document's
// members; Describe names every member for the document reader.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "design_model/export.h"
#include "design_model/input_alignments.h"

namespace NpDesignModel {

class NP_DESIGN_MODEL_API HorizontalLineElementRecord final : public CIHorizontalLineElement {
 public:
  int32_t elementNo = 0;
  double startChainage = 0.0;
  double endChainage = 0.0;
  double startEast = 0.0;
  double startNorth = 0.0;
  double endEast = 0.0;
  double endNorth = 0.0;
  double startRadius = 0.0;
  double endRadius = 0.0;
  double clothoidParameter = 0.0;
  double startOffset = 0.0;
  double endOffset = 0.0;

  static void Describe(auto& self, auto& member) {
    member("elementNo", self.elementNo);
    member("startChainage", self.startChainage);
    member("endChainage", self.endChainage);
    member("startEast", self.startEast);
    member("startNorth", self.startNorth);
    member("endEast", self.endEast);
    member("endNorth", self.endNorth);
    member("startRadius", self.startRadius);
    member("endRadius", self.endRadius);
    member("clothoidParameter", self.clothoidParameter);
    member("startOffset", self.startOffset);
    member("endOffset", self.endOffset);
  }

  double GetClothoidParameter() const override;
  int32_t GetElementNo() const override;
  double GetEndChainage() const override;
  double GetEndEast() const override;
  double GetEndNorth() const override;
  double GetEndOffset() const override;
  double GetEndRadius() const override;
  double GetStartChainage() const override;
  double GetStartEast() const override;
  double GetStartNorth() const override;
  double GetStartOffset() const override;
  double GetStartRadius() const override;
};

class NP_DESIGN_MODEL_API VerticalLineAnglePointRecord final : public CIVerticalLineAnglePoint {
 public:
  double chainage = 0.0;
  double elevation = 0.0;
  double radius = 0.0;

  static void Describe(auto& self, auto& member) {
    member("chainage", self.chainage);
    member("elevation", self.elevation);
    member("radius", self.radius);
  }

  double GetChainage() const override;
  double GetElevation() const override;
  double GetRadius() const override;
};

class NP_DESIGN_MODEL_API AlignmentRecord final : public CIAlignment {
 public:
  int32_t id = 0;
  std::u16string name;
  std::u16string guid;
  std::vector<HorizontalLineElementRecord> horizontalLineElements;
  std::vector<VerticalLineAnglePointRecord> verticalLineAnglePoints;

  static void Describe(auto& self, auto& member) {
    member("id", self.id);
    member("name", self.name);
    member("guid", self.guid);
    member("horizontalLineElements", self.horizontalLineElements);
    member("verticalLineAnglePoints", self.verticalLineAnglePoints);
  }

  std::u16string GetGuid() const override;
  std::vector<const CIHorizontalLineElement*> GetHorizontalLineElements() const override;
  int32_t GetId() const override;
  std::u16string GetName() const override;
  std::vector<const CIVerticalLineAnglePoint*> GetVerticalLineAnglePoints() const override;
};

}  // namespace NpDesignModel
