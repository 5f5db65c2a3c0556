#include "base/temp_files.h"

#include <algorithm>
#include <atomic>
#include <cstring>
#include <string>

#include "base/paths.h"
#include "base/platform.h"
#include "base/temp_text.h"

namespace {

constexpr const char* kTempPrefix = "$$$_";
// Room for the full name: the current folder in front of a relative folder,
// and the unique name behind it.
constexpr size_t kTempNameRoom = 4096;

std::atomic<bool> tempUseSystemFolder{false};

}  // namespace

const char* sTempFileNear(const char* path, bool useSystemFolder) {
  if (!path) path = "";
  // A folder never has more characters than the path that it is taken from,
  // so a long path is not cut short into some other folder.
  std::string folder(std::max(std::strlen(path) + 1, kPathSize), '\0');
  if (useSystemFolder) {
    if (!tempUseSystemFolder.load()) return "";
    if (!boPlatformTempDirectory(folder.data(), folder.size())) return "";
  } else {
    sPathDirectoryTo(path, folder.data(), folder.size());
  }
  std::string name(folder.size() + kTempNameRoom, '\0');
  if (!boPlatformCreateTempFile(folder.c_str(), kTempPrefix, name.data(), name.size())) return "";
  return sTempCopy(name.c_str());
}

void vTempUseSystemFolder(bool flag) { tempUseSystemFolder.store(flag); }
