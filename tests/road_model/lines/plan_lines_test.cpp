#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "road_model/lines/chain_equations.h"
#include "road_model/lines/chain_stations.h"
#include "road_model/lines/diff_altitudes.h"
#include "road_model/lines/line_fields.h"
#include "road_model/model/model.h"
#include "road_model/model/model_lines.h"
#include "road_model/lines/vertical_line.h"
#include "tests/support/model_ptr.h"
#include "tests/support/owned.h"

namespace {

using LinesPtr = Owned<RmLines, vRmLinesDelete>;

std::vector<long> Ids(const RmLines* lines) {
  std::vector<long> ids;
  for (RmLine* line = RmLinesGetFirst(lines); line; line = RmLinesGetNext(lines, line)) {
    ids.push_back(lRmLineGetId(line));
  }
  return ids;
}

std::vector<std::string> FieldNames(const RmLines* lines) {
  std::vector<std::string> names;
  for (int i = 0; i < iLiLinesGetFieldCount(lines->Handle); ++i) {
    names.emplace_back(sLiLinesGetFieldName(lines->Handle, i));
  }
  return names;
}

}  // namespace

TEST(PlanLines, IdsOrderAndDefaults) {
  LinesPtr lines(RmLinesCreate());
  EXPECT_EQ(iRmLinesNextId(lines), 1);
  RmLinesAddWithId(lines, 7, false);
  RmLinesAddWithId(lines, 3, true);
  EXPECT_EQ(RmLinesAddWithId(lines, 7, false), nullptr);
  RmLinesAddWithId(lines, 5, false);
  EXPECT_EQ(Ids(lines), (std::vector<long>{3, 5, 7}));
  EXPECT_EQ(iRmLinesNextId(lines), 8);

  RmLine* front = RmLinesAddBefore(lines, RmLinesFindById(lines, 3), false);
  EXPECT_EQ(lRmLineGetId(front), 8);
  EXPECT_EQ(RmLinesGetFirst(lines), front);

  RmLine* main = RmLinesAddDefault(lines);
  EXPECT_EQ(lRmLineGetId(main), 9);
  EXPECT_EQ(std::string(sRmLineGetName(main)), "Arm, CL");
  EXPECT_EQ(RmLinesGetCenterLine(lines), main);
  vRmLinesRemoveNonCenter(lines);
  EXPECT_EQ(Ids(lines), (std::vector<long>{9}));

  RmLines* withDefault = RmLinesCreateDefault();
  EXPECT_EQ(iRmLinesGetCount(withDefault), 1);
  EXPECT_EQ(FieldNames(withDefault), (std::vector<std::string>{"CL", "NAME"}));
  vRmLinesDelete(&withDefault);
  vRmLinesDelete(&withDefault);  // a second delete finds null
}

TEST(PlanLines, FieldsAndLookups) {
  LinesPtr lines(RmLinesCreate());
  RmLine* a = RmLinesAddWithId(lines, 1, false);
  RmLine* b = RmLinesAddWithId(lines, 2, false);
  vRmLineSetName(a, "Kant venstre");
  vRmLineSetGuid(b, "{AB-12}");
  vRmLineSetPcode(b, -30105);
  EXPECT_EQ(std::string(sLiLineGetFieldByName(b, "PCODE")), "-3.0105");
  EXPECT_EQ(iRmLineGetPcode(b), -30105);
  EXPECT_EQ(iRmLineGetPcode(a), 0);

  EXPECT_EQ(RmLinesFindByName(lines, "KANT VENSTRE"), a);
  EXPECT_EQ(RmLinesFindByGuid(lines, "{ab-12}"), b);
  EXPECT_EQ(RmLinesFindByPcode(lines, -30105), b);
  EXPECT_EQ(RmLinesFindByName(lines, "none"), nullptr);
  EXPECT_EQ(RmLinesFindByName(nullptr, "none"), nullptr);
  EXPECT_EQ(RmLinesGetCenterLine(lines), nullptr);

  // Flags: INVISIBLE looks at the first character, CL and LIMITATION_LINE
  // read the number.
  boLiLineSetFieldByName(a, "INVISIBLE", "1x");
  boLiLineSetFieldByName(a, "CL", "0");
  EXPECT_TRUE(boRmLineIsInvisible(a));
  EXPECT_FALSE(boRmLineIsCenterLine(a));
  boLiLineSetFieldByName(b, "INVISIBLE", "01");
  boLiLineSetFieldByName(b, "CL", "01");
  EXPECT_FALSE(boRmLineIsInvisible(b));
  EXPECT_TRUE(boRmLineIsCenterLine(b));
  vRmLinesMarkLimitations(lines);
  EXPECT_TRUE(boRmLineIsLimitation(a));
  EXPECT_FALSE(boRmLineIsLimitation(b));
  vRmLineSetCenterLine(b, false);
  EXPECT_EQ(std::string(sLiLineGetFieldByName(b, "CL")), "");
}

TEST(PlanLines, SortByPcodeKeepsEqualCodesInOrder) {
  LinesPtr lines(RmLinesCreate());
  const int codes[] = {30100, -10100, 30100, 0, 20105};
  for (long id = 1; id <= 5; ++id) {
    vRmLineSetPcode(RmLinesAddWithId(lines, id, false), codes[id - 1]);
  }
  vRmLinesSortByPcode(lines);
  EXPECT_EQ(Ids(lines), (std::vector<long>{2, 4, 5, 1, 3}));
}

TEST(PlanLines, CopyIsDeepAndKeepsTheOrderOfLinesAndFields) {
  ModelPtr model = NewModel();
  LinesPtr from(RmLinesCreate());
  RmLine* line = RmLinesAddWithId(from, 4, true);
  vRmLineSetGuid(line, "g");
  vRmLineSetName(line, "Senterlinje");
  vRmLineSetCenterLine(line, true);
  vRmLineSetStartChain(line, 120.5);
  LiLineAddP(line, 1.0, 2.0, 3.0);
  RmVerLine* verLine = RmVerLineCreate();
  RmVerPointAdd(verLine, 0.0, 10.0, 0.0, 0.0);
  verLine->DiffAltitudes = RmDiffAltitudesCreate();
  RmDiffAltitudeAdd(verLine->DiffAltitudes, 20.0);
  vRmLineSetVerLine(from, line, verLine);
  RmChainEquations* equations = RmChainEquationsCreate();
  RmChainEquationAdd(equations, 500.0, 450.0, "K1");
  vRmLineSetEquations(line, equations);
  // The copy keeps an order that is not the order of the ids.
  boLiLinesMoveLine(from->Handle, RmLinesAddWithId(from, 9, false), line);

  LinesPtr to(RmLinesCreate());
  RmLinesAddWithId(to, 1, false);
  vRmLinesCopy(to, from, model.get());
  EXPECT_EQ(to->Model, model.get());
  EXPECT_EQ(Ids(to), (std::vector<long>{9, 4}));
  EXPECT_EQ(FieldNames(to), (std::vector<std::string>{"GUID", "NAME", "CL"}));
  RmLine* copy = RmLinesFindById(to, 4);
  EXPECT_TRUE(boLiLineIs3d(copy));
  EXPECT_EQ(dRmLineGetStartChain(copy), 120.5);
  EXPECT_EQ(std::string(sRmLineGetName(copy)), "Senterlinje");
  EXPECT_EQ(iLiLineGetElmCount(copy), 1);
  RmVerLine* copiedVerLine = RmLineGetVerLine(copy);
  ASSERT_NE(copiedVerLine, nullptr);
  EXPECT_NE(copiedVerLine, verLine);
  EXPECT_EQ(copiedVerLine->Lines, to.get());
  ASSERT_NE(copiedVerLine->DiffAltitudes, nullptr);
  EXPECT_NE(copiedVerLine->DiffAltitudes, verLine->DiffAltitudes);
  EXPECT_EQ(iRmDiffAltitudesGetCount(copiedVerLine->DiffAltitudes), 1);
  RmChainEquations* copiedEquations = RmLineGetEquations(copy);
  ASSERT_NE(copiedEquations, nullptr);
  EXPECT_NE(copiedEquations, equations);
  EXPECT_STREQ(sRmChainEquationGetText(RmChainEquationAt(copiedEquations, 0)), "K1");
  EXPECT_EQ(RmLineGetVerLine(RmLinesFindById(to, 9)), nullptr);
}

TEST(PlanLines, TheModelsLinesAndTheirCopiesPointBackToTheirModel) {
  ModelPtr model = NewModel();
  vRmModelSetLines(model.get(), RmLinesCreateDefault());
  EXPECT_EQ(RmModelGetLines(model.get())->Model, model.get());
  EXPECT_EQ(lRmLineGetId(RmModelGetCenterLine(model.get())), 1);
  RmLines* pending = RmModelPrepareLines(model.get());
  EXPECT_EQ(pending->Model, model.get());
  RmLinesAddWithId(pending, 2, false);

  ModelPtr copy = NewModel();
  vRmModelCopy(copy.get(), model.get(), true);
  EXPECT_EQ(RmModelGetLines(copy.get())->Model, copy.get());
  EXPECT_EQ(RmModelGetLinesPending(copy.get())->Model, copy.get());
  EXPECT_EQ(iRmLinesGetCount(RmModelGetLinesPending(copy.get())), 2);
  vRmModelCommitLines(model.get());
  EXPECT_EQ(iRmLinesGetCount(RmModelGetLines(model.get())), 2);
}

TEST(DiffAltitudes, RowsStayAscendingAndAreFoundByChainage) {
  RmDiffAltitudes* list = RmDiffAltitudesCreate();
  RmDiffAltitude* middle = RmDiffAltitudeAdd(list, 100.0);
  RmDiffAltitude* first = RmDiffAltitudeAdd(list, 50.0);
  RmDiffAltitude* second = RmDiffAltitudeAdd(list, 100.0);  // behind the equal one
  vRmDiffAltitudeSetRange(first, 50.0, 80.0);
  vRmDiffAltitudeSetRange(middle, 100.0, 150.0);
  vRmDiffAltitudeSetRange(second, 100.0, 200.0);
  EXPECT_EQ(iRmDiffAltitudeGetIndex(list, first), 0);
  EXPECT_EQ(iRmDiffAltitudeGetIndex(list, middle), 1);
  EXPECT_EQ(iRmDiffAltitudeGetIndex(list, second), 2);
  EXPECT_EQ(RmDiffAltitudeFind(list, 80.0), first);
  EXPECT_EQ(RmDiffAltitudeFind(list, 90.0), nullptr);
  EXPECT_EQ(RmDiffAltitudeFind(list, 120.0), middle);
  EXPECT_EQ(RmDiffAltitudeFind(list, 180.0), second);

  first->FromChain = 300.0;
  vRmDiffAltitudesSort(list);
  EXPECT_EQ(iRmDiffAltitudeGetIndex(list, first), 2);
  vRmDiffAltitudeRemove(list, middle);
  EXPECT_EQ(iRmDiffAltitudesGetCount(list), 2);
  EXPECT_EQ(iRmDiffAltitudeGetIndex(list, middle), -1);
  vRmDiffAltitudesDelete(&list);
  EXPECT_EQ(list, nullptr);
}

TEST(ChainStations, IntervalsAndChainEquationsOfTheCentreLine) {
  std::vector<double> stations;
  vRmChainPointsForInterval(nullptr, 5.0, 65.0, 20.0, true, true, &stations);
  EXPECT_EQ(stations, (std::vector<double>{5.0, 20.0, 40.0, 60.0, 65.0}));
  // A start of 0 that is not asked for is not a station; an end on a
  // multiple stands once.
  vRmChainPointsForInterval(nullptr, 0.0, 60.0, 20.0, false, true, &stations);
  EXPECT_EQ(stations, (std::vector<double>{20.0, 40.0, 60.0}));
  vRmChainPointsForInterval(nullptr, -30.0, 10.0, 20.0, true, false, &stations);
  EXPECT_EQ(stations, (std::vector<double>{-30.0, -20.0, 0.0}));

  ModelPtr model = NewModel();
  vRmModelSetLines(model.get(), RmLinesCreateDefault());
  RmChainEquations* equations = RmChainEquationsCreate();
  RmChainEquationAdd(equations, 1000.0, 50.0, "S1");
  vRmLineSetEquations(RmModelGetCenterLine(model.get()), equations);
  // Only road type 2 numbers its stations by the equations.
  vRmChainPointsForInterval(model.get(), 0.0, 70.0, 20.0, true, true, &stations);
  EXPECT_EQ(stations, (std::vector<double>{0.0, 20.0, 40.0, 60.0, 70.0}));
  vRmModelSetRoadType(model.get(), 2);
  vRmChainPointsForInterval(model.get(), 0.0, 1030.0, 20.0, true, true, &stations);
  EXPECT_EQ(stations, (std::vector<double>{0.0, 20.0, 40.0, 1000.0, 1020.0, 1030.0}));
}
