#include "road_model/codes/code_ranges.h"

#include <cmath>
#include <cstdlib>
#include <cstring>

#include "road_model/codes/pcode.h"

namespace {

// Reads one decimal of a filter item; blanks around it are allowed.
int iFilterCode(const char* begin, const char* end) {
  char text[64];
  size_t length = static_cast<size_t>(end - begin);
  if (length >= sizeof text) length = sizeof text - 1;
  std::memcpy(text, begin, length);
  text[length] = 0;
  return iRmPcodeFromDouble(std::strtod(text, nullptr), false);
}

bool boItemMatches(const char* begin, const char* end, int code) {
  const char* colon = static_cast<const char*>(std::memchr(begin, ':', end - begin));
  if (!colon) return iFilterCode(begin, end) == code;
  int low = iFilterCode(begin, colon);
  int high = iFilterCode(colon + 1, end);
  return low <= code && code <= high;
}

}  // namespace

bool boRmCodeFilterMatches(const char* filter, int code) {
  if (!filter || !*filter) return true;
  const char* item = filter;
  for (;;) {
    const char* end = std::strchr(item, ',');
    if (!end) end = item + std::strlen(item);
    if (boItemMatches(item, end, code)) return true;
    if (!*end) return false;
    item = end + 1;
  }
}

bool boRmCodeFilterHasFamilyEight(const char* filter) {
  for (int side = kRmSideLeft; side <= kRmSideRight; ++side) {
    for (int number = 1; number <= 99; ++number) {
      if (boRmCodeFilterMatches(filter, iRmPcodeBuildSide(8, 0, number, side))) return true;
    }
    for (int group = 1; group <= 9; ++group) {
      for (int number = 0; number <= 99; ++number) {
        if (boRmCodeFilterMatches(filter, iRmPcodeBuildSide(8, group, number, side))) return true;
      }
    }
  }
  return false;
}

bool boRmCodeRangeContainsLowClosed(uint64_t range, int code) {
  return iRmPcodePairLow(range) <= code && code < iRmPcodePairHigh(range);
}

bool boRmCodeRangeContainsHighClosed(uint64_t range, int code) {
  return iRmPcodePairLow(range) < code && code <= iRmPcodePairHigh(range);
}

bool boRmCodeRangeContainsClosed(uint64_t range, int code) {
  return iRmPcodePairLow(range) <= code && code <= iRmPcodePairHigh(range);
}

bool boRmChainRangeContainsLowClosed(const RmChainRange& range, double chainage) {
  return range.Low <= chainage && chainage < range.High;
}

bool boRmChainRangeContainsClosed(const RmChainRange& range, double chainage) {
  return range.Low <= chainage && chainage <= range.High;
}

bool boRmChainRangeContainsOpen(const RmChainRange& range, double chainage) {
  return range.Low < chainage && chainage < range.High;
}

bool boRmChainRangeIsValid(const RmChainRange& range) { return range.High > range.Low; }

void vRmChainRangeGrow(RmChainRange* range, double distance) {
  range->Low -= distance;
  range->High += distance;
}

bool boRmChainRangeNear(const RmChainRange& a, const RmChainRange& b, double tolerance) {
  return std::fabs(a.Low - b.Low) <= tolerance && std::fabs(a.High - b.High) <= tolerance;
}
