#include "base/log_file.h"

#include <fmt/format.h>

#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <cstring>

#include "base/messages.h"
#include "base/platform.h"
#include "base/system_error.h"

namespace {

constexpr size_t kLogFileNameSize = 257;
// Room for the caller's formatted text.
constexpr size_t kTextBufferSize = 4096;
// The characters of a line in front of its closing carriage return and line
// feed, stamp included.
constexpr size_t kLineTextMax = 4093;
constexpr int kOpenTries = 10;
constexpr unsigned int kOpenRetryPauseMs = 60;
constexpr size_t kSystemTextSize = 256;
constexpr size_t kErrorTextSize = 512;

// The settings. They are set at start-up and read by every line.
char logFileName[kLogFileNameSize];
std::atomic<bool> logDeferErrors{false};
std::atomic<bool> logReportWriteErrors{false};
std::atomic<bool> logLongStamp{false};

// The kept failure. The first failure claims the slot, fills in code and text
// and only then marks them kept, so that concurrent failures leave one whole
// report behind.
enum KeptState : int { kNothingKept, kKeeping, kKept };
std::atomic<int> logErrorState{kNothingKept};
std::atomic<long> logErrorCount{0};
int logErrorCode;
char logErrorText[kErrorTextSize];

// How a failure of one step of a line is told.
struct LogFailure {
  const char* keptText;     // the head of the kept report
  const char* shownFormat;  // the box: code, system text, log path
  bool alwaysShown;         // shown even when write errors are not reported
};

constexpr LogFailure kOpenFailure{"Logfile open error", "Logfile errno: %d %s\n%s", true};
constexpr LogFailure kMoveFailure{"Logfile set file pointer error",
                                  "Logfile set file pointer, errno: %d %s\n%s", false};
constexpr LogFailure kWriteFailure{"Logfile write error", "Logfile write error, errno: %d %s\n%s",
                                   false};
constexpr LogFailure kCloseFailure{"Logfile close error", "Logfile close error, errno: %d %s\n%s",
                                   false};

void vKeepFailure(const char* keptText, int code, const char* systemText) {
  int expected = kNothingKept;
  if (logErrorState.compare_exchange_strong(expected, kKeeping)) {
    logErrorCode = code;
    // The text is cut to the room it has.
    char* end = fmt::format_to_n(logErrorText, sizeof logErrorText - 1,
                                 "{} (errno: {}, {}) on file: {}", keptText, code, systemText,
                                 logFileName)
                    .out;
    *end = 0;
    logErrorState.store(kKept);
  }
  logErrorCount.fetch_add(1);
}

void vReportFailure(const LogFailure& failure, int code) {
  char systemText[kSystemTextSize];
  boSystemErrorText(code, systemText, sizeof systemText);
  if (logDeferErrors.load()) {
    vKeepFailure(failure.keptText, code, systemText);
    return;
  }
  if (!failure.alwaysShown && !logReportWriteErrors.load()) return;
  char shown[kSystemTextSize + kLogFileNameSize + 64];
  std::snprintf(shown, sizeof shown, failure.shownFormat, code, systemText, logFileName);
  vMessageWarn(shown);
}

// Opens the log for appending and keeps other writers out. A file that
// another writer holds is tried again a few times. (Readers never take the
// lock here, so the last try, which lets readers in, is the same as the
// others.)
PlatformFile hOpenLog(int* outError) {
  for (int attempt = 1;; ++attempt) {
    PlatformFile file =
        hPlatformFileOpen(logFileName, PlatformOpenMode::kReadWriteAlways, true, outError);
    if (file != kPlatformNoFile || *outError != kPlatformSharingViolation ||
        attempt == kOpenTries) {
      return file;
    }
    vPlatformSleepMs(kOpenRetryPauseMs);
  }
}

// Writes the stamp and ": " to `line`; returns its length.
size_t uWriteStamp(char* line, size_t size) {
  PlatformDateTime now;
  if (!boPlatformLocalTime(&now)) now = {1980, 1, 1, 0, 0, 0};
  int length = logLongStamp.load()
                   ? std::snprintf(line, size, "%04d.%02d.%02d_%02d:%02d:%02d: ", now.year,
                                   now.month, now.day, now.hour, now.minute, now.second)
                   : std::snprintf(line, size, "%04d.%02d.%02d: ", now.year, now.month, now.day);
  return length > 0 ? static_cast<size_t>(length) : 0;
}

// Copies `text` behind the stamp with every line end (CR, LF or CR LF) made
// CR LF, stopping where the line's room ends, and closes the line with CR LF.
// `line` has room for kLineTextMax + 2 bytes. Returns the line's length.
size_t uFinishLine(char* line, size_t length, const char* text) {
  for (const char* p = text; *p; ++p) {
    if (*p == '\r' || *p == '\n') {
      if (length + 2 > kLineTextMax) break;  // a line end goes whole or not at all
      line[length++] = '\r';
      line[length++] = '\n';
      if (p[0] == '\r' && p[1] == '\n') ++p;
      continue;
    }
    if (length >= kLineTextMax) break;
    line[length++] = *p;
  }
  line[length++] = '\r';
  line[length++] = '\n';
  return length;
}

}  // namespace

void vLogSetFileName(const char* path) {
  std::snprintf(logFileName, sizeof logFileName, "%s", path ? path : "");
}

const char* sLogGetFileName() { return logFileName; }

void vLogDeferErrors(bool flag) { logDeferErrors.store(flag); }

void vLogReportWriteErrors(bool flag) { logReportWriteErrors.store(flag); }

int iLogSetLongStamp(bool flag) { return logLongStamp.exchange(flag) ? 1 : 0; }

void vLogWrite(const char* format, ...) {
  int openError = 0;
  PlatformFile file = hOpenLog(&openError);
  if (file == kPlatformNoFile) {
    vReportFailure(kOpenFailure, openError);
    return;
  }

  char text[kTextBufferSize];
  text[0] = 0;
  if (format) {
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
  }
  char line[kLineTextMax + 2];
  size_t length = uWriteStamp(line, sizeof line);
  length = uFinishLine(line, length, text);

  // Each step runs even when an earlier one failed, but a file whose end
  // could not be reached is not written.
  bool moveFailed = !boPlatformFileSeekEnd(file);
  int moveError = moveFailed ? iPlatformLastError() : 0;
  bool writeFailed = !moveFailed && !boPlatformFileWrite(file, line, length);
  int writeError = writeFailed ? iPlatformLastError() : 0;
  bool closeFailed = !boPlatformFileClose(file);
  int closeError = closeFailed ? iPlatformLastError() : 0;

  if (moveFailed) vReportFailure(kMoveFailure, moveError);
  if (writeFailed) vReportFailure(kWriteFailure, writeError);
  if (closeFailed) vReportFailure(kCloseFailure, closeError);
}

bool boLogDelete() { return boPlatformDeleteFile(logFileName); }

bool boLogGetError(int* outCode, char* outText, size_t size) {
  if (logErrorState.load() != kKept) return false;
  if (outCode) *outCode = logErrorCode;
  if (outText && size > 0) std::snprintf(outText, size, "%s", logErrorText);
  return true;
}

long lLogGetErrorCount() { return logErrorCount.load(); }

long lLogResetErrors() {
  logErrorCode = 0;
  logErrorText[0] = 0;
  logErrorState.store(kNothingKept);
  return logErrorCount.exchange(0);
}
