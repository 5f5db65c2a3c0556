// Point codes (PCODE): which point of a surface a section point is.
//
// A PCODE is a signed 24-bit number: |code| = family*10000 + group*100 +
// number, negative on the left side of the road and positive on the right.
// Its decimal spelling F.GGNN (3.0105 is family 3, group 1, number 5) is what
// users, settings, filters and the line fields PCODE and EXTERNAL_PCODE see.
// 0 is no code; -99999 is not a code at all.
#pragma once

#include <cstdint>

inline constexpr int kRmPcodeNone = 0;
inline constexpr int kRmPcodeSentinel = -99999;

// Sides of the road.
inline constexpr int kRmSideLeft = 1;
inline constexpr int kRmSideRight = 2;

// ---- Building and taking apart ----

// (family*100 + group)*100 + min(number, 99).
int iRmPcodeBuild(int family, int group, int number);
// The code of the older decimal form that files of DATAVERSION 0 hold: the
// part behind the family was a group alone when it was below 10, and group
// and number from 10 on (3.0005 was family 3, group 5). The sign is kept.
int iRmPcodeFromOldForm(int code);
int iRmPcodeBuild2(int family, int group);
// The same, negated on the left side (side 1).
int iRmPcodeBuildSide(int family, int group, int number, int side);
int iRmPcodeBuildSide2(int family, int group, int side);

int iRmPcodeFamily(int code);
int iRmPcodeGroup(int code);
int iRmPcodeNumber(int code);

// Whether the parts of a code lie in their ranges: family at most 8, group at
// most 99, number at most 99, and a code of group 0 has a number of 1 to 99.
bool boRmPcodeCheck(int code);
// Both halves of a pair (low half first) pass boRmPcodeCheck.
bool boRmPcodePairCheck(uint64_t pair);

// A pair of 32-bit codes kept in one 64-bit value, the low half first.
inline uint64_t uRmPcodePair(int low, int high) {
  return static_cast<uint32_t>(low) | (static_cast<uint64_t>(static_cast<uint32_t>(high)) << 32);
}
inline int iRmPcodePairLow(uint64_t pair) { return static_cast<int32_t>(pair & 0xFFFFFFFFu); }
inline int iRmPcodePairHigh(uint64_t pair) { return static_cast<int32_t>(pair >> 32); }

// ---- Decimal and old forms ----

// The code of a decimal F.GGNN; in strict mode a family above 9 gives 0.
int iRmPcodeFromDouble(double value, bool strict);
int iRmPcodeFromDoubleStrict(double value);
// `value` taken on `side` (negated on the left), in strict mode.
int iRmPcodeFromDoubleSide(double value, int side);
// A decimal text read in strict mode; null or empty is 0.
int iRmPcodeFromText(const char* text);

// "F.GG" or "F.GGNN", with "-" on the left; empty for an invalid code. A
// temporary text.
const char* sRmPcodeToText(int code);
double dRmPcodeToDouble(int code);

// The old three-digit form: family*1000 + group*100 + number, signed by side.
int iRmPcodeFromOld(int value);
uint64_t RmPcodePairFromOld(uint64_t pair);

// ---- Stepping ----

// The code `n` steps from `code` on `side`; steps carry over into groups.
int iRmPcodeStep(int code, int side, int n);
// group +/- 1, carrying into the family.
void vRmPcodeNextGroup(int* family, int* group, bool up);
// number + 1, carrying into the group and the family.
void vRmPcodeNextNumber(int* family, int* group, int* number);

// ---- Classes of codes ----

bool boRmPcodeIsValid(int code);
bool boRmPcodeIsSentinel(int code);
bool boRmPcodeIsCentre(int code);
bool boRmPcodeFamilyAtLeastFour(int code);
bool boRmPcodeFamilyAtLeastFive(int code);
bool boRmPcodeFamilyIsFiveOrSix(int code);
bool boRmPcodeFamilyIsSeven(int code);
bool boRmPcodeFamilyIsEight(int code);
// Family 5, group 99, number above 0.
bool boRmPcodeIsFiveNinetyNine(int code);
// The marked codes of a mode: family 5 with group 99 (mode 3: groups 90 to
// 99) and a number above 0, and family 8 with a number above 0.
bool boRmPcodeIsMarked(int mode, int code);

// Whether `a` is the stronger, inner code of the two: a family-7 code yields
// to any other family of 4 or more; otherwise the greater absolute value.
bool boRmPcodeIsInner(int a, int b);
// Both codes on one side, and `b` farther out than `a`.
bool boRmPcodeIsOutward(int a, int b);

// ---- Sides ----

// 1 for a negative code, 2 otherwise.
int iRmPcodeSide(int code);
// 1 gives 2, 2 gives 1, anything else -1.
int iRmSideOpposite(int side);
bool boRmSideIncludesLeft(int side);
bool boRmSideIncludesRight(int side);
// Walk -1, 0, 1, 2, 1000 up and back down; the new value is also returned.
int iRmSideStepUp(int* value);
int iRmSideStepDown(int* value);
