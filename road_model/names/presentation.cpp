#include "road_model/names/presentation.h"

#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "base/printf_format.h"

namespace {

constexpr char kColor[] = "Color";
constexpr char kMaterial[] = "Mat";
constexpr char kPen[] = "GDPLN";
constexpr char kLineType[] = "LType";
constexpr char kLineTypeValue[] = "GDPLT";
constexpr char kLineSymbol[] = "LSymb";
constexpr char kLineSymbolValue[] = "EdgSymbol";
constexpr char kHatch[] = "Hatch";
constexpr char kHatchFillColor[] = "HFillCol";
constexpr char kHatchType[] = "HType";
constexpr char kHatchGdpType[] = "HGdpType";
constexpr char kHatchAngle[] = "HAng";
constexpr char kHatchFactor[] = "HFact";

// The hatch type whose GDP type is written.
constexpr int kHatchOfGdpType = 3;

// ---- Writing ----

struct Output {
  char* Cursor;
  size_t Room;  // bytes left, the terminator's included
};

void vAppend(Output* out, const char* format, ...) KVRVIPS_PRINTF_FORMAT(2, 3);
void vAppend(Output* out, const char* format, ...) {
  if (out->Room <= 1) return;
  va_list arguments;
  va_start(arguments, format);
  int written = std::vsnprintf(out->Cursor, out->Room, format, arguments);
  va_end(arguments);
  if (written < 0) return;
  size_t taken = size_t(written) < out->Room ? size_t(written) : out->Room - 1;
  out->Cursor += taken;
  out->Room -= taken;
}

// Closes the bracket in place of the blank written last.
void vCloseBracket(Output* out, char* start) {
  if (out->Cursor > start && out->Cursor[-1] == ' ') {
    --out->Cursor;
    ++out->Room;
  }
  vAppend(out, ") ");
}

void vWriteLineType(Output* out, const RmPresentation* pres) {
  char* start = out->Cursor;
  vAppend(out, "%s:%s(", kLineType, kLineTypeValue);
  vAppend(out, "%d ", pres->LineType);
  if (pres->LineType > 1) {
    int count = 1;
    for (int i = 0; i < 4; ++i) {
      if (pres->LinePattern[i] != 0.0) count = i + 1;
    }
    for (int i = 0; i < count; ++i) vAppend(out, "%.3f ", pres->LinePattern[i]);
  }
  vCloseBracket(out, start);
}

void vWriteHatch(Output* out, const RmPresentation* pres) {
  vAppend(out, "%s:%s(", kHatch, kHatch);
  if (pres->HatchFillColor != 0) vAppend(out, "%s:%.d ", kHatchFillColor, pres->HatchFillColor);
  vAppend(out, "%s:%d ", kHatchType, pres->HatchType);
  if (pres->HatchGdpType != 0 && pres->HatchType == kHatchOfGdpType) {
    vAppend(out, "%s:%.d ", kHatchGdpType, pres->HatchGdpType);
  }
  if (pres->HatchAngle != 0.0) vAppend(out, "%s:%.3f ", kHatchAngle, pres->HatchAngle);
  vAppend(out, "%s:%.3f ", kHatchFactor, pres->HatchFactor);
  vAppend(out, ") ");
}

// ---- Reading ----

// A piece of the text: [Start, End).
struct Span {
  const char* Start;
  const char* End;
};

bool boNameIs(Span name, const char* word) {
  size_t length = std::strlen(word);
  return size_t(name.End - name.Start) == length && std::memcmp(name.Start, word, length) == 0;
}

// The next item of a blank-separated list, with brackets kept whole; false at
// the end.
bool boNextItem(const char** cursor, const char* end, Span* item) {
  const char* c = *cursor;
  while (c < end && *c == ' ') ++c;
  if (c >= end) return false;
  item->Start = c;
  int depth = 0;
  for (; c < end && (*c != ' ' || depth > 0); ++c) {
    if (*c == '(') ++depth;
    if (*c == ')' && depth > 0) --depth;
  }
  item->End = c;
  *cursor = c;
  return true;
}

// Numbers are read from a copy that ends where the span ends.
constexpr size_t kNumberSize = 64;

void vCopySpan(Span span, char* out) {
  size_t length = size_t(span.End - span.Start);
  if (length >= kNumberSize) length = kNumberSize - 1;
  std::memcpy(out, span.Start, length);
  out[length] = 0;
}

void vReadInteger(Span span, int32_t* value) {
  char text[kNumberSize];
  vCopySpan(span, text);
  char* end = nullptr;
  long number = std::strtol(text, &end, 10);
  if (end != text) *value = static_cast<int32_t>(number);
}

void vReadReal(Span span, double* value) {
  char text[kNumberSize];
  vCopySpan(span, text);
  char* end = nullptr;
  double number = std::strtod(text, &end);
  if (end != text && std::isfinite(number)) *value = number;
}

// The text inside the brackets of a value "WORD(...)"; empty without them.
Span Inside(Span value) {
  const char* open = static_cast<const char*>(std::memchr(value.Start, '(', value.End - value.Start));
  if (!open) return {value.End, value.End};
  const char* close = value.End;
  if (close > open + 1 && close[-1] == ')') --close;
  return {open + 1, close};
}

// The writer leaves out the lengths behind the last one that is not 0, so
// that those read as 0.
void vReadLineType(RmPresentation* pres, Span content) {
  const char* cursor = content.Start;
  Span item;
  if (!boNextItem(&cursor, content.End, &item)) return;
  vReadInteger(item, &pres->LineType);
  for (double& length : pres->LinePattern) length = 0.0;
  for (double& length : pres->LinePattern) {
    if (!boNextItem(&cursor, content.End, &item)) return;
    vReadReal(item, &length);
  }
}

void vReadLineSymbol(RmPresentation* pres, Span content) {
  const char* cursor = content.Start;
  Span item;
  if (!boNextItem(&cursor, content.End, &item)) return;
  vReadInteger(item, &pres->LineSymbol);
  for (double& value : pres->LineSymbolValues) {
    if (!boNextItem(&cursor, content.End, &item)) return;
    vReadReal(item, &value);
  }
}

// Splits an item at its first ':' into name and value.
void vSplit(Span item, Span* name, Span* value) {
  const char* colon = static_cast<const char*>(std::memchr(item.Start, ':', item.End - item.Start));
  *name = {item.Start, colon ? colon : item.End};
  *value = {colon ? colon + 1 : item.End, item.End};
}

// The writer leaves out a fill colour, GDP type and angle of 0, so that
// those read as 0 inside a hatch.
void vReadHatch(RmPresentation* pres, Span content) {
  pres->HatchFillColor = 0;
  pres->HatchGdpType = 0;
  pres->HatchAngle = 0.0;
  const char* cursor = content.Start;
  Span item;
  while (boNextItem(&cursor, content.End, &item)) {
    Span name;
    Span value;
    vSplit(item, &name, &value);
    if (boNameIs(name, kHatchFillColor)) {
      vReadInteger(value, &pres->HatchFillColor);
    } else if (boNameIs(name, kHatchType)) {
      vReadInteger(value, &pres->HatchType);
    } else if (boNameIs(name, kHatchGdpType)) {
      vReadInteger(value, &pres->HatchGdpType);
    } else if (boNameIs(name, kHatchAngle)) {
      vReadReal(value, &pres->HatchAngle);
    } else if (boNameIs(name, kHatchFactor)) {
      vReadReal(value, &pres->HatchFactor);
    }
  }
}

bool boNear(double a, double b, double tolerance) { return std::fabs(a - b) <= tolerance; }

}  // namespace

void vRmPresentationClear(RmPresentation* pres) {
  if (!pres) return;
  *pres = RmPresentation{};
  pres->Color = -1;
  pres->Material = -1;
  pres->Pen = -1;
  pres->LineType = 1;
  pres->HatchFillColor = -1;
  pres->HatchFactor = 1.0;
}

bool boRmPresentationIsSet(const RmPresentation* pres) { return pres && pres->Color >= 0; }

bool boRmPresentationsEqual(const RmPresentation* a, const RmPresentation* b, double tolerance) {
  if (a->Color != b->Color || a->Material != b->Material || a->Pen != b->Pen ||
      a->LineType != b->LineType || a->LineSymbol != b->LineSymbol ||
      a->HatchFillColor != b->HatchFillColor || a->HatchType != b->HatchType ||
      a->HatchGdpType != b->HatchGdpType) {
    return false;
  }
  for (int i = 0; i < 4; ++i) {
    if (!boNear(a->LinePattern[i], b->LinePattern[i], tolerance)) return false;
  }
  for (int i = 0; i < 3; ++i) {
    if (!boNear(a->LineSymbolValues[i], b->LineSymbolValues[i], tolerance)) return false;
  }
  return boNear(a->HatchAngle, b->HatchAngle, tolerance) &&
         boNear(a->HatchFactor, b->HatchFactor, tolerance);
}

const char* sRmPresentationFormat(const RmPresentation* pres, char* buffer, size_t size) {
  if (!buffer || size == 0) return buffer;
  buffer[0] = 0;
  if (!pres) return buffer;
  Output out{buffer, size};
  vAppend(&out, "%s:%d ", kColor, pres->Color);
  if (pres->Material >= 0) vAppend(&out, "%s:%d ", kMaterial, pres->Material);
  if (pres->Pen >= 0) vAppend(&out, "%s:%d ", kPen, pres->Pen);
  if (pres->LineType != 1) vWriteLineType(&out, pres);
  if (pres->LineSymbol != 0) {
    vAppend(&out, "%s:%s(%d %.3f %.3f %.3f) ", kLineSymbol, kLineSymbolValue, pres->LineSymbol,
            pres->LineSymbolValues[0], pres->LineSymbolValues[1], pres->LineSymbolValues[2]);
  }
  if (pres->HatchType >= 1 || pres->HatchFillColor >= 0) vWriteHatch(&out, pres);
  return buffer;
}

void vRmPresentationParse(RmPresentation* pres, const char* text) {
  if (!pres || !text) return;
  const char* cursor = text;
  const char* end = text + std::strlen(text);
  Span item;
  while (boNextItem(&cursor, end, &item)) {
    Span name;
    Span value;
    vSplit(item, &name, &value);
    if (boNameIs(name, kColor)) {
      vReadInteger(value, &pres->Color);
    } else if (boNameIs(name, kMaterial)) {
      vReadInteger(value, &pres->Material);
    } else if (boNameIs(name, kPen)) {
      vReadInteger(value, &pres->Pen);
    } else if (boNameIs(name, kLineType)) {
      vReadLineType(pres, Inside(value));
    } else if (boNameIs(name, kLineSymbol)) {
      vReadLineSymbol(pres, Inside(value));
    } else if (boNameIs(name, kHatch)) {
      vReadHatch(pres, Inside(value));
    }
  }
}
