// The surfaces of a surface group: their order across the road, the values
// of a surface between its rows, the width and slope that a section's
// builder gets (through tilt and border lines), searches of rows that go on
// from where the last one left off, and reference heights.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <utility>

#include "base/numbers.h"
#include "road_model/lines/plan_lines.h"
#include "road_model/model/model_lines.h"
#include "road_model/sections/section.h"
#include "road_model/surfaces/surface_groups.h"
#include "road_model/surfaces/surface_ref_heights.h"
#include "road_model/surfaces/surface_values.h"
#include "road_model/surfaces/surface_width_slope.h"
#include "road_model/surfaces/surfaces.h"
#include "road_model/surfaces/tilt.h"
#include "road_model/tables/surface_border_lines.h"
#include "tests/support/model_ptr.h"
#include "tests/support/owned.h"

namespace {

using Groups = Owned<RmSurfaceGroups, vRmSurfaceGroupsDelete>;
using Section = Owned<RmSection, vRmSectionDeleteFree>;

RmSurfaceRow* AddRow(RmSurface* surface, int type, double chain, double width, double slope) {
  RmSurfaceRow* row = RmSurfaceRowAddBehind(surface, chain);
  row->RowType = type;
  row->Width = width;
  row->Slope = slope;
  return row;
}

// A right surface with values at 100, 200 (no slope) and 300, and a break
// row at 300.
RmSurface* SurfaceWithRows(RmSurfaceGroups* groups) {
  RmSurfaceGroup* group = RmSurfaceGroupsAdd(groups, RmLayerIdMake(kRmLayerTheoretical, 0));
  RmSurface* surface = RmSurfaceAdd(group, 1);
  AddRow(surface, 0, 100.0, 3.0, -0.02);
  AddRow(surface, 0, 200.0, 5.0, kNullNumber);
  AddRow(surface, 0, 300.0, 7.0, -0.06);
  AddRow(surface, 1, 300.0, 1.0, 0.1);
  return surface;
}

struct ValuesCase {
  double Chain;
  int RowType;
  int Result;
  double Width;
  double Slope;
};

TEST(SurfaceValues, ValuesAtChainagesAroundTheRows) {
  Groups groups(RmSurfaceGroupsCreate());
  const RmSurface* surface = SurfaceWithRows(groups);
  const ValuesCase cases[] = {
      {50.0, 0, 0, kNullNumber, kNullNumber},    // before the first row
      {99.9996, 0, 1, 3.0, -0.02},               // within half a millimetre of it
      {99.9994, 0, 0, kNullNumber, kNullNumber},  // just beyond that
      {100.0, 0, 1, 3.0, -0.02},
      {100.0003, 0, 1, 3.0, -0.02},              // still at the row before
      {150.0, 0, 1, 4.0, kNullNumber},           // a slope that one row lacks
      {299.0, 0, 1, 6.98, kNullNumber},          // towards the value row at 300
      {300.0, 1, 1, 1.0, 0.1},                   // the break row at 300
      {299.9996, 1, 1, 1.0, 0.1},
      {250.0, 1, 0, kNullNumber, kNullNumber},   // no break row before it
      {350.0, 0, 0, kNullNumber, kNullNumber},   // after the last row
  };
  for (const ValuesCase& c : cases) {
    double width = 0.0;
    double slope = 0.0;
    EXPECT_EQ(iRmSurfaceValuesAt(surface, c.Chain, &width, &slope, c.RowType), c.Result)
        << c.Chain;
    EXPECT_NEAR(width, c.Width, 1e-9) << c.Chain;
    EXPECT_NEAR(slope, c.Slope, 1e-9) << c.Chain;
  }
}

TEST(SurfaceValues, BreaksAndInheritedSlopes) {
  Groups groups(RmSurfaceGroupsCreate());
  RmSurface* surface = SurfaceWithRows(groups);
  AddRow(surface, 1, 400.0, 0.0, 0.0);
  EXPECT_FALSE(boRmSurfaceIsBreakAt(surface, 300.0));  // a value row stands before it
  EXPECT_TRUE(boRmSurfaceIsBreakAt(surface, 350.0));
  double width = 0.0;
  double slope = 0.0;
  EXPECT_TRUE(boRmSurfaceBreakValuesAt(surface, 300.0, &width, &slope));
  EXPECT_EQ(width, 1.0);
  EXPECT_FALSE(boRmSurfaceBreakValuesAt(surface, 200.0, &width, &slope));

  // The row at 200 has no slope: the surface inward on the right has one.
  RmSurfaceGroup* group = RmSurfaceGroupsGetFirst(groups);
  RmSurface* inner = RmSurfaceAdd(group, 0);
  AddRow(inner, 0, 250.0, 1.0, -0.03);
  const RmSurfaceRow* row200 = RmSurfaceRowGetNext(RmSurfaceRowsGetFirst(surface));
  EXPECT_EQ(dRmSurfaceRowInheritSlope(surface, row200), -0.03);
  EXPECT_EQ(dRmSurfaceRowInheritSlope(inner, RmSurfaceRowsGetFirst(inner)), -0.03);
  RmSurface* outer = RmSurfaceAdd(group, 2);
  const RmSurfaceRow* lone = AddRow(outer, 0, 500.0, 1.0, kNullNumber);
  EXPECT_EQ(dRmSurfaceRowInheritSlope(outer, lone), kNullNumber);
}

enum class RowStep { kAsk, kAddFirst, kAddBehindFound, kDeleteMark };

TEST(SurfaceRows, SearchesGiveWhatAWalkFromTheFirstRowGives) {
  Groups groups(RmSurfaceGroupsCreate());
  RmSurfaceGroup* group = RmSurfaceGroupsAdd(groups, RmLayerIdMake(kRmLayerTheoretical, 0));
  RmSurface* surface = RmSurfaceAdd(group, 1);
  RmSurface* fresh = RmSurfaceAdd(group, 2);  // a copy without a search mark walks from the start
  // Out of order, with a row of unset chainage, as files and designs may list them.
  const double rows[][3] = {{10.0, 0, 1.0}, {30.0, 0, 3.0},
                            {20.0, 1, 2.0}, {kNullNumber, 0, kNullNumber},
                            {40.0, 0, 4.0}, {50.0, 1, 5.0}};
  for (const auto& row : rows) {
    RmSurfaceRow* added = RmSurfaceRowAddBefore(surface, nullptr, row[0]);
    added->RowType = int(row[1]);
    added->Width = row[2];
  }
  const std::pair<RowStep, double> steps[] = {
      {RowStep::kAsk, 25.0},
      {RowStep::kAsk, 35.0},
      {RowStep::kAsk, 25.0},       // the row at 30 was passed on the way to 35
      {RowStep::kAsk, 40.000005},  // the row at 40 counts for the values, not for the search
      {RowStep::kAsk, 45.0},
      {RowStep::kDeleteMark, 0.0},
      {RowStep::kAsk, 45.0},
      {RowStep::kAddFirst, 60.0},  // in front of the mark, beyond every row passed
      {RowStep::kAsk, 55.0},
      {RowStep::kAddBehindFound, 40.0},  // as the reconciliation adds a second row there
      {RowStep::kAsk, 40.0},
      {RowStep::kAsk, 15.0},
  };
  int index = 0;
  for (const auto& [step, chain] : steps) {
    SCOPED_TRACE(::testing::Message() << "step " << index++);
    if (step == RowStep::kAddFirst) {
      RmSurfaceRowAddBefore(surface, RmSurfaceRowsGetFirst(surface), chain)->Width = 9.0;
    } else if (step == RowStep::kAddBehindFound) {
      RmSurfaceRowAddBefore(surface, RmSurfaceRowFindFrom(surface, chain)->Next, chain);
    } else if (step == RowStep::kDeleteMark) {
      vRmSurfaceRowDelete(surface, surface->SearchMark);
    } else {
      vRmSurfaceCopy(fresh, surface);
      const RmSurfaceRow* found = RmSurfaceRowFindFrom(surface, chain);
      for (int rowType : {0, 1}) {
        double got[2];
        double walked[2];
        EXPECT_EQ(iRmSurfaceValuesAt(surface, chain, &got[0], &got[1], rowType),
                  iRmSurfaceValuesAt(fresh, chain, &walked[0], &walked[1], rowType));
        EXPECT_EQ(got[0], walked[0]);
      }
      EXPECT_EQ(iRmSurfaceRowsGetIndexOf(surface, found),
                iRmSurfaceRowsGetIndexOf(fresh, RmSurfaceRowFindFrom(fresh, chain)));
    }
  }
}

TEST(SurfaceGroups, OrderAndSideStarts) {
  Groups groups(RmSurfaceGroupsCreate());
  RmSurfaceGroupsAdd(groups, RmLayerIdMake(kRmLayerTheoretical, 5));
  RmSurfaceGroup* second = RmSurfaceGroupsAdd(groups, RmLayerIdMake(kRmLayerPhysical, 5));
  RmSurfaceGroup* first = RmSurfaceGroupsAdd(groups, RmLayerIdMake(kRmLayerTheoretical, 1));
  EXPECT_EQ(RmSurfaceGroupsGetFirst(groups), first);
  EXPECT_EQ(iRmSurfaceGroupsGetIndexOf(groups, second), 2);  // behind the equal number

  for (int number : {2, -1, 1, -2}) RmSurfaceAdd(first, number);
  EXPECT_EQ(RmSurfacesGetFirst(first)->Number, -2);
  EXPECT_EQ(RmSurfaceGetSideStart(first, 1)->Number, -1);
  EXPECT_EQ(RmSurfaceGetSideStart(first, 2)->Number, 1);
  EXPECT_EQ(RmSurfaceFindFromSide(first, 2, 2)->Number, 2);
  EXPECT_EQ(RmSurfaceFindFromSide(first, -2, 1)->Number, -2);
  EXPECT_EQ(RmSurfaceFindFromSide(first, 3, 2), nullptr);

  RmSurfaceGroup* leftOnly = RmSurfaceGroupsAdd(groups, RmLayerIdMake(kRmLayerTheoretical, 9));
  RmSurfaceAdd(leftOnly, -1);
  EXPECT_EQ(RmSurfaceGetSideStart(leftOnly, 2), nullptr);
  EXPECT_EQ(RmSurfaceGetSideStart(leftOnly, 1)->Number, -1);

  RmSurfaceGroup* replaced = RmSurfaceGroupsReplace(groups, first->Id);
  EXPECT_EQ(RmSurfacesGetFirst(replaced), nullptr);
  EXPECT_NE(replaced->RefHeights, nullptr);
  EXPECT_EQ(RmSurfaceGroupsGetFirst(groups), replaced);
}

// A section at chainage 100 of a centre line that runs east along y = 0,
// positive offsets to the north.
RmSection* SectionAt100() {
  RmSection* section = RmSectionCreateFree();
  section->Chain = 100.0;
  section->ClX = 100.0;
  section->Direction = std::numbers::pi / 2.0;
  return section;
}

TEST(SurfaceWidthAndSlope, TiltBreakAndBorderLine) {
  ModelPtr model = NewModel();
  Groups groups(RmSurfaceGroupsCreate());
  RmSurface* surface = SurfaceWithRows(groups);
  RmSurfaceGroup* group = RmSurfaceGroupsGetFirst(groups);
  Section section(SectionAt100());
  double width = 0.0;
  double slope = 0.0;
  int extra = -1;
  RmSurfaceEdge edge{1.0, 10.0};

  // Untilted: the row's values, and the edge moves out by them.
  vRmTiltBegin(section);
  EXPECT_EQ(iRmSurfaceWidthAndSlope(model.get(), group, surface, section, &edge, &width, &slope,
                                    &extra),
            1);
  EXPECT_DOUBLE_EQ(width, 3.0);
  EXPECT_DOUBLE_EQ(edge.Offset, 4.0);
  EXPECT_DOUBLE_EQ(edge.Height, 10.0 - 0.06);
  EXPECT_EQ(extra, 0);

  // Tilted by 0.2 radians: wider across the section, flatter in it.
  vRmSectionSetFlag(section, kRmSectionFollowsTilt | kRmSectionTilted, true);
  section->TiltSlope = std::tan(0.2);
  vRmTiltBegin(section);
  iRmSurfaceWidthAndSlope(model.get(), group, surface, section, nullptr, &width, &slope, &extra);
  EXPECT_DOUBLE_EQ(width, 3.0 / std::cos(0.2));
  EXPECT_DOUBLE_EQ(slope, -0.02 * std::cos(0.2));
  vRmTiltEnd();

  // A break row at the section's chainage decides before the value rows.
  section->Chain = 300.0;
  iRmSurfaceWidthAndSlope(model.get(), group, surface, section, nullptr, &width, &slope, &extra);
  EXPECT_EQ(width, 1.0);

  // A border line: the width runs to where line 7, along y = 4.5, crosses.
  section->Chain = 100.0;
  RmLine* line = RmLinesAddWithId(RmModelGetOrCreateLines(model.get()), 7, false);
  LiLineAddP2d(line, 0.0, 4.5);
  LiLineAddP2d(line, 500.0, 4.5);
  group->BorderLines = RmSurfaceBorderLinesCreate();
  RmSurfaceBorderLine* border = RmSurfaceBorderLineAdd(group->BorderLines, 1, 0.0);
  border->Range = {0.0, 250.0};
  border->LineId = 7;
  edge = RmSurfaceEdge{1.0, 10.0};
  iRmSurfaceWidthAndSlope(model.get(), group, surface, section, &edge, &width, &slope, &extra);
  EXPECT_NEAR(width, 3.5, 1e-6);
  EXPECT_EQ(extra, 1);
  EXPECT_DOUBLE_EQ(slope, -0.02);
}

TEST(SurfaceRefHeights, ThinningAndHeightsBetweenRows) {
  RmSurfaceRefHeights* list = RmSurfaceRefHeightsCreate();
  for (double chain : {0.0, 50.0, 100.0}) RmSurfaceRefHeightAdd(list, chain)->Height = 0.0f;
  vRmSurfaceRefHeightsThin(&list);
  EXPECT_EQ(list, nullptr);  // three flat rows say nothing

  list = RmSurfaceRefHeightsCreate();
  const double rows[][2] = {{0.0, 10.0}, {50.0, 15.0}, {100.0, 20.0}, {150.0, 30.0},
                            {160.0, kNullNumber}, {200.0, 5.0}};
  for (const auto& row : rows) RmSurfaceRefHeightAdd(list, row[0])->Height = float(row[1]);
  vRmSurfaceRefHeightsThin(&list);
  ASSERT_NE(list, nullptr);
  EXPECT_EQ(RmSurfaceRefHeightsGetFirst(list)->Next->Chain, 100.0);  // 50 lay on the line

  float height = 0.0f;
  EXPECT_TRUE(boRmSurfaceRefHeightAt(list, 25.0, &height));
  EXPECT_FLOAT_EQ(height, 12.5f);
  EXPECT_TRUE(boRmSurfaceRefHeightAt(list, 125.0, &height));
  EXPECT_FLOAT_EQ(height, 25.0f);
  EXPECT_FALSE(boRmSurfaceRefHeightAt(list, 155.0, &height));  // next to the gap
  EXPECT_FALSE(boRmSurfaceRefHeightAt(list, 250.0, &height));
  vRmSurfaceRefHeightsDelete(&list);
}

}  // namespace
