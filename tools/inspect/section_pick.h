// The cross sections that a command names by chainage.
#pragma once

#include <string>
#include <vector>

struct RmSection;
struct RmSectionSet;

// The sections of `set` from chainage `from` to `to` (both taken within the
// chainage tolerance of sections); with `to` below `from` the one section at
// `from`. Empty when none lies there, and `message` then tells so and names
// the nearest sections.
std::vector<const RmSection*> PickSections(const RmSectionSet* set, double from, double to,
                                           std::string* message);
