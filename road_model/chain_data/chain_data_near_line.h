// Whether a chain data row lies on the plan line of a chain data line: the
// polyline through the line's visible rows at their surveyed X and Y (the
// same polyline that the rows' side offsets follow).
#pragma once

struct RmChainDataLine;
struct RmChainDataRow;

// A row this close to a row of the line stands where that object stands:
// objects along a road (posts, signs, barrier ends) are metres apart, and a
// second survey of the same one falls within half a metre.
inline constexpr double kRmChainNearRowRadius = 0.5;
// Between the rows a row must lie this close to the line itself to belong to
// it: the accuracy of a measured position and of a line drawn in plan.
inline constexpr double kRmChainNearLineRadius = 0.1;

// True when the row lies within kRmChainNearRowRadius of a visible row of the
// line, or else less than kRmChainNearLineRadius from a segment between two
// consecutive visible rows. The row itself, when it is one of the line's,
// is left out, so that the test says whether the others' line runs through
// it. A hidden row and a null line are not near.
bool boRmChainDataRowNearLine(const RmChainDataLine* line, const RmChainDataRow* row);
