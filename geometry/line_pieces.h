// The drawn pieces of a line, made once for finding many points along it.
//
// Making the piece of an arc or a clothoid lays its curve between its
// points, which is too dear to do again for every point asked for. The
// pieces that have a length stand here with their starts along the line,
// so that the piece at a length is found by halving, together with the
// lengths at which the line moves invisibly on to another part.
#pragma once

#include <memory>
#include <vector>

#include "geometry/line.h"
#include "geometry/line_element.h"
#include "geometry/point.h"

struct LiLinePieces {
  std::vector<LiElement> elements;  // the elements that the pieces were made of
  std::vector<double> starts;       // where each piece starts along the line
  std::vector<LiPiece> pieces;      // the pieces that have a length
  std::vector<double> jumps;        // lengths behind which the line goes on elsewhere
  double total = 0.0;  // the line's length, summed over all its pieces as its measures sum it
};

// The pieces of `line`, kept with the line and made again when its elements
// differ from those they were made of. The table stays as it is while it is
// in use: a change of the line makes a new one at the next call, and the
// old one lives until the line and every other holder let go of it. Not for
// a line that two threads read at once.
std::shared_ptr<const LiLinePieces> LiLineGetPieces(const LiLine& line);

// The piece that holds `length` along the line, found by halving, and the
// length left in it: the first piece that reaches that length, as the
// line's own measure takes it. A length up to 0.001 beyond the end is taken
// on the last piece; further out, below -0.001 or on a line without pieces
// the result is false.
bool boLiLinePiecesFind(const LiLinePieces& table, double length, const LiPiece** piece,
                        double* along);

// The plan point at `length` along the line, on the piece that
// boLiLinePiecesFind gives.
bool boLiLinePiecesPointAt(const LiLinePieces& table, double length, ViPoint2d* point);
