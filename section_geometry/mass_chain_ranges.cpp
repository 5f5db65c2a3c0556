#include "section_geometry/mass_chain_ranges.h"

#include "base/numbers.h"
#include "road_model/names/mass_types.h"

bool boChainInRanges(const RmMassType* massType, double chain) {
  if (!massType) return false;
  const RmMassChainRange* range = ListFirst<RmMassChainRange>(&massType->ChainRanges);
  if (!range) return true;
  for (; range; range = range->Next) {
    if (range->A != 0 && boEqual(chain, range->Range[0])) return false;
    if (range->B != 0 && boEqual(chain, range->Range[1])) return false;
    if (chain >= range->Range[0] && chain <= range->Range[1]) return true;
  }
  return false;
}
