#include "tools/convert_command.h"

#include <cstdio>

#include "base/platform.h"
#include "design_model/document.h"
#include "kvrvips/kvrvips.h"
#include "tools/default_settings.h"
#include "tools/design_problem.h"
#include "tools/exit_codes.h"

namespace {

constexpr const char* kProgram = "kvrvips";

// After a failed conversion: tells what of the input was wrong, when that
// can be seen from outside the export. The export has already shown its own
// messages; this names the file that caused them.
void vExplainFailure(const ConvertRequest& request, const std::string& settings) {
  if (!boPlatformFileExists(settings.c_str()) || boPlatformIsDirectory(settings.c_str())) {
    std::fprintf(stderr, "%s: cannot read the factory settings file %s\n", kProgram,
                 settings.c_str());
    return;
  }
  vPrintDesignProblem(kProgram, request.sDesign.c_str(),
                      NpDesignModel::ValidateDocument(request.sDesign.c_str()));
}

}  // namespace

int iRunConvert(const ConvertRequest& request) {
  std::string settings = request.sSettings;
  if (settings.empty()) {
    settings = sDefaultSettingsPath();
    if (settings.empty()) {
      std::fprintf(stderr,
                   "%s: cannot tell where this program lies; name the factory settings with "
                   "--settings FILE\n",
                   kProgram);
      return kExitFailed;
    }
    if (!boPlatformFileExists(settings.c_str())) {
      std::fprintf(stderr,
                   "%s: no factory settings file at %s; name one with --settings FILE\n",
                   kProgram, settings.c_str());
      return kExitFailed;
    }
  }

  char* logFile = nullptr;
  int result = iKvrVipsConvertDatabase(request.sDesign.c_str(), request.sModel.c_str(),
                                       request.uFlags, &logFile, settings.c_str(),
                                       request.boDescribeOpenError ? 1u : 0u,
                                       request.boConvertFirst ? 1u : 0u);
  // The log's path lives in the library's short-lived text ring: copy it now.
  std::string log = logFile ? logFile : "";
  if (!log.empty()) std::printf("log: %s\n", log.c_str());
  std::fflush(stdout);
  if (result == 0) return kExitDone;

  vExplainFailure(request, settings);
  std::fprintf(stderr, "%s: converting %s failed; %s is left as it was\n", kProgram,
               request.sDesign.c_str(), request.sModel.c_str());
  if (!log.empty()) std::fprintf(stderr, "%s: the log tells more: %s\n", kProgram, log.c_str());
  return kExitFailed;
}
