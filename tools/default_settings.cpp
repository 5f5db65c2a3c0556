#include "tools/default_settings.h"

#include "base/platform.h"

#ifndef KVRVIPS_SETTINGS_FROM_PROGRAM
#error "KVRVIPS_SETTINGS_FROM_PROGRAM must name the settings file relative to the program's folder"
#endif

std::string sDefaultSettingsPath() {
  char program[4096];
  if (!boPlatformModulePath(program, sizeof program)) return {};
  std::string path = program;
  const char separator = cPlatformPathSeparator();
  size_t folderEnd = path.find_last_of(separator);
  if (folderEnd == std::string::npos) return {};
  path.resize(folderEnd + 1);
  for (const char* p = KVRVIPS_SETTINGS_FROM_PROGRAM; *p; ++p) path += *p == '/' ? separator : *p;
  char full[4096];
  if (!boPlatformFullPath(path.c_str(), full, sizeof full)) return path;
  return full;
}
