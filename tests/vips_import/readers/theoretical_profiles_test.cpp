// The designed lines of the design's sections read into the cross sections
// of a model, written as the model file holds them: the layers, their
// heights over the reference elevation and their codes, the sections they
// go into, and the rail reference heights of a railway.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "road_model/model/model_parts.h"
#include "road_model/sections/section_set.h"
#include "road_model/surfaces/surf_gen.h"
#include "tests/vips_import/alignment_reading.h"
#include "vips_import/driver/version_labels.h"
#include "vips_import/readers/surface_descriptions.h"
#include "vips_import/readers/theoretical_profiles.h"

namespace {

using NpDesignModel::CSurfaceNumber;
using NpDesignModel::DesignModelBuilder;
using NpDesignModel::DesignModelRecord;
using NpDesignModel::ModelSectionRecord;
using NpDesignModel::PointRecord;

class TheoreticalProfiles : public testing::Test {
 protected:
  void SetUp() override { version_ = VipsModelVersion; }
  void TearDown() override { VipsModelVersion = version_; }

  // The design read as an import reads it, at this version: the surface
  // description first, then the sections.
  std::string Read(const DesignModelRecord& design, double version, int modelType = 1) {
    VipsModelVersion = version;
    vRmModelSetSurfGen(model_.get(), RmSurfGenCreate());
    iVipsReadSurfaces(design.GetI(), nullptr, model_.get(), RmModelGetSurfGen(model_.get()));
    vVipsReadTheoreticalProfiles(design.GetR(), design.GetI(), log_.get(), model_.get(),
                                 RmModelGetSurfGen(model_.get()), modelType);
    return sWrittenModel(model_.get());
  }

  ModelPtr model_{RmModelCreate()};
  LogStream log_;

 private:
  double version_ = 0.0;
};

NpDesignModel::SurfacePointRecord SurfacePoint(double x, double z, CSurfaceNumber number) {
  NpDesignModel::SurfacePointRecord point;
  point.point = PointRecord(x, z);
  point.surfaceNumber = number;
  return point;
}

// A section at chainage 20 with a reference elevation of 100 and the
// surface line -5, -3, 0, 3, 4.
DesignModelBuilder& WithSurfaceLine(DesignModelBuilder& builder) {
  ModelSectionRecord& ms = builder.AddSection(20.0).model;
  ms.refElevation = 100.0;
  ms.surfacesLeft = {SurfacePoint(-3, -0.06, CSurfaceNumber(-1.01)),
                     SurfacePoint(-5, -0.56, CSurfaceNumber(-2.0102, 7))};
  ms.surfacesRight = {SurfacePoint(0, 0, CSurfaceNumber(1.01)),
                      SurfacePoint(3, -0.06, CSurfaceNumber(3.02)),
                      SurfacePoint(4, 999999.0, CSurfaceNumber(1.02))};
  return builder;
}

const std::string kNotPlaced = "CLRANG 0.00000 0.00000 0.000 0.000 0.000000 0";

// The surface line: a left point carries its own code, a right point that
// of the point before it; a serial number numbers within the group.
const std::vector<std::string> kSurfaceLine = {
    ":CHAIN 20.0000",   kNotPlaced,       "LAYER 3",          " -5 99.44 -20107",
    " -3 99.94 -10100", " 0 100 0",       " 3 99.94 10100",   " 4 -99999 30200"};

std::vector<std::string> operator+(std::vector<std::string> a, const std::vector<std::string>& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

std::vector<PointRecord> Points(std::initializer_list<PointRecord> points) { return points; }

}  // namespace

TEST_F(TheoreticalProfiles, EveryDesignedLineGoesToItsLayerWithCodesOfTheSurfaceLine) {
  DesignModelBuilder builder;
  ModelSectionRecord& ms = WithSurfaceLine(builder).Results().sections.back().model;
  auto& pavement = ms.pavementLayers.emplace_back();
  pavement.layerType = NpDesignModel::LayerTypeEnums{2};
  for (double x : {-3.2, 0.0, 3.0}) {
    auto& point = pavement.layerPoints.emplace_back();
    point.point = PointRecord(x, -0.2);
    point.surfaceNumber = CSurfaceNumber(x < 0 ? -1.01 : 1.01);
  }
  auto points = pavement.layerPoints;
  ms.pavementLayers.emplace_back().layerType = NpDesignModel::LayerTypeEnums{99};  // skipped
  ms.pavementLayers.back().layerPoints = points;
  ms.deepBlastings = Points({{-2, -1}, {2, -1}});
  ms.landscapingsLeft = Points({{-6, -0.5}, {-5, -0.56}});
  ms.landscapingsRight = Points({{5, -0.5}, {6, -0.4}});
  ms.soddingsRight = Points({{3, -0.06}, {4, -0.5}});
  ms.removalBed = Points({{-1, -2}, {1, -2}});
  ms.edgeReinforcesLeft = Points({{-3, -0.3}});
  ms.edgeReinforcesRight = Points({{3, -0.3}});
  ms.closedDrainages.emplace_back().points = Points({{7, -1.5}});
  ms.closedDrainages.emplace_back().points = Points({{8, -1.5}, {9, 999999.0}});
  ms.roadBed = Points({{-4, -0.7}, {0, -0.6}, {4, -0.7}});
  auto design = builder.Build();

  // At version 10 an empty list of split soddings leaves the soddings of
  // each side.
  const std::string bytes = Read(*design, 10.0);
  EXPECT_EQ(log_.Text(), "Leser teoretiske profiler\n");
  EXPECT_EQ(sSectionBody(bytes, "CROSSECTIONS"),
            sCrLf(kSurfaceLine + std::vector<std::string>{
                // Codes of the surface line's points at the same offset, and
                // steps outward from the first point at 0 or beyond.
                "LAYER 13", " -4 99.3 -1", " 0 99.4 0", " 4 99.3 30200",
                "LAYER 23", " -2 99 -2", " 2 99 1",
                "LAYER 93", " 3 99.94 10100", " 4 99.5 30200",
                // A left and a right part with a break between them.
                "LAYER 103", " -6 99.5 -20109", " -5 99.44 -20108", " -5 -99999 -20107",
                " 5 99.5 1", " 6 99.6 2",
                "LAYER 123", " -1 98 -2", " 1 98 1",
                "LAYER 413", " 7 98.5 1",
                "LAYER 423", " 8 98.5 1", " 9 -99999 2",
                "LAYER 513", " -3.2 99.8 -1", " 0 99.8 0", " 3 99.8 10100",
                "LAYER 9003", " -3 99.7 -10101", " -3 -99999 -10100", " 3 99.7 10100"}));
  std::string names = sSectionBody(bytes, "LAYERNAMES");
  for (const char* named : {"Trau", "Kantforsterkning"}) {
    EXPECT_NE(names.find(named), std::string::npos) << names;
  }
}

TEST_F(TheoreticalProfiles, SplitSoddingsFromVersionTenTakeThePlaceOfTheSoddings) {
  DesignModelBuilder builder;
  ModelSectionRecord& ms = WithSurfaceLine(builder).Results().sections.back().model;
  ms.soddingsLeft = Points({{-4, -0.3}});
  for (int id : {2, 51, 91, 7}) {
    auto& sodding = ms.splitSoddings.emplace_back();
    sodding.id = id;
    sodding.points = Points({{id / 10.0, -0.1}});
  }
  auto design = builder.Build();
  EXPECT_EQ(sSectionBody(Read(*design, 10.0), "CROSSECTIONS"),
            sCrLf(kSurfaceLine + std::vector<std::string>{"LAYER 53", " 0.2 99.9 1",
                                                          "LAYER 93", " 5.1 99.9 1",
                                                          "LAYER 133", " 9.1 99.9 1"}));
  // Before version 10 the split soddings are not looked at.
  model_.reset(RmModelCreate());
  EXPECT_EQ(sSectionBody(Read(*design, 8.3), "CROSSECTIONS"),
            sCrLf(kSurfaceLine + std::vector<std::string>{"LAYER 93", " -4 99.7 -1"}));
}

TEST_F(TheoreticalProfiles, SectionsOfTheSameChainageAreFilledAndOthersGoInInOrder) {
  // Cross sections that the physical reader made, at 10 and 30.
  RmSectionSet* set = RmModelGetOrCreateCrossSections(model_.get());
  for (double chain : {10.0, 30.0}) {
    RmPointAdd(RmLayerAdd(RmSectionAdd(set, nullptr, chain), RmLayerIdMake(4, 1)), nullptr, 0.0,
               50.0, 0);
  }
  DesignModelBuilder builder;
  for (double chain : {40.0, 29.999999, 5.0, 20.0}) {
    builder.AddSection(chain).model.roadBed = Points({{0, chain}});
  }
  auto design = builder.Build();
  EXPECT_EQ(sSectionBody(Read(*design, 10.0), "CROSSECTIONS"),
            sCrLf({":CHAIN 5.0000", kNotPlaced, "LAYER 13", " 0 5 0",
                   ":CHAIN 10.0000", kNotPlaced, "LAYER 14", " 0 50 0",
                   ":CHAIN 20.0000", kNotPlaced, "LAYER 13", " 0 20 0",
                   ":CHAIN 30.0000", kNotPlaced, "LAYER 13", " 0 30 0", "LAYER 14", " 0 50 0",
                   ":CHAIN 40.0000", kNotPlaced, "LAYER 13", " 0 40 0"}));
}

TEST_F(TheoreticalProfiles, ARailwayKeepsItsRailReferenceHeightsOnlyWhereTheySaySomething) {
  struct Case {
    int modelType;
    std::vector<double> railHeights;
    std::vector<std::string> table;  // the lines of the group behind STARTTYPE
    std::string log;
  };
  const std::string heading = "Leser teoretiske profiler\n";
  const Case cases[] = {
      {2, {0.5, 0.75, 1.0, 1.0}, {":SURFACEREFHEIGHTS", " 0.0000 -0.5000", " 20.0000 -1.0000",
                                  " 30.0000 -1.0000"},
       heading + "H\xF8yde differanser for jernbaneprosjekt importert som referanseh\xF8yde "
                 "tabell\n"},
      {2, {0.0, 0.0, 0.0, 0.0}, {}, heading},
      {1, {0.5, 0.75, 1.0, 1.0}, {}, heading},
  };
  for (const Case& c : cases) {
    DesignModelBuilder builder;
    builder.Input();
    for (size_t i = 0; i < c.railHeights.size(); ++i) {
      builder.AddSection(10.0 * static_cast<double>(i)).model.railwayRefElevation =
          c.railHeights[i];
    }
    auto design = builder.Build();
    model_.reset(RmModelCreate());
    LogStream log;
    VipsModelVersion = 10.0;
    vRmModelSetSurfGen(model_.get(), RmSurfGenCreate());
    iVipsReadSurfaces(design->GetI(), nullptr, model_.get(), RmModelGetSurfGen(model_.get()));
    vVipsReadTheoreticalProfiles(design->GetR(), design->GetI(), log.get(), model_.get(),
                                 RmModelGetSurfGen(model_.get()), c.modelType);
    EXPECT_EQ(sSectionBody(sWrittenModel(model_.get()), "SURFGEN"),
              sCrLf(std::vector<std::string>{":SURFACES 1", "REFSURF 0", "REFHEIGHT -0.0000",
                                             "STARTTYPE 0"} + c.table))
        << c.modelType;
    EXPECT_EQ(log.Text(), c.log);
  }
}
