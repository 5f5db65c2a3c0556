#include "road_model/surfaces/section_line_crossing.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

#include "geometry/line_element.h"
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
// Lengths within this beyond the line's end are taken at its end.
constexpr double kLengthTolerance = 0.001;

// The pieces of a line that have a length, each with its start along the
// line, summed as the line's measures sum them, and the lengths after which
// the line jumps to another place (an invisible move between parts).
struct LinePieces {
  std::vector<LiElement> elements;  // the line that they were made of
  std::vector<double> starts;
  std::vector<LiPiece> pieces;
  std::vector<double> jumps;
  double total = 0.0;  // the line's length, summed over all its pieces as its measures sum it
};

void vMakePieces(const RmLine& line, LinePieces* table) {
  table->elements = line.elements;
  table->starts.clear();
  table->pieces.clear();
  table->jumps.clear();
  table->total = 0.0;
  double start = 0.0;
  for (size_t i = 0; i < line.elements.size(); ++i) {
    const LiPiece piece = LiPieceMake(
        line.elements[i], i + 1 < line.elements.size() ? &line.elements[i + 1] : nullptr);
    table->total += piece.dLength;
    if (piece.kind == LiPieceKind::kNone || !(piece.dLength > 0.0)) continue;
    if (!table->pieces.empty() && (table->pieces.back().end.x != piece.start.x ||
                                   table->pieces.back().end.y != piece.start.y)) {
      table->jumps.push_back(start);
    }
    table->starts.push_back(start);
    table->pieces.push_back(piece);
    start += piece.dLength;
  }
}

bool boSameElements(const std::vector<LiElement>& a, const std::vector<LiElement>& b) {
  return a.size() == b.size() &&
         (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(LiElement)) == 0);
}

// The pieces of `line`, made again only when its elements changed since the
// last call: the sections of a road ask about the same few lines one after
// the other.
const LinePieces& PiecesOf(const RmLine& line) {
  constexpr int kKept = 2;
  thread_local LinePieces kept[kKept];
  thread_local int nextToReplace = 0;
  for (LinePieces& table : kept) {
    if (!table.pieces.empty() && boSameElements(table.elements, line.elements)) return table;
  }
  LinePieces& table = kept[nextToReplace];
  nextToReplace = (nextToReplace + 1) % kKept;
  vMakePieces(line, &table);
  return table;
}

// The plan point at `length` along the line: the point of the first piece
// that reaches that length, as the line's own measure takes it.
bool boPointAt(const LinePieces& table, double length, ViPoint2d* point) {
  if (table.pieces.empty() || length < -kLengthTolerance) return false;
  const size_t count = table.pieces.size();
  size_t low = 0;
  size_t high = count;  // the first piece that reaches `length` lies in [low, high]
  while (low < high) {
    const size_t middle = (low + high) / 2;
    if (table.starts[middle] + table.pieces[middle].dLength >= length) {
      high = middle;
    } else {
      low = middle + 1;
    }
  }
  const size_t index = low < count ? low : count - 1;
  if (low == count &&
      length > table.starts[index] + table.pieces[index].dLength + kLengthTolerance) {
    return false;
  }
  double direction;
  double z;
  vLiPiecePointAt(table.pieces[index], length - table.starts[index], point, &direction, &z);
  return true;
}

struct SectionFrame {
  double X, Y;    // origin
  double Ux, Uy;  // unit vector of positive offset
};

// Where the point at `length` along the line lies across the section's plan
// line (signed), and its offset along it.
bool boMeasure(const LinePieces& table, const SectionFrame& frame, double length,
               double* across, double* along) {
  ViPoint2d point;
  if (!boPointAt(table, length, &point)) return false;
  const double dx = point.x - frame.X;
  const double dy = point.y - frame.Y;
  *across = frame.Ux * dy - frame.Uy * dx;
  *along = frame.Ux * dx + frame.Uy * dy;
  return true;
}

// The last whole step from `length` over which the line cannot come back
// to the section's plan line from `across` away: the line keeps its side
// for as long as it stays in one part.
double dFarthestStep(const LinePieces& table, double length, double across) {
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
  const LinePieces& table = PiecesOf(*line);
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
