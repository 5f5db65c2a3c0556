// Row kinds along the road: the branch table of the parameters along the
// road holds, per chainage and type, rows of two values and a kind (an index
// into the key string " SEDMZwsedmzCc"). The rows of a type at any chainage
// come from the table entries around it; kinds with a lower-case key change
// gradually between entries, the others hold until the next entry.
#pragma once

#include <cstdint>

struct NrmBranch;
struct RmNrmParams;

// The rows of `type` at `chain`, in the scratch entry of the parameters
// (`interpolated`), which the call fills: from the last entry of that type
// at or before `chain` and the first one behind it (RmChainInterpolate).
// Null when no entry of the type stands at or before `chain`. The entries
// need not be in chainage order.
const NrmBranch* RmChainValueAt(RmNrmParams* params, int32_t type, double chain);

// Fills `cache` with the rows of `a` at `chain`: its chainage becomes
// `chain`, its type that of `a`. A row whose kind has a lower-case key and
// whose partner in `b` (the row in the same place) is of the same kind has
// its two values taken on the straight line between the two entries;
// every other row keeps the values of `a`, as do all rows without a `b` or
// when `b` stands at the chainage of `a`. The cache's rows are reused when
// their number fits.
void RmChainInterpolate(NrmBranch* cache, const NrmBranch* a, const NrmBranch* b, double chain);
