// Elements of a line and the pieces of curve that they draw.
//
// A line is a row of elements. Each element holds a point and says how the
// line goes on from that point to the point of the next element: in a
// straight, along an arc, along a clothoid, or by an invisible move that
// draws nothing. The piece from point k to point k+1 therefore belongs to
// element k, its start, as in the element block of a model file, where the
// words of a piece stand on the line of its start point. The last element of
// a line has no piece of its own (a polygon closes its ring from there by a
// straight). The first element of a line, and every element behind an
// invisible move, starts a part: a run of drawn pieces.
#pragma once

#include <cstdint>

#include "geometry/arc.h"
#include "geometry/clothoid.h"
#include "geometry/point.h"

// Element types.
enum : int {
  kLiElmStraight = 0,      // straight piece
  kLiElmArc2p = 1,         // arc by its two end points, radius and large-arc flag
  kLiElmArc3p = 2,         // arc by its two end points and a middle point
  kLiElmClothoid = 4,      // clothoid: start radius, end radius, parameter A
  kLiElmInvisible = 97,    // invisible move: the next point starts a new part
  kLiElmStraightAlt = 98,  // straight piece of a second kind, drawn and measured as 0
};
// Any other type is kept as it is given and drawn as a straight.

// Number of 32-bit values of user data that each element carries.
inline constexpr int kLiElmDataSlots = 2;
// Longest element text that is kept, in bytes.
inline constexpr int kLiElmTextMax = 1000;

// One element as the line stores it: 64 bytes, kept in one array per line.
struct LiElement {
  double x, y, z;                  // the point from which the element's piece starts
  double dParam[3];                // arc by two points: radius; by three: middle x, y, z;
                                   // clothoid: start radius, end radius, A
  int32_t iData[kLiElmDataSlots];  // the user's element data
  uint32_t uText;                  // 0 for none, else 1 + offset of the text in the line
  uint8_t uType;
  uint8_t uFlags;  // kLiElmFlagLarge
  uint16_t uUnused;
};
static_assert(sizeof(LiElement) == 64, "an element stays 64 bytes");

inline constexpr uint8_t kLiElmFlagLarge = 1;

// The curve that an element draws from its point to the next one.
enum class LiPieceKind : uint8_t { kNone, kStraight, kArc, kClothoid };

struct LiPiece {
  LiPieceKind kind;
  ViPoint2d start, end;
  double dStartZ, dEndZ;  // heights at both ends, interpolated along the length
  double dLength;         // length in the plane
  GrArc arc;
  VgClothoid clothoid;
};

// The piece of `element`, going on to `next` (null for the last element of
// the line). Invisible moves and last elements draw nothing (kNone); their
// piece starts and ends at the element's point. An arc or clothoid whose data
// cannot be laid between its points draws a straight.
LiPiece LiPieceMake(const LiElement& element, const LiElement* next);

// Point, direction of travel (radians; may be null) and height at the length
// `s` from the piece's start; `s` is held within the piece.
void vLiPiecePointAt(const LiPiece& piece, double s, ViPoint2d* point, double* direction,
                     double* z);

// Signed curvature at the length `s`: 0 for straights, positive to the left.
double dLiPieceCurvatureAt(const LiPiece& piece, double s);

// Distance from (x, y) to the piece and the length along it of the nearest
// point.
double dLiPieceNearest(const LiPiece& piece, double x, double y, double* s);

// Widens `extent` by the piece, bulges of curves included.
void vLiPieceAddExtent(const LiPiece& piece, ViExtent* extent);

// Number of chords that keep the piece's curve within `tolerance` of them: 1
// for a straight.
int iLiPieceChordCount(const LiPiece& piece, double tolerance);

// The integrals over the piece of (x dy - y dx) / 2 and of x^2 dy / 2, with
// coordinates taken relative to (originX, originY): their sums over a closed
// ring give its signed area and its first moment about the y axis.
void vLiPieceAreaMoments(const LiPiece& piece, double originX, double originY, double* area,
                         double* moment);
// The same integrals over the straight from `start` to `end`: what the area of
// a ring of straights needs, without making the piece or its length.
void vLiStraightAreaMoments(const ViPoint2d& start, const ViPoint2d& end, double originX,
                            double originY, double* area, double* moment);
