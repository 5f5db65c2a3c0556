// Lookups of sections for a run of chainages that mostly rise, each search
// going on from where the one before stopped instead of walking the set
// from its first section again.
//
// The results are those of the same lookups from the first section, for
// any run of chainages and any order of the set: the search starts from
// the cursor only when no section in front of it can be the one sought.
// Sections may be added to the set between searches anywhere behind the
// section in front of the cursor, such as in front of a section found or at
// the end after a failed search; removing sections makes the cursor stale.
#pragma once

#include <limits>

struct RmSection;
struct RmSectionSet;

struct RmSectionCursor {
  // The last section passed over by the search before; null for none.
  RmSection* Passed = nullptr;
  // No section up to `Passed` stands beyond this chainage.
  double Highest = -std::numeric_limits<double>::infinity();
};

// As RmSectionsFindAtChainInSet: the first section within
// kRmSectionChainTolerance of `chain` (strict), else null.
RmSection* RmSectionCursorFindAtChain(const RmSectionSet* set, RmSectionCursor* cursor,
                                      double chain);
// As RmSectionsFindFirstFrom: the first section at or beyond `chain`, else
// null.
RmSection* RmSectionCursorFindFirstFrom(const RmSectionSet* set, RmSectionCursor* cursor,
                                        double chain);
