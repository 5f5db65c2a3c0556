#include "model_file/container/asf_element_block.h"

#include <cstdio>
#include <cstring>

#include "base/numbers.h"
#include "model_file/container/asf_record_input.h"
#include "model_file/container/asf_record_numbers.h"

namespace {

// An element line, with its terminator, fits in 128 bytes.
constexpr size_t kElementLineSize = 128;
// The caller's extra data of an element is held to this many bytes.
constexpr size_t kElmDataMax = 1000;

// ---- Writing ----

// The text of an element line being put together, cut at its end.
struct ElementLine {
  char* pStart;
  char* pEnd;
};

size_t uRoom(const ElementLine& text) {
  return kElementLineSize - 1 - static_cast<size_t>(text.pEnd - text.pStart);
}

void vAppend(ElementLine* text, const char* bytes, size_t length) {
  if (length > uRoom(*text)) length = uRoom(*text);
  memcpy(text->pEnd, bytes, length);
  text->pEnd += length;
}

void vAppendText(ElementLine* text, const char* bytes) {
  vAppend(text, bytes, strnlen(bytes, kElementLineSize));
}

// The point's coordinates: each below 24 bytes, so that three fit at the
// start of a line.
void vAppendPoint(ElementLine* text, double x, double y, double z, bool bo3d) {
  text->pEnd = pAsfPrintNumber(text->pEnd, x, 6);
  *text->pEnd++ = ' ';
  text->pEnd = pAsfPrintNumber(text->pEnd, y, 6);
  if (!bo3d) return;
  *text->pEnd++ = ' ';
  text->pEnd = pAsfPrintNumber(text->pEnd, z, 6);
}

void vAppendRadius(ElementLine* text, double radius) {
  char number[64];
  snprintf(number, sizeof number, "%.6lf", radius);
  vAppendText(text, " a2p ");
  vAppendText(text, sTrimZeros(number));
}

void vAppendClothoid(ElementLine* text, const LiLine* line, LiElm elm) {
  double startRadius = 0.0;
  double endRadius = 0.0;
  double a = 0.0;
  vLiElmGetClotoide(line, elm, &startRadius, &endRadius, &a);
  int length = snprintf(text->pEnd, uRoom(*text) + 1, " clot %.6lf %.6lf %.6lf", startRadius,
                        endRadius, a);
  if (length > 0) {
    text->pEnd += static_cast<size_t>(length) < uRoom(*text) ? static_cast<size_t>(length)
                                                             : uRoom(*text);
  }
}

void vAppendElmData(ElementLine* text, const LiLine* line, LiElm elm,
                    AsfElmDataCallback callback, void* datum) {
  const char* data = nullptr;
  if (!callback || !callback(datum, line, elm, &data) || !data) return;
  vAppendText(text, " elmdata (");
  vAppend(text, data, strnlen(data, kElmDataMax));
  vAppendText(text, ")");
}

ElementLine BeginElementLine(AsfRecordOutput* output) {
  char* start = pAsfOutputLineBegin(output);
  return ElementLine{start, start};
}

void vWriteDimensionLine(AsfRecordOutput* output, const LiLine* line) {
  if (boLiLineIs3d(line)) {
    vAsfOutputText(output, "/XYZ");
  } else if (boLiLineHasHeight(line)) {
    vAsfOutputFormat(output, "/XYH %.3lf", dLiLineGetHeight(line));
  } else {
    vAsfOutputText(output, "/XY");
  }
}

void vWriteElement(AsfRecordOutput* output, const LiLine* line, LiElm elm,
                   AsfElmDataCallback callback, void* datum) {
  int type = LiElmGetType(line, elm);
  if (type == 3) return;
  ElementLine text = BeginElementLine(output);
  bool bo3d = boLiLineIs3d(line);
  ViPoint3d point;
  vLiElmGetP3d(line, elm, &point);
  switch (type) {
    case kLiElmStraight:
    case kLiElmStraightAlt:
      vAppendPoint(&text, point.x, point.y, point.z, bo3d);
      break;
    case kLiElmArc2p:
      vAppendPoint(&text, point.x, point.y, point.z, bo3d);
      vAppendRadius(&text, dLiElmGetRadius(line, elm));
      if (boLiElmIsLarge(line, elm)) vAppendText(&text, " 1");
      break;
    case kLiElmArc3p: {
      vAppendPoint(&text, point.x, point.y, point.z, bo3d);
      vAppendText(&text, " a3p");
      vAsfOutputLineEnd(output, text.pEnd);
      ViPoint3d middle;
      vLiElmGetArcMiddle(line, elm, &middle);
      text = BeginElementLine(output);
      vAppendPoint(&text, middle.x, middle.y, middle.z, bo3d);
      break;
    }
    case kLiElmClothoid:
      vAppendPoint(&text, point.x, point.y, point.z, bo3d);
      vAppendClothoid(&text, line, elm);
      break;
    case kLiElmInvisible:
      vAppendPoint(&text, point.x, point.y, point.z, bo3d);
      vAppendText(&text, " invis");
      break;
    default:
      vAppendText(&text, "!?");
      vAsfOutputLineEnd(output, text.pEnd);
      return;
  }
  vAppendElmData(&text, line, elm, callback, datum);
  vAsfOutputLineEnd(output, text.pEnd);
}

// ---- Reading ----

// What the words behind a point make of its element, the piece that starts
// there: applied when the point that ends the piece has been added. An arc by
// three points waits for two point lines, its middle point and then its end.
struct PendingElement {
  int iType;  // 0: nothing pending
  LiElm elm;
  double adParam[3];  // arc by three points: the middle point, once read
  bool boLarge;
  bool boHasMiddle;
};

void vApply(LiLine* line, PendingElement* pending) {
  switch (pending->iType) {
    case kLiElmArc3p:
      if (pending->boHasMiddle) {
        boLiElmSet3pArc(line, pending->elm, pending->adParam[0], pending->adParam[1],
                        pending->adParam[2]);
      }
      break;
    case kLiElmArc2p:
      boLiElmSet2pArc(line, pending->elm, pending->adParam[0], pending->boLarge);
      break;
    case kLiElmClothoid:
      // A clothoid that no road could have is refused by the geometry
      // library, and the element stays straight.
      boLiElmSetClotoide(line, pending->elm, pending->adParam[0], pending->adParam[1],
                         pending->adParam[2]);
      break;
    case kLiElmInvisible:
      boLiElmSetType(line, pending->elm, kLiElmInvisible);
      break;
    default:
      break;
  }
  pending->iType = 0;
}

const char* pSkipBlanks(const char* text) {
  while (*text == ' ' || *text == '\t') ++text;
  return text;
}

const char* pWordEnd(const char* text) {
  while (*text && *text != ' ' && *text != '\t') ++text;
  return text;
}

bool boWordIs(const char* word, size_t length, const char* name) {
  return strlen(name) == length && memcmp(word, name, length) == 0;
}

// `elmdata (text`: the callback takes the text behind the "(" and may say
// where it ends; else reading goes on at the next blank.
const char* pReadElmData(AsfFile* file, LiLine* line, LiElm elm, const char* cursor) {
  cursor = pSkipBlanks(cursor);
  if (*cursor != '(') return cursor;
  const char* text = cursor + 1;
  const char* end = nullptr;
  if (file->pfnElmRead) file->pfnElmRead(file->pReadDatum, line, elm, text, &end);
  if (end && end >= text && end <= text + strlen(text)) return end;
  return pWordEnd(text);
}

void vReadWords(AsfFile* file, LiLine* line, LiElm current, const char* cursor,
                PendingElement* pending) {
  for (;;) {
    const char* word = pSkipBlanks(cursor);
    if (!*word) return;
    cursor = pWordEnd(word);
    size_t length = static_cast<size_t>(cursor - word);
    if (boWordIs(word, length, "a2p")) {
      *pending = PendingElement{kLiElmArc2p, current, {0.0, 0.0, 0.0}, false, false};
      boAsfScanNumber(&cursor, &pending->adParam[0]);
      const char* flag = pSkipBlanks(cursor);
      if (flag[0] == '1' && (flag[1] == 0 || flag[1] == ' ' || flag[1] == '\t')) {
        pending->boLarge = true;
        cursor = flag + 1;
      }
    } else if (boWordIs(word, length, "a3p")) {
      *pending = PendingElement{kLiElmArc3p, current, {0.0, 0.0, 0.0}, false, false};
    } else if (boWordIs(word, length, "clot")) {
      *pending = PendingElement{kLiElmClothoid, current, {0.0, 0.0, 0.0}, false, false};
      for (double& param : pending->adParam) boAsfScanNumber(&cursor, &param);
    } else if (boWordIs(word, length, "invis")) {
      *pending = PendingElement{kLiElmInvisible, current, {0.0, 0.0, 0.0}, false, false};
    } else if (boWordIs(word, length, "elmdata")) {
      cursor = pReadElmData(file, line, current, cursor);
    }
  }
}

}  // namespace

void vAsfElementBlockWrite(AsfRecordOutput* output, const LiLine* line,
                           AsfElmDataCallback callback, void* datum) {
  vWriteDimensionLine(output, line);
  for (LiElm elm = LiElmGetFirst(line); elm != kLiNoElm; elm = LiElmGetNext(line, elm)) {
    vWriteElement(output, line, elm, callback, datum);
  }
}

void vAsfElementBlockRead(AsfFile* file, LiLine* line) {
  if (file->boFixedHeight) vLiLineSetHeight(line, file->dFixedHeight);
  double flatHeight = file->boFixedHeight ? file->dFixedHeight : 0.0;
  PendingElement pending{};
  while (const char* text = sAsfRecordLine(file)) {
    if (boAsfEndsRecord(text)) {
      vAsfRecordHold(file);
      break;
    }
    if (!boAsfIsPointLine(text)) continue;
    double point[3] = {0.0, 0.0, flatHeight};
    const char* cursor = text;
    boAsfScanNumber(&cursor, &point[0]);
    boAsfScanNumber(&cursor, &point[1]);
    if (file->bo3D) boAsfScanNumber(&cursor, &point[2]);
    LiElm current;
    if (pending.iType == kLiElmArc3p && !pending.boHasMiddle) {
      // The middle point of the arc that starts at the pending element; what
      // stands behind it belongs to that element too.
      for (int i = 0; i < 3; ++i) pending.adParam[i] = point[i];
      pending.boHasMiddle = true;
      current = pending.elm;
    } else {
      current = LiLineAddP(line, point[0], point[1], point[2]);
      vApply(line, &pending);
    }
    vReadWords(file, line, current, cursor, &pending);
  }
  // An arc by three points without its end keeps its middle as a point; an
  // invisible move on the last point stays one.
  if (pending.iType == kLiElmArc3p && pending.boHasMiddle) {
    LiLineAddP(line, pending.adParam[0], pending.adParam[1], pending.adParam[2]);
  } else {
    vApply(line, &pending);
  }
}
