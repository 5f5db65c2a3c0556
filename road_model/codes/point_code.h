// A point of a section layer, and the packed code word that it carries.
//
// The point is the most numerous object of a road model: two list links,
// three single-precision numbers and one word. Offset and height are stored
// in single precision on purpose; arithmetic is done in double and narrowed
// on store.
//
// The code word holds the point code (PCODE) in its low 24 bits, as a two's
// complement number, and the two-bit mark in bits 24 and 25. The bits above
// are kept as they are by every write of a code or a mark.
#pragma once

#include <cstdint>

#include "base/numbers.h"

struct RmPoint {
  RmPoint* Next;
  RmPoint* Prev;
  float Z;         // height; at or below -99998 where there is none (a gap)
  float X;         // offset from the line, negative to the left
  float Radius;    // radius of the arc that ends in this point; 0 for straight
  uint32_t Code;   // PCODE in bits 0-23, mark in bits 24-25
};
static_assert(sizeof(RmPoint) == 32, "a section point stays a 32-byte node");

inline constexpr uint32_t kRmCodeWordPcodeBits = 0x00FFFFFFu;
inline constexpr uint32_t kRmCodeWordMarkBits = 0x03000000u;
inline constexpr int kRmCodeWordMarkShift = 24;

// The height written where a point has none.
inline constexpr float kRmNoHeight = -99999.0f;

// ---- The code word ----

// The PCODE of a word: the low 24 bits, sign-extended.
inline int iRmCodeWordPcode(uint32_t word) {
  return static_cast<int32_t>(word << 8) >> 8;
}
// The word with its low 24 bits replaced by `pcode`.
inline uint32_t uRmCodeWordWithPcode(uint32_t word, int pcode) {
  return (word & ~kRmCodeWordPcodeBits) | (static_cast<uint32_t>(pcode) & kRmCodeWordPcodeBits);
}
inline int iRmCodeWordMark(uint32_t word) {
  return static_cast<int>((word & kRmCodeWordMarkBits) >> kRmCodeWordMarkShift);
}
inline uint32_t uRmCodeWordWithMark(uint32_t word, int mark) {
  return (word & ~kRmCodeWordMarkBits) |
         ((static_cast<uint32_t>(mark) << kRmCodeWordMarkShift) & kRmCodeWordMarkBits);
}

// ---- The same on a point ----

inline int iRmPointGetPcode(const RmPoint* point) { return iRmCodeWordPcode(point->Code); }
inline void vRmPointSetPcode(RmPoint* point, int pcode) {
  point->Code = uRmCodeWordWithPcode(point->Code, pcode);
}
inline int iRmPointGetMark(const RmPoint* point) { return iRmCodeWordMark(point->Code); }
inline void vRmPointSetMark(RmPoint* point, int mark) {
  point->Code = uRmCodeWordWithMark(point->Code, mark);
}

// Whether the point has a height; a point without one is a gap.
inline bool boRmPointHasHeight(const RmPoint* point) {
  return point->Z > static_cast<float>(kPresentAbove);
}
