#include <gtest/gtest.h>

#include <string>

#include "road_model/codes/code_ranges.h"
#include "road_model/codes/layer_id.h"
#include "road_model/codes/pcode.h"

TEST(Pcode, BuildsAndTakesApartTheDecimalParts) {
  EXPECT_EQ(iRmPcodeBuild(1, 2, 150), 10299);  // number cut to 99
  EXPECT_EQ(iRmPcodeBuildSide(3, 1, 5, kRmSideLeft), -30105);
  EXPECT_EQ(iRmPcodeBuildSide2(3, 1, kRmSideRight), 30100);
  EXPECT_EQ(iRmPcodeFamily(-30105), 3);
  EXPECT_EQ(iRmPcodeGroup(-30105), 1);
  EXPECT_EQ(iRmPcodeNumber(-30105), 5);

  EXPECT_FALSE(boRmPcodeCheck(0));      // group 0 needs a number
  EXPECT_TRUE(boRmPcodeCheck(1));       // a centre code
  EXPECT_FALSE(boRmPcodeCheck(90000));  // family 9
  EXPECT_TRUE(boRmPcodeCheck(-89999));
  EXPECT_TRUE(boRmPcodePairCheck(uRmPcodePair(30105, -10100)));
  EXPECT_FALSE(boRmPcodePairCheck(uRmPcodePair(30105, 0)));
}

TEST(Pcode, DecimalTextsReadAndPrintBothWays) {
  const struct {
    const char* text;
    int code;
  } rows[] = {{"3.01", 30100}, {"-3.0105", -30105}, {"0.0005", 5}, {"", 0}};
  for (const auto& row : rows) {
    EXPECT_EQ(iRmPcodeFromText(row.text), row.code) << row.text;
    EXPECT_STREQ(sRmPcodeToText(row.code), row.text) << row.code;
  }
  EXPECT_EQ(iRmPcodeFromText("3.0105"), 30105);
  EXPECT_EQ(iRmPcodeFromText(nullptr), 0);
  EXPECT_STREQ(sRmPcodeToText(kRmPcodeSentinel), "");
  EXPECT_DOUBLE_EQ(dRmPcodeToDouble(-30105), -3.0105);
  EXPECT_EQ(dRmPcodeToDouble(0), 0.0);
  // Strict reading refuses a family beyond 9.
  EXPECT_EQ(iRmPcodeFromDouble(12.5, true), 0);
  EXPECT_EQ(iRmPcodeFromDouble(12.5, false), 125000);
  EXPECT_EQ(iRmPcodeFromDoubleSide(3.0105, kRmSideLeft), -30105);
  // Every code of a family survives the trip through its decimal value.
  for (int code = 10000; code < 20000; ++code) {
    ASSERT_EQ(iRmPcodeFromDoubleStrict(dRmPcodeToDouble(code)), code) << code;
  }
}

TEST(Pcode, ConvertsTheOldThreeDigitForm) {
  EXPECT_EQ(iRmPcodeFromOld(3105), 30105);
  EXPECT_EQ(iRmPcodeFromOld(-3105), -30105);
  EXPECT_EQ(iRmPcodeFromOld(9999), 99999);  // 9.9.99 stands for group 99
  EXPECT_EQ(iRmPcodeFromOld(9998), 90998);
  EXPECT_EQ(RmPcodePairFromOld(uRmPcodePair(1001, -2203)), uRmPcodePair(10001, -20203));
}

TEST(Pcode, StepsCarryBetweenNumbersAndGroups) {
  const struct {
    int code, side, steps, result;
  } rows[] = {
      {30105, kRmSideRight, 3, 30108},   {30100, kRmSideRight, -1, 30099},  // borrows a group
      {30105, kRmSideLeft, 200, -30305}, {30105, kRmSideRight, -10, 30000},
      {30150, kRmSideRight, 60, 30099},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(iRmPcodeStep(row.code, row.side, row.steps), row.result) << row.code << row.steps;
  }
  int family = 2, group = 99, number = 99;
  vRmPcodeNextNumber(&family, &group, &number);
  EXPECT_EQ(family * 10000 + group * 100 + number, 30100);
  vRmPcodeNextGroup(&family, &group, false);
  EXPECT_EQ(family * 100 + group, 299);
}

TEST(Pcode, ClassesAndOrder) {
  EXPECT_TRUE(boRmPcodeIsMarked(3, 59201));
  EXPECT_FALSE(boRmPcodeIsMarked(1, 59201));
  EXPECT_TRUE(boRmPcodeIsMarked(1, -59901));
  EXPECT_FALSE(boRmPcodeIsMarked(1, 59900));
  EXPECT_TRUE(boRmPcodeIsMarked(0, 80001));
  EXPECT_TRUE(boRmPcodeIsCentre(1));
  EXPECT_FALSE(boRmPcodeIsCentre(100));
  // A family-7 code yields to other outer families, whatever its size.
  EXPECT_FALSE(boRmPcodeIsInner(70100, 40100));
  EXPECT_TRUE(boRmPcodeIsInner(40100, 70100));
  EXPECT_TRUE(boRmPcodeIsInner(-30100, 20100));
  EXPECT_TRUE(boRmPcodeIsOutward(10100, 20100));
  EXPECT_TRUE(boRmPcodeIsOutward(-10100, -20100));
  EXPECT_FALSE(boRmPcodeIsOutward(-10100, 20100));
}

TEST(Sides, StepThroughTheWalkAndStopAtTheEnds) {
  int side = 1;
  EXPECT_EQ(iRmSideStepUp(&side), 2);
  EXPECT_EQ(iRmSideStepUp(&side), 1000);
  EXPECT_EQ(iRmSideStepDown(&side), 2);
  side = 7;
  EXPECT_EQ(iRmSideStepUp(&side), 1000);
  side = 7;
  EXPECT_EQ(iRmSideStepDown(&side), -1);
  EXPECT_EQ(iRmPcodeSide(0), kRmSideRight);
  EXPECT_EQ(iRmSideOpposite(3), -1);
  EXPECT_TRUE(boRmSideIncludesLeft(0));
  EXPECT_FALSE(boRmSideIncludesRight(1));
}

TEST(LayerId, FileNumberRoundTripAndFilters) {
  RmLayerId physical5 = RmLayerIdMake(kRmLayerPhysical, 5);
  EXPECT_EQ(iRmLayerIdToFile(physical5), 52);
  EXPECT_TRUE(boRmLayerIdEquals(RmLayerIdFromFile(52), physical5));
  EXPECT_EQ(uRmLayerIdPack(physical5), (uint64_t{5} << 32) | 2);
  EXPECT_TRUE(boRmLayerIdEquals(RmLayerIdUnpack(uRmLayerIdPack(physical5)), physical5));
  EXPECT_TRUE(boRmLayerIdMatches(physical5, RmLayerIdMake(static_cast<uint32_t>(-1), 5)));
  EXPECT_FALSE(boRmLayerIdMatches(physical5, RmLayerIdMake(1, -1)));

  RmLayerId empty{};
  vRmLayerIdClear(&empty);
  EXPECT_FALSE(boRmLayerIdValid(empty));
  EXPECT_TRUE(boRmLayerIdValid(RmLayerIdMake(1, 0)));

  EXPECT_TRUE(boRmLayerListHas("11;52;93", physical5));
  EXPECT_FALSE(boRmLayerListHas("11;520", physical5));
  EXPECT_FALSE(boRmLayerListHas("", physical5));

  RmLayerId ids[] = {RmLayerIdMake(1, 0), physical5};
  EXPECT_EQ(iRmLayerIdFindIndex(ids, 2, physical5), 1);
  EXPECT_EQ(iRmLayerIdFindIndex(ids, 0, physical5), -1);
}

TEST(LayerId, DerivedLayersAndTheirGroups) {
  const RmLayerId physical82 = RmLayerIdMake(kRmLayerPhysical, 82);
  EXPECT_TRUE(boRmLayerIsDerived(physical82));
  EXPECT_FALSE(boRmLayerIsDerived(RmLayerIdMake(kRmLayerPhysical, 85)));
  EXPECT_TRUE(boRmLayerIsDerived(RmLayerIdMake(kRmLayerTheoretical, 97)));
  EXPECT_FALSE(boRmLayerIsDerived(RmLayerIdMake(kRmLayerTheoretical, 96)));
  EXPECT_TRUE(boRmLayerDerivedFromGroup(physical82, 3));
  EXPECT_FALSE(boRmLayerDerivedFromGroup(physical82, 2));
  EXPECT_TRUE(boRmLayerDerivedFromGroup(RmLayerIdMake(kRmLayerPhysical, 96), 3));
  EXPECT_FALSE(boRmLayerDerivedFromGroup(RmLayerIdMake(kRmLayerPhysical, 97), 3));
  EXPECT_EQ(iRmLayerDerivedKind(RmLayerIdMake(kRmLayerTheoretical, 97)), 3);
  EXPECT_EQ(iRmLayerDerivedKind(RmLayerIdMake(kRmLayerPhysical, 97)), 1);
  EXPECT_FALSE(boRmLayerIsSurfaceKind(RmLayerIdMake(kRmLayerTheoretical, 6)));
  EXPECT_TRUE(boRmLayerIsSurfaceKind(RmLayerIdMake(kRmLayerTheoreticalLike, 5)));
}

TEST(CodeRanges, FiltersAndOpenAndClosedEnds) {
  EXPECT_TRUE(boRmCodeFilterMatches(nullptr, 12345));
  const char* filter = " 1.0000:2.0000 , 3.05 ";
  for (int code : {15000, 30500}) EXPECT_TRUE(boRmCodeFilterMatches(filter, code)) << code;
  for (int code : {25000, -15000}) EXPECT_FALSE(boRmCodeFilterMatches(filter, code)) << code;
  EXPECT_TRUE(boRmCodeFilterHasFamilyEight("-8.05"));
  EXPECT_TRUE(boRmCodeFilterHasFamilyEight("8.0001:8.0001"));
  EXPECT_FALSE(boRmCodeFilterHasFamilyEight("7.0:7.99"));

  uint64_t codes = uRmPcodePair(100, 200);
  EXPECT_TRUE(boRmCodeRangeContainsLowClosed(codes, 100));
  EXPECT_FALSE(boRmCodeRangeContainsLowClosed(codes, 200));
  EXPECT_TRUE(boRmCodeRangeContainsHighClosed(codes, 200));
  EXPECT_TRUE(boRmCodeRangeContainsClosed(codes, 200));
  RmChainRange chain{10.0, 20.0};
  EXPECT_FALSE(boRmChainRangeContainsOpen(chain, 10.0));
  EXPECT_TRUE(boRmChainRangeContainsLowClosed(chain, 10.0));
  vRmChainRangeGrow(&chain, 0.5);
  EXPECT_TRUE(boRmChainRangeNear(chain, RmChainRange{9.5, 20.5}, 0.0));
  EXPECT_FALSE(boRmChainRangeIsValid(RmChainRange{5.0, 5.0}));
}
