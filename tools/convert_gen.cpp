#include "tools/convert_gen.h"

#include <cstdio>
#include <memory>

#include "base/platform.h"
#include "design_model/document.h"
#include "tools/design_problem.h"

namespace {

constexpr const char* kProgram = "kvrvips_convert_gen";

}  // namespace

int iConvertGenRun(const char* path) {
  if (!path || !boPlatformFileExists(path) || boPlatformIsDirectory(path)) {
    std::fprintf(stderr, "%s: no design document at %s\n", kProgram, path ? path : "");
    return kConvertGenMissing;
  }
  NpDesignModel::DocumentProblem problem;
  std::unique_ptr<NpDesignModel::DesignModelRecord> design =
      NpDesignModel::ReadDocumentFile(path, &problem);
  if (!design) {
    vPrintDesignProblem(kProgram, path, problem);
    return kConvertGenBad;
  }
  if (!NpDesignModel::boWriteDocument(*design, path, true)) {
    std::fprintf(stderr, "%s: cannot write %s\n", kProgram, path);
    return kConvertGenBad;
  }
  return kConvertGenDone;
}
