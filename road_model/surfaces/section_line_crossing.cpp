#include "road_model/surfaces/section_line_crossing.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include "geometry/line_pieces.h"
#include "geometry/point.h"
#include "road_model/sections/section.h"

namespace {

// Steps along the line between which a crossing is looked for; a line that
// crosses the section twice within one step is taken to cross it not at all
// there, which a road's lines never do at this length.
constexpr double kStep = 1.0;
constexpr int kBisections = 48;
// A point of a line lies at most its length along the line from another
// point of the same part, so a point that far from the section's plan line
// keeps its side for that length. The margin covers the rounding of the
// computed curves and the ends of fitted arcs and clothoids, which meet
// their stored end points only within the fit.
constexpr double kSideMargin = 1.0;

struct SectionFrame {
  double X, Y;    // origin
  double Ux, Uy;  // unit vector of positive offset
};

// Where the point at `length` along the line lies across the section's plan
// line (signed), and its offset along it.
bool boMeasure(const LiLinePieces& table, const SectionFrame& frame, double length, double* across,
               double* along) {
  ViPoint2d point;
  if (!boLiLinePiecesPointAt(table, length, &point)) return false;
  const double dx = point.x - frame.X;
  const double dy = point.y - frame.Y;
  *across = frame.Ux * dy - frame.Uy * dx;
  *along = frame.Ux * dx + frame.Uy * dy;
  return true;
}

// The last whole step from `length` over which the line cannot come back
// to the section's plan line from `across` away: the line keeps its side
// for as long as it stays in one part.
double dFarthestStep(const LiLinePieces& table, double length, double across) {
  const double reach = std::floor(std::fabs(across) - kSideMargin);
  if (reach <= kStep) return length + kStep;
  double farthest = length + reach;
  const auto jump = std::lower_bound(table.jumps.begin(), table.jumps.end(), length);
  if (jump != table.jumps.end() && *jump < farthest) {
    farthest = std::max(length + kStep, std::floor(*jump));
  }
  return farthest;
}

bool boOnSide(double offset, int side) {
  return side == 0 || (side == 1 && offset <= 0.0) || (side == 2 && offset >= 0.0);
}

}  // namespace

bool boRmSectionLineCrossing(const RmSection* section, const RmLine* line, int side,
                             double* offset) {
  if (!section || !line || !offset) return false;
  const double angle = section->Direction + section->Skew;
  const SectionFrame frame{section->ClX, section->ClY, std::cos(angle), std::sin(angle)};
  // The sections of a road ask about the same few lines one after the
  // other: the line keeps its pieces for them.
  const std::shared_ptr<const LiLinePieces> pieces = LiLineGetPieces(*line);
  const LiLinePieces& table = *pieces;
  const double total = table.total;
  double lowAcross;
  double along;
  if (!boMeasure(table, frame, 0.0, &lowAcross, &along)) return false;
  bool found = false;
  // Whole steps along the line; stretches that stay far from the section
  // are passed over in one step, since no crossing can lie in them.
  for (double length = 0.0; length < total;) {
    const double highLength = std::fmin(dFarthestStep(table, length, lowAcross), total);
    double highAcross;
    if (!boMeasure(table, frame, highLength, &highAcross, &along)) break;
    if ((lowAcross <= 0.0) != (highAcross <= 0.0)) {
      // Halve the step until the crossing is found to well below a millimetre.
      double a = length;
      double b = highLength;
      double aAcross = lowAcross;
      for (int i = 0; i < kBisections; ++i) {
        const double middle = (a + b) / 2.0;
        double across;
        if (!boMeasure(table, frame, middle, &across, &along)) break;
        if ((across <= 0.0) == (aAcross <= 0.0)) {
          a = middle;
          aAcross = across;
        } else {
          b = middle;
        }
      }
      double across;
      if (boMeasure(table, frame, (a + b) / 2.0, &across, &along) && boOnSide(along, side) &&
          (!found || std::fabs(along) < std::fabs(*offset))) {
        *offset = along;
        found = true;
      }
    }
    length = highLength;
    lowAcross = highAcross;
  }
  return found;
}
