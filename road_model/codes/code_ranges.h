// Code filters and ranges of codes and chainages.
//
// A code filter is a text of comma-separated items, each a decimal code
// ("3.05") or an inclusive range of two joined by ':' ("1.01:1.99").
#pragma once

#include <cstdint>

// A null or empty filter matches every code.
bool boRmCodeFilterMatches(const char* filter, int code);
// Whether the filter takes any code of family 8, on either side.
bool boRmCodeFilterHasFamilyEight(const char* filter);

// A range of codes as a pair (low half first, see uRmPcodePair).
bool boRmCodeRangeContainsLowClosed(uint64_t range, int code);   // low <= code < high
bool boRmCodeRangeContainsHighClosed(uint64_t range, int code);  // low < code <= high
bool boRmCodeRangeContainsClosed(uint64_t range, int code);      // low <= code <= high

// A range of chainages.
struct RmChainRange {
  double Low;
  double High;
};

bool boRmChainRangeContainsLowClosed(const RmChainRange& range, double chainage);
bool boRmChainRangeContainsClosed(const RmChainRange& range, double chainage);
bool boRmChainRangeContainsOpen(const RmChainRange& range, double chainage);
// High above low.
bool boRmChainRangeIsValid(const RmChainRange& range);
// Widens the range by `distance` at both ends.
void vRmChainRangeGrow(RmChainRange* range, double distance);
// Both ends within `tolerance` of the other range's, inclusive.
bool boRmChainRangeNear(const RmChainRange& a, const RmChainRange& b, double tolerance);
