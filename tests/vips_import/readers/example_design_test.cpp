// The example designs converted with all flags and the shipped settings,
// compared byte for byte with the model files pinned in tests/data/examples:
// any change of the conversion's output shows there, in review.
#include <gtest/gtest.h>

#include <string>

#include "kvrvips/kvrvips.h"
#include "road_model/names/fresh_guid.h"
#include "tests/vips_import/conversion_fixtures.h"

namespace {

// The first line in which two files part, with its number.
std::string sFirstDifference(const std::string& actual, const std::string& expected) {
  size_t start = 0;
  int number = 1;
  while (true) {
    size_t a = actual.find('\n', start);
    size_t e = expected.find('\n', start);
    std::string lineA = actual.substr(start, a == std::string::npos ? a : a - start);
    std::string lineE = expected.substr(start, e == std::string::npos ? e : e - start);
    if (lineA != lineE || a != e || a == std::string::npos) {
      return "line " + std::to_string(number) + ": \"" + lineA + "\", expected \"" + lineE + "\"";
    }
    start = a + 1;
    ++number;
  }
}

}  // namespace

TEST(ExampleDesign, ConvertsIntoThePinnedModelFiles) {
  for (const char* name : {"road", "railway"}) {
    SCOPED_TRACE(name);
    ScratchFolder folder;
    const std::string design = folder / (std::string(name) + ".json");
    const std::string model = folder / (std::string(name) + ".sfi");
    vWriteWholeFile(design, sReadWholeFile(std::string(KVRVIPS_SOURCE_DIR) + "/examples/" +
                                           name + ".json"));
    // The layer names' GUIDs are the only thing that differs run to run.
    vRmFreshGuidSeed(23);
    char* logFile = nullptr;
    ASSERT_EQ(iKvrVipsConvertDatabase(design.c_str(), model.c_str(), KVRVIPS_IMPORT_FULL,
                                      &logFile, sShippedSettings().c_str(), 0, 0),
              0);
    const std::string actual = sReadWholeFile(model);
    const std::string expected = sReadWholeFile(std::string(KVRVIPS_TEST_DATA_DIR) +
                                                "/examples/" + name + ".sfi");
    if (actual != expected) {
      // Beside the test's working folder, for review and for pinning anew.
      const std::string kept = std::string(name) + ".sfi.actual";
      vWriteWholeFile(kept, actual);
      ADD_FAILURE() << "the model file differs from the pinned one at "
                    << sFirstDifference(actual, expected) << "; it is kept as " << kept;
    }
  }
}
