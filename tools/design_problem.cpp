#include "tools/design_problem.h"

#include <cstdio>

namespace {

const char* sOrEmpty(const char* text) { return text ? text : ""; }

}  // namespace

void vPrintDesignProblem(const char* program, const char* path,
                         const NpDesignModel::DocumentProblem& problem) {
  program = sOrEmpty(program);
  path = sOrEmpty(path);
  switch (problem.iError) {
    case NpDesignModel::kOpenDone:
      return;
    case NpDesignModel::kOpenNotReadable:
      std::fprintf(stderr, "%s: cannot read %s\n", program, path);
      return;
    case NpDesignModel::kOpenVersionTooNew:
      std::fprintf(stderr, "%s: %s has a newer format version than this program reads\n", program,
                   path);
      break;
    default:
      std::fprintf(stderr, "%s: %s is not a valid design document\n", program, path);
      break;
  }
  // The empty pointer stands for the whole document.
  const char* where = problem.sPointer.empty() ? "the document root" : problem.sPointer.c_str();
  std::fprintf(stderr, "  at %s: expected %s\n", where, problem.sExpected.c_str());
}
