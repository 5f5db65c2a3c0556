#include "base/file_times.h"

#include "base/platform.h"

int64_t lFileTimeNow() { return lPlatformFileTimeNow(); }

bool boFileGetTime(const char* path, int64_t* outWriteTime) {
  PlatformFile file = hPlatformFileOpen(path, PlatformOpenMode::kReadExisting, false, nullptr);
  if (file == kPlatformNoFile) return false;
  int64_t writeTime = 0;
  if (boPlatformFileWriteTime(file, &writeTime) && outWriteTime) *outWriteTime = writeTime;
  boPlatformFileClose(file);
  return true;
}

int iFileTimeCompare(int64_t a, int64_t b) { return a < b ? -1 : (a > b ? 1 : 0); }
