// The section families: CROSSECTIONS, LONGSECTIONS and their mass outlines,
// what their records are read as, the read-only forms, and what a load does
// to the sections of older files.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <numbers>
#include <random>
#include <string>

#include "base/numbers.h"
#include "geometry/line.h"
#include "model_file/records/sections/section_point_line.h"
#include "road_model/model/model_parts.h"
#include "road_model/sections/layer_lookup.h"
#include "road_model/model/model_lines.h"
#include "road_model/params/sect_params.h"
#include "road_model/sections/section_masses.h"
#include "road_model/sections/section_set.h"
#include "tests/support/model_file_text.h"
#include "tests/support/scratch_folder.h"

namespace {

// A file with every form of the section records: both sets, the mass
// outlines of both, clipping, tilt, rotation, build info, every point line
// form and a gap. The record families' test pins its bytes.
const std::string kFullFile =
    sReadWholeFile(std::string(KVRVIPS_TEST_DATA_DIR) + "/records/section_forms.sfi");

// A model file holding one text section of this name and body, at the
// DATAVERSION given (none for an empty text).
std::string sFileWith(const std::string& name, const std::string& body,
                      const std::string& version = "13") {
  std::string head = version.empty() ? std::string() : "DATAVERSION " + version;
  return sModelHead({head}, {name}) + "[+O_" + name + "]\r\n" + body + "[END]\r\n";
}

RmSection* Nth(const RmSectionSet* set, int n) {
  RmSection* section = RmSectionsGetFirst(set);
  while (section && n-- > 0) section = section->Next;
  return section;
}

}  // namespace

TEST(SectionRecords, EverySectionFormReadsIntoTheModel) {
  ModelPtr model = ReadModel(kFullFile);
  ASSERT_TRUE(model);

  // What the lines were read as, where the bytes written back do not show
  // it.
  const RmSectionSet* cross = RmModelGetCrossSections(model.get());
  ASSERT_EQ(iRmSectionsGetCount(cross), 3);
  const RmSection* first = Nth(cross, 0);
  double clip = 0.0;
  EXPECT_TRUE(boRmSectionGetClipDist(first, 1, &clip));
  EXPECT_DOUBLE_EQ(clip, 12.5);
  EXPECT_NEAR(first->Skew, 0.01, 1e-12);
  // The ends follow from the plan point, the reach and the angles.
  EXPECT_NEAR(first->LeftEnd[0], 5000.12345 - std::cos(-1.570796 + 0.01) * 20.0, 1e-9);
  EXPECT_NEAR(first->RightEnd[1], 6000.5 + std::sin(-1.570796 + 0.01) * 22.5, 1e-9);

  const RmLayer* layer = RmSectionLayersGetFirst(first);
  EXPECT_EQ(layer->Id.Type, 1u);
  EXPECT_EQ(layer->Id.Number, 2);
  const RmPoint* full = RmPointFindCode(layer, 10100);
  ASSERT_TRUE(full);
  EXPECT_EQ(full->Code, 0x01002774u);
  EXPECT_FLOAT_EQ(full->Radius, -40.0f);

  const RmMass* mass = RmMassFind(first, 3);
  ASSERT_TRUE(mass);
  EXPECT_EQ(iLiLineGetElmCount(mass->ExactLine), 2);
  EXPECT_EQ(iLiLineGetElmCount(mass->ApproxLine), 2);
  EXPECT_FALSE(RmMassFind(first, 7)->ExactLine);

  // Two sections of one chainage both stay.
  EXPECT_DOUBLE_EQ(Nth(cross, 1)->Chain, 1000.0);
  EXPECT_EQ(RmSectionLayersGetFirst(Nth(cross, 1)), nullptr);

  EXPECT_EQ(iRmSectionsGetCount(RmModelGetLongSections(model.get())), 2);
}

TEST(SectionRecords, ALongSectionSetWritesNeitherPlanPositionNorClippingNorTilt) {
  ModelPtr model = NewModel();
  RmSectionSet* set = RmModelGetOrCreateLongSections(model.get());
  RmSection* section = RmSectionAdd(set, nullptr, 12.5);
  section->ClX = 100.0;
  section->TunnelRotation = 3.0;
  vRmSectionSetClipDist(section, 1, true, 4.0);
  vRmSectionSetFlag(section, kRmSectionTilted, true);
  RmMassAdd(section, 2)->Area = 1.0 / 3.0;
  RmPointAdd(RmLayerAdd(section, RmLayerIdMake(2, 1)), nullptr, 0.5, 100.0, 0);
  EXPECT_EQ(sSectionBody(sWrittenModel(model.get()), "LONGSECTIONS"),
            sCrLf({":CHAIN 12.5000", "MASS", " 2 0.3333 0", "LAYER 12", " 0.5 100 0"}));
}

TEST(SectionRecords, PointLinesChooseTheirFormByMarkAndRadius) {
  char line[kRmPointLineSize];
  RmPoint point{};
  point.X = -0.00001f;
  point.Z = 100.0f;
  vRmPointSetPcode(&point, -1);
  EXPECT_EQ(std::string(line, uRmPointLineFormat(&point, line)), " -0 100 -1");
  point.Radius = 0.000009f;
  EXPECT_EQ(std::string(line, uRmPointLineFormat(&point, line)), " -0 100 -1");
  point.Radius = 0.5f;
  EXPECT_EQ(std::string(line, uRmPointLineFormat(&point, line)), " -0 100 -1 0.5");
  point.Radius = 0.0f;
  vRmPointSetMark(&point, 2);
  EXPECT_EQ(std::string(line, uRmPointLineFormat(&point, line)), " -0 100 -1 0 2");
  // The bits above the mark are no column of the line.
  point.Code |= 0xF0000000u;
  EXPECT_EQ(std::string(line, uRmPointLineFormat(&point, line)), " -0 100 -1 0 2");

  // Reading keeps the bits above the code and clears a missing mark.
  const char* text = " 1.5 -2.25 -30105";
  vRmPointLineRead(text, &point);
  EXPECT_EQ(point.X, 1.5f);
  EXPECT_EQ(point.Z, -2.25f);
  EXPECT_EQ(point.Radius, 0.0f);
  EXPECT_EQ(iRmPointGetPcode(&point), -30105);
  EXPECT_EQ(iRmPointGetMark(&point), 0);
  EXPECT_EQ(point.Code >> 26, 0x3Cu);
  // A line cut short reads as zeros.
  text = " 7";
  vRmPointLineRead(text, &point);
  EXPECT_EQ(point.X, 7.0f);
  EXPECT_EQ(point.Z, 0.0f);
  EXPECT_EQ(iRmPointGetPcode(&point), 0);
}

TEST(SectionRecords, AMinusZeroReadsAsZeroUnlessAPointFollows) {
  struct Case {
    const char* read;
    const char* written;
  };
  const Case cases[] = {
      {" -0 100 0", " 0 100 0"},
      {" 3 -0 0 -0 2", " 3 0 0 0 2"},
      // "-0.0" is the negative fraction 0.
      {" -0.0 100 0", " -0 100 0"},
  };
  for (const Case& c : cases) {
    ModelPtr model = ReadModel(sFileWith("CROSSECTIONS", sCrLf({":CHAIN 10", "LAYER 12", c.read})));
    ASSERT_TRUE(model) << c.read;
    EXPECT_EQ(sSectionBody(sWrittenModel(model.get()), "CROSSECTIONS"),
              sCrLf({":CHAIN 10.0000", "CLRANG 0.00000 0.00000 0.000 0.000 0.000000 0",
                     "LAYER 12", c.written}))
        << c.read;
  }
}

TEST(SectionRecords, PointLinesReadAsTheNumberReadersReadThem) {
  // The point line reads its common forms on its own; every form, odd ones
  // included, must give what the number readers give column by column.
  const char* lines[] = {
      " 1.5 -2.25 -30105 250.5 2",
      " -0 -0.0 0 -0.5 -1",
      " 0.0001 99999.9999 1 0.00001 3",
      " 3. 2.-5 7.5 1e5 +3",
      " 123456789.123456789 -1234567890.5 12345678901 .5 -.5",
      " 1.5x 2 3. \xff.1234567890123",
      "\xff.11111111111111111111 7",
      "  4  ",
      "",
  };
  for (const char* text : lines) {
    const char* place = text;
    const char* stop = text + std::strlen(text);
    auto next = [&](auto read) {
      while (*place == ' ') ++place;
      if (place >= stop) return decltype(read(place, &place))(0);
      const char* end = nullptr;
      auto value = read(place, &end);
      // A reader that took the terminator for a digit ends the line there.
      place = end > stop ? stop : end;
      return value;
    };
    RmPoint expected{};
    expected.X = static_cast<float>(next(dParseNumber));
    expected.Z = static_cast<float>(next(dParseNumber));
    int pcode = static_cast<int>(next(lParseInteger));
    expected.Radius = static_cast<float>(next(dParseNumber));
    int mark = static_cast<int>(next(lParseInteger));
    RmPoint point{};
    vRmPointLineRead(text, &point);
    EXPECT_EQ(std::memcmp(&point.X, &expected.X, sizeof(float)), 0) << text;
    EXPECT_EQ(std::memcmp(&point.Z, &expected.Z, sizeof(float)), 0) << text;
    EXPECT_EQ(std::memcmp(&point.Radius, &expected.Radius, sizeof(float)), 0) << text;
    EXPECT_EQ(point.Code, uRmCodeWordWithMark(uRmCodeWordWithPcode(0, pcode), mark)) << text;
  }
}

TEST(SectionRecords, CoordinatesPrintAsFourDecimalsOfPrintfTrimmed) {
  // Exact ties of single precision included: -3.46875 is one.
  std::mt19937 random(7);
  char fast[32];
  char slow[64];
  for (int i = 0; i < 200000; ++i) {
    float value = i == 0 ? -3.46875f
                         : static_cast<float>(static_cast<int>(random() % 4000001) - 2000000) /
                               static_cast<float>(1 << (random() % 12));
    *pRmPrintCoordinate(fast, value) = 0;
    std::snprintf(slow, sizeof slow, "%.4f", double(value));
    sTrimZeros(slow);
    ASSERT_STREQ(fast, slow) << value;
  }
}

TEST(SectionRecords, ReadOnlyFormsAndTheOrderOfFlagLines) {
  ModelPtr model = ReadModel(sFileWith(
      "CROSSECTIONS", sCrLf({
                          "LAYER 12",  // before any :CHAIN: skipped
                          " 1 2 3",
                          ":CHAIN 10",
                          "FLAGS 8",
                          "LOCKED 0",
                          "CLRPOINTS 100 200 97 204 106 192",
                          "CLTILT 0.5 20",
                          "LAYER 42",
                          "BUILDMETHOD",
                          "INTERMETHOD",
                          "BLOCKNAME \"Kum B\"",
                          " -1 5",
                          "",
                          " 1 6",  // an empty line has ended the layer
                          ":CHAIN 20",
                          "LCLIPDIST 3",
                          "FLAGS 16",  // FLAGS overwrites the clip bit
                          "LOCKED 1",
                          ":GROUPEND",
                          ":CHAIN 30",
                      })));
  ASSERT_TRUE(model);
  const RmSectionSet* set = RmModelGetCrossSections(model.get());
  ASSERT_EQ(iRmSectionsGetCount(set), 2);

  const RmSection* first = Nth(set, 0);
  EXPECT_EQ(first->Flags, 0u);
  EXPECT_DOUBLE_EQ(first->LeftDist, 5.0);
  EXPECT_DOUBLE_EQ(first->RightDist, 10.0);
  EXPECT_DOUBLE_EQ(first->Direction, std::atan2(-12.0, 9.0));
  EXPECT_DOUBLE_EQ(first->RightEnd[0], 106.0);
  EXPECT_DOUBLE_EQ(first->TiltHeight, 20.0);
  const RmLayer* layer = RmSectionLayersGetFirst(first);
  EXPECT_EQ(iRmLayerGetType(layer), 2u);
  EXPECT_EQ(iRmLayerGetNumber(layer), 4);
  EXPECT_EQ(iRmLayerGetBuildMethod(layer), 1);
  EXPECT_EQ(iRmLayerGetInterMethod(layer), 1);
  EXPECT_STREQ(sRmLayerGetBlockName(layer), "Kum B");
  EXPECT_EQ(iRmPointsGetCount(layer), 1);

  const RmSection* second = Nth(set, 1);
  EXPECT_EQ(second->Flags, kRmSectionTilted | kRmSectionLocked);

  // The tilt without its flag is kept, and not written.
  std::string written = sSectionBody(sWrittenModel(model.get()), "CROSSECTIONS");
  EXPECT_EQ(written.find("CLTILT"), written.rfind("CLTILT"));
  EXPECT_NE(written.find("FLAGS 24\r\nCLRANG 0.00000 0.00000 0.000 0.000 0.000000 0\r\n"
                         "CLTILT 0.00000000 0.00000\r\n"),
            std::string::npos);
}

TEST(SectionRecords, OlderFilesGetNewCodesAndAPlaceOnTheCentreLine) {
  const std::string body = sCrLf({":CHAIN 30", "LOCKED 1", "LAYER 11", " 0 1 30005",
                                  " 1 1 -30105", " 2 1 -99999", ":CHAIN 40",
                                  "CLRANG 1 2 3 4 0.5 0"});
  // A file without DATAVERSION runs every step; its line section holds the
  // centre line in the older form.
  std::string file =
      sCrLf({"[KVRFILE_ASCII]", "_VERSION 2", "_FILETYPE sfi", "_INDEX !!!!!!!!!!!!!!!!!!!!",
             sEmptyExtentLine(), "[L_]", "_EXTENT 0 0 100 0 ", "_FIELDNAMES CHAIN;",
             "[O_CROSSECTIONS]", "[+L_]", ":L 0", "_EXTENT 0 0 100 0 ", "_FIELDVALUES ;",
             "GUID ", "/XY", "0 0", "100 0", "[+O_CROSSECTIONS]"}) +
      body + "[END]\r\n";
  ModelPtr model = ReadModel(file);
  ASSERT_TRUE(model);
  ASSERT_TRUE(RmModelGetCenterLine(model.get()));
  const RmSectionSet* set = RmModelGetCrossSections(model.get());
  const RmLayer* layer = RmSectionLayersGetFirst(RmSectionsGetFirst(set));
  EXPECT_TRUE(RmPointFindCode(layer, 30500));
  EXPECT_TRUE(RmPointFindCode(layer, -30105));
  EXPECT_TRUE(RmPointFindCode(layer, -99999));
  EXPECT_TRUE(model->Dirty);

  const RmSection* unplaced = RmSectionsGetFirst(set);
  EXPECT_DOUBLE_EQ(unplaced->ClX, 30.0);
  EXPECT_DOUBLE_EQ(unplaced->LeftDist, 20.0);
  EXPECT_NEAR(unplaced->Direction, -std::numbers::pi / 2, 1e-12);
  const RmSection* placed = Nth(set, 1);
  EXPECT_DOUBLE_EQ(placed->ClX, 1.0);
  EXPECT_DOUBLE_EQ(placed->Direction, 0.5);

  // At the current version none of it happens.
  ModelPtr current = ReadModel(sFileWith("CROSSECTIONS", body));
  ASSERT_TRUE(current);
  const RmSectionSet* kept = RmModelGetCrossSections(current.get());
  EXPECT_TRUE(RmPointFindCode(RmSectionLayersGetFirst(RmSectionsGetFirst(kept)), 30005));
  EXPECT_EQ(RmSectionsGetFirst(kept)->ClX, 0.0);
  EXPECT_FALSE(current->Dirty);
}

TEST(SectionRecords, OnlyVersionZeroRewritesTheOldCodesOfBothSectionSets) {
  struct Case {
    const char* version;
    int code;
  };
  const Case cases[] = {{"0", 30500}, {"-1", 30005}, {"1", 30005}};
  const std::string body = sCrLf({":CHAIN 30", "LAYER 11", " 0 1 30005"});
  for (const Case& c : cases) {
    for (const char* name : {"CROSSECTIONS", "LONGSECTIONS"}) {
      ModelPtr model = ReadModel(sFileWith(name, body, c.version));
      ASSERT_TRUE(model) << c.version;
      const RmSectionSet* set = std::string(name) == "CROSSECTIONS"
                                    ? RmModelGetCrossSections(model.get())
                                    : RmModelGetLongSections(model.get());
      const RmLayer* layer = RmSectionLayersGetFirst(RmSectionsGetFirst(set));
      EXPECT_EQ(iRmPointGetPcode(RmPointsGetFirst(layer)), c.code) << name << ' ' << c.version;
    }
  }
}

TEST(SectionRecords, MassOutlinesFindTheirSectionWithinAMillimetreAndTheirMassById) {
  auto replaced = [](std::string bytes, const std::string& from, const std::string& to) {
    size_t at = bytes.find(from);
    if (at != std::string::npos) bytes.replace(at, from.size(), to);
    return bytes;
  };
  std::string bytes = replaced(kFullFile, "_FIELDVALUES 1000.0000;3;1;",
                               "_FIELDVALUES 1000.0009;3;1;");
  bytes = replaced(bytes, "_FIELDVALUES 1000.0000;3;0;", "_FIELDVALUES 1000.0000;8;0;");
  ModelPtr model = ReadModel(bytes);
  ASSERT_TRUE(model);
  const RmMass* mass = RmMassFind(RmSectionsGetFirst(RmModelGetCrossSections(model.get())), 3);
  EXPECT_TRUE(mass->ExactLine);
  EXPECT_FALSE(mass->ApproxLine);

  bytes = replaced(kFullFile, "_FIELDVALUES 1000.0000;3;1;", "_FIELDVALUES 1000.0011;3;1;");
  model = ReadModel(bytes);
  ASSERT_TRUE(model);
  mass = RmMassFind(RmSectionsGetFirst(RmModelGetCrossSections(model.get())), 3);
  EXPECT_FALSE(mass->ExactLine);
  EXPECT_TRUE(mass->ApproxLine);
}
