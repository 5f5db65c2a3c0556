// The chainage tables of a design through the whole conversion: a design
// with every such table filled, unusual rows included, converted by the
// exported function over a model file that held other tables. The tables'
// sections of the model file are checked byte for byte, and the log for the
// readers' headings and warnings in the order of the import.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "kvrvips/kvrvips.h"
#include "model_file/records/frame/model_save.h"
#include "road_model/model/model_parts.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/tables/chain_range_members.h"
#include "road_model/tables/chain_range_table.h"
#include "tests/vips_import/alignment_reading.h"
#include "tests/vips_import/conversion_fixtures.h"

namespace {

using NpDesignModel::CSurfaceNumber;
using NpDesignModel::DesignModelBuilder;
using NpDesignModel::DesignModelRecord;

void vAddBoundary(std::vector<NpDesignModel::SurfaceBoundaryRecord>& side, double chain,
                  double distance, double surface, int32_t alignment) {
  NpDesignModel::SurfaceBoundaryRecord& row = side.emplace_back();
  row.chainage = chain;
  row.distance = distance;
  row.surfaceNumber = CSurfaceNumber(surface);
  row.alignmentId = alignment;
}

void vAddShelf(std::vector<NpDesignModel::RockShelfRecord>& side, double from, double to,
               double minWidth, double additionalWidth, double minHeight, double slope) {
  NpDesignModel::RockShelfRecord& row = side.emplace_back();
  row.fromChainage = from;
  row.toChainage = to;
  row.minWidth = minWidth;
  row.additionalWidth = additionalWidth;
  row.minHeigth = minHeight;
  row.slope = slope;
}

void vAddDrainageSection(NpDesignModel::ClosedDrainageRecord& drainage, double chain, int mode,
                         std::initializer_list<std::pair<double, double>> points) {
  NpDesignModel::ClosedDrainageSectionRecord& section = drainage.sections.emplace_back();
  section.chainage = chain;
  section.elevationMode = mode;
  for (auto [distance, elevation] : points) {
    NpDesignModel::ClosedDrainagePointRecord& point = section.points.emplace_back();
    point.distance = distance;
    point.elevation = elevation;
  }
}

std::unique_ptr<DesignModelRecord> TablesDesign() {
  DesignModelBuilder builder;
  NpDesignModel::InDataRecord& input = builder.Input();
  input.modelVersionNumber = 10.0;
  input.modelType = NpDesignModel::CInData::ModelTypeEnums{1};

  // A boundary at the model's mark of none, one at the design's, one without
  // surface or alignment.
  vAddBoundary(input.surfaceBoundariesLeft, 0.0, -7.5, -1.0201, 0);
  vAddBoundary(input.surfaceBoundariesLeft, 999998.0, 3.0, -1.0201, 12);
  vAddBoundary(input.surfaceBoundariesRight, -99999.0, 6.25, 1.0301, 3);
  vAddBoundary(input.surfaceBoundariesRight, 400.0, 8.0, 0.0, 0);

  for (auto [from, position] : {std::pair{100.0, 1}, {200.0, 3}, {300.0, 2}}) {
    NpDesignModel::EmbankmentDitchRecord& ditch = input.embankmentDitchs.emplace_back();
    ditch.fromChainage = from;
    ditch.toChainage = from + 50.0;
    ditch.position = NpDesignModel::CIEmbankmentDitch::PositionEnums{position};
  }

  vAddShelf(input.rockShelfsLeft, 100.0, 200.0, 2.0, 0.5, 1.5, 0.1);
  vAddShelf(input.rockShelfsRight, 150.0, 180.0, 3.0, 0.0, 2.0, 0.25);

  NpDesignModel::DitchDepthRecord& depth = input.ditchDepths.emplace_back();
  depth.fromChainage = 0.0;
  depth.toChainage = 500.0;
  depth.minDepthLeft = 0.6;
  depth.minDepthRight = 0.8;

  // The first drainage has no sections; the second has a gap after its
  // first section.
  input.closedDrainages.resize(2);
  vAddDrainageSection(input.closedDrainages[1], 120.0, -101, {{-4.5, 99.25}, {-3.5, 99.0}});
  vAddDrainageSection(input.closedDrainages[1], 140.0, 2, {{-4.5, 99.5}});

  NpDesignModel::TopSoilRemovalRecord& topSoil = input.topSoilRemovals.emplace_back();
  topSoil.fromChainage = 0.0;
  topSoil.toChainage = 1000.0;
  topSoil.cutCode = NpDesignModel::CITopSoilRemoval::CutCodeEnums{1};
  topSoil.fillCode = NpDesignModel::CITopSoilRemoval::FillCodeEnums{2};
  topSoil.cutSlope = 0.5;
  topSoil.fillSlope = 0.25;
  topSoil.criteria = 3;

  NpDesignModel::SoftSpotRemovalRecord& softSpot = input.softSpotRemovals.emplace_back();
  softSpot.fromChainage = 250.0;
  softSpot.toChainage = 300.0;
  softSpot.designMode = NpDesignModel::CISoftSpotRemoval::DesignModeEnums{2};
  softSpot.depth = 1.5;
  return builder.Build();
}

// Saves a model whose surface tables have build settings and a table that
// the design has nothing for.
void vSaveModelWithTables(const std::string& modelFile) {
  ModelPtr model(RmModelCreate());
  RmSurfGen* gen = RmSurfGenCreate();
  gen->BuildSettings = 5;
  RmChainRangeTable* plasters = RmChainRangeTableCreate(&kRmSoilCutPlasters);
  vRmChainRangeSetRange(RmChainRangeAddBefore(RmChainRangeTableGetRows(plasters), nullptr), 1.0,
                        2.0);
  vRmSurfGenSet<kRmSoilCutPlastersSlot>(gen, plasters);
  vRmModelSetSurfGen(model.get(), gen);
  ASSERT_TRUE(boRmModelSave(model.get(), modelFile.c_str()));
  ASSERT_NE(sSectionBody(sReadWholeFile(modelFile), "SOILCUTPLASTERS"), "<none>");
}

}  // namespace

TEST(TablesConversion, EveryChainageTableOfTheDesignLandsInItsSection) {
  ScratchFolder folder;
  std::unique_ptr<DesignModelRecord> design = TablesDesign();
  design->documentPath = folder / "veg.json";
  ASSERT_TRUE(design->ToFile(true));
  std::string modelFile = folder / "veg.sfi";
  vSaveModelWithTables(modelFile);
  char* logFile = nullptr;
  ASSERT_EQ(iKvrVipsConvertDatabase(design->documentPath.c_str(), modelFile.c_str(),
                                    KVRVIPS_IMPORT_TABLES, &logFile, sShippedSettings().c_str(),
                                    0, 0),
            0);

  const std::string warning =
      "***Warning in import of DitchInFilling: SIDE_BOTH not supported***\n";
  EXPECT_EQ(sReadTextFile(folder / "veg.log"),
            sLogHead("Np21", "Road", "10.0") + sTablesLog(warning) + "\n");

  // The tables start anew: what the model held of them is gone.
  std::string file = sReadWholeFile(modelFile);
  EXPECT_EQ(sSectionBody(file, "SURFGEN_BUILDSETTINGS"), sCrLf({"BUILDSETTINGS 0"}));
  EXPECT_EQ(sSectionBody(file, "SOILCUTPLASTERS"), "<none>");
  EXPECT_EQ(sSectionBody(file, "SIDEBOUNDARIES"), sCrLf({
                                                      ":LEFTSIDE",
                                                      " 0.000 -10201 -7.500 -99999",
                                                      " -99999.000 -10201 -99999.000 12",
                                                      ":RIGHTSIDE",
                                                      " -99997.000 10301 6.250 3",
                                                      " 400.000 -99999 8.000 -99999",
                                                  }));
  EXPECT_EQ(sSectionBody(file, "FILLDITCHES"),
            sCrLf({":LEFTSIDE", " 100.000 150.000", ":RIGHTSIDE", " 300.000 350.000"}));
  EXPECT_EQ(sSectionBody(file, "ROCKBENCHS"), sCrLf({
                                                  ":LEFTSIDE",
                                                  " 100.0000 200.0000 2.000 0.500 1.500 0.100",
                                                  ":RIGHTSIDE",
                                                  " 150.0000 180.0000 3.000 0.000 2.000 0.250",
                                              }));
  EXPECT_EQ(sSectionBody(file, "MINDITCHDEPTHS"), sCrLf({" 0.000 500.000 0.600 0.800"}));
  EXPECT_EQ(sSectionBody(file, "CLOSEDDITCHES"), sCrLf({
                                                     ":CLOSEDDITCH 421",
                                                     ":CLOSEDDITCH_CHAIN 120.0000 1",
                                                     " -4.500 99.250",
                                                     " -3.500 99.000",
                                                     ":CLOSEDDITCH_CHAIN -99999.0000 0",
                                                     ":CLOSEDDITCH_CHAIN 140.0000 2",
                                                     " -4.500 99.500",
                                                 }));
  EXPECT_EQ(sSectionBody(file, "REMOVALTOPSOILS"), sCrLf({" 0.000 1000.000 1 2 0.500 0.250 3"}));
  EXPECT_EQ(sSectionBody(file, "UNSUITABLESOILS"), sCrLf({" 250.000 300.000 2"}));
}
