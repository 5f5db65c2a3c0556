#include "vips_import/driver/import_guarded.h"

#include <string>

#include <fmt/format.h>

#include "base/messages.h"
#include "base/text.h"
#include "vips_import/driver/import_driver.h"

namespace {

void vShowUnknownError(const char* genFile) noexcept {
  try {
    std::string text = fmt::format("Unknown error importing file: {}", sOrEmpty(genFile));
    vMessageWarn(text.c_str());
  } catch (...) {
    // No room for the text with the path in it.
    vMessageWarn("Unknown error importing file: ");
  }
}

}  // namespace

int iVipsImportGuarded(const char* genFile, RmModel* model, uint32_t importFlags,
                       char** logFileOut, uint32_t describeOpenError, uint32_t convertFirst) {
  try {
    return iVipsImport(genFile, model, importFlags, logFileOut, describeOpenError,
                       convertFirst);
  } catch (...) {
    vShowUnknownError(genFile);
    return -1;
  }
}
