#include "vips_import/readers/surface_code.h"

#include <cmath>
#include <cstdlib>

#include "base/numbers.h"
#include "road_model/codes/pcode.h"
#include "vips_import/driver/version_labels.h"

namespace {

// The last model version whose surface numbers have four digits behind the
// point.
constexpr double kLastFourDigitVersion = 8.2;

}  // namespace

int iVipsSurfaceCode(double decimal) {
  double family = std::trunc(decimal);
  if (family < -9.0 || family > 9.0) return 0;
  const bool fourDigits =
      VipsModelVersion < kLastFourDigitVersion || boEqual(VipsModelVersion, kLastFourDigitVersion);

  // The design scales the fraction in single precision; the last digit that
  // this leaves is dropped.
  float fraction = static_cast<float>(decimal - family);
  float scaled = fraction * (fourDigits ? 10000.0f : 100000.0f);
  long digits = std::lround(static_cast<double>(scaled)) / 10;
  long group = digits / 100;
  long number = digits % 100;
  int i = static_cast<int>(family);
  // 9.9999 spelled the last group of the last family in the four-digit form.
  if (fourDigits && i == 9 && group == 9 && number == 99) group = 99;

  int code = iRmPcodeBuild(std::abs(i), static_cast<int>(std::labs(group)),
                           static_cast<int>(std::labs(number)));
  return decimal < 0.0 ? -code : code;
}
