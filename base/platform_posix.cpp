// The POSIX implementation of the platform layer.
#include "base/platform.h"
#include "base/platform_system.h"

#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <link.h>
#include <pwd.h>
#include <spawn.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <string>
#include <vector>

extern char** environ;

// ---- What the common part of the layer asks of the system ----

// There is nobody to show a box to: the text goes to standard error, and
// the box answers with its default button.
int iPlatformSystemMessageBox(const char* text, const char*, unsigned int type) {
  std::fprintf(stderr, "%s\n", text);
  std::fflush(stderr);
  return iPlatformDefaultButton(type);
}

bool boPlatformSystemFlush(const char* path, bool directory) {
  int flags = O_RDONLY | O_CLOEXEC | (directory ? O_DIRECTORY : 0);
  int descriptor = open(directory && !*path ? "." : path, flags);
  if (descriptor < 0) return false;
  bool flushed = fsync(descriptor) == 0;
  return close(descriptor) == 0 && flushed;
}

namespace {

// ---- Windows-1252 ----

// The characters of 0x80 to 0x9F; 0 where the code page leaves a hole.
constexpr char16_t kCp1252High[32] = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
    0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char16_t cWideOf(unsigned char byte) {
  if (byte >= 0x80 && byte < 0xA0) {
    char16_t wide = kCp1252High[byte - 0x80];
    return wide ? wide : byte;  // holes map through, as the system does
  }
  return byte;
}

char cAnsiOf(char16_t wide) {
  if (wide < 0x80 || (wide >= 0xA0 && wide <= 0xFF)) return static_cast<char>(wide);
  for (int i = 0; i < 32; ++i) {
    if (kCp1252High[i] == wide && wide != 0) return static_cast<char>(0x80 + i);
  }
  if (wide >= 0x80 && wide < 0xA0) return static_cast<char>(wide);
  return '?';
}

// Folds a Windows-1252 letter to lower case.
unsigned char uFoldCase(unsigned char c) {
  if (c >= 'A' && c <= 'Z') return static_cast<unsigned char>(c + 32);
  if (c >= 0xC0 && c <= 0xDE && c != 0xD7) return static_cast<unsigned char>(c + 32);
  switch (c) {
    case 0x8A: return 0x9A;  // S caron
    case 0x8C: return 0x9C;  // OE
    case 0x8E: return 0x9E;  // Z caron
    case 0x9F: return 0xFF;  // Y diaeresis
    default: return c;
  }
}

// ---- Clipboard ----

std::mutex clipboardLock;
std::vector<unsigned char> clipboardBytes;

constexpr int64_t kTicksPerSecond = 10000000;
constexpr int64_t kSecondsFrom1601To1970 = 11644473600LL;

int64_t lFileTimeOf(const struct timespec& t) {
  return (static_cast<int64_t>(t.tv_sec) + kSecondsFrom1601To1970) * kTicksPerSecond +
         t.tv_nsec / 100;
}

}  // namespace

// ---- Text ----

size_t uPlatformWideToAnsi(const char16_t* wide, char* out, size_t size) {
  if (!out || size == 0) return 0;
  size_t written = 0;
  for (size_t read = 0; wide && wide[read] && written + 1 < size; ++read) {
    char16_t c = wide[read];
    // A surrogate pair is one character, and it lies outside the code page.
    if (c >= 0xD800 && c <= 0xDBFF && wide[read + 1] >= 0xDC00 && wide[read + 1] <= 0xDFFF) {
      ++read;
      out[written++] = '?';
      continue;
    }
    out[written++] = cAnsiOf(c);
  }
  out[written] = 0;
  return written;
}

size_t uPlatformAnsiToWide(const char* text, char16_t* out, size_t size) {
  if (!out || size == 0) return 0;
  size_t n = 0;
  if (text) {
    for (; text[n] && n + 1 < size; ++n) out[n] = cWideOf(static_cast<unsigned char>(text[n]));
  }
  out[n] = 0;
  return n;
}

int iPlatformCompareNoCase(const char* a, const char* b, size_t n) {
  if (!a) a = "";
  if (!b) b = "";
  for (size_t i = 0; i < n; ++i) {
    unsigned char ca = uFoldCase(static_cast<unsigned char>(a[i]));
    unsigned char cb = uFoldCase(static_cast<unsigned char>(b[i]));
    if (ca != cb) return ca < cb ? -1 : 1;
    if (ca == 0) return 0;
  }
  return 0;
}

char cPlatformDecimalSign() { return '.'; }

// ---- Clocks ----

bool boPlatformLocalTime(PlatformDateTime* out) {
  struct timespec now;
  struct tm local;
  if (!out || clock_gettime(CLOCK_REALTIME, &now) != 0 || !localtime_r(&now.tv_sec, &local)) {
    return false;
  }
  *out = {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
          local.tm_hour,        local.tm_min,     local.tm_sec};
  return true;
}

int64_t lPlatformMakeLocalTime(const PlatformDateTime& when) {
  struct tm local = {};
  local.tm_year = when.year - 1900;
  local.tm_mon = when.month - 1;
  local.tm_mday = when.day;
  local.tm_hour = when.hour;
  local.tm_min = when.minute;
  local.tm_sec = when.second;
  local.tm_isdst = -1;
  time_t seconds = mktime(&local);
  return seconds == static_cast<time_t>(-1) ? -1 : static_cast<int64_t>(seconds);
}

int64_t lPlatformFileTimeNow() {
  struct timespec now;
  clock_gettime(CLOCK_REALTIME, &now);
  return lFileTimeOf(now);
}

void vPlatformSleepMs(unsigned int milliseconds) {
  struct timespec pause = {static_cast<time_t>(milliseconds / 1000),
                           static_cast<long>(milliseconds % 1000) * 1000000L};
  while (nanosleep(&pause, &pause) != 0 && errno == EINTR) {
  }
}

// ---- Errors ----

int iPlatformLastError() { return errno; }

bool boPlatformErrorText(int code, char* out, size_t size) {
  if (!out || size == 0) return false;
  out[0] = 0;
  char buffer[256];
  // The sharing violation keeps the number that Windows gives it, which is a
  // broken pipe here; files never raise that, so the number gets the
  // sharing violation's wording. The GNU form of strerror_r returns the
  // text, which may or may not be the buffer.
  const char* text = code == kPlatformSharingViolation
                         ? "The file is being used by another process"
                         : strerror_r(code, buffer, sizeof buffer);
  if (!text || !*text) return false;
  size_t length = std::strlen(text);
  while (length > 0 && (text[length - 1] == '\r' || text[length - 1] == '\n' ||
                        text[length - 1] == ' ')) {
    --length;
  }
  if (length >= size) length = size - 1;
  std::memcpy(out, text, length);
  out[length] = 0;
  return true;
}

// ---- Files ----

PlatformFile hPlatformFileOpen(const char* path, PlatformOpenMode mode, bool exclusive,
                               int* outError) {
  auto fail = [outError](int error) {
    if (outError) *outError = error;
    return kPlatformNoFile;
  };
  if (!path || !*path) return fail(ENOENT);
  int flags = O_CLOEXEC;
  switch (mode) {
    case PlatformOpenMode::kReadExisting: flags |= O_RDONLY; break;
    case PlatformOpenMode::kReadWriteAlways: flags |= O_RDWR | O_CREAT; break;
    case PlatformOpenMode::kReadWriteCreate: flags |= O_RDWR | O_CREAT; break;
  }
  int fd = open(path, flags, 0666);
  if (fd < 0) return fail(errno);
  // A file held by another writer is the sharing violation of Windows.
  if (exclusive && flock(fd, LOCK_EX | LOCK_NB) != 0) {
    int error = errno == EWOULDBLOCK ? kPlatformSharingViolation : errno;
    close(fd);
    return fail(error);
  }
  // Emptied only once the lock is had, so that a file that someone else
  // holds keeps its content.
  if (mode == PlatformOpenMode::kReadWriteCreate && ftruncate(fd, 0) != 0) {
    int error = errno;
    close(fd);
    return fail(error);
  }
  if (outError) *outError = 0;
  return fd;
}

bool boPlatformFileSeekEnd(PlatformFile file) {
  return lseek(static_cast<int>(file), 0, SEEK_END) >= 0;
}

bool boPlatformFileWrite(PlatformFile file, const void* data, size_t size) {
  const char* bytes = static_cast<const char*>(data);
  while (size > 0) {
    ssize_t written = write(static_cast<int>(file), bytes, size);
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes += written;
    size -= static_cast<size_t>(written);
  }
  return true;
}

int64_t lPlatformFileRead(PlatformFile file, void* data, size_t size) {
  for (;;) {
    ssize_t count = read(static_cast<int>(file), data, size);
    if (count < 0 && errno == EINTR) continue;
    return count;
  }
}

int64_t lPlatformFileSize(PlatformFile file) {
  struct stat status;
  if (fstat(static_cast<int>(file), &status) != 0) return -1;
  return static_cast<int64_t>(status.st_size);
}

bool boPlatformFileClose(PlatformFile file) {
  return file != kPlatformNoFile && close(static_cast<int>(file)) == 0;
}

bool boPlatformFileWriteTime(PlatformFile file, int64_t* outWriteTime) {
  struct stat status;
  if (fstat(static_cast<int>(file), &status) != 0) return false;
  if (outWriteTime) *outWriteTime = lFileTimeOf(status.st_mtim);
  return true;
}

bool boPlatformFileExists(const char* path) {
  return path && *path && access(path, F_OK) == 0;
}

bool boPlatformIsDirectory(const char* path) {
  struct stat status;
  return path && *path && stat(path, &status) == 0 && S_ISDIR(status.st_mode);
}

bool boPlatformDeleteFile(const char* path) { return path && unlink(path) == 0; }

bool boPlatformHideFile(const char* path) { return path != nullptr; }

bool boPlatformMoveFile(const char* from, const char* to) {
  if (!from || !to) return false;
  if (rename(from, to) == 0) return true;
  if (errno != EXDEV) return false;
  // Another file system: copy, then remove the source.
  FILE* source = std::fopen(from, "rb");
  if (!source) return false;
  FILE* target = std::fopen(to, "wb");
  if (!target) {
    std::fclose(source);
    return false;
  }
  char buffer[65536];
  bool ok = true;
  size_t count;
  while ((count = std::fread(buffer, 1, sizeof buffer, source)) > 0) {
    if (std::fwrite(buffer, 1, count, target) != count) {
      ok = false;
      break;
    }
  }
  ok = ok && !std::ferror(source);
  std::fclose(source);
  ok = std::fclose(target) == 0 && ok;
  if (!ok) {
    unlink(to);
    return false;
  }
  return unlink(from) == 0;
}

bool boPlatformSameFile(const char* a, const char* b) {
  if (!a || !b || !*a || !*b) return false;
  struct stat first, second;
  if (stat(a, &first) == 0 && stat(b, &second) == 0) {
    return first.st_dev == second.st_dev && first.st_ino == second.st_ino;
  }
  char fullA[4096], fullB[4096];
  return boPlatformFullPath(a, fullA, sizeof fullA) && boPlatformFullPath(b, fullB, sizeof fullB) &&
         std::strcmp(fullA, fullB) == 0;
}

bool boPlatformCreateDirectories(const char* directory) {
  if (!directory || !*directory) return false;
  std::string path(directory);
  for (size_t i = 1; i <= path.size(); ++i) {
    if (i < path.size() && path[i] != '/') continue;
    std::string part = path.substr(0, i);
    if (mkdir(part.c_str(), 0777) != 0 && errno != EEXIST) return false;
  }
  return boPlatformIsDirectory(directory);
}

bool boPlatformCreateTempFile(const char* directory, const char* prefix, char* out,
                              size_t size) {
  if (!out || size == 0) return false;
  out[0] = 0;
  std::string name = directory && *directory ? directory : ".";
  if (name.back() != '/') name += '/';
  name += prefix ? prefix : "";
  // Not mkstemp: it makes the file private to the user, and a save puts this
  // file in the place of a model file that others read. With O_EXCL the name
  // is still unique and the file gets the usual permissions.
  static constexpr char kLetters[] =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
  static std::atomic<uint64_t> sequence{0};
  size_t stemLength = name.size();
  int fd = -1;
  for (int attempt = 0; attempt < 1000 && fd < 0; ++attempt) {
    uint64_t value = ((sequence.fetch_add(1) + 1) * 0x9E3779B97F4A7C15ULL) ^
                     static_cast<uint64_t>(lPlatformFileTimeNow()) ^
                     (static_cast<uint64_t>(getpid()) << 40);
    name.resize(stemLength);
    for (int i = 0; i < 6; ++i, value /= 62) name += kLetters[value % 62];
    fd = open(name.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (fd < 0 && errno != EEXIST) return false;
  }
  if (fd < 0) return false;
  close(fd);
  char full[4096];
  if (!boPlatformFullPath(name.c_str(), full, sizeof full) || !boPlatformCopyOut(full, out, size)) {
    unlink(name.c_str());
    out[0] = 0;
    return false;
  }
  return true;
}

// ---- Paths and folders ----

char cPlatformPathSeparator() { return '/'; }

bool boPlatformCurrentDirectory(char* out, size_t size) {
  if (!out || size == 0) return false;
  if (!getcwd(out, size)) {
    out[0] = 0;
    return false;
  }
  return true;
}

bool boPlatformChangeDirectory(const char* path) { return path && chdir(path) == 0; }

bool boPlatformTempDirectory(char* out, size_t size) {
  const char* folder = std::getenv("TMPDIR");
  std::string text = folder && *folder ? folder : "/tmp";
  if (text.back() != '/') text += '/';
  return boPlatformCopyOut(text, out, size);
}

bool boPlatformFullPath(const char* path, char* out, size_t size) {
  if (!out || size == 0) return false;
  out[0] = 0;
  if (!path || !*path) return false;
  std::string whole;
  if (path[0] != '/') {
    char current[4096];
    if (!getcwd(current, sizeof current)) return false;
    whole = current;
    whole += '/';
  }
  whole += path;
  // Resolve "." and ".." by text alone: the file need not exist.
  std::vector<std::string> parts;
  size_t start = 0;
  while (start <= whole.size()) {
    size_t end = whole.find('/', start);
    if (end == std::string::npos) end = whole.size();
    std::string part = whole.substr(start, end - start);
    if (part == "..") {
      if (!parts.empty()) parts.pop_back();
    } else if (!part.empty() && part != ".") {
      parts.push_back(part);
    }
    start = end + 1;
  }
  std::string result;
  for (const std::string& part : parts) {
    result += '/';
    result += part;
  }
  if (result.empty()) result.push_back('/');
  if (whole.size() > 1 && whole.back() == '/' && result != "/") result += '/';
  return boPlatformCopyOut(result, out, size);
}

bool boPlatformModulePath(char* out, size_t size) {
  Dl_info info;
  link_map* module = nullptr;
  if (dladdr1(reinterpret_cast<void*>(&boPlatformModulePath), &info,
              reinterpret_cast<void**>(&module), RTLD_DL_LINKMAP) == 0 ||
      !info.dli_fname) {
    if (out && size) out[0] = 0;
    return false;
  }
  char full[4096];
  // The program itself has no name in its link map, and the loader falls
  // back to argv[0], which need not be a path at all; the kernel knows the
  // program's file.
  if (module && module->l_name && module->l_name[0] == 0) {
    ssize_t length = readlink("/proc/self/exe", full, sizeof full - 1);
    if (length > 0) {
      full[length] = 0;
      return boPlatformCopyOut(full, out, size);
    }
  }
  if (!realpath(info.dli_fname, full)) return boPlatformCopyOut(info.dli_fname, out, size);
  return boPlatformCopyOut(full, out, size);
}

// The loader tells which module holds the code; no handle is needed.
void vPlatformSetModuleHandle(void*) {}

bool boPlatformGetLibrarySearchPath(char* out, size_t size) {
  if (out && size) out[0] = 0;
  return true;
}

void vPlatformSetLibrarySearchPath(const char*) {}

// ---- User and processes ----

bool boPlatformUserName(char* out, size_t size) {
  if (!out || size == 0) return false;
  out[0] = 0;
  struct passwd entry;
  struct passwd* found = nullptr;
  char buffer[4096];
  if (getpwuid_r(geteuid(), &entry, buffer, sizeof buffer, &found) != 0 || !found) return false;
  return boPlatformCopyOut(found->pw_name, out, size);
}

int iPlatformRunProcess(const char* commandLine) {
  if (!commandLine) return kPlatformProcessNotStarted;
  std::vector<std::string> words;
  std::string word;
  for (const char* p = commandLine;; ++p) {
    if (*p == ' ' || *p == '\t' || *p == 0) {
      if (!word.empty()) words.push_back(word);
      word.clear();
      if (*p == 0) break;
    } else {
      word += *p;
    }
  }
  if (words.empty()) return kPlatformProcessNotStarted;
  std::vector<char*> arguments;
  for (std::string& w : words) arguments.push_back(w.data());
  arguments.push_back(nullptr);
  pid_t child;
  if (posix_spawnp(&child, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0) {
    return kPlatformProcessNotStarted;
  }
  int status = 0;
  while (waitpid(child, &status, 0) < 0) {
    if (errno != EINTR) return kPlatformProcessNotStarted;
  }
  if (WIFEXITED(status)) {
    // A program that the spawn found but could not execute exits with 127.
    return WEXITSTATUS(status);
  }
  if (WIFSIGNALED(status)) return 128 + WTERMSIG(status);
  return kPlatformProcessNotStarted;
}

int iPlatformExitCodeOf(int code) { return code & 0xFF; }

const char kPlatformProgramSuffix[] = "";

// ---- Clipboard ----

void vPlatformClipboardSet(const void* data, size_t size) {
  std::lock_guard<std::mutex> hold(clipboardLock);
  const unsigned char* bytes = static_cast<const unsigned char*>(data);
  clipboardBytes.assign(bytes, bytes + (data ? size : 0));
}

size_t uPlatformClipboardGet(void* out, size_t capacity) {
  std::lock_guard<std::mutex> hold(clipboardLock);
  if (out && capacity && !clipboardBytes.empty()) {
    std::memcpy(out, clipboardBytes.data(), std::min(capacity, clipboardBytes.size()));
  }
  return clipboardBytes.size();
}

void vPlatformClipboardClear() {
  std::lock_guard<std::mutex> hold(clipboardLock);
  clipboardBytes.clear();
}
