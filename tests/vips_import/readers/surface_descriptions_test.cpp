// The build settings and the surface description of a design, read into a
// new surface tables object and written as the model file holds them.
#include <gtest/gtest.h>

#include <string>

#include "road_model/model/model_parts.h"
#include "road_model/surfaces/surf_gen.h"
#include "tests/vips_import/alignment_reading.h"
#include "vips_import/driver/version_labels.h"
#include "vips_import/readers/surface_descriptions.h"

namespace {

using NpDesignModel::CSurfaceNumber;
using NpDesignModel::DesignModelBuilder;
using NpDesignModel::SurfaceRecord;

class SurfaceDescriptions : public testing::Test {
 protected:
  void SetUp() override {
    version_ = VipsModelVersion;
    VipsModelVersion = 10.0;
    vRmModelSetSurfGen(model_.get(), RmSurfGenCreate());
  }
  void TearDown() override { VipsModelVersion = version_; }

  RmSurfGen* Gen() const { return RmModelGetSurfGen(model_.get()); }

  ModelPtr model_{RmModelCreate()};
  LogStream log_;

 private:
  double version_ = 0.0;
};

void vRow(SurfaceRecord& surface, double chain, double width, double slope) {
  auto& row = surface.descriptions.emplace_back();
  row.chainage = chain;
  row.width = width;
  row.slope = slope;
}

}  // namespace

TEST_F(SurfaceDescriptions, EachSwitchSetsOrClearsItsBit) {
  DesignModelBuilder builder;
  auto& settings = builder.Input().modelSettings;
  settings.innerSlope = true;
  settings.sodding = true;
  settings.rehabAdjustToExistingRoad = true;
  settings.gradualChangingLayers = true;
  auto design = builder.Build();
  Gen()->BuildSettings = 1 | 16;  // cleared: top soil removal and rock shelves are off

  vVipsReadModelSettings(design->GetI(), log_.get(), Gen());
  EXPECT_EQ(Gen()->BuildSettings, 4u | 64u | 2048u | 32768u);
  EXPECT_EQ(log_.Text(), "Leser: Bygg innstillinger\n");
}

TEST_F(SurfaceDescriptions, SurfacesKeepTheDesignsOrderAndTheirRowsTheRulesOfNoValue) {
  DesignModelBuilder builder;
  builder.Input().elevationReferenceSurface = CSurfaceNumber(1.0102);
  builder.Input().railwayParams.verticalOffset = -250.0;
  SurfaceRecord& lane = builder.AddSurface(u"Felt h\u00f8yre", CSurfaceNumber(1.01));
  vRow(lane, 999999.0, 1.0, 1.0);          // no value as first row: left out
  vRow(lane, -100000.0, 3.0, 999999.0);    // moved up by 2; no slope
  vRow(lane, 10.0, 3.0, 0.02);
  vRow(lane, 10.0, 3.00048828125, 0.02);   // the same within 0.0005: left out
  vRow(lane, 10.0, 3.0009765625, 0.02);
  vRow(lane, 999998.0, 5.0, 5.0);          // no value, trimmed from the tail
  builder.AddSurface(u"Utenfor", CSurfaceNumber(12.01));  // no family: code 0, no rows
  SurfaceRecord& ditch = builder.AddSurface(u"Gr\u00f8ft", CSurfaceNumber(-4.0101));
  vRow(ditch, 999999.00001, 1.5, -0.5);    // not exactly the mark: a chainage
  vRow(ditch, 999999.0, 0.0, 0.0);
  auto design = builder.Build();

  EXPECT_EQ(iVipsReadSurfaces(design->GetI(), log_.get(), model_.get(), Gen()), 3);
  EXPECT_EQ(log_.Text(),
            "Leser tabell: Overflate beskrivelser\n"
            "  Vertikalkurvatur offset lagt til \"Referanse h\xF8yde\" feltet i "
            "flatebeskrivelsen\n");
  EXPECT_EQ(sSectionBody(sWrittenModel(model_.get()), "SURFGEN"),
            sCrLf({":SURFACES 1", "REFSURF 10102", "REFHEIGHT 0.2500", "STARTTYPE 0",
                   ":SURFACE 10100", "DESCR \"Felt h\xF8yre\"", " -99998 3 -99999 0",
                   " 10 3 0.02 0", " 10 3.001 0.02 0", ":SURFACE 0", "DESCR Utenfor",
                   ":SURFACE -40101", "DESCR Gr\xF8" "ft", " 999999 1.5 -0.5 0"}));
}

TEST_F(SurfaceDescriptions, APositiveVerticalOffsetLowersTheReferenceWithoutALogLine) {
  DesignModelBuilder builder;
  builder.Input().railwayParams.verticalOffset = 250.0;
  auto design = builder.Build();
  EXPECT_EQ(iVipsReadSurfaces(design->GetI(), log_.get(), model_.get(), Gen()), 0);
  EXPECT_EQ(log_.Text(), "Leser tabell: Overflate beskrivelser\n");
  EXPECT_EQ(sSectionBody(sWrittenModel(model_.get()), "SURFGEN"),
            sCrLf({":SURFACES 1", "REFSURF 0", "REFHEIGHT -0.2500", "STARTTYPE 0"}));
}
