#include "road_model/surfaces/tilt.h"

#include <cmath>
#include <numbers>

#include "base/numbers.h"
#include "road_model/sections/section.h"

namespace {

// Angles closer to 0 than this leave widths and slopes as they are.
constexpr double kLeastTilt = 0.01;

// The tilt angle of the section being built.
double tiltAngle = 0.0;

}  // namespace

void vRmTiltBegin(const RmSection* section) {
  const bool follows = section && boRmSectionGetFlag(section, kRmSectionFollowsTilt) &&
                       boRmSectionGetFlag(section, kRmSectionTilted);
  tiltAngle = follows ? std::atan(section->TiltSlope) : 0.0;
}

void vRmTiltEnd() { tiltAngle = 0.0; }

double dRmTiltAngle() { return tiltAngle; }

double dRmTiltFactor() {
  constexpr double kHalfPi = std::numbers::pi / 2.0;
  if (tiltAngle >= kLeastTilt) return std::sin(kHalfPi - tiltAngle);
  if (tiltAngle <= -kLeastTilt) return std::sin(kHalfPi + tiltAngle);
  return 1.0;
}

double dRmTiltWidth(double width) {
  return boIsPresent(width) ? width / dRmTiltFactor() : width;
}

double dRmTiltSlope(double slope) {
  return boIsPresent(slope) ? slope * dRmTiltFactor() : slope;
}
