#include "base/process_runner.h"

#include <cstring>

#include "base/platform.h"

namespace {

constexpr size_t kCommandLineMax = 2000;
static_assert(kRunProcessNotStarted == kPlatformProcessNotStarted);

}  // namespace

int iRunProcess(const char* commandLine) {
  if (!commandLine) return kRunProcessNotStarted;
  // The starting call wants a writable line of its own, cut to the limit.
  char line[kCommandLineMax + 1];
  size_t length = strnlen(commandLine, kCommandLineMax);
  std::memcpy(line, commandLine, length);
  line[length] = 0;
  return iPlatformRunProcess(line);
}
