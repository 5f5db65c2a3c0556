// The Windows implementation of the platform layer.
//
// Paths are the ANSI paths of the process's code page, as everywhere else in
// the library; the calls here are the A forms, apart from the start of a
// child process, which goes through the wide form.
#include "base/platform.h"
#include "base/platform_system.h"

#include <windows.h>

#include <algorithm>
#include <atomic>
#include <climits>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <mutex>
#include <string>
#include <vector>

static_assert(kPlatformSharingViolation == ERROR_SHARING_VIOLATION);
static_assert(kIdOk == IDOK && kIdCancel == IDCANCEL && kIdYes == IDYES && kIdNo == IDNO);
static_assert(kMbYesNoCancel == MB_YESNOCANCEL && kMbTaskModal == MB_TASKMODAL);
static_assert(sizeof(char16_t) == sizeof(wchar_t));

// ---- What the common part of the layer asks of the system ----

// The library's boxes ask to stay on top with kMbTopmost (0x10000), the
// number its callers and tests know; the system reads that number as "set
// foreground" and has its own bit for a box on top.
int iPlatformSystemMessageBox(const char* text, const char* title, unsigned int type) {
  if (type & kMbTopmost) type = (type & ~kMbTopmost) | MB_TOPMOST;
  return MessageBoxA(GetActiveWindow(), text, title, type);
}

bool boPlatformSystemFlush(const char* path, bool directory) {
  // A folder's names reach the disk with the move that wrote through; the
  // system offers no flush of a folder to a program. What is left to tell
  // is whether the folder is there.
  if (directory) return boPlatformIsDirectory(*path ? path : ".");
  HANDLE file = CreateFileA(path, GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                            OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  bool flushed = FlushFileBuffers(file) != 0;
  return CloseHandle(file) != 0 && flushed;
}

namespace {

// ---- The module ----

// Set by the library's entry point. A program linked with the static
// libraries has none, and the module is then the one that holds this code.
std::atomic<HMODULE> ownModule{nullptr};

HMODULE hOwnModule() {
  HMODULE module = ownModule.load();
  if (module) return module;
  if (!GetModuleHandleExA(
          GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
          reinterpret_cast<LPCSTR>(&hOwnModule), &module)) {
    return nullptr;
  }
  return module;
}

// ---- Clipboard ----

// The bytes go in the plain text format, so that every program can paste
// them. The system hands a block back rounded up to its own granularity, so
// its size does not tell how many bytes were put in; a paste of sections
// reads them as a stream and must not see the padding. The exact count
// travels beside the text in a format of our own.
const char kClipboardSizeFormat[] = "kvrvips byte count";
constexpr int kClipboardOpenTries = 20;
constexpr DWORD kClipboardRetryPauseMs = 10;

std::mutex clipboardLock;

// Another program may hold the clipboard for a moment.
bool boOpenClipboard() {
  for (int attempt = 1;; ++attempt) {
    if (OpenClipboard(nullptr)) return true;
    if (attempt == kClipboardOpenTries) return false;
    Sleep(kClipboardRetryPauseMs);
  }
}

// Hands a block to the clipboard, which owns it from then on.
bool boClipboardPut(UINT format, const void* data, size_t size, size_t room) {
  HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, room);
  if (!block) return false;
  void* place = GlobalLock(block);
  if (place && size) std::memcpy(place, data, size);
  GlobalUnlock(block);
  if (!place || !SetClipboardData(format, block)) {
    GlobalFree(block);
    return false;
  }
  return true;
}

// ---- Files ----

constexpr int64_t kSecondsFrom1601To1970 = 11644473600LL;
constexpr int64_t kTicksPerSecond = 10000000;

int64_t lFileTimeOf(const FILETIME& time) {
  return static_cast<int64_t>((static_cast<uint64_t>(time.dwHighDateTime) << 32) |
                              time.dwLowDateTime);
}

HANDLE hOf(PlatformFile file) { return reinterpret_cast<HANDLE>(file); }

// The counts of the system's calls are 32-bit.
DWORD uChunkOf(size_t size) { return static_cast<DWORD>(std::min<size_t>(size, 1u << 30)); }

// A call of the form "write at most size bytes and return the length, or the
// room it wants": true when the text fitted; otherwise `out` is emptied.
bool boFitted(DWORD length, char* out, size_t size) {
  if (length > 0 && length < size) return true;
  out[0] = 0;
  return false;
}

DWORD uRoomOf(size_t size) { return static_cast<DWORD>(std::min<size_t>(size, MAXDWORD)); }

bool boIsSeparator(char c) { return c == '\\' || c == '/'; }

// ---- Processes ----

// Appends one word of a command line so that the child's C runtime reads it
// back as it was: a word holds no blank, so only a quote needs a backslash,
// and so do the backslashes right in front of it.
void vAppendArgument(std::wstring& line, const std::wstring& word) {
  size_t backslashes = 0;
  for (wchar_t c : word) {
    if (c == L'"') line.append(backslashes + 1, L'\\');
    backslashes = c == L'\\' ? backslashes + 1 : 0;
    line += c;
  }
}

std::wstring sWiden(const std::string& text) {
  int length = MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()),
                                   nullptr, 0);
  std::wstring wide(static_cast<size_t>(std::max(length, 0)), L'\0');
  if (length > 0) {
    MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()), wide.data(),
                        length);
  }
  return wide;
}

}  // namespace

// ---- Text ----

size_t uPlatformWideToAnsi(const char16_t* wide, char* out, size_t size) {
  if (!out || size == 0) return 0;
  out[0] = 0;
  if (!wide || !*wide) return 0;
  // A surrogate pair is one character, and no ANSI code page holds it: it
  // becomes one '?' here rather than one for each of its halves.
  std::wstring text;
  for (size_t read = 0; wide[read]; ++read) {
    char16_t c = wide[read];
    if (c >= 0xD800 && c <= 0xDBFF && wide[read + 1] >= 0xDC00 && wide[read + 1] <= 0xDFFF) {
      ++read;
      c = u'?';
    }
    text += static_cast<wchar_t>(c);
  }
  // No best fit: a letter outside the code page is '?', not a look-alike.
  // A UTF-8 code page holds every character and refuses the flag.
  const int length = static_cast<int>(std::min<size_t>(text.size(), INT_MAX));
  DWORD flags = GetACP() == CP_UTF8 ? 0 : WC_NO_BEST_FIT_CHARS;
  int needed =
      WideCharToMultiByte(CP_ACP, flags, text.data(), length, nullptr, 0, nullptr, nullptr);
  if (needed <= 0) return 0;
  std::string narrow(static_cast<size_t>(needed), '\0');
  WideCharToMultiByte(CP_ACP, flags, text.data(), length, narrow.data(), needed, nullptr, nullptr);
  size_t written = std::min(narrow.size(), size - 1);
  std::memcpy(out, narrow.data(), written);
  out[written] = 0;
  return written;
}

size_t uPlatformAnsiToWide(const char* text, char16_t* out, size_t size) {
  if (!out || size == 0) return 0;
  // No code page makes more units than bytes, so the bytes that fit the
  // room are widened straight into it.
  int bytes = text ? static_cast<int>(strnlen(text, std::min<size_t>(size - 1, INT_MAX))) : 0;
  int written = bytes ? MultiByteToWideChar(CP_ACP, 0, text, bytes,
                                            reinterpret_cast<wchar_t*>(out), bytes)
                      : 0;
  written = std::max(written, 0);
  out[written] = 0;
  return static_cast<size_t>(written);
}

int iPlatformCompareNoCase(const char* a, const char* b, size_t n) {
  if (!a) a = "";
  if (!b) b = "";
  int lengthA = static_cast<int>(strnlen(a, std::min<size_t>(n, INT_MAX)));
  int lengthB = static_cast<int>(strnlen(b, std::min<size_t>(n, INT_MAX)));
  int order = CompareStringA(LOCALE_USER_DEFAULT, NORM_IGNORECASE, a, lengthA, b, lengthB);
  if (order != 0) return order - CSTR_EQUAL;
  // The system refused the texts: their bytes decide.
  int bytes = std::memcmp(a, b, static_cast<size_t>(std::min(lengthA, lengthB)));
  return bytes != 0 ? (bytes < 0 ? -1 : 1) : (lengthA > lengthB) - (lengthA < lengthB);
}

char cPlatformDecimalSign() {
  char sign[8];
  if (GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, sign, sizeof sign) > 1) return sign[0];
  return '.';
}

// ---- Clocks ----

bool boPlatformLocalTime(PlatformDateTime* out) {
  if (!out) return false;
  SYSTEMTIME local;
  GetLocalTime(&local);
  *out = {local.wYear, local.wMonth, local.wDay, local.wHour, local.wMinute, local.wSecond};
  return true;
}

int64_t lPlatformMakeLocalTime(const PlatformDateTime& when) {
  // The C runtime's 64-bit form: it evens out fields beyond their range and
  // has no time before 1970.
  struct tm local = {};
  local.tm_year = when.year - 1900;
  local.tm_mon = when.month - 1;
  local.tm_mday = when.day;
  local.tm_hour = when.hour;
  local.tm_min = when.minute;
  local.tm_sec = when.second;
  local.tm_isdst = -1;
  return static_cast<int64_t>(_mktime64(&local));
}

int64_t lPlatformFileTimeNow() {
  FILETIME now;
  GetSystemTimeAsFileTime(&now);
  return lFileTimeOf(now);
}

void vPlatformSleepMs(unsigned int milliseconds) { Sleep(milliseconds); }

// ---- Errors ----

int iPlatformLastError() { return static_cast<int>(GetLastError()); }

bool boPlatformErrorText(int code, char* out, size_t size) {
  if (!out || size == 0) return false;
  out[0] = 0;
  char text[1024];
  // On failure the system's own error stays the thread's last error, for the
  // caller to tell why.
  DWORD length = FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                                static_cast<DWORD>(code), 0, text, sizeof text, nullptr);
  while (length > 0 && (text[length - 1] == '\r' || text[length - 1] == '\n' ||
                        text[length - 1] == ' ')) {
    --length;
  }
  if (length == 0) return false;
  size_t kept = std::min<size_t>(length, size - 1);
  std::memcpy(out, text, kept);
  out[kept] = 0;
  return true;
}

// ---- Files ----

PlatformFile hPlatformFileOpen(const char* path, PlatformOpenMode mode, bool exclusive,
                               int* outError) {
  if (!path || !*path) {
    if (outError) *outError = ERROR_FILE_NOT_FOUND;
    return kPlatformNoFile;
  }
  DWORD access = GENERIC_READ;
  DWORD disposition = OPEN_EXISTING;
  if (mode != PlatformOpenMode::kReadExisting) {
    access |= GENERIC_WRITE;
    // A file made anew is opened and then emptied, not created over: the
    // system refuses to create over a hidden file, and a marker is one.
    disposition = OPEN_ALWAYS;
  }
  // Exclusive shares nothing, so that nobody else opens the file meanwhile,
  // readers included.
  DWORD share = exclusive ? 0 : FILE_SHARE_READ | FILE_SHARE_WRITE;
  HANDLE file =
      CreateFileA(path, access, share, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr);
  int error = file == INVALID_HANDLE_VALUE ? static_cast<int>(GetLastError()) : 0;
  if (!error && mode == PlatformOpenMode::kReadWriteCreate && !SetEndOfFile(file)) {
    error = static_cast<int>(GetLastError());
    CloseHandle(file);
  }
  if (outError) *outError = error;
  if (error) SetLastError(static_cast<DWORD>(error));
  return error ? kPlatformNoFile : reinterpret_cast<PlatformFile>(file);
}

bool boPlatformFileSeekEnd(PlatformFile file) {
  LARGE_INTEGER none = {};
  return SetFilePointerEx(hOf(file), none, nullptr, FILE_END) != 0;
}

bool boPlatformFileWrite(PlatformFile file, const void* data, size_t size) {
  const char* bytes = static_cast<const char*>(data);
  while (size > 0) {
    DWORD written = 0;
    if (!WriteFile(hOf(file), bytes, uChunkOf(size), &written, nullptr) || written == 0) {
      return false;
    }
    bytes += written;
    size -= written;
  }
  return true;
}

int64_t lPlatformFileRead(PlatformFile file, void* data, size_t size) {
  DWORD count = 0;
  if (!ReadFile(hOf(file), data, uChunkOf(size), &count, nullptr)) return -1;
  return count;
}

int64_t lPlatformFileSize(PlatformFile file) {
  LARGE_INTEGER size;
  return GetFileSizeEx(hOf(file), &size) ? static_cast<int64_t>(size.QuadPart) : -1;
}

bool boPlatformFileClose(PlatformFile file) {
  return file != kPlatformNoFile && CloseHandle(hOf(file)) != 0;
}

bool boPlatformFileWriteTime(PlatformFile file, int64_t* outWriteTime) {
  FILETIME written;
  if (!GetFileTime(hOf(file), nullptr, nullptr, &written)) return false;
  if (outWriteTime) *outWriteTime = lFileTimeOf(written);
  return true;
}

bool boPlatformFileExists(const char* path) {
  return path && *path && GetFileAttributesA(path) != INVALID_FILE_ATTRIBUTES;
}

bool boPlatformIsDirectory(const char* path) {
  if (!path || !*path) return false;
  DWORD attributes = GetFileAttributesA(path);
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY);
}

bool boPlatformDeleteFile(const char* path) { return path && DeleteFileA(path) != 0; }

bool boPlatformHideFile(const char* path) {
  if (!path) return false;
  DWORD attributes = GetFileAttributesA(path);
  if (attributes == INVALID_FILE_ATTRIBUTES) return false;
  return SetFileAttributesA(path, attributes | FILE_ATTRIBUTE_HIDDEN) != 0;
}

bool boPlatformMoveFile(const char* from, const char* to) {
  // Writing through returns once the new name is on the disk.
  return from && to &&
         MoveFileExA(from, to,
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_COPY_ALLOWED | MOVEFILE_WRITE_THROUGH) !=
             0;
}

bool boPlatformSameFile(const char* a, const char* b) {
  if (!a || !b || !*a || !*b) return false;
  BY_HANDLE_FILE_INFORMATION info[2];
  int known = 0;
  for (const char* path : {a, b}) {
    // Attributes alone are asked for, and everybody is let in, so that a
    // file that someone holds is still recognised; folders open as well.
    HANDLE file = CreateFileA(path, FILE_READ_ATTRIBUTES,
                              FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                              OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (file == INVALID_HANDLE_VALUE) break;
    if (GetFileInformationByHandle(file, &info[known])) ++known;
    CloseHandle(file);
  }
  if (known == 2) {
    return info[0].dwVolumeSerialNumber == info[1].dwVolumeSerialNumber &&
           info[0].nFileIndexHigh == info[1].nFileIndexHigh &&
           info[0].nFileIndexLow == info[1].nFileIndexLow;
  }
  // The names of the system's file systems ignore case.
  char fullA[MAX_PATH * 4], fullB[MAX_PATH * 4];
  return boPlatformFullPath(a, fullA, sizeof fullA) && boPlatformFullPath(b, fullB, sizeof fullB) &&
         iPlatformCompareNoCase(fullA, fullB, SIZE_MAX) == 0;
}

bool boPlatformCreateDirectories(const char* directory) {
  if (!directory || !*directory) return false;
  std::string path(directory);
  for (size_t i = 1; i <= path.size(); ++i) {
    if (i < path.size() && !boIsSeparator(path[i])) continue;
    // A drive ("c:") and the parts of a network name ("\\server\share") are
    // no folders to make; their calls fail, and the check at the end tells.
    std::string part = path.substr(0, i);
    if (part.back() != ':' && !boIsSeparator(part.back())) CreateDirectoryA(part.c_str(), nullptr);
  }
  return boPlatformIsDirectory(directory);
}

bool boPlatformCreateTempFile(const char* directory, const char* prefix, char* out,
                              size_t size) {
  if (!out || size == 0) return false;
  out[0] = 0;
  std::string name = directory && *directory ? directory : ".";
  if (!boIsSeparator(name.back())) name += '\\';
  name += prefix ? prefix : "";
  // Not GetTempFileNameA: it keeps only three letters of the prefix and puts
  // ".tmp" behind the number. The loop below makes the same kind of unique,
  // new file with the whole prefix and six letters behind it. Names ignore
  // case here, so the letters are of one case.
  static constexpr char kLetters[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
  static std::atomic<uint64_t> sequence{0};
  size_t stemLength = name.size();
  bool made = false;
  for (int attempt = 0; attempt < 1000 && !made; ++attempt) {
    uint64_t value = ((sequence.fetch_add(1) + 1) * 0x9E3779B97F4A7C15ULL) ^
                     static_cast<uint64_t>(lPlatformFileTimeNow()) ^
                     (static_cast<uint64_t>(GetCurrentProcessId()) << 40);
    name.resize(stemLength);
    for (int i = 0; i < 6; ++i, value /= 36) name += kLetters[value % 36];
    HANDLE file = CreateFileA(name.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file != INVALID_HANDLE_VALUE) {
      CloseHandle(file);
      made = true;
    } else if (GetLastError() != ERROR_FILE_EXISTS && GetLastError() != ERROR_ALREADY_EXISTS) {
      return false;
    }
  }
  if (!made) return false;
  char full[MAX_PATH * 4];
  if (!boPlatformFullPath(name.c_str(), full, sizeof full) || !boPlatformCopyOut(full, out, size)) {
    DeleteFileA(name.c_str());
    out[0] = 0;
    return false;
  }
  return true;
}

// ---- Paths and folders ----

char cPlatformPathSeparator() { return '\\'; }

bool boPlatformCurrentDirectory(char* out, size_t size) {
  return out && size && boFitted(GetCurrentDirectoryA(uRoomOf(size), out), out, size);
}

bool boPlatformChangeDirectory(const char* path) {
  return path && SetCurrentDirectoryA(path) != 0;
}

bool boPlatformTempDirectory(char* out, size_t size) {
  return out && size && boFitted(GetTempPathA(uRoomOf(size), out), out, size);
}

bool boPlatformFullPath(const char* path, char* out, size_t size) {
  if (!out || size == 0) return false;
  out[0] = 0;
  if (!path || !*path) return false;
  return boFitted(GetFullPathNameA(path, uRoomOf(size), out, nullptr), out, size);
}

void vPlatformSetModuleHandle(void* module) { ownModule.store(static_cast<HMODULE>(module)); }

bool boPlatformModulePath(char* out, size_t size) {
  if (!out || size == 0) return false;
  out[0] = 0;
  HMODULE module = hOwnModule();
  // A cut path fills the whole room: that counts as a failure.
  return module && boFitted(GetModuleFileNameA(module, out, uRoomOf(size)), out, size);
}

bool boPlatformGetLibrarySearchPath(char* out, size_t size) {
  if (!out || size == 0) return false;
  out[0] = 0;
  DWORD length = GetDllDirectoryA(uRoomOf(size), out);
  // No folder set gives the empty text, which is a valid answer.
  if (length == 0) {
    out[0] = 0;
    return true;
  }
  return boFitted(length, out, size);
}

void vPlatformSetLibrarySearchPath(const char* path) { SetDllDirectoryA(path); }

// ---- User and processes ----

bool boPlatformUserName(char* out, size_t size) {
  if (!out || size == 0) return false;
  out[0] = 0;
  DWORD room = uRoomOf(size);
  if (!GetUserNameA(out, &room)) {
    out[0] = 0;
    return false;
  }
  return true;
}

int iPlatformRunProcess(const char* commandLine) {
  if (!commandLine) return kPlatformProcessNotStarted;
  // Split at blanks, with no regard to quotes, as everywhere: a path with
  // blanks becomes several words. The program's word is quoted, so that the
  // system takes it whole and does not try longer names made of the words
  // behind it.
  std::wstring line;
  bool first = true;
  for (const char* p = commandLine; *p;) {
    while (*p == ' ' || *p == '\t') ++p;
    const char* start = p;
    while (*p && *p != ' ' && *p != '\t') ++p;
    if (p == start) break;
    std::wstring word = sWiden(std::string(start, p));
    if (first) {
      line = L"\"" + word + L"\"";
      first = false;
    } else {
      line += L' ';
      vAppendArgument(line, word);
    }
  }
  if (line.empty()) return kPlatformProcessNotStarted;

  STARTUPINFOW startup = {};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = SW_MINIMIZE;
  PROCESS_INFORMATION process = {};
  if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, CREATE_NEW_CONSOLE, nullptr,
                      nullptr, &startup, &process)) {
    return kPlatformProcessNotStarted;
  }
  WaitForSingleObject(process.hProcess, INFINITE);
  DWORD exitCode = 0;
  bool known = GetExitCodeProcess(process.hProcess, &exitCode) != 0;
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  // The whole 32 bits arrive: exit(-1) is -1 here.
  return known ? static_cast<int>(exitCode) : kPlatformProcessNotStarted;
}

int iPlatformExitCodeOf(int code) { return code; }

const char kPlatformProgramSuffix[] = ".exe";

// ---- Clipboard ----

void vPlatformClipboardSet(const void* data, size_t size) {
  if (!data) size = 0;
  std::lock_guard<std::mutex> hold(clipboardLock);
  if (!boOpenClipboard()) return;
  EmptyClipboard();
  // A zero behind the bytes ends the text for those who read it as text.
  UINT sizeFormat = RegisterClipboardFormatA(kClipboardSizeFormat);
  uint64_t count = size;
  if (size && boClipboardPut(CF_TEXT, data, size, size + 1) && sizeFormat) {
    boClipboardPut(sizeFormat, &count, sizeof count, sizeof count);
  }
  CloseClipboard();
}

size_t uPlatformClipboardGet(void* out, size_t capacity) {
  std::lock_guard<std::mutex> hold(clipboardLock);
  if (!boOpenClipboard()) return 0;
  size_t size = 0;
  HANDLE text = GetClipboardData(CF_TEXT);
  const char* bytes = text ? static_cast<const char*>(GlobalLock(text)) : nullptr;
  if (bytes) {
    size_t room = GlobalSize(text);
    // Our own count when it belongs to this text; a text that another
    // program put there ends at its terminator.
    size = strnlen(bytes, room);
    HANDLE countBlock = GetClipboardData(RegisterClipboardFormatA(kClipboardSizeFormat));
    const void* countPlace = countBlock ? GlobalLock(countBlock) : nullptr;
    if (countPlace && GlobalSize(countBlock) >= sizeof(uint64_t)) {
      uint64_t count;
      std::memcpy(&count, countPlace, sizeof count);
      if (count <= room) size = static_cast<size_t>(count);
    }
    if (countPlace) GlobalUnlock(countBlock);
    if (out && capacity) std::memcpy(out, bytes, std::min(capacity, size));
    GlobalUnlock(text);
  }
  CloseClipboard();
  return size;
}

void vPlatformClipboardClear() {
  std::lock_guard<std::mutex> hold(clipboardLock);
  if (!boOpenClipboard()) return;
  EmptyClipboard();
  CloseClipboard();
}
