#include "tools/check_command.h"

#include <cstdio>

#include "design_model/document.h"
#include "tools/design_problem.h"
#include "tools/exit_codes.h"

int iRunCheck(const std::string& design) {
  NpDesignModel::DocumentProblem problem = NpDesignModel::ValidateDocument(design.c_str());
  if (problem.iError != NpDesignModel::kOpenDone) {
    vPrintDesignProblem("kvrvips", design.c_str(), problem);
    return kExitFailed;
  }
  std::printf("%s: valid design document\n", design.c_str());
  return kExitDone;
}
