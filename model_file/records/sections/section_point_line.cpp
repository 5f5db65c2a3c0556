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

char* pPutInteger(char* out, long value) {
  char* end = nullptr;
  sPrintInteger(out, 24, value, &end);
  return end;
}

// The cursor of a point line: numbers in order, 0 at the end of the line.
struct Columns {
  const char* Place;
  const char* End;

  bool boAtEnd() {
    while (*Place == ' ') ++Place;
    return Place >= End;
  }
  void vMoveTo(const char* after) { Place = after > End ? End : after; }
  double dNumber() {
    if (boAtEnd()) return 0.0;
    const char* after = nullptr;
    double value = dParseNumber(Place, &after);
    vMoveTo(after);
    return value;
  }
  long lInteger() {
    if (boAtEnd()) return 0;
    const char* after = nullptr;
    long value = lParseInteger(Place, &after);
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
  *out++ = '.';
  char places[4];
  for (int place = 3; place >= 0; --place) {
    places[place] = static_cast<char>('0' + fraction % 10);
    fraction /= 10;
  }
  int kept = 4;
  while (places[kept - 1] == '0') --kept;
  std::memcpy(out, places, static_cast<size_t>(kept));
  return out + kept;
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

void vRmPointLineRead(const char* text, const char* end, RmPoint* point) {
  Columns columns{text, end};
  point->X = static_cast<float>(columns.dNumber());
  point->Z = static_cast<float>(columns.dNumber());
  point->Code = uRmCodeWordWithPcode(point->Code, static_cast<int>(columns.lInteger()));
  point->Radius = static_cast<float>(columns.dNumber());
  point->Code = uRmCodeWordWithMark(point->Code, static_cast<int>(columns.lInteger()));
}
