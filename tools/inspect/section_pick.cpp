#include "tools/inspect/section_pick.h"

#include <fmt/format.h>

#include "road_model/sections/section_set.h"

namespace {

// "at 1000.000" or "at 980.000 and 1000.000": the sections on either side
// of `chain`, or the one end of the set that it lies beyond.
std::string sNearest(const RmSectionSet* set, double chain) {
  const RmSection* before = RmSectionsFindLastUpTo(set, chain);
  const RmSection* after = RmSectionsFindFirstFrom(set, chain);
  if (before && after && before != after) {
    return fmt::format("the nearest are at {:.3f} and {:.3f}", before->Chain, after->Chain);
  }
  const RmSection* one = before ? before : after;
  return fmt::format("the nearest is at {:.3f}", one->Chain);
}

}  // namespace

std::vector<const RmSection*> PickSections(const RmSectionSet* set, double from, double to,
                                           std::string* message) {
  std::vector<const RmSection*> picked;
  if (!set || iRmSectionsGetCount(set) == 0) {
    *message = "the model has no cross sections";
    return picked;
  }
  bool single = to < from;
  double low = from - kRmSectionChainTolerance;
  double high = (single ? from : to) + kRmSectionChainTolerance;
  for (const RmSection* section = RmSectionsGetFirst(set); section;
       section = RmSectionsGetNext(section)) {
    if (section->Chain >= low && section->Chain <= high) picked.push_back(section);
  }
  if (!picked.empty()) return picked;
  if (single) {
    *message = fmt::format("no cross section at chainage {:.3f}; {}", from, sNearest(set, from));
  } else {
    *message = fmt::format("no cross section from chainage {:.3f} to {:.3f}; {}", from, to,
                           sNearest(set, from < RmSectionsGetFirst(set)->Chain ? to : from));
  }
  return picked;
}
