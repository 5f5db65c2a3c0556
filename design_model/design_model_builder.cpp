#include "design_model/design_model_builder.h"

#include <utility>

namespace NpDesignModel {

DesignModelBuilder::DesignModelBuilder() : design_(std::make_unique<DesignModelRecord>()) {}
DesignModelBuilder::~DesignModelBuilder() = default;

InDataRecord& DesignModelBuilder::Input() {
  if (!design_->input) design_->input = std::make_unique<InDataRecord>();
  return *design_->input;
}

ResultDataRecord& DesignModelBuilder::Results() {
  if (!design_->results) design_->results = std::make_unique<ResultDataRecord>();
  return *design_->results;
}

AlignmentRecord& DesignModelBuilder::AddAlignment(int32_t id, std::u16string name) {
  AlignmentRecord& alignment = Input().alignments.emplace_back();
  alignment.id = id;
  alignment.name = std::move(name);
  return alignment;
}

SurfaceRecord& DesignModelBuilder::AddSurface(std::u16string name, CSurfaceNumber surfaceNumber) {
  SurfaceRecord& surface = Input().surfaces.emplace_back();
  surface.name = std::move(name);
  surface.surfaceNumber = surfaceNumber;
  return surface;
}

ResultSectionRecord& DesignModelBuilder::AddSection(double chainage) {
  ResultSectionRecord& section = Results().sections.emplace_back();
  section.chainage = chainage;
  return section;
}

void DesignModelBuilder::SetDocumentPath(std::string path) {
  design_->documentPath = std::move(path);
}

std::unique_ptr<DesignModelRecord> DesignModelBuilder::Build() {
  return std::exchange(design_, std::make_unique<DesignModelRecord>());
}

}  // namespace NpDesignModel
