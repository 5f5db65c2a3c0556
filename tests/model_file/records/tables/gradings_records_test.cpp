// SPECIALGRADINGS, VIPSSPECIALGRADINGS and EROSIONPROTECTIONS beyond the
// fixture (tests/data/records/gradings.sfi): order, bad input, short rows and
// the lines that a new table leaves out.
#include <gtest/gtest.h>

#include <string>

#include "road_model/model/model_parts.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/tables/erosion_protections.h"
#include "road_model/tables/special_gradings.h"
#include "road_model/tables/vips_special_gradings.h"
#include "tests/support/model_file_text.h"

namespace {

const SectionRewrite kCases[] = {
    {"SPECIALGRADINGS",
     {" 1 1.0 2 2.0", ":SPECIALGRADINGCHAIN 200", " 30101 1.5 30201 2.5",
      ":SPECIALGRADINGCHAIN 100.5", " -30101 -3", "UNKNOWN 4", " 9 9 9 9", ":SPECIALGRADINGCHAIN"},
     // Chainages ascend; one without a number stands first. A row before a
     // chainage or behind another line has none to go to.
     {":SPECIALGRADINGCHAIN -99999.000", ":SPECIALGRADINGCHAIN 100.500", " -30101 -3.000 0 0.000",
      ":SPECIALGRADINGCHAIN 200.000", " 30101 1.500 30201 2.500"}},
    {"VIPSSPECIALGRADINGS",
     {":VIPSSPECIALGRADINGS 51", ":RIGHTSIDE", ":VIPSSPECIALGRADINGSURFACE 3", " 10 1.5",
      ":VIPSSPECIALGRADINGS 21", "MINTHICKLEFTPCODE -29999", "MINTHICKRIGHTPCODE 39999",
      ":VIPSSPECIALGRADINGSURFACE 9", ":LEFTSIDE", " 1 2 3 4 5 6 7 8 9 10 11 12",
      ":VIPSSPECIALGRADINGSURFACE 4", " 0 1 2 30101 7 1 0.5 0.04 0 -99999 -99999 0.02",
      ":RIGHTSIDE", ":VIPSSPECIALGRADINGS -1", ":LEFTSIDE", ":VIPSSPECIALGRADINGSURFACE 1", " 5"},
     // Entries ascend by layer number; a code at its default, a side without
     // surfaces, a surface before its side, a row before its surface and an
     // entry of no layer are left out; a short row keeps its defaults.
     {":VIPSSPECIALGRADINGS 21", "MINTHICKLEFTPCODE -29999", ":LEFTSIDE",
      ":VIPSSPECIALGRADINGSURFACE 4",
      " 0.000 1.000 2.000 30101 7 1 0.500 0.040 0 -99999.000 -99999.000 0.020",
      ":VIPSSPECIALGRADINGS 51", ":RIGHTSIDE", ":VIPSSPECIALGRADINGSURFACE 3",
      " 10.000 1.500 -99999.000 -99999 -99999 -1 -99999.000 -99999.000 -1 -99999.000 "
      "-99999.000 -99999.000"}},
    {"EROSIONPROTECTIONS",
     {":EROSIONPROTECTRIGHT 10 20 2", ":EROSIONPROTECTLEFT 0 5.5 1", " 1 2 3 4",
      ":EROSIONPROTECTPACKAGE 1 \"Stein mot bekk\"", "HEIGHTTABLERESTRICTION 5 2.5", " 1 1 1 1",
      "A 0.3", "LOWSOILCUT 1", ":EROSIONPROTECTIONHEIGHTENTRY", " 0 1 2 3", " 4 5", "B 7",
      " 8 8 8 8", ":EROSIONPROTECTPACKAGE 2"},
     // The left ranges first; rows count only behind the height entry line;
     // what a package leaves out is 0.
     {":EROSIONPROTECTLEFT 0.000 5.500 1", ":EROSIONPROTECTRIGHT 10.000 20.000 2",
      ":EROSIONPROTECTPACKAGE 1 \"Stein mot bekk\"", "HEIGHTTABLERESTRICTION 1 2.500", "A 0.300",
      "B 7.000", "LOWSOILCUT 1.000 0.000", ":EROSIONPROTECTIONHEIGHTENTRY",
      " 0.000 1.000 2.000 3.000", " 4.000 5.000 0.000 0.000", ":EROSIONPROTECTPACKAGE 2 \"\"",
      "HEIGHTTABLERESTRICTION 0 0.000", "A 0.000", "B 0.000", "LOWSOILCUT 0.000 0.000",
      ":EROSIONPROTECTIONHEIGHTENTRY"}},
};

}  // namespace

TEST(GradingRecords, SectionsAreWrittenBackInTheModelsOrderWithoutWhatCannotBeRead) {
  for (const SectionRewrite& section : kCases) {
    EXPECT_EQ(sSectionWrittenBack(section.Name, section.Read, section.Version),
              sCrLf(section.Written))
        << section.Name;
  }
}

TEST(GradingRecords, AnEmptySectionStoresAnEmptyTableAndWritesNothing) {
  ModelPtr model =
      ReadModel(sModelHead({"DATAVERSION 13"},
                           {"EROSIONPROTECTIONS", "SPECIALGRADINGS", "VIPSSPECIALGRADINGS"}) +
                sCrLf({"[+O_EROSIONPROTECTIONS]", "[+O_SPECIALGRADINGS]", ":SPECIALGRADINGCHAIN 5",
                       "[+O_VIPSSPECIALGRADINGS]", "[END]"}));
  ASSERT_NE(model, nullptr);
  const RmSurfGen* gen = RmModelGetSurfGen(model.get());
  EXPECT_NE(RmSurfGenGet<kRmErosionProtectionsSlot>(gen), nullptr);
  EXPECT_NE(RmSurfGenGet<kRmSpecialGradingsSlot>(gen), nullptr);
  EXPECT_NE(RmSurfGenGet<kRmVipsSpecialGradingsSlot>(gen), nullptr);
  const std::string written = sWrittenModel(model.get());
  for (const char* name : {"EROSIONPROTECTIONS", "SPECIALGRADINGS", "VIPSSPECIALGRADINGS"}) {
    EXPECT_EQ(sSectionBody(written, name), "<none>") << name;
  }
}

TEST(GradingRecords, ANewLayerTwoEntryWritesNoThicknessCodesAndANewRowItsMethodMarks) {
  ModelPtr model = NewModel();
  RmSurfGen* gen = RmSurfGenCreate();
  vRmModelSetSurfGen(model.get(), gen);
  RmVipsSpecialGradings* table = RmVipsSpecialGradingsCreate();
  vRmSurfGenSet<kRmVipsSpecialGradingsSlot>(gen, table);
  RmVipsSpecialGrading* entry = RmVipsSpecialGradingAdd(table, RmLayerIdMake(1, 2));
  RmVipsGradingRowAdd(RmVipsGradingSurfaceAdd(&entry->Left));
  EXPECT_EQ(sSectionBody(sWrittenModel(model.get()), "VIPSSPECIALGRADINGS"),
            sCrLf({":VIPSSPECIALGRADINGS 21", ":LEFTSIDE", ":VIPSSPECIALGRADINGSURFACE 0",
                   " -99999.000 -99999.000 -99999.000 -99999 -99999 -1 -99999.000 -99999.000 "
                   "-1 -99999.000 -99999.000 -99999.000"}));
}
