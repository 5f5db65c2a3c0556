#include "model_file/records/sections/section_point_line.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>

#include "base/numbers.h"

namespace {

// A radius this close to 0 is a straight piece and is not written.
constexpr double kStraightRadius = 0.00001;
// Above this a float has no fraction worth the fast path.
constexpr double kFastPathLimit = 1e14;
// The number reader's scale of n digits behind a point, the same constants,
// so that the short way below gives its values to the bit.
constexpr double kFractionScale[10] = {1.0,  1e-1, 1e-2, 1e-3, 1e-4,
                                       1e-5, 1e-6, 1e-7, 1e-8, 1e-9};
// Most digits that the short way reads in one run, as the number reader
// reads nine in one before it hands over to the C library.
constexpr int kShortDigits = 9;

char* pPutInteger(char* out, long value) {
  uint64_t magnitude = static_cast<uint64_t>(value);
  if (value < 0) {
    *out++ = '-';
    magnitude = 0 - magnitude;
  }
  return pWriteDigits(out, magnitude);
}

// Reads the run of digits at `place` into `value`, which is only of use for
// a run of at most kShortDigits (a longer one wraps around); returns the end
// of the run.
inline const char* pReadDigits(const char* place, long* value) {
  uint64_t read = 0;
  for (;; ++place) {
    unsigned digit = static_cast<unsigned char>(*place) - unsigned{'0'};
    if (digit > 9) break;
    read = read * 10 + digit;
  }
  *value = static_cast<long>(read);
  return place;
}

// The cursor of a point line: numbers in order, 0 at the end of the line.
// The forms that point lines hold - a minus, one to nine digits, and a point
// with one to nine digits - are read here with the number reader's own
// arithmetic; every other form goes to the number reader.
struct Columns {
  const char* Place;

  bool boAtEnd() {
    while (*Place == ' ') ++Place;
    return *Place == 0;
  }
  // The number readers may stand one byte behind the terminator when they
  // took it for a digit; the line then ends there. They may also not move.
  void vMoveTo(const char* after) { Place = after > Place && after[-1] == 0 ? after - 1 : after; }

  double dNumber() {
    if (boAtEnd()) return 0.0;
    bool negative = *Place == '-';
    const char* digits = Place + (negative ? 1 : 0);
    long whole = 0;
    const char* end = pReadDigits(digits, &whole);
    if (end > digits && end - digits <= kShortDigits) {
      if (*end != '.') {
        Place = end;
        // "-0" is a plain 0.
        return static_cast<double>(negative ? -whole : whole);
      }
      long places = 0;
      const char* fraction = end + 1;
      end = pReadDigits(fraction, &places);
      long count = end - fraction;
      if (count > 0 && count <= kShortDigits) {
        Place = end;
        // The reader's whole - fraction is -(|whole| + fraction) to the bit,
        // and "-0.5" keeps its sign there too.
        double part = static_cast<double>(places) * kFractionScale[count];
        double value = static_cast<double>(whole) + part;
        return negative ? -value : value;
      }
    }
    const char* after = nullptr;
    double value = dParseNumber(Place, &after);
    vMoveTo(after);
    return value;
  }

  long lInteger() {
    if (boAtEnd()) return 0;
    bool negative = *Place == '-';
    const char* digits = Place + (negative ? 1 : 0);
    long value = 0;
    const char* end = pReadDigits(digits, &value);
    if (end > digits && end - digits <= kShortDigits) {
      Place = end;
      return negative ? -value : value;
    }
    const char* after = nullptr;
    value = lParseInteger(Place, &after);
    vMoveTo(after);
    return value;
  }
};

}  // namespace

char* pRmPrintCoordinate(char* out, float value) {
  double widened = value;
  if (!(std::fabs(widened) < kFastPathLimit)) {
    char text[64];
    std::snprintf(text, sizeof text, "%.4f", widened);
    sTrimZeros(text);
    size_t length = std::strlen(text);
    if (length > 23) length = 23;
    std::memcpy(out, text, length);
    return out + length;
  }
  // A float times 10^4 is exact in double precision, so rounding it to the
  // nearest integer (halves to even, as the C library's printf rounds an
  // exact tie) gives the digits that "%.4f" prints.
  double scaled = std::nearbyint(widened * 10000.0);
  if (std::signbit(widened)) *out++ = '-';
  auto digits = static_cast<uint64_t>(std::fabs(scaled));
  out = pWriteDigits(out, digits / 10000);
  auto fraction = static_cast<unsigned>(digits % 10000);
  if (fraction == 0) return out;
  // Four places, closing zeros dropped.
  *out++ = '.';
  unsigned high = fraction / 100;
  unsigned low = fraction % 100;
  std::memcpy(out, kDigitPairs + 2 * high, 2);
  std::memcpy(out + 2, kDigitPairs + 2 * low, 2);
  if (low != 0) return out + (low % 10 != 0 ? 4 : 3);
  return out + (high % 10 != 0 ? 2 : 1);
}

size_t uRmPointLineFormat(const RmPoint* point, char* buffer) {
  char* out = buffer;
  *out++ = ' ';
  out = pRmPrintCoordinate(out, point->X);
  *out++ = ' ';
  out = pRmPrintCoordinate(out, point->Z);
  *out++ = ' ';
  out = pPutInteger(out, iRmCodeWordPcode(point->Code));
  int mark = iRmCodeWordMark(point->Code);
  if (mark != 0 || std::fabs(point->Radius) >= kStraightRadius) {
    *out++ = ' ';
    out = pRmPrintCoordinate(out, point->Radius);
  }
  if (mark != 0) {
    *out++ = ' ';
    out = pPutInteger(out, mark);
  }
  *out = 0;
  return static_cast<size_t>(out - buffer);
}

void vRmPointLineRead(const char* text, RmPoint* point) {
  Columns columns{text};
  point->X = static_cast<float>(columns.dNumber());
  point->Z = static_cast<float>(columns.dNumber());
  point->Code = uRmCodeWordWithPcode(point->Code, static_cast<int>(columns.lInteger()));
  point->Radius = static_cast<float>(columns.dNumber());
  point->Code = uRmCodeWordWithMark(point->Code, static_cast<int>(columns.lInteger()));
}
