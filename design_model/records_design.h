// The held form of a whole design: its two sides and the document it came
// from.
#pragma once

#include <memory>
#include <string>

#include "design_model/design_model.h"
#include "design_model/export.h"
#include "design_model/records_input.h"
#include "design_model/records_results.h"

namespace NpDesignModel {

class NP_DESIGN_MODEL_API DesignModelRecord final : public CDesignModel {
 public:
  std::unique_ptr<InDataRecord> input;        // null: the design has no input side
  std::unique_ptr<ResultDataRecord> results;  // null: the design has no result side
  // The document that ToFile writes to; empty for a design made in memory
  // without one.
  std::string documentPath;

  DesignModelRecord();
  ~DesignModelRecord() override;

  const CInData* GetI() const override;
  const CResultData* GetR() const override;
  bool ToFile(bool indented) const override;
};

}  // namespace NpDesignModel
