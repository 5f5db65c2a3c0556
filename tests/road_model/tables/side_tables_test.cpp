// Side boundaries, surface border lines, closed ditches and string lines:
// their lookups and the ways rows are ordered and copied.
#include <gtest/gtest.h>

#include <vector>

#include "base/numbers.h"
#include "road_model/lines/plan_lines.h"
#include "road_model/model/model.h"
#include "road_model/model/model_center_line.h"
#include "road_model/model/model_lines.h"
#include "road_model/model/model_parts.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/tables/closed_ditches.h"
#include "road_model/tables/side_boundaries.h"
#include "road_model/tables/string_lines.h"
#include "road_model/tables/surface_border_lines.h"
#include "tests/support/model_ptr.h"
#include "tests/support/owned.h"

namespace {

using BoundariesPtr = Owned<RmSideBoundaries, vRmSideBoundariesDelete>;
using BorderLinesPtr = Owned<RmSurfaceBorderLines, vRmSurfaceBorderLinesDelete>;
using DitchesPtr = Owned<RmClosedDitches, vRmClosedDitchesDelete>;
using StringLinesPtr = Owned<RmStringLines, vRmStringLinesDelete>;

RmSideBoundary* AddBoundary(RmSideBoundaryList* list, double chain, int32_t code,
                            double distance, int32_t lineId) {
  RmSideBoundary* row = RmSideBoundaryAdd(list, chain);
  row->Code = code;
  row->Distance = distance;
  row->LineId = lineId;
  return row;
}

std::vector<double> Chains(const RmSideBoundaryList* list) {
  std::vector<double> chains;
  for (RmSideBoundary* row = RmSideBoundariesGetFirst(list); row; row = row->Next) {
    chains.push_back(row->Chain);
  }
  return chains;
}

}  // namespace

TEST(SideBoundaries, ValueAtChainage) {
  BoundariesPtr boundaries(RmSideBoundariesCreate());
  RmSideBoundaryList* left = RmSideBoundariesGetLeft(boundaries);
  AddBoundary(left, 100.0, 30105, 10.0, kNullInteger);
  AddBoundary(left, 200.0, 30105, 20.0, kNullInteger);
  AddBoundary(left, 300.0, 30106, 30.0, kNullInteger);
  AddBoundary(left, 400.0, 30106, 40.0, 7);
  struct Case {
    double Chain;
    int Result;
    int32_t Code;
    double Distance;
    int32_t LineId;
  };
  const Case cases[] = {
      {150.0, 1, 30105, 15.0, kNullInteger},       // same code: straight line
      {99.999995, 1, 30105, 10.0, kNullInteger},   // at a row within 1e-5
      {300.0, 1, 30106, 30.0, kNullInteger},       // at a row of a new code
      {250.0, 0, kNullInteger, kNullNumber, kNullInteger},  // codes differ
      {350.0, 0, kNullInteger, kNullNumber, kNullInteger},  // alignments differ
      {50.0, 0, kNullInteger, kNullNumber, kNullInteger},   // before the first row
      {450.0, 0, kNullInteger, kNullNumber, kNullInteger},  // behind the last row
  };
  for (const Case& c : cases) {
    int32_t code = 0;
    double distance = 0.0;
    int32_t lineId = 0;
    EXPECT_EQ(iRmSideBoundaryAt(left, c.Chain, &code, &distance, &lineId), c.Result) << c.Chain;
    EXPECT_EQ(code, c.Code) << c.Chain;
    EXPECT_DOUBLE_EQ(distance, c.Distance) << c.Chain;
    EXPECT_EQ(lineId, c.LineId) << c.Chain;
  }
  EXPECT_TRUE(boRmSideBoundaryCovers(left, 150.0));
  EXPECT_TRUE(boRmSideBoundaryCovers(left, 100.0));
  EXPECT_FALSE(boRmSideBoundaryCovers(left, 99.0));
  EXPECT_TRUE(boRmSideBoundariesCoverCode(boundaries, 7, 350.0));
  EXPECT_FALSE(boRmSideBoundariesCoverCode(boundaries, 7, 250.0));
}

TEST(SideBoundaries, TrimAndDropLines) {
  BoundariesPtr boundaries(RmSideBoundariesCreate());
  RmSideBoundaryList* right = RmSideBoundariesGetSide(boundaries, 2);
  AddBoundary(right, 100.0, kNullInteger, 5.0, 3);
  AddBoundary(right, 200.0, 30105, 5.0, kNullInteger);
  AddBoundary(right, 150.0, kNullInteger, 5.0, 3);
  // Rows without a chainage at both ends.
  RmSideBoundaryAddBefore(right, nullptr)->Chain = kNullNumber;
  RmSideBoundaryAddBefore(right, RmSideBoundariesGetFirst(right))->Chain = kNullNumber;
  EXPECT_EQ(Chains(right).size(), 5u);
  vRmSideBoundariesTrimEmpty(boundaries);
  EXPECT_EQ(Chains(right), (std::vector<double>{100.0, 150.0, 200.0}));
  vRmSideBoundariesDropLines(boundaries);
  EXPECT_EQ(Chains(right), (std::vector<double>{200.0}));
  EXPECT_FALSE(boRmSideBoundariesIsEmpty(boundaries));

  BoundariesPtr copy(RmSideBoundariesCreate());
  vRmSideBoundariesCopy(copy, boundaries);
  vRmSideBoundariesMapCodes(copy, [](int32_t code) { return code + 1; });
  EXPECT_EQ(RmSideBoundariesGetFirst(RmSideBoundariesGetRight(copy))->Code, 30106);
  EXPECT_EQ(RmSideBoundariesGetFirst(right)->Code, 30105);
}

TEST(SurfaceBorderLines, OrderAndWidenedFind) {
  BorderLinesPtr lines(RmSurfaceBorderLinesCreate());
  RmSurfaceBorderLine* late = RmSurfaceBorderLineAdd(lines, 30105, 500.0);
  RmSurfaceBorderLine* early = RmSurfaceBorderLineAdd(lines, 30105, 100.0);
  RmSurfaceBorderLine* inner = RmSurfaceBorderLineAdd(lines, -30105, 900.0);
  RmSurfaceBorderLine* same = RmSurfaceBorderLineAdd(lines, 30105, 100.0);
  EXPECT_EQ(iRmSurfaceBorderLineGetIndex(lines, inner), 0);
  EXPECT_EQ(iRmSurfaceBorderLineGetIndex(lines, early), 1);
  EXPECT_EQ(iRmSurfaceBorderLineGetIndex(lines, same), 2);
  EXPECT_EQ(iRmSurfaceBorderLineGetIndex(lines, late), 3);
  EXPECT_EQ(early->FreeSurface, kNullInteger);

  early->Range.High = 200.0;
  early->FreeSurface = 40101;
  vRmSurfaceBorderLineRemove(lines, same);
  EXPECT_EQ(RmSurfaceBorderLineFind(lines, 30105, 100.0 - 0.0004), early);
  EXPECT_EQ(RmSurfaceBorderLineFind(lines, 30105, 100.0 - 0.0006), nullptr);
  EXPECT_EQ(RmSurfaceBorderLineFind(lines, 30105, 200.0 + 0.0004), early);
  EXPECT_EQ(RmSurfaceBorderLineFind(lines, -30105, 150.0), nullptr);
  EXPECT_EQ(RmSurfaceBorderLineFindByFree(lines, 40101, 200.0), early);
  EXPECT_EQ(RmSurfaceBorderLineFindByFree(lines, 40101, 200.0004), nullptr);
}

TEST(ClosedDitches, FindByWholeIdAndDeepCopy) {
  DitchesPtr ditches(RmClosedDitchesCreate());
  RmClosedDitch* ditch = RmClosedDitchAdd(ditches, RmLayerIdMake(1, 40));
  RmClosedDitchAdd(ditches, RmLayerIdMake(1, 30));
  EXPECT_EQ(RmClosedDitchesGetFirst(ditches)->Id.Number, 30);
  EXPECT_EQ(RmClosedDitchFind(ditches, RmLayerIdMake(1, 40)), ditch);
  EXPECT_EQ(RmClosedDitchFind(ditches, RmLayerIdMake(2, 40)), nullptr);

  RmClosedDitchSectionAddSorted(ditch, 200.0);
  RmClosedDitchSection* first = RmClosedDitchSectionAddSorted(ditch, 100.0);
  RmClosedDitchPoint* point = RmClosedDitchPointAdd(first);
  point->Distance = -2.5;
  point->Elevation = 0.75;
  EXPECT_EQ(RmClosedDitchSectionsGetFirst(ditch), first);

  DitchesPtr copy(RmClosedDitchesCreate());
  vRmClosedDitchesCopy(copy, ditches);
  vRmClosedDitchRemove(ditches, ditch);
  const RmClosedDitch* copied = RmClosedDitchFind(copy, RmLayerIdMake(1, 40));
  ASSERT_NE(copied, nullptr);
  const RmClosedDitchSection* section = RmClosedDitchSectionsGetFirst(copied);
  ASSERT_NE(section, nullptr);
  EXPECT_EQ(section->Chain, 100.0);
  EXPECT_EQ(dRmClosedDitchPointGetElevation(RmClosedDitchPointsGetFirst(section)), 0.75);
  EXPECT_EQ(RmClosedDitchSectionGetNext(section)->Chain, 200.0);
}

TEST(StringLines, LayersOwnTheirLines) {
  StringLinesPtr table(RmStringLinesCreate());
  RmStringLineLayer* layer = RmStringLineAdd(table, RmLayerIdMake(1, 12));
  RmStringLineAdd(table, RmLayerIdMake(3, 12));
  EXPECT_EQ(RmStringLineFind(table, RmLayerIdMake(1, 12)), layer);
  EXPECT_EQ(RmStringLineGetNext(layer)->Id.Type, 3u);
  vRmStringLineSetLines(layer, RmLinesCreateDefault());

  StringLinesPtr copy(RmStringLinesCreate());
  vRmStringLinesCopy(copy, table);
  vRmStringLineRemove(table, layer);
  const RmStringLineLayer* copied = RmStringLineFind(copy, RmLayerIdMake(1, 12));
  ASSERT_NE(copied, nullptr);
  EXPECT_EQ(iRmLinesGetCount(RmStringLineGetLines(copied)), 1);
  EXPECT_EQ(RmStringLineGetLines(RmStringLineFind(copy, RmLayerIdMake(3, 12))), nullptr);
}

TEST(StringLines, CenterLineOfALayerWhenCalculatedFromStringLines) {
  ModelPtr model = NewModel();
  vRmModelSetLines(model.get(), RmLinesCreateDefault());
  vRmModelSetSurfGen(model.get(), RmSurfGenCreate());
  RmStringLines* table = RmStringLinesCreate();
  vRmStringLineSetLines(RmStringLineAdd(table, RmLayerIdMake(1, 2)), RmLinesCreateDefault());
  RmStringLineAdd(table, RmLayerIdMake(1, 3));
  vRmSurfGenSet<kRmStringLinesSlot>(RmModelGetSurfGen(model.get()), table);
  RmLine* own = RmLinesGetCenterLine(RmStringLineGetLines(RmStringLinesGetFirst(table)));
  RmLine* plain = RmModelGetCenterLine(model.get());

  model->CalcMode = 3;
  EXPECT_EQ(RmModelGetCenterLineFor(model.get(), RmLayerIdMake(1, 2)), own);
  EXPECT_EQ(RmModelGetCenterLineFor(model.get(), RmLayerIdMake(1, 3)), plain);  // no lines
  EXPECT_EQ(RmModelGetCenterLineFor(model.get(), RmLayerIdMake(2, 2)), plain);  // no layer
  model->CalcMode = 2;
  EXPECT_EQ(RmModelGetCenterLineFor(model.get(), RmLayerIdMake(1, 2)), plain);
}
