#include "design_model/records_design.h"

#include "design_model/document.h"

namespace NpDesignModel {

CDesignModel::~CDesignModel() = default;

DesignModelRecord::DesignModelRecord() = default;
DesignModelRecord::~DesignModelRecord() = default;

const CInData* DesignModelRecord::GetI() const { return input.get(); }
const CResultData* DesignModelRecord::GetR() const { return results.get(); }

bool DesignModelRecord::ToFile(bool indented) const {
  return !documentPath.empty() && boWriteDocument(*this, documentPath.c_str(), indented);
}

}  // namespace NpDesignModel
