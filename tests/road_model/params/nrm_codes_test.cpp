#include "road_model/params/nrm_codes.h"

#include <gtest/gtest.h>

TEST(NrmCodes, TheTwoTablesHoldTheirCodesAndNoOthers) {
  int interpolating = 0;
  int second = 0;
  for (int32_t code = -10; code <= 10000; ++code) {
    interpolating += boNrmCodeInterpolates(code);
    second += boNrmCodeInSecondTable(code);
  }
  EXPECT_EQ(interpolating, 141);
  EXPECT_EQ(second, 20);
  for (int32_t code : {10, 91, 110, 191, 210, 291, 491, 510, 581, 781, 791, 9102, 9201}) {
    EXPECT_TRUE(boNrmCodeInterpolates(code)) << code;
  }
  for (int32_t code : {100, 101, 200, 212, 590, 591, 790, 9101}) {
    EXPECT_FALSE(boNrmCodeInterpolates(code)) << code;
  }
}
