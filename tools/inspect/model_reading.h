// A model file read for looking at: through the library's own loader, the
// file left as it is.
#pragma once

#include <memory>
#include <string>

#include "road_model/model/model.h"

struct ReadModelDeleter {
  void operator()(RmModel* model) const { vRmModelDelete(model); }
};
using ReadModelPtr = std::unique_ptr<RmModel, ReadModelDeleter>;

// The model of the file at `path`; null, after saying so on standard error
// as `program`, when it cannot be read as a road model file.
ReadModelPtr ReadModelForLooking(const std::string& path, const char* program);
