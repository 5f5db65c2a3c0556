#include "vips_import/driver/external_converter.h"

#include <string>

#include <fmt/printf.h>

#include "base/paths.h"
#include "base/platform.h"
#include "base/process_runner.h"
#include "base/text.h"
#include "vips_import/driver/import_log.h"

namespace {

// The converter's exit codes, as the program passes them to exit.
constexpr int kConverterDone = 1001;
constexpr int kConverterFailed = 1;
constexpr int kConverterDesignMissing = 1000;
constexpr int kConverterDesignBad = 999;

// The converter's path: the folder of the module that holds this code,
// joined with the converter's program name. Cut at 256 characters.
void vConverterPath(char* out, size_t size) {
  char module[kPathSize];
  boPlatformModulePath(module, sizeof module);
  char directory[kPathSize];
  sPathDirectoryTo(module, directory, sizeof directory);
  char name[kPathSize];
  sCopy(name, "kvrvips_convert_gen", sizeof name);
  sAppend(name, kPlatformProgramSuffix, sizeof name);
  sPathJoinTo(directory, name, out, size);
}

}  // namespace

bool boVipsRunConverter(const char* genFile, std::FILE* log) {
  char converter[kPathSize];
  vConverterPath(converter, sizeof converter);
  std::string commandLine = converter;
  commandLine += ' ';
  commandLine += sOrEmpty(genFile);

  // Only the low byte of an exit code may reach us: compare with what each
  // of the converter's codes arrives as on this platform. The numbers in the
  // log are the converter's own: its code for a failed run, and the code
  // less 1000 for the other two.
  int exitCode = iRunProcess(commandLine.c_str());
  if (exitCode == iPlatformExitCodeOf(kConverterDone)) return true;
  std::string line;
  if (exitCode == iPlatformExitCodeOf(kConverterFailed)) {
    line = fmt::sprintf("Feil kode %d: Feil ved kj\xF8ring av %s", kConverterFailed, converter);
  } else if (exitCode == iPlatformExitCodeOf(kConverterDesignMissing)) {
    line = fmt::sprintf("Feil kode %d: GEN / VEG / TER / MAS / VPR / HOR / VRT ikke funnet",
                        kConverterDesignMissing - 1000);
  } else if (exitCode == iPlatformExitCodeOf(kConverterDesignBad)) {
    line = fmt::sprintf("Feil kode %d: Feil ved konvertering av VIPS gen database",
                        kConverterDesignBad - 1000);
  }
  vVipsLogPrint(log, "%s", line);
  return false;
}
