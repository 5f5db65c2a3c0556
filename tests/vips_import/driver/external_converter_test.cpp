// The external converter, run by a copy of the shared library from the
// folder that the copy lies in. Each stand-in converter exits with one code.
#include <gtest/gtest.h>

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#else
#include <dlfcn.h>
#endif

#include <filesystem>
#include <memory>
#include <string>
#include <type_traits>

#include "base/platform.h"
#include "kvrvips/kvrvips.h"
#include "tests/vips_import/conversion_fixtures.h"

namespace {

namespace fs = std::filesystem;

#ifdef _WIN32
struct LibraryCloser {
  void operator()(HMODULE module) const { FreeLibrary(module); }
};
using Library = std::unique_ptr<std::remove_pointer_t<HMODULE>, LibraryCloser>;
Library OpenLibrary(const std::string& path) { return Library(LoadLibraryA(path.c_str())); }
void* pLibraryFunction(const Library& library, const char* name) {
  return reinterpret_cast<void*>(GetProcAddress(library.get(), name));
}
std::string sLibraryError() { return "error " + std::to_string(GetLastError()); }
#else
struct LibraryCloser {
  void operator()(void* handle) const { dlclose(handle); }
};
using Library = std::unique_ptr<void, LibraryCloser>;
Library OpenLibrary(const std::string& path) {
  return Library(dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL));
}
void* pLibraryFunction(const Library& library, const char* name) {
  return dlsym(library.get(), name);
}
std::string sLibraryError() { return dlerror(); }
#endif

// The converter's path as the library names it in the log, "@" standing for
// its folder.
const std::string kConverter =
    std::string("@") + cPlatformPathSeparator() + "kvrvips_convert_gen" + kPlatformProgramSuffix;

struct ConverterRun {
  int result = -1;
  std::string log;
  std::string arguments;  // those the converter was given, one a line
  std::string modelFile;
};

// Converts a design at `design` in a fresh folder through a copy of the
// library kvrvips there, with the design-model library beside it and, as
// kvrvips_convert_gen, the stand-in that exits with `exitCode` (none where
// it is negative); a model file of `oldModel` lies there first, if any. In the
// texts, "@" stands for the folder as the library sees it: links resolved.
ConverterRun RunWithConverter(int exitCode, const std::string& design,
                              const std::string& oldModel) {
  ScratchFolder scratch;
  std::string folder = fs::canonical(scratch.path()).make_preferred().string();
  const std::string library = folder + "/" + fs::path(KVRVIPS_LIBRARY).filename().string();
  fs::copy_file(KVRVIPS_LIBRARY, library);
  fs::copy_file(KVRVIPS_DESIGN_MODEL_LIBRARY,
                folder + "/" + fs::path(KVRVIPS_DESIGN_MODEL_LIBRARY).filename().string());
  if (exitCode >= 0) {
    fs::copy_file(
        std::string(KVRVIPS_CONVERTERS_DIR) + "/kvrvips_converter_exit_" +
            std::to_string(exitCode) + kPlatformProgramSuffix,
        folder + "/kvrvips_convert_gen" + kPlatformProgramSuffix);
    fs::permissions(folder + "/kvrvips_convert_gen" + kPlatformProgramSuffix,
                    fs::perms::owner_all);
  }
  fs::create_directories(fs::path(folder + "/" + design).parent_path());
  vWriteWholeFile(folder + "/" + design, sDesignDocument(sInputOf("10.0", 1)));
  if (!oldModel.empty()) vWriteWholeFile(folder + "/veg.sfi", oldModel);

  ConverterRun run;
  Library loaded = OpenLibrary(library);
  auto convert = loaded ? reinterpret_cast<decltype(&iKvrVipsConvertDatabase)>(
                              pLibraryFunction(loaded, "iKvrVipsConvertDatabase"))
                        : nullptr;
  if (!convert) {
    ADD_FAILURE() << sLibraryError();
    return run;
  }
  char* logFile = nullptr;
  run.result = convert((folder + "/" + design).c_str(), (folder + "/veg.sfi").c_str(),
                       KVRVIPS_IMPORT_FULL, &logFile, sShippedSettings().c_str(), 0, 1);
  run.log = logFile ? sReadTextFile(logFile) : "<no log path>";
  run.arguments = sReadWholeFile(folder + "/kvrvips_convert_gen.arguments");
  run.modelFile = sReadWholeFile(folder + "/veg.sfi");
  for (std::string* text : {&run.log, &run.arguments}) {
    for (size_t at; (at = text->find(folder)) != std::string::npos;) {
      text->replace(at, folder.size(), "@");
    }
  }
  return run;
}

// A full import of a design without alignments or tables.
const std::string kFullLog = sLogHead("Np21", "Road", "10.0") +
                             "  Leser tabell: Overstyring av vertikalkurvatur\n\n\n"
                             "Leser ekstra linjer\n" +
                             sTablesLog() + sSectionsLog();

TEST(ExternalConverter, SuccessGoesOnToOpenTheDesign) {
  // A path with blanks reaches the converter as several arguments.
  const struct {
    std::string design, arguments;
  } cases[] = {{"veg.json", "@/veg.json\n"}, {"med blank/veg.json", "@/med\nblank/veg.json\n"}};
  for (const auto& test : cases) {
    ConverterRun run = RunWithConverter(1001, test.design, "");
    EXPECT_EQ(run.result, 0) << test.design;
    EXPECT_EQ(run.log, kFullLog) << test.design;
    EXPECT_EQ(run.arguments, test.arguments);
    EXPECT_EQ(run.modelFile.rfind("[KVRFILE_ASCII]\r\n", 0), 0u) << test.design;
  }
}

TEST(ExternalConverter, EveryOtherExitCodeFailsTheImportAndLeavesTheModelFile) {
  const struct {
    int exitCode;  // -1: no converter beside the library
    std::string log;
  } cases[] = {
      {1, "Feil kode 1: Feil ved kj\xF8ring av " + kConverter + "\n"},
      {1000, "Feil kode 0: GEN / VEG / TER / MAS / VPR / HOR / VRT ikke funnet\n"},
      {999, "Feil kode -1: Feil ved konvertering av VIPS gen database\n"},
      {0, "\n"},
      {-1, "\n"},
  };
  for (const auto& test : cases) {
    ConverterRun run = RunWithConverter(test.exitCode, "veg.json", "old model file");
    EXPECT_EQ(run.result, -1) << test.exitCode;
    EXPECT_EQ(run.log, test.log) << test.exitCode;
    EXPECT_EQ(run.modelFile, "old model file") << test.exitCode;
  }
}

}  // namespace
