#include "geometry/line.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "geometry/lines.h"

namespace {

bool boValid(const LiLine* line, LiElm elm) {
  return line != nullptr && elm >= 0 && static_cast<size_t>(elm) < line->elements.size();
}

size_t uTextLength(const LiLine& line, const LiElement& element) {
  return element.uText == 0 ? 0 : strlen(line.texts.c_str() + element.uText - 1);
}

// Drops the bytes of replaced and deleted texts.
void vCompactTexts(LiLine* line) {
  if (line->uDeadTextBytes == 0) return;
  std::string live;
  live.reserve(line->texts.size() - line->uDeadTextBytes);
  for (LiElement& element : line->elements) {
    if (element.uText == 0) continue;
    const char* text = line->texts.c_str() + element.uText - 1;
    element.uText = static_cast<uint32_t>(live.size() + 1);
    live.append(text);
    live.push_back('\0');
  }
  line->texts.swap(live);
  line->uDeadTextBytes = 0;
}

void vForgetText(LiLine* line, LiElement* element) {
  if (element->uText == 0) return;
  line->uDeadTextBytes += uTextLength(*line, *element) + 1;
  element->uText = 0;
  if (line->uDeadTextBytes > 4096 && line->uDeadTextBytes > line->texts.size() / 2) {
    vCompactTexts(line);
  }
}

LiElement MakeElement(double x, double y, double z, int type) {
  LiElement element{};
  element.x = x;
  element.y = y;
  element.z = z;
  element.uType = static_cast<uint8_t>(type);
  return element;
}

// The element behind `elm`, whose point ends the piece of `elm`.
const LiElement* pNext(const LiLine* line, LiElm elm) {
  return static_cast<size_t>(elm) + 1 < line->elements.size()
             ? &line->elements[static_cast<size_t>(elm) + 1]
             : nullptr;
}

// Gives the element a type that needs no data, dropping that of a curve.
void vSetPlainType(LiElement* element, int type) {
  element->uType = static_cast<uint8_t>(type);
  element->uFlags = 0;
  element->dParam[0] = element->dParam[1] = element->dParam[2] = 0.0;
}

}  // namespace

// ---- Lifetime --------------------------------------------------------------

LiLine* LiLineCreate(bool bo3d) {
  LiLine* line = new LiLine;
  line->bo3d = bo3d;
  return line;
}

LiLine* LiLineCreateCopy(const LiLine* from) {
  if (from == nullptr) return nullptr;
  LiLine* line = LiLineCreate(from->bo3d);
  boLiLineCopy(line, from);
  return line;
}

void vLiLineDelete(LiLine** line) {
  if (line == nullptr || *line == nullptr) return;
  if ((*line)->pOwner != nullptr) {
    vLiLinesDeleteLine((*line)->pOwner, *line);
  } else {
    delete *line;
  }
  *line = nullptr;
}

bool boLiLineCopy(LiLine* to, const LiLine* from) {
  if (to == nullptr || from == nullptr) return false;
  if (to == from) return true;
  to->bo3d = from->bo3d;
  to->boPolygon = from->boPolygon;
  to->boHasHeight = from->boHasHeight;
  to->dHeight = from->dHeight;
  memcpy(to->sGuid, from->sGuid, sizeof(to->sGuid));
  to->elements = from->elements;
  to->texts = from->texts;
  to->uDeadTextBytes = from->uDeadTextBytes;
  vCompactTexts(to);
  return true;
}

// ---- Properties ------------------------------------------------------------

long lLiLineGetID(const LiLine* line) { return line != nullptr ? line->lId : 0; }

bool boLiLineIs3d(const LiLine* line) { return line != nullptr && line->bo3d; }

void vLiLineSet3d(LiLine* line, bool bo3d) {
  if (line != nullptr) line->bo3d = bo3d;
}

bool boLiLineIsPolygon(const LiLine* line) { return line != nullptr && line->boPolygon; }

void vLiLineSetPolygon(LiLine* line, bool boPolygon) {
  if (line != nullptr) line->boPolygon = boPolygon;
}

void vLiLineSetHeight(LiLine* line, double height) {
  if (line == nullptr) return;
  line->boHasHeight = true;
  line->dHeight = height;
  if (line->bo3d) {
    for (LiElement& element : line->elements) element.z = height;
  }
}

bool boLiLineHasHeight(const LiLine* line) { return line != nullptr && line->boHasHeight; }

double dLiLineGetHeight(const LiLine* line) {
  return line != nullptr && line->boHasHeight ? line->dHeight : 0.0;
}

const char* sLiLineGetGuid(const LiLine* line) { return line != nullptr ? line->sGuid : ""; }

void vLiLineSetGuid(LiLine* line, const char* guid) {
  if (line != nullptr) vViCopyGuid(line->sGuid, guid);
}

// ---- Adding and removing points ---------------------------------------------

LiElm LiLineAddP(LiLine* line, double x, double y, double z) {
  if (line == nullptr) return kLiNoElm;
  line->elements.push_back(MakeElement(x, y, z, kLiElmStraight));
  return static_cast<LiElm>(line->elements.size() - 1);
}

LiElm LiLineAddP2d(LiLine* line, double x, double y) {
  return LiLineAddP(line, x, y, line != nullptr ? line->dHeight : 0.0);
}

LiElm LiLineAddPoints2d(LiLine* line, const ViPoint2d* points, size_t count) {
  if (line == nullptr || points == nullptr || count == 0) return kLiNoElm;
  const size_t first = line->elements.size();
  // Room grows at least twice over, so that many small bulk adds stay linear.
  if (line->elements.capacity() < first + count) {
    line->elements.reserve(std::max(first + count, 2 * line->elements.capacity()));
  }
  for (size_t i = 0; i < count; ++i) {
    line->elements.push_back(MakeElement(points[i].x, points[i].y, line->dHeight, kLiElmStraight));
  }
  line->pieces.reset();
  return static_cast<LiElm>(first);
}

LiElm LiLineAddPInvisible(LiLine* line, double x, double y, double z) {
  if (line == nullptr) return kLiNoElm;
  if (!line->elements.empty()) vSetPlainType(&line->elements.back(), kLiElmInvisible);
  return LiLineAddP(line, x, y, z);
}

LiElm LiLineAddArc2PTo(LiLine* line, double x, double y, double radius, bool large) {
  const LiElm elm = LiLineAddP2d(line, x, y);
  if (elm > 0 && radius != 0.0) boLiElmSet2pArc(line, elm - 1, radius, large);
  return elm;
}

void vLiLineDeleteElm(LiLine* line, LiElm elm) {
  if (!boValid(line, elm)) return;
  vForgetText(line, &line->elements[static_cast<size_t>(elm)]);
  line->elements.erase(line->elements.begin() + elm);
}

void vLiLineDeleteElms(LiLine* line) {
  if (line == nullptr) return;
  line->elements.clear();
  line->texts.clear();
  line->uDeadTextBytes = 0;
}

// ---- Walking the elements ---------------------------------------------------

int iLiLineGetElmCount(const LiLine* line) {
  return line != nullptr ? static_cast<int>(line->elements.size()) : 0;
}

LiElm LiElmGetFirst(const LiLine* line) {
  return line != nullptr && !line->elements.empty() ? 0 : kLiNoElm;
}

LiElm LiElmGetLast(const LiLine* line) {
  return line != nullptr && !line->elements.empty() ? static_cast<LiElm>(line->elements.size() - 1)
                                                    : kLiNoElm;
}

LiElm LiElmGetNext(const LiLine* line, LiElm elm) {
  return boValid(line, elm + 1) && elm >= 0 ? elm + 1 : kLiNoElm;
}

LiElm LiElmGetPrev(const LiLine* line, LiElm elm) {
  return boValid(line, elm) && elm > 0 ? elm - 1 : kLiNoElm;
}

bool boLiElmIsPartStart(const LiLine* line, LiElm elm) {
  return boValid(line, elm) &&
         (elm == 0 || line->elements[static_cast<size_t>(elm) - 1].uType == kLiElmInvisible);
}

LiElm LiElmGetPartEnd(const LiLine* line, LiElm part) {
  if (!boValid(line, part)) return kLiNoElm;
  LiElm end = part;
  while (boValid(line, end + 1) &&
         line->elements[static_cast<size_t>(end)].uType != kLiElmInvisible) {
    ++end;
  }
  return end;
}

// ---- Element content ---------------------------------------------------------

int LiElmGetType(const LiLine* line, LiElm elm) {
  return boValid(line, elm) ? line->elements[static_cast<size_t>(elm)].uType : 0;
}

bool boLiElmSetType(LiLine* line, LiElm elm, int type) {
  if (!boValid(line, elm) || type < 0 || type > 255) return false;
  LiElement& element = line->elements[static_cast<size_t>(elm)];
  if (type == kLiElmArc2p || type == kLiElmArc3p || type == kLiElmClothoid) {
    return element.uType == type;
  }
  vSetPlainType(&element, type);
  return true;
}

bool boLiElmSet2pArc(LiLine* line, LiElm elm, double radius, bool large) {
  if (!boValid(line, elm) || pNext(line, elm) == nullptr) return false;
  LiElement& element = line->elements[static_cast<size_t>(elm)];
  const LiElement& next = *pNext(line, elm);
  GrArc arc;
  if (!boGrArcFrom2Points(element.x, element.y, next.x, next.y, radius, large, &arc)) {
    return false;
  }
  element.uType = kLiElmArc2p;
  element.uFlags = large ? kLiElmFlagLarge : 0;
  element.dParam[0] = radius;
  element.dParam[1] = element.dParam[2] = 0.0;
  return true;
}

bool boLiElmSet3pArc(LiLine* line, LiElm elm, double xMiddle, double yMiddle, double zMiddle) {
  if (!boValid(line, elm) || pNext(line, elm) == nullptr) return false;
  LiElement& element = line->elements[static_cast<size_t>(elm)];
  const LiElement& next = *pNext(line, elm);
  GrArc arc;
  if (!boGrArcFrom3Points(element.x, element.y, xMiddle, yMiddle, next.x, next.y, &arc)) {
    return false;
  }
  element.uType = kLiElmArc3p;
  element.uFlags = 0;
  element.dParam[0] = xMiddle;
  element.dParam[1] = yMiddle;
  element.dParam[2] = zMiddle;
  return true;
}

bool boLiElmSetClotoide(LiLine* line, LiElm elm, double startRadius, double endRadius, double a) {
  if (!boValid(line, elm) || pNext(line, elm) == nullptr) return false;
  LiElement& element = line->elements[static_cast<size_t>(elm)];
  const LiElement& next = *pNext(line, elm);
  VgClothoid clothoid;
  if (!boVgClothoidFit(element.x, element.y, next.x, next.y, startRadius, endRadius, a,
                       &clothoid)) {
    return false;
  }
  element.uType = kLiElmClothoid;
  element.uFlags = 0;
  element.dParam[0] = startRadius;
  element.dParam[1] = endRadius;
  element.dParam[2] = a;
  return true;
}

void vLiElmGetP2d(const LiLine* line, LiElm elm, ViPoint2d* point) {
  if (!boValid(line, elm)) {
    *point = {0.0, 0.0};
    return;
  }
  const LiElement& element = line->elements[static_cast<size_t>(elm)];
  *point = {element.x, element.y};
}

void vLiElmGetP3d(const LiLine* line, LiElm elm, ViPoint3d* point) {
  if (!boValid(line, elm)) {
    *point = {0.0, 0.0, 0.0};
    return;
  }
  const LiElement& element = line->elements[static_cast<size_t>(elm)];
  *point = {element.x, element.y, line->bo3d ? element.z : dLiLineGetHeight(line)};
}

double dLiElmGetRadius(const LiLine* line, LiElm elm) {
  return LiElmGetType(line, elm) == kLiElmArc2p ? line->elements[static_cast<size_t>(elm)].dParam[0]
                                                : 0.0;
}

bool boLiElmIsLarge(const LiLine* line, LiElm elm) {
  return LiElmGetType(line, elm) == kLiElmArc2p &&
         (line->elements[static_cast<size_t>(elm)].uFlags & kLiElmFlagLarge) != 0;
}

void vLiElmGetArcMiddle(const LiLine* line, LiElm elm, ViPoint3d* middle) {
  if (LiElmGetType(line, elm) != kLiElmArc3p) {
    *middle = {0.0, 0.0, 0.0};
    return;
  }
  const LiElement& element = line->elements[static_cast<size_t>(elm)];
  *middle = {element.dParam[0], element.dParam[1], element.dParam[2]};
}

void vLiElmGetClotoide(const LiLine* line, LiElm elm, double* startRadius, double* endRadius,
                       double* a) {
  const bool clothoid = LiElmGetType(line, elm) == kLiElmClothoid;
  const LiElement* element = clothoid ? &line->elements[static_cast<size_t>(elm)] : nullptr;
  *startRadius = clothoid ? element->dParam[0] : 0.0;
  *endRadius = clothoid ? element->dParam[1] : 0.0;
  *a = clothoid ? element->dParam[2] : 0.0;
}

int32_t iLiElmGetData(const LiLine* line, LiElm elm, int slot) {
  if (!boValid(line, elm) || slot < 0 || slot >= kLiElmDataSlots) return 0;
  return line->elements[static_cast<size_t>(elm)].iData[slot];
}

void vLiElmSetData(LiLine* line, LiElm elm, int slot, int32_t value) {
  if (!boValid(line, elm) || slot < 0 || slot >= kLiElmDataSlots) return;
  line->elements[static_cast<size_t>(elm)].iData[slot] = value;
}

const char* sLiElmGetText(const LiLine* line, LiElm elm) {
  if (!boValid(line, elm)) return "";
  const LiElement& element = line->elements[static_cast<size_t>(elm)];
  return element.uText == 0 ? "" : line->texts.c_str() + element.uText - 1;
}

void vLiElmSetText(LiLine* line, LiElm elm, const char* text) {
  if (!boValid(line, elm)) return;
  // A text taken from this line's own store is copied before the store moves.
  std::string own;
  if (text != nullptr && text >= line->texts.data() &&
      text < line->texts.data() + line->texts.size()) {
    own.assign(text, strnlen(text, kLiElmTextMax));
    text = own.c_str();
  }
  LiElement& element = line->elements[static_cast<size_t>(elm)];
  vForgetText(line, &element);
  if (text == nullptr || text[0] == '\0') return;
  const size_t length = strnlen(text, kLiElmTextMax);
  if (line->texts.size() + length + 1 >= UINT32_MAX) return;
  element.uText = static_cast<uint32_t>(line->texts.size() + 1);
  line->texts.append(text, length);
  line->texts.push_back('\0');
}
