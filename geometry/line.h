// Lines: rows of elements with their points, in 2D or 3D, open or drawn as
// polygons.
//
// Elements are named by their position in the line (LiElm), counted from 0;
// element k holds point k and the piece from there to point k+1 (see
// line_element.h): an arc is set on the point where it starts.
// kLiNoElm stands for none. A position stays valid while the line grows at
// its end; deleting or inserting an element moves the positions behind it by
// one. Every function takes null lines and positions out of range quietly:
// reads give 0, an empty text or kLiNoElm, and changes do nothing.
//
// A 2D line ignores the heights of its points; it may carry one fixed height
// for all of them instead (vLiLineSetHeight). Each element carries two 32-bit
// values and a text for its user (the road model keeps codes in them).
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "geometry/line_element.h"
#include "geometry/point.h"

using LiElm = int32_t;
inline constexpr LiElm kLiNoElm = -1;

struct LiLinePieces;
struct LiLines;

// A line. Its members are the library's; use the functions below.
struct LiLine {
  long lId = 0;
  LiLines* pOwner = nullptr;  // the container that holds the line, if any
  int iIndex = -1;            // position in the owner
  bool bo3d = false;
  bool boPolygon = false;
  bool boHasHeight = false;
  double dHeight = 0.0;
  char sGuid[kViGuidLength + 1] = {};
  std::vector<LiElement> elements;
  std::string texts;          // element texts, each ended by a zero byte
  size_t uDeadTextBytes = 0;  // bytes of replaced texts still in `texts`
  std::vector<std::max_align_t> userData;
  std::vector<std::string> fieldValues;
  // The drawn pieces as last made by LiLineGetPieces (line_pieces.h).
  mutable std::shared_ptr<const LiLinePieces> pieces;
};

// ---- Lifetime --------------------------------------------------------------

// A line of its own, in no container, without user data or fields.
LiLine* LiLineCreate(bool bo3d);
// A free line with the same content as `from` (see boLiLineCopy); null for a
// null source.
LiLine* LiLineCreateCopy(const LiLine* from);
// Deletes the line, taking it out of its container first, and nulls the
// pointer. What the user data points to is the caller's to free.
void vLiLineDelete(LiLine** line);
// Copies the geometry of `from` into `to`: elements with their data and
// texts, dimension, polygon flag, fixed height and GUID. The id, the user
// data and the field values of `to` stay as they are.
bool boLiLineCopy(LiLine* to, const LiLine* from);

// ---- Properties ------------------------------------------------------------

long lLiLineGetID(const LiLine* line);
bool boLiLineIs3d(const LiLine* line);
void vLiLineSet3d(LiLine* line, bool bo3d);
bool boLiLineIsPolygon(const LiLine* line);
void vLiLineSetPolygon(LiLine* line, bool boPolygon);
// The fixed height of a 2D line. On a 3D line setting it also gives every
// point that height.
void vLiLineSetHeight(LiLine* line, double height);
bool boLiLineHasHeight(const LiLine* line);
double dLiLineGetHeight(const LiLine* line);
// The GUID text; never null. Setting copies at most kViGuidLength characters.
const char* sLiLineGetGuid(const LiLine* line);
void vLiLineSetGuid(LiLine* line, const char* guid);

// ---- Adding and removing points ---------------------------------------------

// Each adds an element at the end and returns its position. On a 2D line the
// height is kept but not used.
LiElm LiLineAddP(LiLine* line, double x, double y, double z);
LiElm LiLineAddP2d(LiLine* line, double x, double y);
// Adds `count` points as straights at once, with room made once; on a 2D
// line they take its fixed height. Returns the position of the first, or
// kLiNoElm when nothing was added.
LiElm LiLineAddPoints2d(LiLine* line, const ViPoint2d* points, size_t count);
// A point reached by an invisible move: the last element becomes the move,
// and the new point starts a new part.
LiElm LiLineAddPInvisible(LiLine* line, double x, double y, double z = 0.0);
// A point reached along an arc of `radius` (positive turning left) from the
// last point, the larger arc when `large` is set: the arc is set on the last
// element. A radius of 0, a first point, or a radius too short for the chord
// leaves a straight instead.
LiElm LiLineAddArc2PTo(LiLine* line, double x, double y, double radius, bool large = false);
void vLiLineDeleteElm(LiLine* line, LiElm elm);
void vLiLineDeleteElms(LiLine* line);

// ---- Walking the elements ---------------------------------------------------

int iLiLineGetElmCount(const LiLine* line);
LiElm LiElmGetFirst(const LiLine* line);
LiElm LiElmGetLast(const LiLine* line);
LiElm LiElmGetNext(const LiLine* line, LiElm elm);
LiElm LiElmGetPrev(const LiLine* line, LiElm elm);
// True for the first element and for those behind an invisible move: the
// starts of parts.
bool boLiElmIsPartStart(const LiLine* line, LiElm elm);
// The last element of the part: the invisible move to the next part, or the
// last element of the line.
LiElm LiElmGetPartEnd(const LiLine* line, LiElm part);

// ---- Element content ---------------------------------------------------------

int LiElmGetType(const LiLine* line, LiElm elm);
// Gives an element a type that needs no further data: anything but 1, 2 and
// 4, which have their own setters below (setting one of them again on an
// element of that type keeps its data). Types run from 0 to 255.
bool boLiElmSetType(LiLine* line, LiElm elm, int type);
// Makes the element's piece an arc from its point to the next one with
// `radius` (positive turning left) and the large-arc flag. False if there is
// no point after it or the radius does not fit the chord (see
// boGrArcFrom2Points).
bool boLiElmSet2pArc(LiLine* line, LiElm elm, double radius, bool large);
// Makes the element's piece an arc from its point through the middle point to
// the next point. False without a point after it or for three points on a
// straight line.
bool boLiElmSet3pArc(LiLine* line, LiElm elm, double xMiddle, double yMiddle, double zMiddle = 0.0);
// Makes the element's piece a clothoid from its point to the next one: start
// radius, end radius (0 for a straight end, positive turning left) and
// parameter A. False without a point after it or when the clothoid cannot be
// laid between the points (boVgClothoidFit).
bool boLiElmSetClotoide(LiLine* line, LiElm elm, double startRadius, double endRadius, double a);

void vLiElmGetP2d(const LiLine* line, LiElm elm, ViPoint2d* point);
// The point with its height: on a 2D line the fixed height, or 0.
void vLiElmGetP3d(const LiLine* line, LiElm elm, ViPoint3d* point);
// Radius and large-arc flag of an arc by two points; 0 and false otherwise.
double dLiElmGetRadius(const LiLine* line, LiElm elm);
bool boLiElmIsLarge(const LiLine* line, LiElm elm);
// Middle point of an arc by three points (its height as given when set).
void vLiElmGetArcMiddle(const LiLine* line, LiElm elm, ViPoint3d* middle);
// Start radius, end radius and A of a clothoid; zeros otherwise.
void vLiElmGetClotoide(const LiLine* line, LiElm elm, double* startRadius, double* endRadius,
                       double* a);

// The user's element data: kLiElmDataSlots values, 0 until set.
int32_t iLiElmGetData(const LiLine* line, LiElm elm, int slot);
void vLiElmSetData(LiLine* line, LiElm elm, int slot, int32_t value);
// The element's text; "" when it has none. Setting keeps at most
// kLiElmTextMax bytes; null or "" removes the text.
const char* sLiElmGetText(const LiLine* line, LiElm elm);
void vLiElmSetText(LiLine* line, LiElm elm, const char* text);
