// Road models that delete themselves.
#pragma once

#include <memory>

#include "road_model/model/model.h"

struct ModelDeleter {
  void operator()(RmModel* model) const { vRmModelDelete(model); }
};
using ModelPtr = std::unique_ptr<RmModel, ModelDeleter>;

inline ModelPtr NewModel() { return ModelPtr(RmModelCreate()); }
