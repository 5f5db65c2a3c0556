// A host as a Windows application is one: it loads kvrvips.dll by its path
// with LoadLibraryA, finds iKvrVipsConvertDatabase with GetProcAddress and
// converts a design into a model file. The host lies in a folder of its own,
// so the design-model DLL is found only beside kvrvips.dll. The DLL search
// path of the process must be the same after the call as before it: empty,
// or the folder given as SEARCH_PATH.
//
//   kvrvips_host DLL DESIGN MODEL SETTINGS [SEARCH_PATH]
//
// Exit status 0 when the conversion returned 0 and the search path is as it
// was, 1 otherwise (told on standard error), 2 on a usage error.
#define NOMINMAX
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <cstdio>
#include <string>

#include "kvrvips/kvrvips.h"

namespace {

// The DLL directory of the process; empty when none is set.
std::string sDllDirectory() {
  char path[MAX_PATH + 1] = {};
  DWORD length = GetDllDirectoryA(sizeof path, path);
  return std::string(path, length < sizeof path ? length : 0);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 5 && argc != 6) {
    std::fprintf(stderr, "usage: kvrvips_host DLL DESIGN MODEL SETTINGS [SEARCH_PATH]\n");
    return 2;
  }
  SetDllDirectoryA(argc == 6 ? argv[5] : nullptr);
  const std::string before = sDllDirectory();

  HMODULE library = LoadLibraryA(argv[1]);
  if (!library) {
    std::fprintf(stderr, "%s cannot be loaded: error %lu\n", argv[1], GetLastError());
    return 1;
  }
  auto convert = reinterpret_cast<decltype(&iKvrVipsConvertDatabase)>(
      reinterpret_cast<void*>(GetProcAddress(library, "iKvrVipsConvertDatabase")));
  if (!convert) {
    std::fprintf(stderr, "iKvrVipsConvertDatabase is not exported by %s\n", argv[1]);
    return 1;
  }
  char* logFile = nullptr;
  int result = convert(argv[2], argv[3], KVRVIPS_IMPORT_FULL, &logFile, argv[4], 0, 0);
  const std::string log = logFile ? logFile : "";
  const std::string after = sDllDirectory();
  FreeLibrary(library);

  int status = 0;
  if (result != 0) {
    std::fprintf(stderr, "the conversion returned %d; log: %s\n", result, log.c_str());
    status = 1;
  }
  if (after != before) {
    std::fprintf(stderr, "the DLL search path was \"%s\" and is \"%s\" after the call\n",
                 before.c_str(), after.c_str());
    status = 1;
  }
  return status;
}
