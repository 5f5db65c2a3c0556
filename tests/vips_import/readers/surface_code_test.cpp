// Surface numbers of the design as point codes, by model version.
#include <gtest/gtest.h>

#include "road_model/codes/pcode.h"
#include "vips_import/driver/version_labels.h"
#include "vips_import/readers/surface_code.h"

TEST(SurfaceCode, TheModelVersionDecidesHowManyDigitsTheGroupAndNumberTake) {
  const struct {
    double version, decimal;
    int family, group, number;  // the code, negated when `left`
    bool left;
  } cases[] = {
      // Four digits up to 8.2 within 0.00001; the last one is dropped.
      {8.2, 2.305, 2, 3, 5, false},
      {8.2, -2.305, 2, 3, 5, true},
      {8.200005, 2.305, 2, 3, 5, false},
      {7.0, 1.047, 1, 0, 47, false},  // 469.99997 in single precision, rounded
      // The last group of the last family has its own spelling.
      {8.2, 9.9999, 9, 99, 99, false},
      {8.2, 0.0, 0, 0, 0, false},
      // Just beyond 8.2, and every later version: five digits.
      {8.20001, 2.305, 2, 30, 50, false},
      {8.20001, 2.0305, 2, 3, 5, false},
      {8.3, 1.0191, 1, 1, 91, false},  // 1909.9999 in single precision, rounded
      {8.3, 9.9999, 9, 99, 99, false},
      {10.0, -3.0105, 3, 1, 5, true},
      {10.0, 9.0909, 9, 9, 9, false},
      // A family beyond 9 is no code.
      {10.0, 10.0101, 0, 0, 0, false},
      {8.2, -10.0101, 0, 0, 0, false},
  };
  double version = VipsModelVersion;
  for (const auto& test : cases) {
    VipsModelVersion = test.version;
    int code = iRmPcodeBuild(test.family, test.group, test.number);
    EXPECT_EQ(iVipsSurfaceCode(test.decimal), test.left ? -code : code)
        << test.version << " " << test.decimal;
  }
  VipsModelVersion = version;
}
