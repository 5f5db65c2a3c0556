#include "geometry/line_element.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

// Largest turn of one integration step of a curved piece, in radians.
constexpr double kStepTurn = 0.5;

constexpr double kNodes[5] = {0.1488743389816312, 0.4333953941292472, 0.6794095682990244,
                              0.8650633666889845, 0.9739065285171717};
constexpr double kWeights[5] = {0.2955242247147529, 0.2692667193099963, 0.2190863625159820,
                                0.1494513491505806, 0.0666713443086881};

double dMaxCurvature(const LiPiece& piece) {
  switch (piece.kind) {
    case LiPieceKind::kArc:
      return 1.0 / piece.arc.dRadius;
    case LiPieceKind::kClothoid:
      return std::max(std::fabs(dVgClothoidCurvatureAt(piece.clothoid, 0.0)),
                      std::fabs(dVgClothoidCurvatureAt(piece.clothoid, piece.dLength)));
    default:
      return 0.0;
  }
}

void vMakeStraight(LiPiece* piece) {
  piece->kind = LiPieceKind::kStraight;
  piece->dLength = std::hypot(piece->end.x - piece->start.x, piece->end.y - piece->start.y);
}

}  // namespace

LiPiece LiPieceMake(const LiElement& element, const LiElement* next) {
  LiPiece piece{};
  piece.start = {element.x, element.y};
  piece.dStartZ = element.z;
  if (next == nullptr || element.uType == kLiElmInvisible) {
    piece.kind = LiPieceKind::kNone;
    piece.end = piece.start;
    piece.dEndZ = element.z;
    return piece;
  }
  piece.end = {next->x, next->y};
  piece.dEndZ = next->z;
  switch (element.uType) {
    case kLiElmArc2p:
      if (boGrArcFrom2Points(piece.start.x, piece.start.y, piece.end.x, piece.end.y,
                             element.dParam[0], (element.uFlags & kLiElmFlagLarge) != 0,
                             &piece.arc)) {
        piece.kind = LiPieceKind::kArc;
        piece.dLength = dGrArcLength(piece.arc);
        return piece;
      }
      break;
    case kLiElmArc3p:
      if (boGrArcFrom3Points(piece.start.x, piece.start.y, element.dParam[0], element.dParam[1],
                             piece.end.x, piece.end.y, &piece.arc)) {
        piece.kind = LiPieceKind::kArc;
        piece.dLength = dGrArcLength(piece.arc);
        return piece;
      }
      break;
    case kLiElmClothoid:
      if (boVgClothoidFit(piece.start.x, piece.start.y, piece.end.x, piece.end.y, element.dParam[0],
                          element.dParam[1], element.dParam[2], &piece.clothoid)) {
        piece.kind = LiPieceKind::kClothoid;
        piece.dLength = dVgClothoidLength(piece.clothoid);
        return piece;
      }
      break;
    default:
      break;
  }
  vMakeStraight(&piece);
  return piece;
}

void vLiPiecePointAt(const LiPiece& piece, double s, ViPoint2d* point, double* direction,
                     double* z) {
  const double length = piece.dLength;
  s = std::clamp(s, 0.0, length);
  const double fraction = length > 0.0 ? s / length : 0.0;
  if (z != nullptr) *z = piece.dStartZ + (piece.dEndZ - piece.dStartZ) * fraction;
  switch (piece.kind) {
    case LiPieceKind::kArc:
      vGrArcPointAt(piece.arc, s, point, direction);
      break;
    case LiPieceKind::kClothoid:
      vVgClothoidPointAt(piece.clothoid, s, point, direction);
      break;
    default:
      point->x = piece.start.x + (piece.end.x - piece.start.x) * fraction;
      point->y = piece.start.y + (piece.end.y - piece.start.y) * fraction;
      if (direction != nullptr) {
        *direction = std::atan2(piece.end.y - piece.start.y, piece.end.x - piece.start.x);
      }
      return;
  }
  // The stored end point is exact; the computed one carries rounding.
  if (s >= length) *point = piece.end;
}

double dLiPieceCurvatureAt(const LiPiece& piece, double s) {
  switch (piece.kind) {
    case LiPieceKind::kArc:
      return dGrArcCurvature(piece.arc);
    case LiPieceKind::kClothoid:
      return dVgClothoidCurvatureAt(piece.clothoid, std::clamp(s, 0.0, piece.dLength));
    default:
      return 0.0;
  }
}

double dLiPieceNearest(const LiPiece& piece, double x, double y, double* s) {
  switch (piece.kind) {
    case LiPieceKind::kArc:
      return dGrArcNearest(piece.arc, x, y, s);
    case LiPieceKind::kClothoid:
      return dVgClothoidNearest(piece.clothoid, x, y, s);
    case LiPieceKind::kNone:
      *s = 0.0;
      return std::hypot(x - piece.end.x, y - piece.end.y);
    case LiPieceKind::kStraight:
      break;
  }
  const double dx = piece.end.x - piece.start.x;
  const double dy = piece.end.y - piece.start.y;
  const double squared = dx * dx + dy * dy;
  double fraction = 0.0;
  if (squared > 0.0) {
    fraction =
        std::clamp(((x - piece.start.x) * dx + (y - piece.start.y) * dy) / squared, 0.0, 1.0);
  }
  *s = fraction * piece.dLength;
  return std::hypot(x - (piece.start.x + fraction * dx), y - (piece.start.y + fraction * dy));
}

void vLiPieceAddExtent(const LiPiece& piece, ViExtent* extent) {
  vViExtentAddPoint(extent, piece.start.x, piece.start.y);
  vViExtentAddPoint(extent, piece.end.x, piece.end.y);
  if (piece.kind == LiPieceKind::kArc) vGrArcAddExtent(piece.arc, extent);
  if (piece.kind == LiPieceKind::kClothoid) vVgClothoidAddExtent(piece.clothoid, extent);
}

int iLiPieceChordCount(const LiPiece& piece, double tolerance) {
  const double curvature = dMaxCurvature(piece);
  if (!(curvature > 0.0) || !(piece.dLength > 0.0)) return 1;
  const double radius = 1.0 / curvature;
  double chords;
  if (tolerance >= radius) {
    chords = piece.dLength / (radius * std::numbers::pi / 2.0);
  } else {
    const double chordTurn = 2.0 * std::acos(1.0 - tolerance / radius);
    chords = piece.dLength / (radius * chordTurn);
  }
  return std::clamp(static_cast<int>(std::ceil(chords - 1e-9)), 1, 1000000);
}

void vLiStraightAreaMoments(const ViPoint2d& start, const ViPoint2d& end, double originX,
                            double originY, double* area, double* moment) {
  const double x0 = start.x - originX, y0 = start.y - originY;
  const double x1 = end.x - originX, y1 = end.y - originY;
  *area = (x0 * y1 - x1 * y0) / 2.0;
  *moment = (y1 - y0) * (x0 * x0 + x0 * x1 + x1 * x1) / 6.0;
}

void vLiPieceAreaMoments(const LiPiece& piece, double originX, double originY, double* area,
                         double* moment) {
  *area = 0.0;
  *moment = 0.0;
  if (piece.kind == LiPieceKind::kNone) return;
  if (piece.kind == LiPieceKind::kStraight) {
    vLiStraightAreaMoments(piece.start, piece.end, originX, originY, area, moment);
    return;
  }
  // Gauss-Legendre along the length, in steps that turn at most kStepTurn.
  const double length = piece.dLength;
  const int steps = std::max(
      1,
      static_cast<int>(std::min(100000.0, std::ceil(dMaxCurvature(piece) * length / kStepTurn))));
  const double step = length / steps;
  double sumArea = 0.0, sumMoment = 0.0;
  for (int i = 0; i < steps; ++i) {
    const double middle = (i + 0.5) * step;
    for (int k = 0; k < 5; ++k) {
      for (double sign : {-1.0, 1.0}) {
        ViPoint2d point;
        double direction;
        vLiPiecePointAt(piece, middle + sign * kNodes[k] * step / 2.0, &point, &direction, nullptr);
        const double x = point.x - originX, y = point.y - originY;
        const double dx = std::cos(direction), dy = std::sin(direction);
        sumArea += kWeights[k] * (x * dy - y * dx) / 2.0;
        sumMoment += kWeights[k] * x * x * dy / 2.0;
      }
    }
  }
  *area = sumArea * step / 2.0;
  *moment = sumMoment * step / 2.0;
}
