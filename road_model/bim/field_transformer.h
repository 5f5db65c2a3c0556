// Transformers of attribute fields, applied to each field of an attribute
// record as it is written: the plain one leaves every field as it is, the
// excepting one empties the fields that its list names.
#pragma once

#include <string>

class FieldTransformer {
 public:
  virtual ~FieldTransformer() = default;
  // Changes `value`, the value of the field `name`; the plain transformer
  // leaves it.
  virtual void Transform(const char* name, std::string* value) const;
  // Starts a new record; nothing to do for the transformers here.
  virtual void Reset();
};

class ExceptFieldTransformer : public FieldTransformer {
 public:
  // `fields`: the names of the fields to empty, separated by ";"; blank or
  // empty for none.
  explicit ExceptFieldTransformer(std::string fields) : Fields_(std::move(fields)) {}
  void Transform(const char* name, std::string* value) const override;

 private:
  std::string Fields_;
};
