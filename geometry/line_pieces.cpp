#include "geometry/line_pieces.h"

#include <cstring>
#include <memory>

namespace {

// Lengths within this beyond the line's end are taken at its end.
constexpr double kLengthTolerance = 0.001;

std::shared_ptr<const LiLinePieces> MakePieces(const LiLine& line) {
  auto table = std::make_shared<LiLinePieces>();
  table->elements = line.elements;
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
  return table;
}

bool boSameElements(const std::vector<LiElement>& a, const std::vector<LiElement>& b) {
  return a.size() == b.size() &&
         (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(LiElement)) == 0);
}

}  // namespace

std::shared_ptr<const LiLinePieces> LiLineGetPieces(const LiLine& line) {
  if (!line.pieces || !boSameElements(line.pieces->elements, line.elements)) {
    line.pieces = MakePieces(line);
  }
  return line.pieces;
}

bool boLiLinePiecesFind(const LiLinePieces& table, double length, const LiPiece** piece,
                        double* along) {
  // Written so that a length that is no number is refused too.
  if (table.pieces.empty() || !(length >= -kLengthTolerance)) return false;
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
  *piece = &table.pieces[index];
  *along = length - table.starts[index];
  return true;
}

bool boLiLinePiecesPointAt(const LiLinePieces& table, double length, ViPoint2d* point) {
  const LiPiece* piece;
  double along;
  if (!boLiLinePiecesFind(table, length, &piece, &along)) return false;
  double direction;
  double z;
  vLiPiecePointAt(*piece, along, point, &direction, &z);
  return true;
}
