// A model file with locked sections and mass types: the load computes the
// masses of the locked sections, and a save writes them with their outlines.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "road_model/model/model_parts.h"
#include "road_model/sections/section_masses.h"
#include "road_model/sections/section_set.h"

#include "tests/support/model_file_text.h"

namespace {

// A cut and a fill of a level design under sloping terrain; the locked
// section carries masses of an older calculation, the other one too.
std::string sSlopeModel(int version, const char* flags) {
  const std::string sections = sCrLf({
      ":CHAIN 100.0000", std::string("FLAGS ") + flags, "MASS", " 1 99 0", " 2 99 0",
      " 3 99 0", "LAYER 11", " -10 1 0", " 10 1 0", "LAYER 12", " -10 0 0", " 10 2 0",
      ":CHAIN 120.0000", "MASS", " 1 99 0", "LAYER 11", " -10 1 0", " 10 1 0", "LAYER 12",
      " -10 0 0", " 10 2 0"});
  const std::string types = sCrLf({":MASSTYPE 1 Cut", "CALCTYPE 0", "FLAYERS 12", "TOLAYERS 11",
                                   ":MASSTYPE 2 Fill", "CALCTYPE 0", "FLAYERS 11", "TOLAYERS 12",
                                   ":MASSTYPE 3 Missing", "CALCTYPE 0", "FLAYERS 12",
                                   "TOLAYERS 41"});
  return sModelFileOf(version, {{"CROSSECTIONS", sections}, {"CSECTMASSTYPES", types}});
}

TEST(LockedMasses, TheLoadComputesThemAndTheSaveWritesTheirOutlines) {
  for (const int version : {13, 2}) {
    ModelPtr model = ReadModel(sSlopeModel(version, "8"));
    ASSERT_NE(model, nullptr);
    const std::string bytes = sWrittenModel(model.get());
    // The locked section: masses of its layers, mass 3 gone for its missing
    // layer; the other section keeps what the file said.
    EXPECT_EQ(sSectionBody(bytes, "CROSSECTIONS"),
              sCrLf({":CHAIN 100.0000", "FLAGS 8",
                     "CLRANG 0.00000 0.00000 0.000 0.000 0.000000 0", "MASS", " 1 5 6.6667",
                     " 2 5 -6.6667", "LAYER 11", " -10 1 0", " 10 1 0", "LAYER 12", " -10 0 0",
                     " 10 2 0", ":CHAIN 120.0000",
                     "CLRANG 0.00000 0.00000 0.000 0.000 0.000000 0", "MASS", " 1 99 0",
                     "LAYER 11", " -10 1 0", " 10 1 0", "LAYER 12", " -10 0 0", " 10 2 0"}))
        << version;
    EXPECT_EQ(sBody(bytes, "[+L_CSECTSMASSESLINES]"),
              sCrLf({":L 0", "_EXTENT 0 1 10 2 ", "_FIELDVALUES 100.0000;1;1;", "GUID ", "_ASPOLY",
                     "/XY", "0 1", "10 1", "10 2", ":L 0", "_EXTENT -10 0 0 1 ",
                     "_FIELDVALUES 100.0000;2;1;", "GUID ", "_ASPOLY", "/XY", "-10 0", "0 1",
                     "-10 1"}))
        << version;
    EXPECT_TRUE(model->Dirty) << version;
  }
}

TEST(LockedMasses, UnlockedSectionsKeepWhatTheFileSays) {
  ModelPtr model = ReadModel(sSlopeModel(13, "0"));
  ASSERT_NE(model, nullptr);
  const std::string body = sSectionBody(sWrittenModel(model.get()), "CROSSECTIONS");
  EXPECT_NE(body.find("MASS\r\n 1 99 0\r\n 2 99 0\r\n 3 99 0\r\n"), std::string::npos);
  EXPECT_FALSE(model->Dirty);
}

// Masses of every kind at once, in the seed file of the fuzz runs.
TEST(LockedMasses, EveryKindOfMassInOneFile) {
  std::ifstream in(KVRVIPS_TEST_DATA_DIR "/section_geometry/locked_masses.sfi", std::ios::binary);
  ModelPtr model = ReadModel(std::string(std::istreambuf_iterator<char>(in), {}));
  ASSERT_NE(model, nullptr);
  const RmSection* section = RmSectionsGetFirst(RmModelGetCrossSections(model.get()));
  ASSERT_NE(section, nullptr);
  struct Expected {
    int massId;
    double area;
  };
  // The cut of a terrain with a gap; the fill, its upper layer raised by
  // 0.0005 over 4 m for its minimum thickness; the cut under two terrains
  // between the restriction's limits (-4 to 6); the outline; the cut less
  // the fill.
  for (const Expected e : {Expected{1, 16.0}, Expected{2, 2.002}, Expected{3, 21.0},
                           Expected{4, 6.0}, Expected{6, 13.998}}) {
    const RmMass* mass = RmMassFind(section, e.massId);
    ASSERT_NE(mass, nullptr) << e.massId;
    EXPECT_NEAR(mass->Area, e.area, 1e-4) << e.massId;
  }
}

}  // namespace
