// The readers of the design's chainage tables, straight from designs built
// in memory: their headings, the tables they make and the rules by which
// they read the design's rows.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "road_model/codes/pcode.h"
#include "road_model/model/model_parts.h"
#include "road_model/names/layer_names.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/surfaces/surface_groups.h"
#include "road_model/tables/chain_range_members.h"
#include "road_model/tables/chain_range_table.h"
#include "road_model/tables/closed_ditches.h"
#include "road_model/tables/side_boundaries.h"
#include "road_model/tables/surface_border_lines.h"
#include "tests/vips_import/alignment_reading.h"
#include "vips_import/driver/version_labels.h"
#include "vips_import/readers/chainage_tables.h"
#include "vips_import/readers/closed_drainages.h"
#include "vips_import/readers/side_tables.h"

namespace {

using NpDesignModel::CInData;
using NpDesignModel::CSurfaceNumber;
using NpDesignModel::DesignModelBuilder;
using NpDesignModel::DesignModelRecord;

constexpr RmLayerId kGroup1 = {1, 0};

// A model with an empty surface tables object, optionally with surface
// group 1 in its surface description.
ModelPtr ModelWithTables(bool withGroup1 = false) {
  ModelPtr model(RmModelCreate());
  vRmModelSetSurfGen(model.get(), RmSurfGenCreate());
  if (withGroup1) {
    RmSurfaceGroups* groups = RmSurfaceGroupsCreate();
    RmSurfaceGroupsAdd(groups, kGroup1);
    vRmSurfGenSet<kRmSurfaceGroupsSlot>(RmModelGetSurfGen(model.get()), groups);
  }
  return model;
}

RmSurfGen* Gen(const ModelPtr& model) { return RmModelGetSurfGen(model.get()); }

// The surface code rule of the versions from 8.2 on, for every test here.
class TableReaders : public testing::Test {
 protected:
  void SetUp() override {
    version_ = VipsModelVersion;
    VipsModelVersion = 10.0;
  }
  void TearDown() override { VipsModelVersion = version_; }

 private:
  double version_ = 0.0;
};

// The rows of one side of a chain range table as values structs.
template <typename V>
std::vector<V> Rows(const RmChainRangeList* list) {
  std::vector<V> rows;
  for (RmChainRangeRow* row = RmChainRangeGetFirst(list); row; row = RmChainRangeGetNext(row)) {
    vRmChainRangeGetRow(list, row, &rows.emplace_back());
  }
  return rows;
}

std::vector<RmChainRange> Ranges(const RmChainRangeList* list) {
  std::vector<RmChainRange> ranges;
  for (RmChainRangeRow* row = RmChainRangeGetFirst(list); row; row = RmChainRangeGetNext(row)) {
    ranges.push_back(row->Range);
  }
  return ranges;
}

// -1 without the reader's table, else whether it holds a row.
int iChainRangeState(const RmChainRangeTable* table) {
  return table ? boRmChainRangeTableHasRows(table) : -1;
}

}  // namespace

TEST_F(TableReaders, AnEmptyDesignGivesEachReaderItsEmptyTableAndHeading) {
  const struct {
    std::string heading;
    void (*read)(const CInData* in, std::FILE* log, RmModel* model);
    int (*state)(const RmModel* model);
  } readers[] = {
      {"Leser tabell: Sideavgrensning\n",
       [](const CInData* in, std::FILE* log, RmModel* model) {
         iVipsReadSurfaceBoundaries(in, log, model);
       },
       [](const RmModel* model) {
         const RmSideBoundaries* table = RmModelGetSideBoundaries(model);
         return table ? boRmSideBoundariesHasRows(table) : -1;
       }},
      {"Leser tabell: Flateavgrensningslinjer\n",
       [](const CInData* in, std::FILE* log, RmModel* model) {
         vVipsReadSurfaceEdgeAlignments(in, log, RmModelGetSurfGen(model));
       },
       [](const RmModel* model) {
         const RmSurfaceBorderLines* table =
             RmSurfaceGroupFind(RmSurfGenGet<kRmSurfaceGroupsSlot>(RmModelGetSurfGen(model)),
                                kGroup1)
                 ->BorderLines;
         return table ? boRmSurfaceBorderLinesHasRows(table) : -1;
       }},
      {"Leser tabell: Gr\xF8" "ft i fylling\n",
       [](const CInData* in, std::FILE* log, RmModel* model) {
         iVipsReadEmbankmentDitches(in, log, RmModelGetSurfGen(model));
       },
       [](const RmModel* model) {
         return iChainRangeState(RmSurfGenGet<kRmFillDitchesSlot>(RmModelGetSurfGen(model)));
       }},
      {"Leser tabell: Fjellhylle\n",
       [](const CInData* in, std::FILE* log, RmModel* model) {
         iVipsReadRockShelves(in, log, RmModelGetSurfGen(model));
       },
       [](const RmModel* model) {
         return iChainRangeState(RmSurfGenGet<kRmRockBenchesSlot>(RmModelGetSurfGen(model)));
       }},
      {"Leser tabell: Min. gr\xF8" "fte dybde\n",
       [](const CInData* in, std::FILE* log, RmModel* model) {
         iVipsReadDitchDepths(in, log, RmModelGetSurfGen(model));
       },
       [](const RmModel* model) {
         return iChainRangeState(RmSurfGenGet<kRmMinDitchDepthsSlot>(RmModelGetSurfGen(model)));
       }},
      {"Leser tabell: Lukkede gr\xF8" "fter \n",
       [](const CInData* in, std::FILE* log, RmModel* model) {
         iVipsReadClosedDrainages(in, log, model);
       },
       [](const RmModel* model) {
         const RmClosedDitches* table =
             RmSurfGenGet<kRmClosedDitchesSlot>(RmModelGetSurfGen(model));
         return table ? boRmClosedDitchesHasRows(table) : -1;
       }},
      {"Leser tabell: Fjerning av matjord og vegetasjon\n",
       [](const CInData* in, std::FILE* log, RmModel* model) {
         iVipsReadTopSoilRemovals(in, log, RmModelGetSurfGen(model));
       },
       [](const RmModel* model) {
         return iChainRangeState(RmSurfGenGet<kRmRemovalTopsoilsSlot>(RmModelGetSurfGen(model)));
       }},
      {"Leser tabell: Masseutskiftning\n",
       [](const CInData* in, std::FILE* log, RmModel* model) {
         iVipsReadSoftSpotRemovals(in, log, RmModelGetSurfGen(model));
       },
       [](const RmModel* model) {
         return iChainRangeState(RmSurfGenGet<kRmUnsuitableSoilsSlot>(RmModelGetSurfGen(model)));
       }},
  };
  DesignModelBuilder builder;
  builder.Input();
  std::unique_ptr<DesignModelRecord> design = builder.Build();
  // A design's empty input side, and no input side at all.
  for (const CInData* in : {design->GetI(), static_cast<const CInData*>(nullptr)}) {
    for (const auto& reader : readers) {
      SCOPED_TRACE(reader.heading);
      ModelPtr model = ModelWithTables(true);
      LogStream log;
      reader.read(in, log.get(), model.get());
      EXPECT_EQ(log.Text(), reader.heading);
      EXPECT_EQ(reader.state(model.get()), 0);
    }
  }
}

TEST_F(TableReaders, EdgeAlignmentsWithoutSurfaceGroup1AreNotReadAtAll) {
  DesignModelBuilder builder;
  builder.Input().surfaceEdgeAlignments.emplace_back().surfaceNumber = CSurfaceNumber(1.0101);
  std::unique_ptr<DesignModelRecord> design = builder.Build();
  LogStream log;
  ModelPtr model = ModelWithTables();
  vVipsReadSurfaceEdgeAlignments(design->GetI(), log.get(), Gen(model));
  // A description with another group only.
  RmSurfaceGroups* groups = RmSurfaceGroupsCreate();
  RmSurfaceGroupsAdd(groups, RmLayerIdMake(1, 1));
  vRmSurfGenSet<kRmSurfaceGroupsSlot>(Gen(model), groups);
  vVipsReadSurfaceEdgeAlignments(design->GetI(), log.get(), Gen(model));
  vVipsReadSurfaceEdgeAlignments(design->GetI(), log.get(), nullptr);
  EXPECT_EQ(log.Text(), "");
  EXPECT_EQ(RmSurfaceGroupsGetFirst(groups)->BorderLines, nullptr);
}

TEST_F(TableReaders, TopSoilOfNoMinimumFillHeightOrTerrainSlopeTakesTheDefaults) {
  DesignModelBuilder builder;
  NpDesignModel::InDataRecord& input = builder.Input();
  NpDesignModel::TopSoilRemovalRecord row;
  row.fromChainage = 100.0;
  row.toChainage = 200.0;
  row.cutCode = NpDesignModel::CITopSoilRemoval::CutCodeEnums{2};
  row.fillCode = NpDesignModel::CITopSoilRemoval::FillCodeEnums{3};
  row.cutSlope = 1.5;
  row.fillSlope = 2.5;
  row.criteria = 4;
  input.topSoilRemovals.push_back(row);
  row.minFillHeight = 1.25;
  row.maxTerrainSlope = 0.2;
  input.topSoilRemovals.push_back(row);
  std::unique_ptr<DesignModelRecord> design = builder.Build();
  ModelPtr model = ModelWithTables();

  EXPECT_EQ(iVipsReadTopSoilRemovals(design->GetI(), nullptr, Gen(model)), 2);
  const RmChainRangeList* list =
      RmChainRangeTableGetRows(RmSurfGenGet<kRmRemovalTopsoilsSlot>(Gen(model)));
  std::vector<RmRemovalTopsoil> rows = Rows<RmRemovalTopsoil>(list);
  ASSERT_EQ(rows.size(), 2u);
  for (const RmRemovalTopsoil& row : rows) {
    EXPECT_EQ(row.CutCode, 2);
    EXPECT_EQ(row.FillCode, 3);
    EXPECT_EQ(row.CutSlope, 1.5);
    EXPECT_EQ(row.FillSlope, 2.5);
    EXPECT_EQ(row.Criteria, 4);
  }
  EXPECT_EQ(rows[0].MinFillHeight, 3.0);
  EXPECT_EQ(rows[0].MaxTerrainSlope, 0.16667);
  EXPECT_EQ(rows[1].MinFillHeight, 1.25);
  EXPECT_EQ(rows[1].MaxTerrainSlope, 0.2);
}

TEST_F(TableReaders, DitchesInFillGoToTheirSideAndADitchOnBothSidesIsOnlyWarnedAbout) {
  DesignModelBuilder builder;
  NpDesignModel::InDataRecord& input = builder.Input();
  for (int position : {3, 2, 0, 1, 3, 4}) {
    NpDesignModel::EmbankmentDitchRecord& row = input.embankmentDitchs.emplace_back();
    row.fromChainage = 10.0 * position;
    row.toChainage = 10.0 * position + 5.0;
    row.position = NpDesignModel::CIEmbankmentDitch::PositionEnums{position};
  }
  std::unique_ptr<DesignModelRecord> design = builder.Build();
  ModelPtr model = ModelWithTables();
  LogStream log;

  EXPECT_EQ(iVipsReadEmbankmentDitches(design->GetI(), log.get(), Gen(model)), 6);
  const char* warning = "***Warning in import of DitchInFilling: SIDE_BOTH not supported***\n";
  EXPECT_EQ(log.Text(), std::string("Leser tabell: Gr\xF8" "ft i fylling\n") + warning + warning);
  const RmChainRangeTable* table = RmSurfGenGet<kRmFillDitchesSlot>(Gen(model));
  std::vector<RmChainRange> left = Ranges(RmChainRangeTableGetLeft(table));
  std::vector<RmChainRange> right = Ranges(RmChainRangeTableGetRight(table));
  ASSERT_EQ(left.size(), 1u);
  ASSERT_EQ(right.size(), 1u);
  EXPECT_EQ(left[0].Low, 10.0);
  EXPECT_EQ(left[0].High, 15.0);
  EXPECT_EQ(right[0].Low, 20.0);
}

TEST_F(TableReaders, SideBoundariesTurnTheDesignsMarksOfNoneIntoTheModels) {
  const struct {
    double chain, distance, surface;
    int32_t alignment;
    double wantChain, wantDistance;
    int32_t wantCode, wantLineId;
  } cases[] = {
      {120.0, -6.25, 1.0102, 7, 120.0, -6.25, 10102, 7},
      // The model's own mark is moved out of the way.
      {-99999.0, 4.5, 1.0102, 7, -99997.0, 4.5, 10102, 7},
      {-99998.0, 4.5, 1.0102, 7, -99996.0, 4.5, 10102, 7},
      // The design's marks: no chainage and no distance; the rest as read.
      {999998.0, 4.5, -2.0301, 7, -99999.0, -99999.0, -20301, 7},
      {999999.000001, 4.5, 1.0102, 0, -99999.0, -99999.0, 10102, -99999},
      // No surface and no alignment.
      {30.0, 2.0, 0.0, 0, 30.0, 2.0, -99999, -99999},
  };
  DesignModelBuilder builder;
  NpDesignModel::InDataRecord& input = builder.Input();
  for (const auto& test : cases) {
    NpDesignModel::SurfaceBoundaryRecord& row = input.surfaceBoundariesLeft.emplace_back();
    row.chainage = test.chain;
    row.distance = test.distance;
    row.surfaceNumber = CSurfaceNumber(test.surface);
    row.alignmentId = test.alignment;
  }
  input.surfaceBoundariesRight.emplace_back().chainage = 55.0;
  std::unique_ptr<DesignModelRecord> design = builder.Build();
  ModelPtr model(RmModelCreate());

  EXPECT_EQ(iVipsReadSurfaceBoundaries(design->GetI(), nullptr, model.get()),
            static_cast<int>(std::size(cases)) + 1);
  RmSideBoundaries* table = RmModelGetSideBoundaries(model.get());
  const RmSideBoundary* row = RmSideBoundariesGetFirst(RmSideBoundariesGetLeft(table));
  for (const auto& test : cases) {
    SCOPED_TRACE(test.chain);
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->Chain, test.wantChain);
    EXPECT_EQ(row->Distance, test.wantDistance);
    EXPECT_EQ(row->Code, test.wantCode);
    EXPECT_EQ(row->LineId, test.wantLineId);
    row = RmSideBoundaryGetNext(row);
  }
  EXPECT_EQ(row, nullptr);
  EXPECT_EQ(RmSideBoundariesGetFirst(RmSideBoundariesGetRight(table))->Chain, 55.0);
}

TEST_F(TableReaders, EdgeAlignmentsStandBySurfaceAndStartAndAFreeSurfaceOfNoneIsTheirOwn) {
  const struct {
    double surface, from, freeSurface;
    int32_t alignment;
  } design_rows[] = {
      {2.0101, 50.0, 3.0101, 4},  // first of the two of surface 2.0101 at 50
      {1.0201, 100.0, 0.0, 0},
      {2.0101, 10.0, 3.0102, 5},
      {2.0101, 50.0, 0.0, 6},
      {-1.0201, 0.0, 0.0, 0},
  };
  DesignModelBuilder builder;
  for (const auto& given : design_rows) {
    NpDesignModel::SurfaceEdgeAlignmentRecord& row =
        builder.Input().surfaceEdgeAlignments.emplace_back();
    row.surfaceNumber = CSurfaceNumber(given.surface);
    row.freeSurfaceNumber = CSurfaceNumber(given.freeSurface);
    row.fromChainage = given.from;
    row.toChainage = given.from + 1.0;
    row.method = NpDesignModel::CISurfaceEdgeAlignment::MethodEnums{2};
    row.alignmentId = given.alignment;
  }
  std::unique_ptr<DesignModelRecord> design = builder.Build();
  ModelPtr model = ModelWithTables(true);

  vVipsReadSurfaceEdgeAlignments(design->GetI(), nullptr, Gen(model));
  const RmSurfaceBorderLines* lines =
      RmSurfaceGroupFind(RmSurfGenGet<kRmSurfaceGroupsSlot>(Gen(model)), kGroup1)->BorderLines;
  const struct {
    int32_t surface;
    double from;
    int32_t lineId, freeSurface;
  } expected[] = {
      {-10201, 0.0, -99999, -10201},
      {10201, 100.0, -99999, 10201},
      {20101, 10.0, 5, 30102},
      {20101, 50.0, 4, 30101},
      {20101, 50.0, 6, 20101},
  };
  const RmSurfaceBorderLine* row = RmSurfaceBorderLinesGetFirst(lines);
  for (const auto& want : expected) {
    SCOPED_TRACE(want.lineId);
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(row->Surface, want.surface);
    EXPECT_EQ(row->Range.Low, want.from);
    EXPECT_EQ(row->Range.High, want.from + 1.0);
    EXPECT_EQ(row->Method, 2);
    EXPECT_EQ(row->LineId, want.lineId);
    EXPECT_EQ(row->FreeSurface, want.freeSurface);
    row = RmSurfaceBorderLineGetNext(row);
  }
  EXPECT_EQ(row, nullptr);
}

TEST(ElevationMode, ModesFromAHundredCountInHundredsAndTheSignIsDropped) {
  const int32_t cases[][2] = {{0, 0},   {5, 5},   {-3, 3},    {99, 99},
                              {100, 1}, {150, 1}, {-200, 2}, {-1234, 12}};
  for (const auto& test : cases) EXPECT_EQ(iVipsElevationMode(test[0]), test[1]) << test[0];
}

TEST_F(TableReaders, ClosedDrainagesAreNumberedByTheirPlaceAndMarkTheirGaps) {
  DesignModelBuilder builder;
  std::vector<NpDesignModel::ClosedDrainageRecord>& drainages = builder.Input().closedDrainages;
  drainages.resize(3);
  auto vAddSection = [](NpDesignModel::ClosedDrainageRecord& drainage, double chain, int mode) {
    NpDesignModel::ClosedDrainageSectionRecord& section = drainage.sections.emplace_back();
    section.chainage = chain;
    section.elevationMode = mode;
    NpDesignModel::ClosedDrainagePointRecord& point = section.points.emplace_back();
    point.distance = -chain;
    point.elevation = chain / 10.0;
  };
  // The first: a gap after the section of mode -200, none after the last.
  // The second has no section, the third one.
  vAddSection(drainages[0], 10.0, -200);
  vAddSection(drainages[0], 20.0, 5);
  vAddSection(drainages[0], 30.0, -3);
  vAddSection(drainages[2], 40.0, 150);
  std::unique_ptr<DesignModelRecord> design = builder.Build();
  ModelPtr model = ModelWithTables();

  EXPECT_EQ(iVipsReadClosedDrainages(design->GetI(), nullptr, model.get()), 4);
  const RmClosedDitches* table = RmSurfGenGet<kRmClosedDitchesSlot>(Gen(model));
  const RmClosedDitch* first = RmClosedDitchesGetFirst(table);
  ASSERT_NE(first, nullptr);
  const RmClosedDitch* third = RmClosedDitchGetNext(first);
  ASSERT_NE(third, nullptr);
  EXPECT_EQ(RmClosedDitchGetNext(third), nullptr);
  EXPECT_TRUE(boRmLayerIdEquals(first->Id, RmLayerIdMake(1, 41)));
  EXPECT_TRUE(boRmLayerIdEquals(third->Id, RmLayerIdMake(1, 43)));

  const struct {
    double chain;
    int32_t mode;
    size_t points;
  } sections[] = {{10.0, 2, 1}, {-99999.0, 0, 0}, {20.0, 5, 1}, {30.0, 3, 1}};
  const RmClosedDitchSection* section = RmClosedDitchSectionsGetFirst(first);
  for (const auto& want : sections) {
    SCOPED_TRACE(want.chain);
    ASSERT_NE(section, nullptr);
    EXPECT_EQ(section->Chain, want.chain);
    EXPECT_EQ(section->ElevationMode, want.mode);
    size_t points = 0;
    for (const RmClosedDitchPoint* point = RmClosedDitchPointsGetFirst(section); point;
         point = RmClosedDitchPointGetNext(point)) {
      EXPECT_EQ(point->Distance, -want.chain);
      EXPECT_EQ(point->Elevation, want.chain / 10.0);
      ++points;
    }
    EXPECT_EQ(points, want.points);
    section = RmClosedDitchSectionGetNext(section);
  }
  EXPECT_EQ(section, nullptr);
  EXPECT_EQ(RmClosedDitchSectionsGetFirst(third)->ElevationMode, 1);

  // The ditches that were made have their layers named; the empty one not.
  const RmLayerNames* names = RmModelGetLayerNames(model.get());
  EXPECT_NE(RmLayerNameFind(names, RmLayerIdMake(1, 41)), nullptr);
  EXPECT_EQ(RmLayerNameFind(names, RmLayerIdMake(1, 42)), nullptr);
  EXPECT_NE(RmLayerNameFind(names, RmLayerIdMake(1, 43)), nullptr);
}
