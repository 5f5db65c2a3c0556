#include "base/numbers.h"

#include <fmt/format.h>

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <system_error>

#include "base/platform.h"

namespace {

// Room for the longest text of sPrintNumber and sPrintInteger.
constexpr size_t kNumberTextSize = 24;

// 10 to the power of -n, for n digits read behind a point.
constexpr double kFractionScale[10] = {1.0,  1e-1, 1e-2, 1e-3, 1e-4,
                                       1e-5, 1e-6, 1e-7, 1e-8, 1e-9};

// The printer's half step for d decimals, 0.499999 times 10 to the power of
// -d: just below one half, so that a value ending in exactly five at the next
// place rounds down.
constexpr double kHalfStep[10] = {0.499999,       0.0499999,       0.00499999,
                                  0.000499999,    0.0000499999,    0.00000499999,
                                  0.000000499999, 0.0000000499999, 0.00000000499999,
                                  0.000000000499999};

// The printer's scale for d decimals. Nine decimals have no entry of their
// own and scale by 0, which prints the integer part alone.
constexpr double kPrintScale[10] = {1.0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 0.0};

bool boIsDigit(char byte) { return byte >= '0' && byte <= '9'; }

// The C library's strtol on a platform where long has 32 bits.
long lReadLong32(const char* text, const char** outEnd) {
  char* end = nullptr;
  long value = std::strtol(text, &end, 10);
  if (value > INT32_MAX) value = INT32_MAX;
  if (value < INT32_MIN) value = INT32_MIN;
  if (outEnd) *outEnd = end;
  return value;
}

// strtod in the "C" locale: blanks, a sign, then a decimal number with an
// optional exponent (or inf and nan). Nothing read gives 0 and the end at the
// start of the text.
double dReadDecimal(const char* text, const char** outEnd) {
  const char* place = text;
  while (*place == ' ' || (*place >= '\t' && *place <= '\r')) ++place;
  bool negative = *place == '-';
  if (*place == '-' || *place == '+') ++place;
  double value = 0.0;
  std::from_chars_result read{place, std::errc::invalid_argument};
  if (*place != '-' && *place != '+') {
    read = std::from_chars(place, place + std::strlen(place), value,
                           std::chars_format::general);
  }
  if (read.ec == std::errc::invalid_argument) {
    if (outEnd) *outEnd = text;
    return 0.0;
  }
  if (read.ec == std::errc::result_out_of_range) {
    // Too large or too small for a double: strtod gives infinity or zero.
    const char* exponent = place;
    while (exponent < read.ptr && *exponent != 'e' && *exponent != 'E') ++exponent;
    bool tiny = exponent + 1 < read.ptr && exponent[1] == '-';
    value = tiny ? 0.0 : HUGE_VAL;
  }
  if (outEnd) *outEnd = read.ptr;
  return negative ? -value : value;
}

// The printers' common frame: `write` puts a number's text, shorter than
// kNumberTextSize, at the place it is given and returns its end; the text
// gets its end zero here. A buffer too short for every number gets the text
// made in a local buffer, cut as sCopy cuts; a null or empty one gets
// nothing.
template <typename Write>
char* sPrintFitted(char* buffer, size_t size, char** outEnd, Write write) {
  char* end = buffer;
  if (buffer && size >= kNumberTextSize) {
    end = write(buffer);
    *end = 0;
  } else if (buffer && size > 0) {
    char text[kNumberTextSize];
    size_t length = static_cast<size_t>(write(text) - text);
    if (length > size - 1) length = size - 1;
    std::memcpy(buffer, text, length);
    end = buffer + length;
    *end = 0;
  }
  if (outEnd) *outEnd = end;
  return buffer;
}

}  // namespace

const char kDigitPairs[201] =
    "00010203040506070809101112131415161718192021222324252627282930313233343536373839"
    "40414243444546474849505152535455565758596061626364656667686970717273747576777879"
    "8081828384858687888990919293949596979899";

char* pWriteDigits(char* out, uint64_t value) {
  // The digits are counted first and then put in from the back, two at a
  // time: a model file prints millions of them.
  int count = 1;
  for (uint64_t rest = value; rest >= 10; rest /= 10) ++count;
  char* place = out + count;
  while (value >= 10) {
    place -= 2;
    std::memcpy(place, kDigitPairs + 2 * (value % 100), 2);
    value /= 100;
  }
  if (place > out) *--place = static_cast<char>('0' + value);
  return out + count;
}

long lParseInteger(const char* text, const char** outEnd) {
  if (!text) {
    if (outEnd) *outEnd = text;
    return 0;
  }
  const char* place = text;
  while (*place == ' ') ++place;
  bool negative = *place == '-';
  if (*place == '-' || *place == '+') ++place;
  const char* digits = place;
  while (boIsDigit(*place)) ++place;
  size_t count = static_cast<size_t>(place - digits);
  if (count > 9) return lReadLong32(text, outEnd);

  long value = 0;
  if (count == 0) {
    // The byte where a digit should stand is taken as one, terminator and
    // all; bytes are signed, as the file's code page was read.
    value = static_cast<signed char>(*place) - '0';
    ++place;
  } else {
    for (const char* digit = digits; digit < place; ++digit) value = value * 10 + (*digit - '0');
  }
  if (outEnd) *outEnd = place;
  return negative ? -value : value;
}

double dParseNumber(const char* text, const char** outEnd) {
  const char* end = nullptr;
  long whole = lParseInteger(text, &end);
  // end[-1] is 0 when the integer reader took the terminator as its digit.
  if (!text || end[-1] == 0 || *end != '.') {
    if (outEnd) *outEnd = end;
    return static_cast<double>(whole);
  }
  const char* fractionText = end + 1;
  long digits = lParseInteger(fractionText, &end);
  size_t consumed = static_cast<size_t>(end - fractionText);
  if (consumed >= 10) return dReadDecimal(text, outEnd);

  double fraction = static_cast<double>(digits) * kFractionScale[consumed];
  if (outEnd) *outEnd = end;
  if (whole > 0) return static_cast<double>(whole) + fraction;
  if (whole < 0) return static_cast<double>(whole) - fraction;
  // "-0.25": the integer part lost the sign, the text still has it.
  const char* first = text;
  while (*first == ' ') ++first;
  return *first == '-' ? -fraction : fraction;
}

double dParseNumberComma(const char* text) {
  if (!text) return 0.0;
  char copy[128];
  size_t length = strnlen(text, sizeof copy - 1);
  for (size_t i = 0; i < length; ++i) copy[i] = text[i] == ',' ? '.' : text[i];
  copy[length] = 0;
  return dReadDecimal(copy, nullptr);
}

bool boIsNumberText(const char* text) {
  if (!text) return false;
  const char* place = text;
  while (*place == ' ') ++place;
  if (!*place) return true;
  if (*place == '-' || *place == '+') ++place;
  bool hasDigit = false;
  bool hasPoint = false;
  for (; *place; ++place) {
    if (boIsDigit(*place)) {
      hasDigit = true;
    } else if (*place == '.' && !hasPoint) {
      hasPoint = true;
    } else {
      return false;
    }
  }
  return hasDigit;
}

namespace {

// The text of sPrintNumber at `out`, without its end zero; its end.
char* pWriteNumber(char* out, double value, int decimals) {
  int places = decimals > 9 ? 8 : (decimals < 0 ? 0 : decimals);
  if (value < 0) {
    *out++ = '-';
    value = -value;
  }
  double sum = value + kHalfStep[places];
  // The integer part is cut to 32 bits; what does not fit (and NaN) gives
  // the value that the processor's cut gives, 2^31, and no fraction.
  uint32_t whole = 0x80000000u;
  int32_t fraction = 0;
  if (sum >= 0.0 && sum < 2147483648.0) {
    whole = static_cast<uint32_t>(static_cast<int32_t>(sum));
    fraction = static_cast<int32_t>((sum - whole) * kPrintScale[places]);
  }
  out = pWriteDigits(out, whole);
  if (fraction != 0) {
    *out++ = '.';
    char digits[9];
    for (int place = places - 1; place >= 0; --place) {
      digits[place] = static_cast<char>('0' + fraction % 10);
      fraction /= 10;
    }
    int kept = places;
    while (kept > 0 && digits[kept - 1] == '0') --kept;
    std::memcpy(out, digits, static_cast<size_t>(kept));
    out += kept;
  }
  return out;
}

// The text of sPrintInteger at `out`, without its end zero; its end.
char* pWriteInteger(char* out, long value) {
  uint64_t magnitude = static_cast<uint64_t>(value);
  if (value < 0) {
    *out++ = '-';
    magnitude = 0 - magnitude;
  }
  return pWriteDigits(out, magnitude);
}

}  // namespace

char* sPrintNumber(char* buffer, size_t size, double value, int decimals, char** outEnd) {
  return sPrintFitted(buffer, size, outEnd,
                      [value, decimals](char* out) { return pWriteNumber(out, value, decimals); });
}

char* sPrintInteger(char* buffer, size_t size, long value, char** outEnd) {
  return sPrintFitted(buffer, size, outEnd,
                      [value](char* out) { return pWriteInteger(out, value); });
}

char* sTrimZeros(char* text) {
  if (!text || !std::strchr(text, '.')) return text;
  size_t length = std::strlen(text);
  for (size_t i = length - 1; i >= 1; --i) {
    if (text[i] == '0') {
      text[i] = 0;
      continue;
    }
    if (text[i] == '.') text[i] = 0;
    break;
  }
  return text;
}

char* sFormatNumber(double value, int width, int decimals, char point, char* buffer,
                    size_t size) {
  if (!buffer || size == 0) return buffer;
  // printf's rules for odd arguments: a negative precision is the default
  // one, a negative width aligns to the left. Beyond a few thousand bytes
  // nothing would fit anyway.
  int places = decimals < 0 ? 6 : (decimals > 4096 ? 4096 : decimals);
  int columns = width < -4096 ? 4096 : (width < 0 ? -width : (width > 4096 ? 4096 : width));
  fmt::format_to_n_result<char*> written{buffer, 0};
  if (width == 0) {
    written = fmt::format_to_n(buffer, size - 1, "{:.{}f}", value, places);
  } else if (width < 0) {
    written = fmt::format_to_n(buffer, size - 1, "{:<{}.{}f}", value, columns, places);
  } else {
    written = fmt::format_to_n(buffer, size - 1, "{:>{}.{}f}", value, columns, places);
  }
  *written.out = 0;
  if (width == 0 && decimals > 0) sTrimZeros(buffer);
  if (point != '.') {
    char* sign = std::strchr(buffer, '.');
    if (sign) *sign = point;
  }
  return buffer;
}

char* sFormatNumberLocal(double value, int width, int decimals, char* buffer, size_t size) {
  static const char decimalSign = cPlatformDecimalSign();
  return sFormatNumber(value, width, decimals, decimalSign, buffer, size);
}

double dRoundToStep(double a, double step) {
  if (step == 0.0) return a;
  return std::round(a / step) * step;
}
