// Stations along the main line at a fixed interval, for tables and drawings.
#pragma once

#include <vector>

struct RmModel;

// Stations from `start` to `end` every `interval`, in order along the line:
// `start` first when `withStart` is set; then the multiples of `interval`
// from the one at or below `start`, one step further up when `start` is not
// negative (the multiple is found by cutting the quotient towards zero),
// below `end`; then `end` when `withEnd` is set. With ROADTYPE 2 the chain
// equations of the model's centre line take part: each ends the run of
// stations below its back value, and the next run counts on from its ahead
// value, that value first. A station within 1e-5 of the one before is
// dropped. An interval that is not above 0 gives the ends alone. Replaces
// the content of `stations`.
void vRmChainPointsForInterval(const RmModel* model, double start, double end, double interval,
                               bool withStart, bool withEnd, std::vector<double>* stations);
