// Tolerances of the clean-up and the measures of section outlines. They
// keep the mass of a section stable against the rounding of its vertices:
// the points of a section are stored with four decimals, and an outline
// that comes out of clipping carries slivers and spikes of that size.
#pragma once

// A side of a spike no longer than this never makes a spike.
inline constexpr double kSgSpikeSideLength = 0.0001;
// The two sides of a spike point the same way within this many radians.
inline constexpr double kSgSpikeFoldAngle = 0.01;
// Rings and spikes of less area than this are slivers of the clipping.
inline constexpr double kSgSliverArea = 0.0025;
// A height above this is given; the null height -99999 lies below.
inline constexpr double kSgHeightGiven = -99998.0;
