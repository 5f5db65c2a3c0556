#include "tools/inspect/model_reading.h"

#include <cstdio>

#include "base/platform.h"
#include "model_file/records/frame/model_load.h"

ReadModelPtr ReadModelForLooking(const std::string& path, const char* program) {
  if (!boPlatformFileExists(path.c_str()) || boPlatformIsDirectory(path.c_str())) {
    std::fprintf(stderr, "%s: cannot read %s: no such file\n", program, path.c_str());
    return nullptr;
  }
  ReadModelPtr model(RmModelCreate());
  if (!model || !boRmModelLoad(model.get(), path.c_str())) {
    std::fprintf(stderr,
                 "%s: cannot read %s: not a road model file of type sfi that this program "
                 "reads\n",
                 program, path.c_str());
    return nullptr;
  }
  return model;
}
