#include <gtest/gtest.h>

#include <string>

#include "base/text.h"
#include "road_model/model/adm_data.h"
#include "road_model/model/hyperlinks.h"
#include "road_model/model/model_parts.h"
#include "road_model/model/model_scalars.h"
#include "road_model/params/road_dim_params.h"
#include "road_model/params/sect_params.h"
#include "road_model/params/sect_triangulation_params.h"
#include "tests/support/model_file_text.h"

namespace {

const std::initializer_list<std::string> kDefaultSectParamsLines = {
    "INTERVAL 10.000", "TIGHTENANGLE 0.08726646", "MAXCIRCLEDEVXY 0.100",
    "MAXCIRCLEDEVZ 0.000", "DISTLEFT 20.000", "DISTRIGHT 20.000", "ALL 1",
    "CHAINSTART 0.0000", "CHAINEND 0.0000", "FLAGS 3", "APPLAYER "};

const std::initializer_list<std::string> kDefaultMassCalcLines = {
    "BUILDMODE 0", "CALCMODE 1", "REDUNDANTPOINTTOL 0.001", "TUNNELMODE 0",
    "CALCSTANDARD 0", "CALCTHEO 1", "CALCPHYS 2", "ROADTYPE 0", "WORKAREA 0",
    "WORKAREASTART 0.000", "WORKAREAEND 0.000", "SUPERSTRUCTUREMODE 0"};

}  // namespace

TEST(HeadSections, ANewModelWritesSectionParametersAndMassCalculation) {
  ModelPtr model = NewModel();
  std::string expected = sModelHead({"DATAVERSION 13"}, {"SECTPARAMS", "MASSCALC"}) +
                         "[+O_SECTPARAMS]\r\n" + sCrLf(kDefaultSectParamsLines) +
                         "[+O_MASSCALC]\r\n" + sCrLf(kDefaultMassCalcLines) + "[END]\r\n";
  EXPECT_EQ(sWrittenModel(model.get()), expected);

  // With nothing in it, a model still has MASSCALC.
  vRmModelSetSectParams(model.get(), nullptr);
  EXPECT_EQ(sWrittenModel(model.get()), sModelHead({"DATAVERSION 13"}, {"MASSCALC"}) +
                                            "[+O_MASSCALC]\r\n" +
                                            sCrLf(kDefaultMassCalcLines) + "[END]\r\n");
}

TEST(HeadSections, AFilledModelWritesEveryHeadSectionInOrder) {
  ModelPtr model = NewModel();
  vRmModelSetMarket(model.get(), "Swe");
  vRmModelSetGuid(model.get(), "{0F1E2D3C-4B5A-6978-8796-A5B4C3D2E1F0}");
  RmAdmData* data = RmAdmDataCreate();
  sHeapSet(&data->ProjectInfo, "E6 Kvithammar");
  sHeapSet(&data->ProjectDescr, "Ny veg\r\nmed bru");
  sHeapSet(&data->Employer, "Vegvesenet");
  vRmModelSetAdmData(model.get(), data);
  RmHyperlinks* links = RmHyperlinksCreate();
  sHeapSet(&links->Text, "Plan:c:\\plan.pdf Kart:http://kart.no/1");
  vRmModelSetHyperlinks(model.get(), links);
  RmSectParams* params = RmModelGetSectParams(model.get());
  params->Interval = 20.0;
  params->TightenAngle = 0.1;
  params->ChainStart = 100.25;
  params->ChainEnd = 1500.5;
  params->All = 0;
  vRmSectParamsSetAppLayer(params, "Profiler");
  RmSectTriangulationParams* triangulation = RmSectTriangulationParamsCreate();
  triangulation->MinPointDist = 0.0025;
  triangulation->Method = 2;
  vRmModelSetSectTriangulationParams(model.get(), triangulation);
  RmRoadDimParams* dims = RmRoadDimParamsCreate();
  sCopy(dims->RoadClass, "H5", sizeof dims->RoadClass);
  dims->ClassVersion = 2;
  vRmModelSetRoadDimParams(model.get(), dims);
  vRmModelSetCalcMode(model.get(), 2);
  vRmModelSetRedundantPointTol(model.get(), 0.005);
  vRmModelSetCalcStandard(model.get(), 3);
  vRmModelSetWorkArea(model.get(), 1);
  vRmModelSetWorkAreaRange(model.get(), RmChainRange{250.0, 780.5});

  std::string expected =
      sModelHead({"DATAVERSION 13", "MARKET Swe", "GUID {0F1E2D3C-4B5A-6978-8796-A5B4C3D2E1F0}"},
                 {"ADMDATA", "HYPERLINKSDATA", "SECTPARAMS", "SECTTRIANGULATIONPARAMS",
                  "ROADDIMPARAMS", "MASSCALC"}) +
      sCrLf({"[+O_ADMDATA]", "PROJECTINFO \"E6 Kvithammar\"",
             "PROJECTDESCR \"Ny veg\\nmed bru\"", "EMPLOYER Vegvesenet",
             "[+O_HYPERLINKSDATA]", " Plan:c:\\plan.pdf", " Kart:http://kart.no/1",
             "[+O_SECTPARAMS]", "INTERVAL 20.000", "TIGHTENANGLE 0.10000000",
             "MAXCIRCLEDEVXY 0.100", "MAXCIRCLEDEVZ 0.000", "DISTLEFT 20.000",
             "DISTRIGHT 20.000", "ALL 0", "CHAINSTART 100.2500", "CHAINEND 1500.5000",
             "FLAGS 3", "APPLAYER Profiler",
             "[+O_SECTTRIANGULATIONPARAMS]", "CHAINDEPTH 0.5000", "MAXEDGELEN 5.0000",
             "MINPOINTDIST 0.002500", "METHOD 2", "SIDEOFFSETCL 0.0000",
             "HEIGHTOFFSETCL 2.0000",
             "[+O_ROADDIMPARAMS]", "ROADCLASS H5", "CLASSVERSION 2",
             "[+O_MASSCALC]", "BUILDMODE 0", "CALCMODE 2", "REDUNDANTPOINTTOL 0.005",
             "TUNNELMODE 0", "CALCSTANDARD 3", "CALCTHEO 1", "CALCPHYS 2", "ROADTYPE 0",
             "WORKAREA 1", "WORKAREASTART 250.000", "WORKAREAEND 780.500",
             "SUPERSTRUCTUREMODE 0", "[END]"});
  // That bytes like these read back and write again the same is the record
  // families' fixture test.
  EXPECT_EQ(sWrittenModel(model.get()), expected);
}

TEST(HeadSections, AdministrativeTextsKeepTheirLineBreaksAndQuotes) {
  ModelPtr model = NewModel();
  RmAdmData* data = RmAdmDataCreate();
  sHeapSet(&data->ProjectInfo, " \"Bru\" ");
  sHeapSet(&data->ProjectDescr, "Linje 1\nLinje 2\rLinje 3\r\n");
  vRmModelSetAdmData(model.get(), data);
  std::string written = sWrittenModel(model.get());
  EXPECT_EQ(sSectionBody(written, "ADMDATA"),
            sCrLf({"PROJECTINFO Bru", "PROJECTDESCR \"Linje 1\\nLinje 2\\nLinje 3\\n\""}));
  ModelPtr again = ReadModel(written);
  ASSERT_NE(again, nullptr);
  ASSERT_NE(again->AdmData, nullptr);
  EXPECT_STREQ(again->AdmData->ProjectInfo, "Bru");
  EXPECT_STREQ(again->AdmData->ProjectDescr, "Linje 1\r\nLinje 2\r\nLinje 3\r\n");
  EXPECT_EQ(again->AdmData->Employer, nullptr);

  // A text that starts with a quote is not quoted again; the reader takes it
  // up to its next quote.
  sHeapSet(&data->ProjectDescr, "\"Sitert\" og mer");
  EXPECT_EQ(sSectionBody(sWrittenModel(model.get()), "ADMDATA"),
            sCrLf({"PROJECTINFO Bru", "PROJECTDESCR \"Sitert\" og mer"}));
  again = ReadModel(sWrittenModel(model.get()));
  EXPECT_STREQ(again->AdmData->ProjectDescr, "Sitert");

  // An over-long description is cut and keeps its closing quote.
  sHeapSet(&data->ProjectDescr, std::string(3000, 'x').c_str());
  std::string body = sSectionBody(sWrittenModel(model.get()), "ADMDATA");
  EXPECT_EQ(body.substr(body.size() - 5), "xx\"\r\n");
  EXPECT_LE(body.size(), std::string("PROJECTINFO Bru\r\n").size() + 1999 + 2);
}

TEST(HeadSections, HyperlinksWithoutTargetAreLeftOut) {
  ModelPtr model = NewModel();
  RmHyperlinks* links = RmHyperlinksCreate();
  sHeapSet(&links->Text, "  Tom: Plan:x.pdf Ingen  Web:http://a.no:80/b ");
  vRmModelSetHyperlinks(model.get(), links);
  std::string written = sWrittenModel(model.get());
  EXPECT_EQ(sSectionBody(written, "HYPERLINKSDATA"),
            sCrLf({" Plan:x.pdf", " Web:http://a.no:80/b"}));
  ModelPtr again = ReadModel(written);
  ASSERT_NE(again->Hyperlinks, nullptr);
  EXPECT_STREQ(again->Hyperlinks->Text, "Plan:x.pdf Web:http://a.no:80/b");

  // Lines that do not start with a blank are no links.
  again = ReadModel(sModelHead({}, {"HYPERLINKSDATA"}) +
                    sCrLf({"[+O_HYPERLINKSDATA]", "A:b", " C:d", " E:f", "[END]"}));
  ASSERT_NE(again, nullptr);
  EXPECT_STREQ(again->Hyperlinks->Text, "C:d E:f");
}

TEST(HeadSections, RoadDimensionsHaveAnOldFormForTheNorwegianMarket) {
  ModelPtr model = NewModel();
  RmRoadDimParams* dims = RmRoadDimParamsCreate();
  sCopy(dims->RoadClass, "S5", sizeof dims->RoadClass);
  sCopy(dims->VehicleClass, "VT", sizeof dims->VehicleClass);
  dims->Speed = 80;
  dims->Ydt = 4500;
  dims->BasicRoad = 1;
  vRmModelSetRoadDimParams(model.get(), dims);
  vRmModelSetMarket(model.get(), "nOR");
  EXPECT_EQ(sSectionBody(sWrittenModel(model.get()), "ROADDIMPARAMS"),
            sCrLf({"SPEED 80", "YDT 4500", "BASICROAD 1", "ROADCLASS S5", "VEHICLECLASS VT"}));
  vRmModelSetMarket(model.get(), "Swe");
  EXPECT_EQ(sSectionBody(sWrittenModel(model.get()), "ROADDIMPARAMS"),
            sCrLf({"ROADCLASS S5", "CLASSVERSION 0"}));

  // The reader takes all six anywhere, cuts the classes, and a CLASSVERSION
  // without its number keeps what was read before.
  std::string longClass(45, 'K');
  ModelPtr again = ReadModel(
      sModelHead({}, {"ROADDIMPARAMS"}) +
      sCrLf({"[+O_ROADDIMPARAMS]", "CLASSVERSION 4", "VEHICLECLASS ABCDEFG",
             "ROADCLASS " + longClass, "CLASSVERSION", "YDT", "SPEED 60 km/h", "[END]"}));
  ASSERT_NE(again, nullptr);
  ASSERT_NE(again->RoadDimParams, nullptr);
  EXPECT_EQ(std::string(again->RoadDimParams->RoadClass), longClass.substr(0, 39));
  EXPECT_STREQ(again->RoadDimParams->VehicleClass, "ABCD");
  EXPECT_EQ(again->RoadDimParams->ClassVersion, 4);
  EXPECT_EQ(again->RoadDimParams->Ydt, 0);
  EXPECT_EQ(again->RoadDimParams->Speed, 60);
  EXPECT_EQ(again->RoadDimParams->BasicRoad, 0);
}

TEST(HeadSections, MassCalculationKeywordsHaveTheirOwnDefaults) {
  // CALCTHEO missing reads as 1, CALCTHEO alone as 0; the work area ends are
  // absent marks when missing.
  ModelPtr model = ReadModel(sModelHead({}, {"MASSCALC"}) +
                             sCrLf({"[+O_MASSCALC]", "CALCMODE 3", "UNKNOWN 17", "CALCPHYS",
                                    "REDUNDANTPOINTTOL", "[END]"}));
  ASSERT_NE(model, nullptr);
  EXPECT_EQ(model->CalcMode, 3);
  EXPECT_EQ(model->CalcTheo, 1);
  EXPECT_EQ(model->CalcPhys, 0);
  EXPECT_EQ(model->RedundantPointTol, 0.0);
  EXPECT_EQ(model->WorkAreaRange.Low, -99999.0);
  EXPECT_EQ(model->WorkAreaRange.High, -99999.0);

  // Without the section nothing is touched: the defaults of a new model.
  model = ReadModel(sModelHead({}, {"OTHER"}) + sCrLf({"[+O_OTHER]", "[END]"}));
  ASSERT_NE(model, nullptr);
  EXPECT_EQ(model->CalcMode, 1);
  EXPECT_EQ(model->WorkAreaRange.Low, 0.0);
  EXPECT_EQ(model->RedundantPointTol, 0.001);
}

TEST(HeadSections, SectionParametersBeforeVersionNineHaveNoCircleDeviation) {
  std::string sections = sCrLf({"[+O_SECTPARAMS]", "INTERVAL 5", "APPLAYER \"Min app\" x",
                                "FLAGS", "[+O_SECTTRIANGULATIONPARAMS]", "METHOD 1", "[END]"});
  ModelPtr old = ReadModel(sModelHead({"DATAVERSION 8"}, {"SECTPARAMS", "SECTTRIANGULATIONPARAMS"}) +
                           sections);
  ASSERT_NE(old, nullptr);
  EXPECT_EQ(old->DataVersion, 8);
  EXPECT_EQ(old->SectParams->MaxCircleDevXY, 0.0);
  EXPECT_EQ(old->SectParams->Interval, 5.0);
  EXPECT_EQ(old->SectParams->DistLeft, 20.0);
  EXPECT_EQ(old->SectParams->Flags, 0);
  EXPECT_STREQ(old->SectParams->AppLayer, "Min app");
  EXPECT_EQ(old->SectTriangulationParams->Method, 1);
  EXPECT_EQ(old->SectTriangulationParams->MaxEdgeLen, 5.0);

  ModelPtr versionless = ReadModel(sModelHead({}, {"SECTPARAMS"}) + sections);
  EXPECT_EQ(versionless->DataVersion, 0);
  EXPECT_EQ(versionless->SectParams->MaxCircleDevXY, 0.0);

  ModelPtr current =
      ReadModel(sModelHead({"DATAVERSION 9"}, {"SECTPARAMS"}) + sections);
  EXPECT_EQ(current->SectParams->MaxCircleDevXY, 0.1);
  // A file without SECTPARAMS leaves the parameters of a new model.
  ModelPtr without = ReadModel(sModelHead({"DATAVERSION 2"}, {"MASSCALC"}) + sCrLf({"[END]"}));
  ASSERT_NE(without->SectParams, nullptr);
  EXPECT_EQ(without->SectParams->MaxCircleDevXY, 0.1);
}
