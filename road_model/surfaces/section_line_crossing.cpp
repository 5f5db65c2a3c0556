#include "road_model/surfaces/section_line_crossing.h"

#include <cmath>

#include "geometry/line_measure.h"
#include "geometry/point.h"
#include "road_model/sections/section.h"

namespace {

// Steps along the line between which a crossing is looked for; a line that
// crosses the section twice within one step is taken to cross it not at all
// there, which a road's lines never do at this length.
constexpr double kStep = 1.0;
constexpr int kBisections = 48;

struct SectionFrame {
  double X, Y;    // origin
  double Ux, Uy;  // unit vector of positive offset
};

// Where the point at `length` along the line lies across the section's plan
// line (signed), and its offset along it.
bool boMeasure(const RmLine* line, const SectionFrame& frame, double length, double* across,
               double* along) {
  ViPoint3d point;
  if (!boLiLineGetPointAtLength(line, length, &point, nullptr)) return false;
  const double dx = point.x - frame.X;
  const double dy = point.y - frame.Y;
  *across = frame.Ux * dy - frame.Uy * dx;
  *along = frame.Ux * dx + frame.Uy * dy;
  return true;
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
  const double total = dLiLineLength(line);
  double lowAcross;
  double along;
  if (!boMeasure(line, frame, 0.0, &lowAcross, &along)) return false;
  bool found = false;
  for (double length = 0.0; length < total;) {
    const double highLength = std::fmin(length + kStep, total);
    double highAcross;
    if (!boMeasure(line, frame, highLength, &highAcross, &along)) break;
    if ((lowAcross <= 0.0) != (highAcross <= 0.0)) {
      // Halve the step until the crossing is found to well below a millimetre.
      double a = length;
      double b = highLength;
      double aAcross = lowAcross;
      for (int i = 0; i < kBisections; ++i) {
        const double middle = (a + b) / 2.0;
        double across;
        if (!boMeasure(line, frame, middle, &across, &along)) break;
        if ((across <= 0.0) == (aAcross <= 0.0)) {
          a = middle;
          aAcross = across;
        } else {
          b = middle;
        }
      }
      double across;
      if (boMeasure(line, frame, (a + b) / 2.0, &across, &along) && boOnSide(along, side) &&
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
