#include "road_model/sections/section_placing.h"

#include <cmath>
#include <numbers>

#include "base/numbers.h"
#include "geometry/line_measure.h"
#include "road_model/lines/line_chainage.h"
#include "road_model/lines/vertical_heights.h"
#include "road_model/params/sect_params.h"
#include "road_model/lines/vertical_line.h"

namespace {

constexpr double kHalfPi = std::numbers::pi / 2.0;
// A section this close to a chainage stands at it, for the tilt question.
constexpr double kTiltChainTolerance = 0.0001;
// Clip distances this far beyond the reach of a placed section clip nothing.
constexpr double kUnclippedReach = 1000.0;

bool boTilted(const RmSection* section) { return boRmSectionGetFlag(section, kRmSectionTilted); }

// The line's point and tangent at `chain`, or at the end of the line that
// the chainage lies beyond.
bool boPointOnLine(const RmLine* line, double chain, ViPoint2d* point, double* tangent) {
  if (boRmLinePointAtChain(line, chain, point, tangent, 0.0)) return true;
  double start = dRmLineGetStartChain(line);
  double end = start + dLiLineLength(line);
  if (chain < start) return boRmLinePointAtChain(line, start, point, tangent, 0.0);
  if (chain > end) return boRmLinePointAtChain(line, end, point, tangent, 0.0);
  return false;
}

}  // namespace

void vRmSectionOffsetToPlan(const RmSection* section, double offset, double* x, double* y) {
  if (!section) return;
  double angle = section->Direction + section->Skew;
  if (x) *x = section->ClX + std::cos(angle) * offset;
  if (y) *y = section->ClY + std::sin(angle) * offset;
}

void vRmSectionUpdateEnds(RmSection* section) {
  if (!section) return;
  vRmSectionOffsetToPlan(section, -double(section->LeftDist), &section->LeftEnd[0],
                         &section->LeftEnd[1]);
  vRmSectionOffsetToPlan(section, section->RightDist, &section->RightEnd[0],
                         &section->RightEnd[1]);
}

double dRmSectionHeightToPlane(const RmSection* section, double height) {
  if (!boTilted(section)) return height;
  return height / std::cos(std::atan(section->TiltSlope)) + section->TiltHeight;
}

double dRmSectionHeightFromPlane(const RmSection* section, double z) {
  if (!boTilted(section)) return z;
  return std::cos(std::atan(section->TiltSlope)) * (z - section->TiltHeight);
}

void vRmSectionPointTo3d(const RmSection* section, const RmPoint* point, double xyz[3]) {
  if (!section || !point || !xyz) return;
  vRmSectionOffsetToPlan(section, point->X, &xyz[0], &xyz[1]);
  double height = point->Z;
  xyz[2] = height;
  if (!boTilted(section) || !boIsPresent(height)) return;
  double tilt = std::atan(section->TiltSlope);
  double shift = -height * std::sin(tilt);
  double along = section->Direction + kHalfPi;
  xyz[0] += std::cos(along) * shift;
  xyz[1] += std::sin(along) * shift;
  xyz[2] = std::cos(tilt) * height + section->TiltHeight;
}

bool boRmSectionsAnyTilted(const RmSectionSet* set) {
  for (const RmSection* section = RmSectionsGetFirst(set); section; section = section->Next) {
    if (boTilted(section)) return true;
  }
  return false;
}

bool boRmSectionTiltedAt(const RmSectionSet* set, double chain) {
  for (const RmSection* section = RmSectionsGetFirst(set); section; section = section->Next) {
    if (std::fabs(section->Chain - chain) < kTiltChainTolerance) return boTilted(section);
    if (section->Chain > chain - kTiltChainTolerance) {
      return boTilted(section) || (section->Prev && boTilted(section->Prev));
    }
  }
  return false;
}

bool boRmSectionPlaceOnLine(RmSection* section, const RmLine* line,
                            const RmSectParams* sectParams) {
  if (!section || !line) return false;
  ViPoint2d point;
  double tangent = 0.0;
  if (!boPointOnLine(line, section->Chain, &point, &tangent)) return false;
  if (sectParams) {
    section->LeftDist = static_cast<float>(sectParams->DistLeft);
    section->RightDist = static_cast<float>(sectParams->DistRight);
    // The left clip is positive here on purpose: with their flags off,
    // neither clip is in force.
    section->LClipDist = static_cast<float>(sectParams->DistLeft + kUnclippedReach);
    section->RClipDist = static_cast<float>(sectParams->DistRight + kUnclippedReach);
  }
  section->ClX = point.x;
  section->ClY = point.y;
  section->Direction = tangent - kHalfPi;
  vRmSectionUpdateEnds(section);
  if (boTilted(section)) {
    if (const RmVerLine* verLine = RmLineGetVerLine(line)) {
      double slope = 0.0;
      section->TiltHeight = dRmVerLineHeightAt(verLine, section->Chain, &slope);
      section->TiltSlope = slope;
    }
  }
  return true;
}

void vRmSectionSetPlaceOnLine(RmSectionSet* set, const RmLine* line,
                              const RmSectParams* sectParams) {
  if (!set || !line) return;
  for (RmSection* section = RmSectionsGetFirst(set); section; section = section->Next) {
    boRmSectionPlaceOnLine(section, line, sectParams);
  }
}
