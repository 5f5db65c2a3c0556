// The tilt of the section being built.
//
// A section that follows the tilt of its line (kRmSectionFollowsTilt) is
// built in the tilted plane: a width along the road's surface is longer
// across the tilted section, and a slope is steeper. The angle is held for
// the one section that is being worked on, between vRmTiltBegin and
// vRmTiltEnd; the model is worked on by one thread at a time.
#pragma once

struct RmSection;

// Takes the tilt angle of `section`: that of its tilt values (CLTILT, which
// hold the line's tilt at the section's chainage) when the section follows
// the tilt and has them, else 0.
void vRmTiltBegin(const RmSection* section);
void vRmTiltEnd();
// The angle now held, in radians.
double dRmTiltAngle();

// cos of the angle when it is at least 0.01 radians either way, else 1.
double dRmTiltFactor();
// A width across the tilted section (divided by the factor) and a slope in
// it (multiplied by it). An unset value stays as it is.
double dRmTiltWidth(double width);
double dRmTiltSlope(double slope);
