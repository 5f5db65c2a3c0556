// The import log: a text file that tells, in Norwegian, what was read from
// the design. It lies beside the design, or in the current directory when it
// cannot be made there, and its path goes back to the caller of the export.
#pragma once

#include <cstdio>

#include <fmt/printf.h>

#include "base/paths.h"

// Writes printf-style to the import log, always in the "C" locale, whatever
// locale the host has set. A log that could not be opened (null) takes the
// write and keeps nothing, so the readers need not ask.
template <typename... Args>
void vVipsLogPrint(std::FILE* log, const char* format, const Args&... args) {
  if (log && format) fmt::fprintf(log, format, args...);
}

// The log file of one import. It is opened on request and closed when the
// import ends by whatever path, an exception included; at that moment the
// path that was used goes to the caller.
class VipsLogFile {
 public:
  // `logFileOut` receives the log's path, as a temporary text, on closing:
  // the empty text when no path was formed. Null receives nothing.
  explicit VipsLogFile(char** logFileOut) : logFileOut_(logFileOut) {}
  ~VipsLogFile();
  VipsLogFile(const VipsLogFile&) = delete;
  VipsLogFile& operator=(const VipsLogFile&) = delete;

  // Makes a new, empty log for the design `genFile`: the design's path with
  // the extension "log", or, when that cannot be made, the same name in the
  // current directory. Paths are cut at 256 characters. When neither can be
  // made the stream stays null.
  void vOpen(const char* genFile);

  // The open log, or null.
  std::FILE* Stream() const { return stream_; }

 private:
  char** logFileOut_;
  char path_[kPathSize] = {};
  std::FILE* stream_ = nullptr;
};
