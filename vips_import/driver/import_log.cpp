#include "vips_import/driver/import_log.h"

#include "base/platform.h"
#include "base/temp_text.h"
#include "base/text.h"

namespace {

// Deletes what stands at `path` and opens it anew for writing text.
std::FILE* OpenFresh(const char* path) {
  boPlatformDeleteFile(path);
  return std::fopen(path, "w");
}

}  // namespace

VipsLogFile::~VipsLogFile() {
  if (logFileOut_) *logFileOut_ = sTempCopy(path_);
  if (stream_) std::fclose(stream_);
}

void VipsLogFile::vOpen(const char* genFile) {
  if (stream_) std::fclose(stream_);
  sCopy(path_, genFile, sizeof path_);
  vPathSetExtension(path_, "log", sizeof path_);
  stream_ = OpenFresh(path_);
  if (stream_) return;

  // The design's folder takes no new file (read-only, or the name is taken
  // by a folder): the log goes to the current directory under the same name.
  char name[kPathSize];
  sPathFileNameTo(genFile, name, sizeof name);
  char current[kPathSize];
  sPathCurrentTo(current, sizeof current);
  sPathJoinTo(current, name, path_, sizeof path_);
  vPathSetExtension(path_, "log", sizeof path_);
  stream_ = OpenFresh(path_);
}
