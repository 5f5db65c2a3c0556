#include "road_model/chain_data/chain_data_near_line.h"

#include <algorithm>
#include <cmath>

#include "road_model/chain_data/chain_data.h"

namespace {

// The plan distance from the row to the segment from `a` to `b`.
double dDistanceToSegment(const RmChainDataRow* row, const RmChainDataRow* a,
                          const RmChainDataRow* b) {
  double dx = b->X - a->X;
  double dy = b->Y - a->Y;
  double length2 = dx * dx + dy * dy;
  double t = length2 > 0.0 ? ((row->X - a->X) * dx + (row->Y - a->Y) * dy) / length2 : 0.0;
  t = std::clamp(t, 0.0, 1.0);
  return std::hypot(row->X - (a->X + t * dx), row->Y - (a->Y + t * dy));
}

// The first visible row of the line other than `skip`, from `from` on.
const RmChainDataRow* pNextOther(const RmChainDataRow* from, const RmChainDataRow* skip) {
  while (from && (from == skip || !boRmChainDataRowIsVisible(from))) from = from->Next;
  return from;
}

}  // namespace

bool boRmChainDataRowNearLine(const RmChainDataLine* line, const RmChainDataRow* row) {
  if (!line || !boRmChainDataRowIsVisible(row)) return false;
  const RmChainDataRow* first = pNextOther(ListFirst<RmChainDataRow>(&line->Rows), row);
  for (const RmChainDataRow* other = first; other; other = pNextOther(other->Next, row)) {
    if (std::hypot(row->X - other->X, row->Y - other->Y) <= kRmChainNearRowRadius) return true;
  }
  const RmChainDataRow* a = first;
  const RmChainDataRow* b = a ? pNextOther(a->Next, row) : nullptr;
  for (; b; a = b, b = pNextOther(b->Next, row)) {
    if (dDistanceToSegment(row, a, b) < kRmChainNearLineRadius) return true;
  }
  return false;
}
