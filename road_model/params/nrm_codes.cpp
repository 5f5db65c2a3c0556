#include "road_model/params/nrm_codes.h"

#include <algorithm>
#include <array>

namespace {

// The codes n0 and n1 of every series: the tens 1 to 9 of the hundreds 0 to
// 4 (10, 11 ... 490, 491) and the tens 1 to 8 of the hundreds 5 to 7 (510,
// 511 ... 780, 781): 138 codes.
constexpr bool boInterpolatingPattern(int32_t code) {
  if (code < 10 || code > 781 || code % 10 > 1) return false;
  const int32_t tens = code % 100 / 10;
  return tens != 0 && (code < 500 || tens <= 8);
}

constexpr std::array<int32_t, 20> kSecondTable = {9101, 1111, 1112, 1121, 1131, 1141, 1151,
                                                  1161, 1162, 1171, 1181, 1311, 1312, 1321,
                                                  1341, 1361, 1362, 1381, 1910, 1920};

}  // namespace

bool boNrmCodeInterpolates(int32_t code) {
  return boInterpolatingPattern(code) || code == 791 || code == 9102 || code == 9201;
}

bool boNrmCodeInSecondTable(int32_t code) {
  return std::find(kSecondTable.begin(), kSecondTable.end(), code) != kSecondTable.end();
}
