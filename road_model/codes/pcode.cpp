#include "road_model/codes/pcode.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "base/temp_text.h"

namespace {

int iAbs(int value) { return value < 0 ? -value : value; }

}  // namespace

// ---- Building and taking apart ----

int iRmPcodeBuild(int family, int group, int number) {
  if (number > 99) number = 99;
  return (family * 100 + group) * 100 + number;
}

int iRmPcodeBuild2(int family, int group) { return iRmPcodeBuild(family, group, 0); }

int iRmPcodeBuildSide(int family, int group, int number, int side) {
  int code = iRmPcodeBuild(family, group, number);
  return side == kRmSideLeft ? -code : code;
}

int iRmPcodeBuildSide2(int family, int group, int side) {
  return iRmPcodeBuildSide(family, group, 0, side);
}

int iRmPcodeFamily(int code) { return iAbs(code) / 10000; }

int iRmPcodeGroup(int code) { return (iAbs(code) - iRmPcodeFamily(code) * 10000) / 100; }

int iRmPcodeNumber(int code) { return iAbs(code) % 100; }

bool boRmPcodeCheck(int code) {
  int family = iRmPcodeFamily(code);
  int group = iRmPcodeGroup(code);
  int number = iRmPcodeNumber(code);
  if (family > 8) return false;
  if (group == 0 && (number < 1 || number > 99)) return false;
  return group <= 99 && number <= 99;
}

bool boRmPcodePairCheck(uint64_t pair) {
  return boRmPcodeCheck(iRmPcodePairLow(pair)) && boRmPcodeCheck(iRmPcodePairHigh(pair));
}

// ---- Decimal and old forms ----

int iRmPcodeFromDouble(double value, bool strict) {
  double integerPart = std::trunc(value);
  // The fraction is taken in single precision, as the codes were always read.
  float fraction = static_cast<float>(value - integerPart);
  int family = static_cast<int>(integerPart);
  if (strict && iAbs(family) > 9) return 0;
  double scaled = static_cast<double>(fraction * 100000.0f);
  scaled = value >= 0 ? std::floor(scaled + 0.5) : std::ceil(scaled - 0.5);
  long digits = std::labs(static_cast<long>(scaled) / 10);
  int group = static_cast<int>(digits / 100);
  int number = static_cast<int>(digits % 100);
  return value >= 0 ? iRmPcodeBuild(family, group, number)
                    : -iRmPcodeBuild(-family, group, number);
}

int iRmPcodeFromDoubleStrict(double value) { return iRmPcodeFromDouble(value, true); }

int iRmPcodeFromDoubleSide(double value, int side) {
  return iRmPcodeFromDouble(side == kRmSideLeft ? -value : value, true);
}

int iRmPcodeFromText(const char* text) {
  double value = text && *text ? std::strtod(text, nullptr) : 0.0;
  return iRmPcodeFromDoubleStrict(value);
}

const char* sRmPcodeToText(int code) {
  char text[32] = "";
  if (boRmPcodeIsValid(code)) {
    const char* sign = code <= 0 ? "-" : "";
    int family = iRmPcodeFamily(code);
    int group = iRmPcodeGroup(code);
    int number = iRmPcodeNumber(code);
    if (number <= 0) {
      std::snprintf(text, sizeof text, "%s%d.%2.2d", sign, family, group);
    } else {
      std::snprintf(text, sizeof text, "%s%d.%2.2d%2.2d", sign, family, group, number);
    }
  }
  return sTempCopy(text);
}

double dRmPcodeToDouble(int code) {
  const char* text = sRmPcodeToText(code);
  return *text ? std::strtod(text, nullptr) : 0.0;
}

int iRmPcodeFromOld(int value) {
  int side = value <= 0 ? kRmSideLeft : kRmSideRight;
  int magnitude = iAbs(value);
  int family = magnitude / 1000;
  int rest = magnitude % 1000;
  int group = rest / 100;
  int number = rest % 100;
  // The old form had one digit for the group; 9.9.99 stood for group 99.
  if (family == 9 && group == 9 && number == 99) group = 99;
  return iRmPcodeBuildSide(family, group, number, side);
}

uint64_t RmPcodePairFromOld(uint64_t pair) {
  return uRmPcodePair(iRmPcodeFromOld(iRmPcodePairLow(pair)),
                      iRmPcodeFromOld(iRmPcodePairHigh(pair)));
}

// ---- Stepping ----

int iRmPcodeStep(int code, int side, int n) {
  int family = iRmPcodeFamily(code);
  int group = iRmPcodeGroup(code);
  int number = iRmPcodeNumber(code);
  while (n > 99 || n < -99) {
    if (n > 99) {
      ++group;
      n -= 100;
    } else {
      --group;
      n += 100;
    }
    if (group > 99) {
      group = 1;
      ++family;
    } else if (group == 0) {
      group = 99;
      --family;
    }
  }
  int target;
  if (number == 0 && n < 0) {
    --group;
    target = 100 + n;
  } else {
    target = number + n;
  }
  if (group >= 0 && target < 0) return iRmPcodeBuildSide(family, 0, 0, side);
  if (group >= 0 && target <= 99) return iRmPcodeBuildSide(family, group, target, side);
  int clamped = target < 0 ? 0 : (target > 99 ? 99 : target);
  return iRmPcodeBuildSide(family, 0, clamped, side);
}

void vRmPcodeNextGroup(int* family, int* group, bool up) {
  *group += up ? 1 : -1;
  if (up && *group > 99) {
    *group = 1;
    ++*family;
  } else if (!up && *group <= 0) {
    *group = 99;
    --*family;
  }
}

void vRmPcodeNextNumber(int* family, int* group, int* number) {
  ++*number;
  if (*number > 99) {
    *number = 0;
    ++*group;
  }
  if (*group > 99) {
    *number = 0;
    *group = 1;
    ++*family;
  }
}

// ---- Classes of codes ----

bool boRmPcodeIsValid(int code) { return code != kRmPcodeNone && code != kRmPcodeSentinel; }

bool boRmPcodeIsSentinel(int code) { return code == kRmPcodeSentinel; }

bool boRmPcodeIsCentre(int code) {
  int number = iRmPcodeNumber(code);
  return iRmPcodeFamily(code) == 0 && iRmPcodeGroup(code) == 0 && number >= 1 && number <= 99;
}

bool boRmPcodeFamilyAtLeastFour(int code) { return iRmPcodeFamily(code) >= 4; }

bool boRmPcodeFamilyAtLeastFive(int code) { return iRmPcodeFamily(code) >= 5; }

bool boRmPcodeFamilyIsFiveOrSix(int code) {
  int family = iRmPcodeFamily(code);
  return family == 5 || family == 6;
}

bool boRmPcodeFamilyIsSeven(int code) { return iRmPcodeFamily(code) == 7; }

bool boRmPcodeFamilyIsEight(int code) { return iRmPcodeFamily(code) == 8; }

bool boRmPcodeIsFiveNinetyNine(int code) {
  return iRmPcodeFamily(code) == 5 && iRmPcodeGroup(code) == 99 && iRmPcodeNumber(code) > 0;
}

bool boRmPcodeIsMarked(int mode, int code) {
  int family = iRmPcodeFamily(code);
  int group = iRmPcodeGroup(code);
  int number = iRmPcodeNumber(code);
  if (number <= 0) return false;
  if (family == 8) return true;
  if (family != 5) return false;
  return mode == 3 ? group >= 90 && group <= 99 : group == 99;
}

bool boRmPcodeIsInner(int a, int b) {
  int familyA = iRmPcodeFamily(a);
  int familyB = iRmPcodeFamily(b);
  if (familyA == 7 && familyB != 7 && familyB >= 4) return false;
  if (familyB == 7 && familyA != 7 && familyA >= 4) return true;
  return iAbs(a) > iAbs(b);
}

bool boRmPcodeIsOutward(int a, int b) {
  if ((a < 0) != (b < 0)) return false;
  return a > 0 ? a < b : a > b;
}

// ---- Sides ----

int iRmPcodeSide(int code) { return code < 0 ? kRmSideLeft : kRmSideRight; }

int iRmSideOpposite(int side) {
  if (side == kRmSideLeft) return kRmSideRight;
  if (side == kRmSideRight) return kRmSideLeft;
  return -1;
}

bool boRmSideIncludesLeft(int side) { return side == kRmSideLeft || side == 0; }

bool boRmSideIncludesRight(int side) { return side == kRmSideRight || side == 0; }

int iRmSideStepUp(int* value) {
  switch (*value) {
    case -1: *value = 0; break;
    case 0: *value = 1; break;
    case 1: *value = 2; break;
    default: *value = 1000; break;
  }
  return *value;
}

int iRmSideStepDown(int* value) {
  switch (*value) {
    case 1000: *value = 2; break;
    case 2: *value = 1; break;
    case 1: *value = 0; break;
    default: *value = -1; break;
  }
  return *value;
}

int iRmPcodeFromOldForm(int code) {
  int magnitude = std::abs(code);
  int family = magnitude / 10000;
  int rest = magnitude % 10000;
  int group = rest >= 10 ? rest / 100 : rest;
  int number = rest >= 10 ? rest % 100 : 0;
  int converted = iRmPcodeBuild(family, group, number);
  return code < 0 ? -converted : converted;
}
