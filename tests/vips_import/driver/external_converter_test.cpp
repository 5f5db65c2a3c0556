// The external converter, run by a copy of the shared library from the
// folder that the copy lies in. Each stand-in converter exits with one code.
#include <gtest/gtest.h>

#include <dlfcn.h>

#include <filesystem>
#include <string>

#include "kvrvips/kvrvips.h"
#include "tests/vips_import/conversion_fixtures.h"

namespace {

namespace fs = std::filesystem;

// A copy of the library kvrvips in a folder of its own, with the
// design-model library beside it, loaded for one test.
class CopiedLibrary {
 public:
  // `converterExitCode` chooses the stand-in that is placed beside the copy
  // as kvrvips_convert_gen; a negative code places none.
  CopiedLibrary(const std::string& folder, int converterExitCode) {
    fs::copy_file(KVRVIPS_LIBRARY, folder + "/libkvrvips.so");
    fs::copy_file(KVRVIPS_DESIGN_MODEL_LIBRARY,
                  folder + "/" + fs::path(KVRVIPS_DESIGN_MODEL_LIBRARY).filename().string());
    if (converterExitCode >= 0) {
      std::string converter = folder + "/kvrvips_convert_gen";
      fs::copy_file(std::string(KVRVIPS_CONVERTERS_DIR) + "/kvrvips_converter_exit_" +
                        std::to_string(converterExitCode),
                    converter);
      fs::permissions(converter, fs::perms::owner_all);
    }
    handle_ = dlopen((folder + "/libkvrvips.so").c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle_) {
      convert_ = reinterpret_cast<decltype(&iKvrVipsConvertDatabase)>(
          dlsym(handle_, "iKvrVipsConvertDatabase"));
    }
  }
  ~CopiedLibrary() {
    if (handle_) dlclose(handle_);
  }
  CopiedLibrary(const CopiedLibrary&) = delete;
  CopiedLibrary& operator=(const CopiedLibrary&) = delete;

  bool loaded() const { return convert_ != nullptr; }

  // Converts with the converter run first and returns the result; the log's
  // content goes to `log`.
  int Convert(const std::string& design, const std::string& modelFile, std::string* log) const {
    char* logFile = nullptr;
    int result = convert_(design.c_str(), modelFile.c_str(), KVRVIPS_IMPORT_FULL, &logFile,
                          sShippedSettings().c_str(), 0, 1);
    *log = logFile ? sReadWholeFile(logFile) : "<no log path>";
    return result;
  }

 private:
  void* handle_ = nullptr;
  decltype(&iKvrVipsConvertDatabase) convert_ = nullptr;
};

// The scratch folder's path as the library sees its own: links resolved.
std::string sCanonical(const ScratchFolder& folder) {
  return fs::canonical(folder.path()).string();
}

// A full import of a design without alignments or tables.
const std::string kFullLog = sLogHead("Np21", "Road", "10.0") +
                             "  Leser tabell: Overstyring av vertikalkurvatur\n\n\n"
                             "Leser ekstra linjer\n"
                             "Leser tabell: Min. gr\xF8" "fte dybde\n\n";

TEST(ExternalConverter, SuccessGoesOnToOpenTheDesign) {
  ScratchFolder folder;
  std::string library = sCanonical(folder);
  CopiedLibrary copy(library, 1001);
  ASSERT_TRUE(copy.loaded()) << dlerror();
  std::string design = library + "/veg.json";
  vWriteWholeFile(design, sDesignDocument(sInputOf("10.0", 1)));

  std::string log;
  EXPECT_EQ(copy.Convert(design, library + "/veg.sfi", &log), 0);
  EXPECT_EQ(log, kFullLog);
  EXPECT_EQ(sReadWholeFile(library + "/kvrvips_convert_gen.arguments"), design + "\n");
  EXPECT_TRUE(fs::exists(library + "/veg.sfi"));
}

TEST(ExternalConverter, EveryOtherExitCodeFailsTheImportAndLeavesTheModelFile) {
  struct Case {
    int exitCode;  // -1: no converter beside the library
    std::string log;
  };
  const Case cases[] = {
      {1, "Feil kode 1: Feil ved kj\xF8ring av @/kvrvips_convert_gen\n"},
      {1000, "Feil kode 0: GEN / VEG / TER / MAS / VPR / HOR / VRT ikke funnet\n"},
      {999, "Feil kode -1: Feil ved konvertering av VIPS gen database\n"},
      {0, "\n"},
      {-1, "\n"},
  };
  for (const Case& test : cases) {
    ScratchFolder folder;
    std::string library = sCanonical(folder);
    CopiedLibrary copy(library, test.exitCode);
    ASSERT_TRUE(copy.loaded()) << dlerror();
    std::string design = library + "/veg.json";
    vWriteWholeFile(design, sDesignDocument(sInputOf("10.0", 1)));
    vWriteWholeFile(library + "/veg.sfi", "old model file");

    std::string expected = test.log;
    if (size_t at = expected.find('@'); at != std::string::npos) expected.replace(at, 1, library);
    std::string log;
    EXPECT_EQ(copy.Convert(design, library + "/veg.sfi", &log), -1) << test.exitCode;
    EXPECT_EQ(log, expected) << test.exitCode;
    EXPECT_EQ(sReadWholeFile(library + "/veg.sfi"), "old model file") << test.exitCode;
  }
}

TEST(ExternalConverter, APathWithBlanksReachesTheConverterAsSeveralArguments) {
  ScratchFolder folder;
  std::string library = sCanonical(folder);
  CopiedLibrary copy(library, 1001);
  ASSERT_TRUE(copy.loaded()) << dlerror();
  fs::create_directory(library + "/med blank");
  std::string design = library + "/med blank/veg.json";
  vWriteWholeFile(design, sDesignDocument(sInputOf("10.0", 1)));

  std::string log;
  EXPECT_EQ(copy.Convert(design, library + "/veg.sfi", &log), 0);
  EXPECT_EQ(sReadWholeFile(library + "/kvrvips_convert_gen.arguments"),
            library + "/med\nblank/veg.json\n");
  EXPECT_EQ(log, kFullLog);
}

}  // namespace
