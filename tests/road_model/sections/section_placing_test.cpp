// Sections in plan and in space: offsets to plan points, the tilted plane,
// placing on a plan line, and the centre heights that the vertical lines
// read, raised by the differences of their ranges.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <numbers>
#include <string>
#include <utility>

#include "base/log_file.h"
#include "base/session.h"
#include "geometry/line.h"
#include "road_model/lines/diff_altitudes.h"
#include "road_model/lines/vertical_curves.h"
#include "road_model/lines/vertical_heights.h"
#include "road_model/model/model.h"
#include "road_model/model/model_lines.h"
#include "road_model/model/model_parts.h"
#include "road_model/params/sect_params.h"
#include "road_model/sections/section_center_height.h"
#include "road_model/sections/section_heights.h"
#include "road_model/sections/section_placing.h"
#include "road_model/lines/vertical_line.h"
#include "tests/road_model/layer_test_util.h"
#include "tests/support/scratch_folder.h"

namespace {

constexpr double kPi = std::numbers::pi;

// A model whose centre line runs east from (1000, 2000) for 100 m, from
// chainage 0, rising 1 % from height 10.
ModelPtr ModelWithCentreLine() {
  ModelPtr model(RmModelCreate());
  vRmModelSetLines(model.get(), RmLinesCreateDefault());
  RmLine* line = RmModelGetCenterLine(model.get());
  LiLineAddP2d(line, 1000, 2000);
  LiLineAddP2d(line, 1100, 2000);
  RmVerLine* verLine = RmVerLineCreate();
  RmVerPointAdd(verLine, 0.0, 10.0, 0.0, 0.0);
  RmVerPointAdd(verLine, 100.0, 11.0, 0.0, 0.0);
  iRmVerLineCompute(verLine);
  vRmLineSetVerLine(RmModelGetLines(model.get()), line, verLine);
  return model;
}

// The model above with cross sections at 20 (centre height 20), 40 (22) and
// 60 (none), and a difference of 0.5 for the centre line from 10 to 80.
ModelPtr ModelWithDifferences() {
  ModelPtr model = ModelWithCentreLine();
  vRmModelSetCalcPhys(model.get(), 2);
  RmSectionSet* set = RmModelGetOrCreateCrossSections(model.get());
  for (auto [chain, height] : {std::pair{20.0, 20.0}, {40.0, 22.0}, {60.0, kGap}}) {
    vAddRows(RmLayerAdd(RmSectionAdd(set, nullptr, chain), RmLayerIdMake(2, 1)),
             {{-1, height}, {1, height}});
  }
  RmVerLine* verLine = RmLineGetVerLine(RmModelGetCenterLine(model.get()));
  verLine->DiffAltitudes = RmDiffAltitudesCreate();
  RmDiffAltitude* range = RmDiffAltitudeAdd(verLine->DiffAltitudes, 10.0);
  vRmDiffAltitudeSetRange(range, 10.0, 80.0);
  vRmDiffAltitudeSetHeight(range, 0.5);
  return model;
}

}  // namespace

TEST(SectionPlacing, ATiltedSectionTurnsItsHeightsAboutThePivot) {
  SectionPtr section(RmSectionCreateFree());
  section->ClX = 100.0;
  section->Direction = 0.0;
  section->TiltSlope = 0.75;  // cos 0.8, sin 0.6
  section->TiltHeight = 10.0;
  LayerPtr layer = MakeLayer(RmLayerIdMake(2, 1), {{1, 4}, {2, kGap}});
  double xyz[3];
  // Not tilted until the flag says so.
  EXPECT_EQ(dRmSectionHeightToPlane(section.get(), 4.0), 4.0);
  vRmSectionPointTo3d(section.get(), RmPointsGetFirst(layer.get()), xyz);
  EXPECT_EQ(xyz[2], 4.0);

  vRmSectionSetFlag(section.get(), kRmSectionTilted, true);
  EXPECT_NEAR(dRmSectionHeightToPlane(section.get(), 4.0), 15.0, 1e-12);
  EXPECT_NEAR(dRmSectionHeightFromPlane(section.get(), 15.0), 4.0, 1e-12);
  vRmSectionPointTo3d(section.get(), RmPointsGetFirst(layer.get()), xyz);
  EXPECT_NEAR(xyz[0], 101.0, 1e-12);
  EXPECT_NEAR(xyz[1], -2.4, 1e-12);
  EXPECT_NEAR(xyz[2], 13.2, 1e-12);
  // A point without a height stays in the plane with its mark.
  vRmSectionPointTo3d(section.get(), RmPointsGetLast(layer.get()), xyz);
  EXPECT_NEAR(xyz[0], 102.0, 1e-12);
  EXPECT_EQ(xyz[2], -99999.0);
}

TEST(SectionPlacing, TheTiltAtAChainageAsksTheSectionsAroundIt) {
  RmSectionSet* set = RmSectionSetCreate();
  for (double chain : {100.0, 110.0, 120.0}) RmSectionAdd(set, nullptr, chain);
  vRmSectionSetFlag(RmSectionsGetFirst(set), kRmSectionTilted, true);
  EXPECT_TRUE(boRmSectionsAnyTilted(set));
  EXPECT_TRUE(boRmSectionTiltedAt(set, 100.00005));
  EXPECT_TRUE(boRmSectionTiltedAt(set, 105.0));
  EXPECT_FALSE(boRmSectionTiltedAt(set, 109.99995));
  EXPECT_FALSE(boRmSectionTiltedAt(set, 115.0));
  EXPECT_FALSE(boRmSectionTiltedAt(set, 130.0));
  vRmSectionSetDelete(&set);
  EXPECT_EQ(set, nullptr);
}

TEST(SectionPlacing, PlacingOnALineSetsPositionReachAndTilt) {
  ModelPtr model = ModelWithCentreLine();
  const RmLine* line = RmModelGetCenterLine(model.get());
  RmSectParams* params = RmModelGetSectParams(model.get());
  params->DistLeft = 12.0;
  params->DistRight = 15.0;
  RmSectionSet* set = RmModelGetOrCreateCrossSections(model.get());
  RmSection* inside = RmSectionAdd(set, nullptr, 30.0);
  RmSection* before = RmSectionAdd(set, nullptr, -5.0);
  RmSection* beyond = RmSectionAdd(set, nullptr, 150.0);
  vRmSectionSetFlag(inside, kRmSectionTilted | kRmSectionLeftClip, true);
  vRmSectionSetPlaceOnLine(set, line, params);

  EXPECT_NEAR(inside->ClX, 1030.0, 1e-9);
  EXPECT_NEAR(inside->ClY, 2000.0, 1e-9);
  EXPECT_NEAR(inside->Direction, -kPi / 2, 1e-12);
  EXPECT_EQ(inside->LeftDist, 12.0f);
  // The clip distances lie far out, the left one positive; the flags stay.
  EXPECT_EQ(inside->LClipDist, 1012.0f);
  EXPECT_EQ(inside->RClipDist, 1015.0f);
  EXPECT_EQ(inside->Flags, kRmSectionTilted | kRmSectionLeftClip);
  EXPECT_NEAR(inside->LeftEnd[1], 2012.0, 1e-9);
  EXPECT_NEAR(inside->RightEnd[1], 1985.0, 1e-9);
  EXPECT_NEAR(inside->TiltHeight, 10.3, 1e-12);
  EXPECT_NEAR(inside->TiltSlope, 0.01, 1e-12);
  // Outside the line: at its ends; the tilt of an untilted section stays.
  EXPECT_NEAR(before->ClX, 1000.0, 1e-9);
  EXPECT_NEAR(beyond->ClX, 1100.0, 1e-9);
  EXPECT_EQ(beyond->TiltHeight, 0.0);

  // Without parameters the reach stays; a line without points places nothing.
  before->LeftDist = 3.0f;
  EXPECT_TRUE(boRmSectionPlaceOnLine(before, line, nullptr));
  EXPECT_EQ(before->LeftDist, 3.0f);
  RmLine* empty = RmLinesAddWithId(RmModelGetLines(model.get()), 9, false);
  EXPECT_FALSE(boRmSectionPlaceOnLine(before, empty, params));
  EXPECT_NEAR(before->ClX, 1000.0, 1e-9);
  EXPECT_FALSE(boRmSectionPlaceOnLine(before, nullptr, params));
}

TEST(SectionCenterHeight, ThePhysicalLayersAreAskedFromTheTopGroupDown) {
  SectionPtr section(RmSectionCreateFree());
  vAddRows(RmLayerAdd(section.get(), RmLayerIdMake(2, 5)), {{-1, 10}, {1, 10}});
  vAddRows(RmLayerAdd(section.get(), RmLayerIdMake(2, 12)), {{-3, 20}, {-1, 20}});
  vAddRows(RmLayerAdd(section.get(), RmLayerIdMake(2, 21)), {{-1, kGap}, {1, kGap}});
  vAddRows(RmLayerAdd(section.get(), RmLayerIdMake(4, 1)), {{-1, 30}, {1, 30}});
  EXPECT_EQ(dRmSectionGetCenterHeight(nullptr, section.get()), 10.0);
  vAddRows(RmLayerAdd(section.get(), RmLayerIdMake(2, 16)), {{-1, 40}, {1, 40}});
  EXPECT_EQ(dRmSectionGetCenterHeight(nullptr, section.get()), 40.0);

  // The model's physical type for calculation decides which layers count.
  ModelPtr model(RmModelCreate());
  vRmModelSetCalcPhys(model.get(), 4);
  EXPECT_EQ(dRmSectionGetCenterHeight(model.get(), section.get()), 30.0);
  vRmModelSetCalcPhys(model.get(), 3);
  EXPECT_EQ(dRmSectionGetCenterHeight(model.get(), section.get()), -99999.0);
}

TEST(DiffAwareHeight, InsideARangeTheLineFollowsTheCrossSectionsRaisedByTheDifference) {
  ModelPtr model = ModelWithDifferences();
  RmLine* line = RmModelGetCenterLine(model.get());
  RmVerLine* verLine = RmLineGetVerLine(line);
  double slope = 0.0;
  // Outside the range: the vertical line itself.
  EXPECT_NEAR(dRmVerLineHeightDiffAware(verLine, 5.0, &slope), 10.05, 1e-12);
  EXPECT_DOUBLE_EQ(slope, 0.01);
  // On a section, and between two: its height raised by the difference.
  EXPECT_DOUBLE_EQ(dRmVerLineHeightDiffAware(verLine, 20.0, nullptr), 20.5);
  EXPECT_NEAR(dRmVerLineHeightDiffAware(verLine, 20.0002, nullptr), 20.50002, 1e-9);
  EXPECT_DOUBLE_EQ(dRmVerLineHeightDiffAware(verLine, 39.9996, nullptr), 22.5);
  EXPECT_NEAR(dRmLineHeightAt(line, 30.0, nullptr), 21.5, 1e-12);
  // No section before the first one, and none with a height beyond 40.
  EXPECT_NEAR(dRmVerLineHeightDiffAware(verLine, 15.0, nullptr), 10.15, 1e-12);
  EXPECT_NEAR(dRmVerLineHeightDiffAware(verLine, 50.0, nullptr), 10.5, 1e-12);
  // The plain evaluation ignores the table.
  EXPECT_NEAR(dRmVerLineHeightAt(verLine, 30.0, nullptr), 10.3, 1e-12);
  RmSectionHeights heights{};
  EXPECT_TRUE(boRmCrossSectionHeights(model.get(), 25.0, &heights));
  EXPECT_EQ(heights.NextChain, 40.0);
  EXPECT_EQ(heights.PreviousHeight, 20.0);

  // Without a source of section heights, without cross sections and without
  // a model the line gives its own height.
  RmSectionHeightsSource source = pfnRmSetSectionHeightsSource(nullptr);
  EXPECT_NEAR(dRmVerLineHeightDiffAware(verLine, 30.0, nullptr), 10.3, 1e-12);
  pfnRmSetSectionHeightsSource(source);
  vRmModelSetCrossSections(model.get(), nullptr);
  EXPECT_FALSE(boRmCrossSectionHeights(model.get(), 25.0, &heights));
  EXPECT_NEAR(dRmVerLineHeightDiffAware(verLine, 30.0, nullptr), 10.3, 1e-12);
  RmModelGetLines(model.get())->Model = nullptr;
  EXPECT_NEAR(dRmVerLineHeightDiffAware(verLine, 30.0, nullptr), 10.3, 1e-12);
  EXPECT_EQ(dRmVerLineHeightDiffAware(nullptr, 30.0, nullptr), -99999.0);
}

TEST(DiffAwareHeight, AMissingSlopeIsLoggedOncePerConversion) {
  ModelPtr model = ModelWithDifferences();
  RmVerLine* verLine = RmLineGetVerLine(RmModelGetCenterLine(model.get()));
  ScratchFolder folder;
  std::string oldLog = sLogGetFileName();
  vLogSetFileName((folder / "conversion.log").c_str());
  // A conversion of its own: a new context is the primary one (null) or is
  // selected here.
  SessionContext* ownSession = pSessionCreate();
  if (ownSession) vSessionSelect(ownSession);

  double slope = 7.0;
  EXPECT_NEAR(dRmVerLineHeightDiffAware(verLine, 30.0, &slope), 21.5, 1e-12);
  EXPECT_NEAR(dRmVerLineHeightDiffAware(verLine, 40.0, &slope), 22.5, 1e-12);
  EXPECT_EQ(slope, 7.0);
  std::string log = sReadTextFile(folder / "conversion.log");
  const std::string message = "Not able calc verline slope on diffaltitudes (chain 30.000)";
  EXPECT_NE(log.find(message), std::string::npos) << log;
  EXPECT_EQ(log.find("Not able", log.find(message) + 1), std::string::npos) << log;

  vSessionDelete(ownSession);
  vLogSetFileName(oldLog.c_str());
}
