// LAYERNAMES, the mass types and the annotation types beyond the fixture
// (tests/data/records/vocabulary.sfi): order, bad input, older forms.
#include <gtest/gtest.h>

#include <string>

#include "road_model/model/model_parts.h"
#include "road_model/names/annotation_types.h"
#include "road_model/names/layer_names.h"
#include "road_model/names/mass_types.h"
#include "tests/support/model_file_text.h"
#include "tests/support/scratch_folder.h"

namespace {

// A file of version `version` with these O sections and bodies.
std::string sFile(const std::string& version, std::initializer_list<std::string> sections,
                  std::initializer_list<std::string> body) {
  return sModelHead({"DATAVERSION " + version}, sections) + sCrLf(body) + "[END]\r\n";
}

const std::string kGuid = "GUID 0F1E2D3C-4B5A-4978-8796-A5B4C3D2E1F0";

// The lines that every annotation type has, behind its head line.
std::string sPlainAnnotation(const std::string& head, int method = 0) {
  return sCrLf({head, "ANNOTATIONMETHOD " + std::to_string(method), "ANNOTATIONPOSITION 0",
                "FLAGS 0", "ANNOTOFFSET 0.000", "CHAINDEPTH 0.000", "DIFFMARKMETHOD 0",
                "DIFFFLAGS 0", "DIFFAPPROXDIST 0.000", "DIFFMAX 0.000", "PCODE 0",
                "DISTANCE 0.000", "LINESFLAGS 0", "ANNOTATIONPEN 0", "TEXTPEN 0",
                "TEXTHEIGHT 0.000"});
}

std::string sPlainMassType(const std::string& head) {
  return sCrLf({head, "CALCTYPE 0", "COMPOSEDTYPE 0", "COMBINED_AREA_OPTYPE 0",
                "COMBINED_AREA_JOINMETHOD 0"});
}

}  // namespace

TEST(VocabularyRecords, EntriesOutOfOrderAreWrittenInTheModelsOrderAndALaterDuplicateWins) {
  ModelPtr model = ReadModel(sFile(
      "13", {"LAYERNAMES", "LSECTMASSTYPES", "CSECTANOTATIONTYPES"},
      {"[+O_LAYERNAMES]", " 22 B", kGuid, " 12 A", kGuid, "CATEGORY 3", " 22 C", "PRIORITY 4",
       "[+O_LSECTMASSTYPES]", ":MASSTYPE 130 X", "CALCTYPE 4", ":MASSTYPE 120 Y",
       ":MASSTYPE 130 Z", "[+O_CSECTANOTATIONTYPES]", ":ANNOTATIONTYPE 3 C",
       ":ANNOTATIONTYPE 1 A", "FLAGS 5", ":ANNOTATIONTYPE 1 B"}));
  ASSERT_NE(model, nullptr);
  const std::string written = sWrittenModel(model.get());
  // The second group of a layer renames it and adds to it.
  EXPECT_EQ(sSectionBody(written, "LAYERNAMES"),
            sCrLf({" 12 A ", kGuid, "CATEGORY 3", " 22 C ", kGuid, "PRIORITY 4"}));
  EXPECT_EQ(sSectionBody(written, "LSECTMASSTYPES"),
            sPlainMassType(":MASSTYPE 120 Y") + sPlainMassType(":MASSTYPE 130 Z"));
  EXPECT_EQ(sSectionBody(written, "CSECTANOTATIONTYPES"),
            sPlainAnnotation(":ANNOTATIONTYPE 1 B") + sPlainAnnotation(":ANNOTATIONTYPE 3 C"));
  EXPECT_EQ(RmModelGetLSectMassTypes(model.get())->Kind, 1);
}

TEST(VocabularyRecords, MissingNumbersReadAsDefaultsAndUnknownLinesArePassedOver) {
  const std::string longName(3000, 'n');
  ModelPtr model = ReadModel(sFile(
      "13", {"LAYERNAMES", "CSECTMASSTYPES", "LSECTANOTATIONTYPES"},
      {"[+O_LAYERNAMES]", "COMPOSEDTYPE 1", "UNKNOWN 5", " 41 " + longName + " Color:",
       "GUID 0F1E2D3C-4B5A-4978-8796-A5B4C3D2E1F0-TOO-LONG", "COMPOSEDTYPE 2",
       "ADDCENTERPOINTIFMISSING", "LAYERSJOIN", "LAYERS 21||||||| 31|1.5 x|y",
       "[+O_CSECTMASSTYPES]", "SCALEFACTOR 3", ":MASSTYPE 200", "CALCTYPE", "SCALEFACTOR",
       "RESLINELEFT", "RESLAYEREXT_RIGHT", "RESTRICTIONLAYER", "STRANGE 1 2 3", "PRES Color:",
       " 1.0 2.0 3 4", "CHAINRANGES", " 5.5", "[+O_LSECTANOTATIONTYPES]", ":ANNOTATIONTYPE",
       "LAYER", "REMOVEVALUESHEIGHTRELCL"}));
  ASSERT_NE(model, nullptr);
  const std::string written = sWrittenModel(model.get());
  // The name is cut to a token, and the quoting cuts it again; the GUID to
  // its field. A colour that cannot be read leaves no presentation.
  EXPECT_EQ(sSectionBody(written, "LAYERNAMES"),
            sCrLf({" 41 " + std::string(997, 'n') + " ",
                   "GUID 0F1E2D3C-4B5A-4978-8796-A5B4C3D2E1F0", "COMPOSEDTYPE 2",
                   "LAYERS 21 31|1.500||0|1|0|0.000| 0"}));
  EXPECT_EQ(sSectionBody(written, "CSECTMASSTYPES"),
            sPlainMassType(":MASSTYPE 200 \"\"") + sCrLf({"CHAINRANGES", " 5.5000 0.0000 0 0"}));
  EXPECT_EQ(sSectionBody(written, "LSECTANOTATIONTYPES"), sPlainAnnotation(":ANNOTATIONTYPE 0 \"\""));
}

TEST(VocabularyRecords, OlderMassTypeFormsAreBroughtUpToDateForCrossSectionsOnly) {
  const std::initializer_list<std::string> oldType = {
      ":MASSTYPE 45 Gammel", "CALCTYPE 3", "MINTHICKNESS 0.250", "FLAYERS 12",
      "TOLAYERS 22", ":MEASUREMENTDELIVERY", "CALCTYPE 7", ":MASSTYPE 150 Flate",
      "AREALAYER 21", "AREASURFACECODES 1.01:1.99", ":MEASUREMENTDEPENDENCIES",
      "INFO passed over"};
  std::string body = "[+O_CSECTMASSTYPES]\r\n" + sCrLf(oldType) + "[+O_LSECTMASSTYPES]\r\n" +
                     sCrLf(oldType);
  ModelPtr model = ReadModel(sModelHead({"DATAVERSION 13"}, {"CSECTMASSTYPES", "LSECTMASSTYPES"}) +
                             body + "[END]\r\n");
  ASSERT_NE(model, nullptr);
  const std::string written = sWrittenModel(model.get());
  const std::string area = "AREALAYERS 21|0.000|1.01:1.99|0|1|0|0.000|";
  EXPECT_EQ(sSectionBody(written, "CSECTMASSTYPES"),
            sCrLf({":MASSTYPE 45 Gammel", "CALCTYPE 3", "COMPOSEDTYPE 0", "COMBINED_AREA_OPTYPE 0",
                   "COMBINED_AREA_JOINMETHOD 0", "CATEGORY 2", "AREALAYERS 22", "FLAYERS 12",
                   "TOLAYERS 12|0.250||0|1|0|0.000|", ":MASSTYPE 150 Flate", "CALCTYPE 0",
                   "COMPOSEDTYPE 0", "COMBINED_AREA_OPTYPE 0", "COMBINED_AREA_JOINMETHOD 0",
                   area}));
  EXPECT_EQ(sSectionBody(written, "LSECTMASSTYPES"),
            sCrLf({":MASSTYPE 45 Gammel", "CALCTYPE 3", "COMPOSEDTYPE 0", "COMBINED_AREA_OPTYPE 0",
                   "COMBINED_AREA_JOINMETHOD 0", "CATEGORY 2", "MINTHICKNESS 0.250",
                   "FLAYERS 12", "TOLAYERS 22", ":MASSTYPE 150 Flate", "CALCTYPE 0",
                   "COMPOSEDTYPE 0", "COMBINED_AREA_OPTYPE 0", "COMBINED_AREA_JOINMETHOD 0",
                   area}));
}

TEST(VocabularyRecords, LineAnnotationsOfVersionTwelveAndOlderTakeTheTypesName) {
  for (const char* version : {"12", "0", "13"}) {
    ModelPtr model = ReadModel(sFile(
        version, {"CSECTANOTATIONTYPES", "LSECTANOTATIONTYPES"},
        {"[+O_CSECTANOTATIONTYPES]", ":ANNOTATIONTYPE 1 \"Senter linje\"", "ANNOTATIONMETHOD 2",
         ":ANNOTATIONTYPE 2 Kant", "ANNOTATIONMETHOD 1", ":ANNOTATIONTYPE 3 Egen",
         "ANNOTATIONMETHOD 2", "LINENAME Vei", "[+O_LSECTANOTATIONTYPES]",
         ":ANNOTATIONTYPE 1 Lengde", "ANNOTATIONMETHOD 2"}));
    ASSERT_NE(model, nullptr);
    bool old = std::string(version) != "13";
    const RmAnnotationTypes* cross = RmModelGetCSectAnnotationTypes(model.get());
    EXPECT_STREQ(RmAnnotationTypeFind(cross, 1)->LineName, old ? "Senter linje" : nullptr);
    EXPECT_EQ(RmAnnotationTypeFind(cross, 2)->LineName, nullptr);
    EXPECT_STREQ(RmAnnotationTypeFind(cross, 3)->LineName, "Vei");
    EXPECT_STREQ(RmAnnotationTypesGetFirst(RmModelGetLSectAnnotationTypes(model.get()))->LineName,
                 old ? "Lengde" : nullptr);
  }
}

TEST(VocabularyRecords, ModelSlotsStampTheirKindAndCommitPendingLists) {
  ModelPtr model = NewModel();
  vRmModelSetLSectMassTypes(model.get(), RmMassTypesCreate(kRmMassTypesCross));
  EXPECT_EQ(RmModelGetLSectMassTypes(model.get())->Kind, kRmMassTypesLong);
  RmAnnotationTypes* pending = RmModelPrepareLSectAnnotationTypes(model.get());
  ASSERT_NE(pending, nullptr);
  EXPECT_EQ(pending->Kind, 1);
  RmAnnotationTypeAdd(pending, 7);
  RmLayerNameSet(RmModelPrepareLayerNames(model.get()), RmLayerIdMake(1, 6), "Planum");
  EXPECT_EQ(sSectionBody(sWrittenModel(model.get()), "LAYERNAMES"), "<none>");
  vRmModelCommitAll(model.get());
  EXPECT_TRUE(model->Dirty);
  EXPECT_NE(RmAnnotationTypeFind(RmModelGetLSectAnnotationTypes(model.get()), 7), nullptr);
  EXPECT_STREQ(sRmLayerNameGetName(RmModelGetLayerNames(model.get()), RmLayerIdMake(1, 6)),
               "Planum");

  ModelPtr copy = NewModel();
  vRmModelCopy(copy.get(), model.get(), false);
  EXPECT_EQ(sWrittenModel(copy.get()), sWrittenModel(model.get()));
}

TEST(VocabularyRecords, AFileOfOldAndBrokenFormsSettlesAfterOneLoad) {
  ModelPtr model = ReadModel(sReadWholeFile(std::string(KVRVIPS_TEST_DATA_DIR) +
                                            "/records/vocabulary_old_forms.sfi"));
  ASSERT_NE(model, nullptr);
  const std::string written = sWrittenModel(model.get());
  ModelPtr again = ReadModel(written);
  ASSERT_NE(again, nullptr);
  EXPECT_EQ(sWrittenModel(again.get()), written);
  EXPECT_STREQ(RmAnnotationTypeFind(RmModelGetCSectAnnotationTypes(model.get()), 1)->Name, "Igjen");
  // A negative number is no layer: its group is passed over.
  EXPECT_EQ(iRmLayerNamesCountOfType(RmModelGetLayerNames(model.get()), kRmAllLayerTypes), 2);
}
