// The road class parameters, the road dimensions that take their class
// version, and the parameters along the road: their lines as the file
// holds them. That a full record reads back byte for byte is the record
// families' fixture test (road_class.sfi).
#include <gtest/gtest.h>

#include <string>

#include "road_model/params/road_class_parameters.h"
#include "road_model/params/road_dim_params.h"
#include "tests/support/model_file_text.h"

namespace {

// The lines of a file with one ROADCLASSPARAMETERS section and the market.
std::string sRoadClassFile(const std::string& market, std::initializer_list<std::string> lines) {
  return sModelHead({"DATAVERSION 13", "MARKET " + market}, {"ROADCLASSPARAMETERS"}) +
         "[+O_ROADCLASSPARAMETERS]\r\n" + sCrLf(lines) + "[END]\r\n";
}

// The lines of `body` that start with `keyword` and a blank.
std::string sLinesOf(const std::string& body, const std::string& keyword) {
  std::string lines;
  for (size_t start = 0; start < body.size();) {
    size_t end = body.find("\r\n", start) + 2;
    if (body.compare(start, keyword.size() + 1, keyword + " ") == 0) {
      lines += body.substr(start, end - start);
    }
    start = end;
  }
  return lines;
}

}  // namespace

TEST(RoadClassRecords, ValuesKeepTheirUnitRatioAndBadNumbersReadAsZero) {
  struct Case {
    const char* Keyword;
    const char* Read;
    const char* Written;
  } const kCases[] = {
      {"SPEEDLIMIT", "SPEEDLIMIT 80.0000", "SPEEDLIMIT 80.0000\r\n"},
      {"SPEEDLIMIT", "SPEEDLIMIT 80.0000;3,2", "SPEEDLIMIT 80.0000;3,2\r\n"},
      {"SPEEDLIMIT", "SPEEDLIMIT 2.5;0,1", "SPEEDLIMIT 2.5000;0,1\r\n"},
      {"SPEEDLIMIT", "SPEEDLIMIT 80.0000;1,1", "SPEEDLIMIT 80.0000\r\n"},
      // Nothing behind the keyword, or no number: given, and 0.
      {"SPEEDLIMIT", "SPEEDLIMIT", "SPEEDLIMIT 0.0000\r\n"},
      {"SPEEDLIMIT", "SPEEDLIMIT km/h;2,3", "SPEEDLIMIT 0.0000;2,3\r\n"},
      // A ratio without its comma leaves the value as it was: not given.
      {"SPEEDLIMIT", "SPEEDLIMIT 60;5", ""},
      // Always written, given or not.
      {"INTERSECTIONDISTANCE", "UNKNOWN 5", "INTERSECTIONDISTANCE 0.0000\r\n"},
      {"BRAKEFRICTION", "BRAKEFRICTION x", "BRAKEFRICTION 0.000\r\n"},
      {"BRAKEFRICTION", "BRAKEFRICTION 1e300", "BRAKEFRICTION 0.000\r\n"},
      {"NARROWROAD", "NARROWROAD yes", "NARROWROAD 0\r\n"},
      {"AADT_FROM", "AADT_FROM -5;1,1", "AADT_FROM 4294967291\r\n"},
      {"AADT_FROM", "AADT_FROM 4294967291", "AADT_FROM 4294967291\r\n"},
      {"INTERSECTIONTYPES", "INTERSECTIONTYPES -1", "INTERSECTIONTYPES 0\r\n"},
  };
  for (const Case& test : kCases) {
    ModelPtr model = ReadModel(sRoadClassFile("Nor", {test.Read}));
    ASSERT_NE(model, nullptr);
    const std::string body = sSectionBody(sWrittenModel(model.get()), "ROADCLASSPARAMETERS");
    EXPECT_EQ(sLinesOf(body, test.Keyword), test.Written) << test.Read;
  }
}

TEST(RoadClassRecords, ListsFillTheirPlacesInOrder) {
  ModelPtr model = ReadModel(sRoadClassFile(
      "Nor", {"SUPERELEVATION 700;1,1 2.5;1,100", "SUPERELEVATION 1500.0000", "SUPERELEVATION",
              "SUPERELEVATION 1;1,1 2;1,1", "SUPERELEVATION 9;1,1 9;1,1", "RIGHTLANE_WIDTH 3.5",
              "LEFTLANE_WIDTH 3.25;1,1", "RIGHTLANE_WIDTH 3.75;1,2"}));
  ASSERT_NE(model, nullptr);
  const std::string body = sSectionBody(sWrittenModel(model.get()), "ROADCLASSPARAMETERS");
  // The first value read is the place's second quantity and is written
  // first again; the second is written with six decimals. A fifth line has
  // no place, and the three profile speed limits stand at zero.
  EXPECT_EQ(sLinesOf(body, "SUPERELEVATION"), sCrLf({"SUPERELEVATION 700.0000;1,1 2.500000;1,100",
                                                     "SUPERELEVATION 1500.0000;1,1 0.000000;1,1",
                                                     "SUPERELEVATION 0.0000;1,1 0.000000;1,1",
                                                     "SUPERELEVATION 1.0000;1,1 2.000000;1,1"}));
  EXPECT_EQ(sLinesOf(body, "ADDPROFILESPEEDLIMIT"),
            sCrLf({"ADDPROFILESPEEDLIMIT 0.0000;1,1 0.000000;1,1",
                   "ADDPROFILESPEEDLIMIT 0.0000;1,1 0.000000;1,1",
                   "ADDPROFILESPEEDLIMIT 0.0000;1,1 0.000000;1,1"}));
  EXPECT_EQ(model->RoadClassParameters->SuperElevation[0].first.value, 2.5);
  EXPECT_EQ(
      sLinesOf(body, "LEFTLANE_WIDTH") + sLinesOf(body, "RIGHTLANE_WIDTH"),
      sCrLf({"LEFTLANE_WIDTH 3.2500", "RIGHTLANE_WIDTH 3.5000", "RIGHTLANE_WIDTH 3.7500;1,2"}));
}

TEST(RoadClassRecords, AnEmptySectionWritesTheLinesThatAreAlwaysThere) {
  ModelPtr model = ReadModel(sRoadClassFile("Swe", {}));
  ASSERT_NE(model, nullptr);
  ASSERT_NE(model->RoadClassParameters, nullptr);
  EXPECT_EQ(model->RoadClassParameters->market, 2);
  EXPECT_EQ(model->RoadClassParameters->classVersion, 2);
  std::string pairs;
  for (int i = 0; i < 3; ++i) pairs += "ADDPROFILESPEEDLIMIT 0.0000;1,1 0.000000;1,1\r\n";
  for (int i = 0; i < 4; ++i) pairs += "SUPERELEVATION 0.0000;1,1 0.000000;1,1\r\n";
  EXPECT_EQ(sSectionBody(sWrittenModel(model.get()), "ROADCLASSPARAMETERS"),
            sCrLf({"PARAMVERSION ", "CLASSNAME ", "ROADTYPE ", "DESCRIPTION ", "AADT_FROM 0",
                   "AADT_TO 0"}) +
                pairs.substr(0, pairs.find("SUPER")) + "BARRIERTYPE 0\r\n" +
                pairs.substr(pairs.find("SUPER")) +
                sCrLf({"INTERSECTIONTYPES 0", "INTERSECTIONTYPESATMINRAD 0",
                       "INTERSECTIONDISTANCE 0.0000", "INTERSECTIONMINHORIZONTAL 0.0000",
                       "INTERSECTIONMINVERTICAL 0.0000", "EXITPERMISSIONS 0",
                       "EXITMINVERTICALCREST 0.0000", "EMERGENCYLAYBYDIST 0.0000",
                       "PASSINGCARLANE 0", "LIGHTINGTYPE 0", "VEHICLECODE ", "DRIVINGSTYLE 0"}));
  model = ReadModel(sRoadClassFile("Nor", {}));
  EXPECT_EQ(model->RoadClassParameters->market, 1);
}

TEST(RoadClassRecords, RoadDimensionsTakeTheClassVersionOfTheRoadClass) {
  const std::string dims = "[+O_ROADDIMPARAMS]\r\nROADCLASS H5\r\n";
  ModelPtr model = ReadModel(
      sModelHead({"MARKET Nor", "DATAVERSION 13"}, {"ROADDIMPARAMS", "ROADCLASSPARAMETERS"}) +
      dims + "[+O_ROADCLASSPARAMETERS]\r\n[END]\r\n");
  ASSERT_NE(model, nullptr);
  EXPECT_EQ(sSectionBody(sWrittenModel(model.get()), "ROADDIMPARAMS"),
            sCrLf({"ROADCLASS H5", "CLASSVERSION 2"}));
  // Without road class parameters the Norwegian old form stays.
  model = ReadModel(sModelHead({"MARKET Nor"}, {"ROADDIMPARAMS"}) + dims + "[END]\r\n");
  EXPECT_EQ(model->RoadDimParams->ClassVersion, 0);
}

TEST(NrmRecords, RowsBelongToTheLastGroupAndCodesStandInOrder) {
  ModelPtr model =
      ReadModel(sModelHead({"DATAVERSION 13"}, {"NRMPARAMS"}) +
                sCrLf({"[+O_NRMPARAMS]", " 1 0 5", "CODE 411", " 10 2 -2.5", " 20", "OTHER 1",
                       " 30 0 1", "CODE 110", " 0 1 x", "CODE 411", " 40 0 7", "BRCHAIN 100.5 3",
                       " -4 0.25 2", " 4", ":GROUPEND", "CODE 9", " 0 0 1", "[END]"}));
  ASSERT_NE(model, nullptr);
  const std::string expected =
      sCrLf({"CODE 110", " 0.0000 1 0.0000", "CODE 411", " 10.0000 2 -2.5000", " 20.0000 0 0.0000",
             " 40.0000 0 7.0000", "BRCHAIN 100.5000 3", " -4.0000 0.2500 2", " 4.0000 0.0000 0"});
  EXPECT_EQ(sSectionBody(sWrittenModel(model.get()), "NRMPARAMS"), expected);

  // A copy of the model holds the same parameters.
  ModelPtr copy = NewModel();
  vRmModelCopy(copy.get(), model.get(), true);
  EXPECT_EQ(sSectionBody(sWrittenModel(copy.get()), "NRMPARAMS"), expected);

  // Branches alone make no section.
  model = ReadModel(sModelHead({"DATAVERSION 13"}, {"NRMPARAMS"}) +
                    sCrLf({"[+O_NRMPARAMS]", "BRCHAIN 1 1", " 1 2 3", "[END]"}));
  ASSERT_NE(model->NrmParams, nullptr);
  EXPECT_EQ(sSectionBody(sWrittenModel(model.get()), "NRMPARAMS"), "<none>");
}
