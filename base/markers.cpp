#include "base/markers.h"

#include <fmt/format.h>

#include <cstdint>
#include <cstring>

#include "base/file_names.h"
#include "base/paths.h"
#include "base/platform.h"
#include "base/temp_text.h"

MarkerHooks pfnMarkerHooks{};

namespace {

constexpr size_t kUserNameSize = 400;
constexpr size_t kMarkerReadMax = 99;

bool boEmpty(const char* text) { return !text || !*text; }

}  // namespace

const char* sUserName() {
  char name[kUserNameSize];
  if (!boPlatformUserName(name, sizeof name)) name[0] = 0;
  return sTempCopy(name);
}

const char* sMarkerFileName(const char* path) {
  if (!path) path = "";
  size_t length = std::strlen(path);
  char* name = static_cast<char*>(pTempAlloc(length + 2));
  if (!name) return "";
  std::memcpy(name, path, length);
  name[length] = '~';
  name[length + 1] = 0;
  return name;
}

const char* sMarkerRead(const char* markerPath) {
  char text[kMarkerReadMax + 1];
  size_t length = 0;
  PlatformFile file = hPlatformFileOpen(markerPath, PlatformOpenMode::kReadExisting, false, nullptr);
  if (file != kPlatformNoFile) {
    int64_t count = lPlatformFileRead(file, text, kMarkerReadMax);
    if (count > 0) length = static_cast<size_t>(count);
    boPlatformFileClose(file);
  }
  text[length] = 0;
  return sTempCopy(text);
}

bool boMarkerWrite(const char* markerPath, const char* text) {
  if (!boPathNamesValid(markerPath)) return false;
  // The folder's path is never longer than the marker's.
  std::string directory(std::strlen(markerPath) + 1, '\0');
  sPathDirectoryTo(markerPath, directory.data(), directory.size());
  if (directory[0]) boPlatformCreateDirectories(directory.c_str());
  PlatformFile file =
      hPlatformFileOpen(markerPath, PlatformOpenMode::kReadWriteCreate, true, nullptr);
  if (file == kPlatformNoFile) return false;
  size_t length = text ? std::strlen(text) : 0;
  bool written = length > 0 && boPlatformFileWrite(file, text, length);
  boPlatformFileClose(file);
  // A marker is hidden where the system can hide files; elsewhere the '~'
  // behind its name is what tells it from the files that it guards.
  boPlatformHideFile(markerPath);
  return written;
}

int iMarkerState(const char* path, std::string* outOwner) {
  if (pfnMarkerHooks.pfnState) return pfnMarkerHooks.pfnState(path, outOwner);
  std::string owner = boEmpty(path) ? "" : sMarkerRead(sMarkerFileName(path));
  int state = kMarkerFree;
  if (!owner.empty()) {
    // User names, like file names, compare without regard to case.
    bool mine = iPlatformCompareNoCase(owner.c_str(), sUserName(), SIZE_MAX) == 0;
    state = mine ? kMarkerMine : kMarkerSomeoneElse;
  }
  if (outOwner) *outOwner = std::move(owner);
  return state;
}

bool boMarkerSet(const char* path, bool take) {
  if (pfnMarkerHooks.pfnSet) return pfnMarkerHooks.pfnSet(path, take);
  if (boEmpty(path)) return false;
  int state = iMarkerState(path, nullptr);
  std::string marker = sMarkerFileName(path);
  if (take) {
    if (state == kMarkerFree) return boMarkerWrite(marker.c_str(), sUserName());
    return state == kMarkerMine;
  }
  if (state != kMarkerMine) return false;
  boPlatformDeleteFile(marker.c_str());
  return !boPlatformFileExists(marker.c_str());
}

std::vector<std::string> MarkerSetList(const std::vector<std::string>& paths, bool take) {
  if (pfnMarkerHooks.pfnSetList) return pfnMarkerHooks.pfnSetList(paths, take);
  std::vector<std::string> done;
  for (const std::string& path : paths) {
    if (boMarkerSet(path.c_str(), take)) done.push_back(path);
  }
  return done;
}

bool boFileMoveMarked(const char* from, const char* to) {
  if (pfnMarkerHooks.pfnMove) return pfnMarkerHooks.pfnMove(from, to);
  if (iMarkerState(from, nullptr) != kMarkerMine) return false;
  int targetState = iMarkerState(to, nullptr);
  if (targetState == kMarkerSomeoneElse) return false;
  if (iPlatformCompareNoCase(from, to, SIZE_MAX) == 0) return true;

  // Two spellings of one file share one marker, which just follows the name.
  bool sameFile = boPlatformSameFile(from, to);
  if (!sameFile && !boMarkerSet(to, true)) return false;
  bool targetTakenHere = !sameFile && targetState == kMarkerFree;

  if (boPlatformFileExists(from) && !boPlatformMoveFile(from, to)) {
    if (targetTakenHere) boMarkerSet(to, false);
    return false;
  }
  if (sameFile) {
    std::string fromMarker = sMarkerFileName(from);
    boPlatformMoveFile(fromMarker.c_str(), sMarkerFileName(to));
  } else {
    boMarkerSet(from, false);
  }
  return true;
}

bool boFileDeleteMarked(const char* path) {
  if (pfnMarkerHooks.pfnDelete) return pfnMarkerHooks.pfnDelete(path);
  if (iMarkerState(path, nullptr) != kMarkerMine) return false;
  if (boPlatformFileExists(path) && !boPlatformDeleteFile(path)) return false;
  boMarkerSet(path, false);
  return true;
}

std::string sMarkerPrefix(int state, const char* owner) {
  if (state == kMarkerFree) return "#";
  if (state == kMarkerSomeoneElse) return fmt::format("#({}) ", owner ? owner : "");
  return "";
}
