// The example design converted with all flags: the designed layers of its
// cross sections and the surface description as the design refines it.
#include <gtest/gtest.h>

#include <string>

#include "kvrvips/kvrvips.h"
#include "tests/vips_import/conversion_fixtures.h"

namespace {

// The designed layers (type 3) of the cross section whose head line is
// `head`: its lines up to the first layer of another type or the next
// section.
std::string sDesignedLayers(const std::string& bytes, const std::string& head) {
  size_t start = bytes.find(head + "\r\n");
  if (start == std::string::npos) return "<none>";
  size_t end = start + head.size() + 2;
  while (end < bytes.size()) {
    size_t next = bytes.find("\r\n", end);
    if (next == std::string::npos) break;
    std::string line = bytes.substr(end, next - end);
    if (line.starts_with(":") || line.starts_with("[") ||
        (line.starts_with("LAYER ") && !line.ends_with("3"))) {
      break;
    }
    end = next + 2;
  }
  return bytes.substr(start, end - start);
}

// The rows of the surface whose head line is `head`.
std::string sSurfaceRows(const std::string& bytes, const std::string& head) {
  size_t start = bytes.find(head + "\r\n");
  if (start == std::string::npos) return "<none>";
  size_t end = bytes.find("\r\n:", start);
  return end == std::string::npos ? "<none>" : bytes.substr(start, end + 2 - start);
}

}  // namespace

TEST(ExampleDesign, CrossSectionsCarryTheDesignedLinesAndTheSurfacesTheirDeviations) {
  ScratchFolder folder;
  vWriteWholeFile(folder / "road.json",
                  sReadWholeFile(std::string(KVRVIPS_SOURCE_DIR) + "/examples/road.json"));
  char* logFile = nullptr;
  ASSERT_EQ(iKvrVipsConvertDatabase((folder / "road.json").c_str(),
                                    (folder / "road.sfi").c_str(), KVRVIPS_IMPORT_FULL, &logFile,
                                    sShippedSettings().c_str(), 0, 0),
            0);
  const std::string bytes = sReadWholeFile(folder / "road.sfi");

  // Heights over the section's reference elevation; the pavement layers and
  // the road bed coded by the surface line.
  EXPECT_EQ(sDesignedLayers(bytes, ":CHAIN 175.0000"),
            sCrLf({":CHAIN 175.0000",
                   "CLRANG 596353.41543 6643280.21389 21.000 21.000 -0.876272 0", "LAYER 3",
                   " -5.7 114.824 -50100", " -4 115.674 -10200",
                   " -3.25 115.707 -10100", " 0 115.849 0", " 3.25 115.93 10100",
                   " 4 115.949 10200", " 5.76 115.069 50100", "LAYER 13", " -4.9 115.074 -1",
                   " 0 115.249 0", " 4.9 115.349 1", "LAYER 503", " -4.06 115.634 -1",
                   " 0 115.809 0", " 4.06 115.909 1", "LAYER 523", " -4.21 115.534 -1",
                   " 0 115.709 0", " 4.21 115.809 1"}));
  // Beyond its last row at 200 the left lane is told by the sections.
  EXPECT_EQ(sSurfaceRows(bytes, ":SURFACE -10100"),
            sCrLf({":SURFACE -10100", "DESCR \"Kj\xF8refelt venstre\"", " 0 3.25 -0.03 0",
                   " 120 3.25 -0.03 0", " 200 3.25 -0.05 0", " 225 3.25 -0.05015 1",
                   " 250 3.25 -0.05015 1", " 275 3.25 -0.05015 1", " 300 3.25 -0.05015 1",
                   " 325 3.25 -0.05015 1", " 350 3.25 -0.05015 1"}));
}
