// Makes designs in memory, mostly for tests: the records that it fills are
// the ones that the document reader fills, so a built design behaves exactly
// as one opened from its document.
//
//   DesignModelBuilder builder;
//   AlignmentRecord& main = builder.AddAlignment(1, u"Main");
//   main.horizontalLineElements.emplace_back().endChainage = 100.0;
//   builder.AddSection(50.0).model.refElevation = 12.5;
//   std::unique_ptr<DesignModelRecord> design = builder.Build();
//
// Records may be changed freely until Build; the pointers that the design
// hands out are taken afresh on every call, so they stay valid as long as
// the design is not changed after that.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "design_model/export.h"
#include "design_model/records_design.h"

namespace NpDesignModel {

class NP_DESIGN_MODEL_API DesignModelBuilder {
 public:
  DesignModelBuilder();
  ~DesignModelBuilder();
  DesignModelBuilder(const DesignModelBuilder&) = delete;
  DesignModelBuilder& operator=(const DesignModelBuilder&) = delete;

  // The input side, made at its defaults on first use.
  InDataRecord& Input();
  // The result side, made empty on first use.
  ResultDataRecord& Results();

  // Adds an alignment to the input side.
  AlignmentRecord& AddAlignment(int32_t id, std::u16string name);
  // Adds a surface to the input side.
  SurfaceRecord& AddSurface(std::u16string name, CSurfaceNumber surfaceNumber);
  // Adds a result section at `chainage` to the result side.
  ResultSectionRecord& AddSection(double chainage);

  // The document that ToFile of the built design writes to.
  void SetDocumentPath(std::string path);

  // Hands the design over; the builder starts again with an empty one.
  std::unique_ptr<DesignModelRecord> Build();

 private:
  std::unique_ptr<DesignModelRecord> design_;
};

}  // namespace NpDesignModel
