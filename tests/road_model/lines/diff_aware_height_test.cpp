#include <gtest/gtest.h>

#include <string>

#include "base/log_file.h"
#include "base/session.h"
#include "road_model/lines/diff_altitudes.h"
#include "road_model/model/model.h"
#include "road_model/model/model_lines.h"
#include "road_model/sections/section_heights.h"
#include "road_model/lines/vertical_line.h"
#include "tests/support/scratch_folder.h"

namespace {

// Cross sections at 100 (centre height 10), 120 (12) and 140 (none).
bool boThreeSections(const RmModel*, double chain, RmSectionHeights* heights) {
  const double chains[] = {100.0, 120.0, 140.0};
  const double centers[] = {10.0, 12.0, -99999.0};
  for (int i = 0; i < 3; ++i) {
    if (chains[i] < chain) continue;
    heights->HasNext = true;
    heights->NextChain = chains[i];
    heights->NextHeight = centers[i];
    if (i > 0) {
      heights->HasPrevious = true;
      heights->PreviousChain = chains[i - 1];
      heights->PreviousHeight = centers[i - 1];
    }
    return true;
  }
  return true;
}

class DiffAwareHeight : public ::testing::Test {
 protected:
  void SetUp() override {
    oldSource_ = pfnRmSetSectionHeightsSource(boThreeSections);
    model_ = RmModelCreate();
    vRmModelSetLines(model_, RmLinesCreateDefault());
    verLine_ = RmVerLineCreate();
    RmVerPointAdd(verLine_, 0.0, 0.0, 0.0, 0.0);
    RmVerPointAdd(verLine_, 200.0, 2.0, 0.0, 0.0);  // 1 %
    iRmVerLineCompute(verLine_);
    verLine_->DiffAltitudes = RmDiffAltitudesCreate();
    RmDiffAltitude* row = RmDiffAltitudeAdd(verLine_->DiffAltitudes, 90.0);
    vRmDiffAltitudeSetRange(row, 90.0, 150.0);
    vRmDiffAltitudeSetHeight(row, 0.5);
    vRmLineSetVerLine(RmModelGetLines(model_), RmModelGetCenterLine(model_), verLine_);
  }
  void TearDown() override {
    vRmModelDelete(model_);
    pfnRmSetSectionHeightsSource(oldSource_);
  }

  RmSectionHeightsSource oldSource_ = nullptr;
  RmModel* model_ = nullptr;
  RmVerLine* verLine_ = nullptr;
};

}  // namespace

TEST_F(DiffAwareHeight, FollowsTheSectionsInsideARange) {
  double slope = 0.0;
  // Outside the range: the vertical line itself.
  EXPECT_NEAR(dRmVerLineHeightDiffAware(verLine_, 50.0, &slope), 0.5, 1e-12);
  EXPECT_DOUBLE_EQ(slope, 0.01);
  // On a section, and between two: its height raised by the difference.
  EXPECT_DOUBLE_EQ(dRmVerLineHeightDiffAware(verLine_, 100.0, nullptr), 10.5);
  EXPECT_NEAR(dRmVerLineHeightDiffAware(verLine_, 100.0002, nullptr), 10.50002, 1e-9);
  EXPECT_DOUBLE_EQ(dRmVerLineHeightDiffAware(verLine_, 120.0, nullptr), 12.5);
  EXPECT_DOUBLE_EQ(dRmVerLineHeightDiffAware(verLine_, 119.9996, nullptr), 12.5);
  EXPECT_NEAR(dRmVerLineHeightDiffAware(verLine_, 110.0, nullptr), 11.5, 1e-12);
  EXPECT_NEAR(dRmLineHeightAt(RmModelGetCenterLine(model_), 105.0, nullptr), 11.0, 1e-12);
  // No section before the first one, and none with a height beyond 120.
  EXPECT_NEAR(dRmVerLineHeightDiffAware(verLine_, 95.0, nullptr), 0.95, 1e-12);
  EXPECT_NEAR(dRmVerLineHeightDiffAware(verLine_, 130.0, nullptr), 1.3, 1e-12);
  // The plain evaluation ignores the table.
  EXPECT_NEAR(dRmVerLineHeightAt(verLine_, 110.0, nullptr), 1.1, 1e-12);
}

TEST_F(DiffAwareHeight, WithoutSectionsOrModelTheLineGivesItsOwnHeight) {
  pfnRmSetSectionHeightsSource(nullptr);
  EXPECT_NEAR(dRmVerLineHeightDiffAware(verLine_, 110.0, nullptr), 1.1, 1e-12);
  pfnRmSetSectionHeightsSource(boThreeSections);
  RmModelGetLines(model_)->Model = nullptr;
  EXPECT_NEAR(dRmVerLineHeightDiffAware(verLine_, 110.0, nullptr), 1.1, 1e-12);
  EXPECT_EQ(dRmVerLineHeightDiffAware(nullptr, 110.0, nullptr), -99999.0);
}

TEST_F(DiffAwareHeight, MissingSlopeIsLoggedOncePerConversion) {
  ScratchFolder folder;
  std::string logPath = folder / "conversion.log";
  std::string oldLog = sLogGetFileName();
  vLogSetFileName(logPath.c_str());
  // A conversion of its own: a new context is the primary one (null) or is
  // selected here.
  SessionContext* ownSession = pSessionCreate();
  if (ownSession) vSessionSelect(ownSession);

  double slope = 7.0;
  EXPECT_NEAR(dRmVerLineHeightDiffAware(verLine_, 110.0, &slope), 11.5, 1e-12);
  EXPECT_NEAR(dRmVerLineHeightDiffAware(verLine_, 120.0, &slope), 12.5, 1e-12);
  EXPECT_EQ(slope, 7.0);
  std::string log = sReadWholeFile(logPath);
  const std::string message = "Not able calc verline slope on diffaltitudes (chain 110.000)";
  EXPECT_NE(log.find(message), std::string::npos) << log;
  EXPECT_EQ(log.find("Not able", log.find(message) + 1), std::string::npos) << log;

  vSessionDelete(ownSession);
  vLogSetFileName(oldLog.c_str());
}
