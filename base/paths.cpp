#include "base/paths.h"

#include <cstring>

#include "base/fields.h"
#include "base/platform.h"
#include "base/temp_text.h"
#include "base/text.h"

namespace {

// The current directory is read in a buffer of this size, as the system's
// path limit of 260 characters allows.
constexpr size_t kCurrentDirectorySize = 261;
// Directories entered to compare places may be longer.
constexpr size_t kPlaceSize = 4096;
// The most that sFilterFromList builds, terminator included.
constexpr size_t kListFilterSize = 1000;

bool boIsSeparator(char byte) { return byte == '\\' || byte == '/'; }

bool boIsAsciiLetter(char byte) {
  return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

// A path in Windows form: with a drive or a backslash.
bool boIsWindowsForm(const char* path) {
  return boPathHasDrive(path) || std::strchr(path, '\\') != nullptr;
}

// The platform's root: '/' in front where that is the separator.
bool boIsPlatformRoot(const char* path) {
  return path[0] == '/' && cPlatformPathSeparator() == '/';
}

// The start of the file name: behind the last '\', '/' or ':'.
const char* pFileNameOf(const char* path) {
  const char* name = path;
  for (const char* place = path; *place; ++place) {
    if (boIsSeparator(*place) || *place == ':') name = place + 1;
  }
  return name;
}

// Copies `length` bytes of `source` into `out`, cut at size - 1.
char* sCopyPart(const char* source, size_t length, char* out, size_t size) {
  if (!out || size == 0) return out;
  if (length > size - 1) length = size - 1;
  std::memmove(out, source, length);
  out[length] = 0;
  return out;
}

bool boStartsWithParent(const char* path) {
  return path[0] == '.' && path[1] == '.' && boIsSeparator(path[2]);
}

// Cuts closing separators of a full path for comparison.
void vCutClosingSeparators(char* path) {
  size_t length = std::strlen(path);
  while (length > 1 && boIsSeparator(path[length - 1])) path[--length] = 0;
}

}  // namespace

bool boPathHasDrive(const char* path) {
  return path && boIsAsciiLetter(path[0]) && path[1] == ':';
}

bool boPathIsUnc(const char* path) { return path && iCompareNoCaseN(path, "\\\\", 2) == 0; }

bool boPathIsAbsolute(const char* path) {
  return path && (boPathHasDrive(path) || boPathIsUnc(path) || boIsPlatformRoot(path));
}

const char* PathNextComponent(const char* path, char* out, size_t size) {
  if (out && size) out[0] = 0;
  if (!path) return nullptr;
  size_t length = boPathHasDrive(path) ? 2 : std::strcspn(path, "\\/");
  sCopyPart(path, length, out, size);
  const char* rest = path + length;
  if (boIsSeparator(*rest)) ++rest;
  return rest;
}

char* sPathJoinTo(const char* directory, const char* name, char* out, size_t size) {
  if (!out || size == 0) return out;
  if (!directory) directory = "";
  if (out != directory) sCopy(out, directory, size);
  size_t length = std::strlen(out);
  if (length > 0) {
    char last = out[length - 1];
    if (boIsWindowsForm(out)) {
      if (last != '\\' && last != ':') sAppend(out, "\\", size);
    } else {
      char separator[2] = {cPlatformPathSeparator(), 0};
      if (last != separator[0] && last != ':') sAppend(out, separator, size);
    }
  }
  return sAppend(out, name, size);
}

const char* sPathJoin(const char* directory, const char* name) {
  char path[kPathSize];
  return sTempCopy(sPathJoinTo(directory, name, path, sizeof path));
}

void vPathMakeAbsolute(const char* directory, const char* path, char* out, size_t size) {
  char joined[kPathSize];
  if (boPathIsAbsolute(path)) {
    sCopy(joined, path, sizeof joined);
  } else {
    sPathJoinTo(directory, path, joined, sizeof joined);
  }
  sPathFullTo(joined, out, size);
}

char* sPathFullTo(const char* path, char* out, size_t size) {
  if (!out || size == 0) return nullptr;
  if (!path || !*path) {
    out[0] = 0;
    return nullptr;
  }
  if (cPlatformPathSeparator() == '/' && (boPathHasDrive(path) || boPathIsUnc(path))) {
    if (std::strlen(path) >= size) {
      out[0] = 0;
      return nullptr;
    }
    return sCopy(out, path, size);
  }
  if (!boPlatformFullPath(path, out, size)) {
    out[0] = 0;
    return nullptr;
  }
  return out;
}

const char* sPathFull(const char* path) {
  char full[kPathSize];
  sPathFullTo(path, full, sizeof full);
  return sTempCopy(full);
}

char* sPathCurrentTo(char* out, size_t size) {
  if (!out || size == 0) return nullptr;
  char current[kCurrentDirectorySize];
  if (!boPlatformCurrentDirectory(current, sizeof current) || std::strlen(current) >= size) {
    out[0] = 0;
    return nullptr;
  }
  return sCopy(out, current, size);
}

const char* sPathCurrent() {
  char current[kPathSize];
  sPathCurrentTo(current, sizeof current);
  return sTempCopy(current);
}

char* sPathFileNameTo(const char* path, char* out, size_t size) {
  if (!out || size == 0) return out;
  if (!path) path = "";
  const char* name = pFileNameOf(path);
  size_t length = std::strlen(name);
  if (length > size - 1) name += length - (size - 1);
  return sCopy(out, name, size);
}

const char* sPathFileName(const char* path) {
  char name[kPathSize];
  return sTempCopy(sPathFileNameTo(path, name, sizeof name));
}

char* sPathDirectoryTo(const char* path, char* out, size_t size) {
  if (!out || size == 0) return out;
  if (!path) path = "";
  size_t length = static_cast<size_t>(pFileNameOf(path) - path);
  // The separator in front of the name goes, unless it closes a drive or is
  // the root.
  if (length > 0 && boIsSeparator(path[length - 1])) {
    bool behindColon = length >= 2 && path[length - 2] == ':';
    bool isRoot = length == 1 && boIsPlatformRoot(path);
    if (!behindColon && !isRoot) --length;
  }
  return sCopyPart(path, length, out, size);
}

const char* sPathDirectory(const char* path) {
  char directory[kPathSize];
  return sTempCopy(sPathDirectoryTo(path, directory, sizeof directory));
}

char* sPathBaseNameTo(const char* path, char* out, size_t size) {
  if (!path) path = "";
  const char* name = pFileNameOf(path);
  const char* extension = PathFindExtension(name);
  size_t length = extension ? static_cast<size_t>(extension - name) : std::strlen(name);
  return sCopyPart(name, length, out, size);
}

const char* sPathBaseName(const char* path) {
  char name[kPathSize];
  return sTempCopy(sPathBaseNameTo(path, name, sizeof name));
}

char* sPathExtensionTo(const char* path, char* out, size_t size) {
  const char* extension = PathFindExtension(path);
  return sCopy(out, extension ? extension + 1 : "", size);
}

const char* sPathExtension(const char* path) {
  char extension[kPathSize];
  return sTempCopy(sPathExtensionTo(path, extension, sizeof extension));
}

const char* PathFindExtension(const char* path) {
  if (!path) return nullptr;
  return std::strrchr(pFileNameOf(path), '.');
}

void vPathSetExtension(char* path, const char* extension, size_t size) {
  if (!path || size == 0) return;
  const char* point = PathFindExtension(path);
  if (point) path[point - path] = 0;
  if (extension && *extension) {
    sAppend(path, ".", size);
    sAppend(path, extension, size);
  }
}

bool boPathSame(const char* a, const char* b) {
  char fullA[kPathSize];
  char fullB[kPathSize];
  if (!sPathFullTo(a, fullA, sizeof fullA) || !sPathFullTo(b, fullB, sizeof fullB)) return false;
  vCutClosingSeparators(fullA);
  vCutClosingSeparators(fullB);
  return iCompareNoCase(fullA, fullB) == 0;
}

char* sPathRelativeTo(const char* from, const char* to, char* out, size_t size) {
  if (!out || size == 0) return out;
  out[0] = 0;
  if (!from || !to || strnlen(from, kPathSize) >= kPathSize || strnlen(to, kPathSize) >= kPathSize) {
    return out;
  }
  char fromPart[kPathSize];
  char toPart[kPathSize];
  const char* restFrom = from;
  const char* restTo = to;
  int shared = 0;
  while (*restFrom) {
    const char* nextFrom = PathNextComponent(restFrom, fromPart, sizeof fromPart);
    const char* nextTo = PathNextComponent(restTo, toPart, sizeof toPart);
    if (iCompareNoCase(fromPart, toPart) != 0) break;
    restFrom = nextFrom;
    restTo = nextTo;
    ++shared;
  }
  if (shared == 0) return sCopy(out, to, size);

  const char separator[2] = {boIsWindowsForm(from) ? '\\' : cPlatformPathSeparator(), 0};
  while (*restFrom) {
    restFrom = PathNextComponent(restFrom, fromPart, sizeof fromPart);
    if (out[0]) sAppend(out, separator, size);
    sAppend(out, "..", size);
  }
  if (*restTo) {
    if (out[0]) sAppend(out, separator, size);
    sAppend(out, restTo, size);
  }
  return out;
}

const char* sPathRelative(const char* from, const char* to) {
  char relative[kPathSize];
  return sTempCopy(sPathRelativeTo(from, to, relative, sizeof relative));
}

char* sPathRelativeOrFullTo(const char* from, const char* to, char* out, size_t size) {
  if (!out || size == 0) return out;
  char full[kPathSize];
  vPathMakeAbsolute(from, to, full, sizeof full);
  if (!full[0]) {
    out[0] = 0;
    return out;
  }
  char relative[kPathSize];
  sPathRelativeTo(from, full, relative, sizeof relative);
  bool standsInside = !boStartsWithParent(relative) && !boPathIsAbsolute(relative);
  return sCopy(out, !relative[0] || standsInside ? relative : full, size);
}

const char* sPathRelativeOrFull(const char* from, const char* to) {
  char path[kPathSize];
  return sTempCopy(sPathRelativeOrFullTo(from, to, path, sizeof path));
}

int iPathComparePlaces(const char* a, const char* b) {
  char home[kPlaceSize];
  char placeA[kPlaceSize];
  char placeB[kPlaceSize];
  if (!a || !b || !boPlatformCurrentDirectory(home, sizeof home)) return -1;
  bool entered = boPlatformChangeDirectory(a) && boPlatformCurrentDirectory(placeA, sizeof placeA);
  boPlatformChangeDirectory(home);
  // Each directory is entered from where the caller stands.
  entered = entered && boPlatformChangeDirectory(b) &&
            boPlatformCurrentDirectory(placeB, sizeof placeB);
  boPlatformChangeDirectory(home);
  if (!entered) return -1;
  return iCompareNoCase(placeA, placeB) == 0 ? 0 : 1;
}

const char* sPathInPlace(const char* directory, const char* path) {
  char folder[kPathSize];
  sPathDirectoryTo(path, folder, sizeof folder);
  if (directory && folder[0] && iPathComparePlaces(directory, folder) == 0) {
    return sPathFileName(path);
  }
  return sTempCopy(path);
}

bool boFileExists(const char* path) { return path && *path && boPlatformFileExists(path); }

char* sTempPathTo(char* out, size_t size) {
  if (!out || size == 0) return out;
  if (!boPlatformTempDirectory(out, size)) out[0] = 0;
  return out;
}

const char* sTempPath() {
  char path[kPathSize];
  return sTempCopy(sTempPathTo(path, sizeof path));
}

char* sFilterFromExtensions(const char* const* extensions, char* out, size_t size) {
  if (!out || size == 0) return out;
  out[0] = 0;
  if (!extensions) return out;
  size_t used = 0;
  for (size_t i = 0; extensions[i]; ++i) {
    const char* extension = extensions[i];
    size_t length = std::strlen(extension);
    if (i == 0 && std::strchr(extension, '|')) {
      if (length >= size) return nullptr;
      sCopy(out, extension, size);
      used = length;
      continue;
    }
    size_t entryLength = 2 * length + 6;  // "*.ext|*.ext|"
    if (size - used < 13 || entryLength >= size - used) break;
    for (int twice = 0; twice < 2; ++twice) {
      sAppend(out, "*.", size);
      sAppend(out, extension, size);
      sAppend(out, "|", size);
    }
    used += entryLength;
  }
  return out;
}

const char* sFilterFromList(const char* list, char separator, const char* title) {
  char patterns[kListFilterSize] = "";
  char item[kListFilterSize];
  const char* cursor = list;
  while (cursor) {
    sFieldNext(item, sizeof item, &cursor, separator);
    const char* start = item;
    while (*start == ' ') ++start;
    sTrimRight(item);
    if (!*start) continue;
    if (patterns[0]) sAppend(patterns, ";", sizeof patterns);
    sAppend(patterns, "*.", sizeof patterns);
    sAppend(patterns, start, sizeof patterns);
  }
  char filter[kListFilterSize];
  sCopy(filter, title, sizeof filter);
  sAppend(filter, " (", sizeof filter);
  sAppend(filter, patterns, sizeof filter);
  sAppend(filter, ")|", sizeof filter);
  sAppend(filter, patterns, sizeof filter);
  sAppend(filter, "|", sizeof filter);
  return sTempCopy(filter);
}
