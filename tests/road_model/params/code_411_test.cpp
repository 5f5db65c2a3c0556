// Code 411 on one side: values of the other side are passed over, values of
// both sides count, and the value runs straight towards the next one.
#include "road_model/params/code_411.h"

#include <gtest/gtest.h>

#include "road_model/params/nrm_params.h"

TEST(Code411, TakesItsSideAndInterpolatesTowardsTheNextValue) {
  RmNrmParams* params = pNrmParamsCreate();
  vNrmParamsAddValue(params, 411, 0.0, 1.0, 0);
  vNrmParamsAddValue(params, 411, 50.0, 7.0, 2);
  vNrmParamsAddValue(params, 411, 100.0, 3.0, 1);
  vNrmParamsAddValue(params, 411, 200.0, kNrmNoValue, 1);

  struct Case {
    int side;
    double chain;
    bool found;
    double value;
  } const kCases[] = {
      {1, 50.0, true, 2.0},     // left: from 1.0 at 0 towards 3.0 at 100
      {2, 25.0, true, 4.0},     // right: towards its own 7.0 at 50
      {2, 80.0, true, 7.0},     // right: nothing behind 50 on its side
      {1, 150.0, true, 3.0},    // "no value" behind is no partner
      {1, 250.0, false, -1.0},  // "no value" stands there
      {1, -5.0, false, -1.0},   // before the first value
  };
  for (const Case& test : kCases) {
    double value = -1.0;
    EXPECT_EQ(boRmCode411At(params, test.side, test.chain, &value), test.found)
        << test.side << " " << test.chain;
    EXPECT_DOUBLE_EQ(value, test.value) << test.side << " " << test.chain;
  }
  vNrmParamsDelete(&params);
}
