#include "road_model/bim/field_transformer.h"

#include <string_view>

void FieldTransformer::Transform(const char*, std::string*) const {}

void FieldTransformer::Reset() {}

void ExceptFieldTransformer::Transform(const char* name, std::string* value) const {
  if (!name || !value || Fields_.empty()) return;
  std::string_view rest = Fields_;
  while (!rest.empty()) {
    size_t end = rest.find(';');
    if (rest.substr(0, end) == name) {
      value->clear();
      return;
    }
    if (end == std::string_view::npos) break;
    rest.remove_prefix(end + 1);
  }
}
