#include "road_model/sections/section_cursor.h"

#include <algorithm>
#include <cmath>

#include "road_model/sections/section.h"
#include "road_model/sections/section_set.h"

namespace {

// The first section whose chainage `match` takes. No chainage below
// `lowest` is taken, so the walk may begin behind the sections that the
// search before passed over when none of them stands that high.
template <typename Match>
RmSection* Find(const RmSectionSet* set, RmSectionCursor* cursor, double lowest, Match match) {
  const bool ahead = cursor->Passed && cursor->Highest < lowest;
  RmSection* passed = ahead ? cursor->Passed : nullptr;
  double highest = ahead ? cursor->Highest : -std::numeric_limits<double>::infinity();
  RmSection* section = passed ? passed->Next : RmSectionsGetFirst(set);
  for (; section && !match(section->Chain); section = section->Next) {
    passed = section;
    highest = std::max(highest, section->Chain);
  }
  *cursor = {passed, highest};
  return section;
}

}  // namespace

RmSection* RmSectionCursorFindAtChain(const RmSectionSet* set, RmSectionCursor* cursor,
                                      double chain) {
  // Twice the tolerance keeps the rounding of the distance clear of the
  // sections passed over.
  return Find(set, cursor, chain - 2.0 * kRmSectionChainTolerance,
              [chain](double at) { return std::fabs(at - chain) < kRmSectionChainTolerance; });
}

RmSection* RmSectionCursorFindFirstFrom(const RmSectionSet* set, RmSectionCursor* cursor,
                                        double chain) {
  return Find(set, cursor, chain, [chain](double at) { return at >= chain; });
}
