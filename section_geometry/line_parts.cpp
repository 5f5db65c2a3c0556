#include "section_geometry/line_parts.h"

LiElm PartFirst(const LiLine* line) { return LiElmGetFirst(line); }

LiElm PartNext(const LiLine* line, LiElm part) {
  const LiElm end = LiElmGetPartEnd(line, part);
  return end == kLiNoElm ? kLiNoElm : LiElmGetNext(line, end);
}

LiElm PartLast(const LiLine* line) {
  LiElm last = kLiNoElm;
  for (LiElm part = PartFirst(line); part != kLiNoElm; part = PartNext(line, part)) last = part;
  return last;
}

int PartCount(const LiLine* line) {
  int count = 0;
  for (LiElm part = PartFirst(line); part != kLiNoElm; part = PartNext(line, part)) ++count;
  return count;
}

int PartElmCount(const LiLine* line, LiElm part) {
  const LiElm end = LiElmGetPartEnd(line, part);
  return end == kLiNoElm ? 0 : end - part + 1;
}

LiElm PartElmNext(const LiLine* line, LiElm part, LiElm elm) {
  const LiElm end = LiElmGetPartEnd(line, part);
  if (end == kLiNoElm || elm < part || elm > end) return kLiNoElm;
  return elm == end ? part : elm + 1;
}

LiElm PartElmPrev(const LiLine* line, LiElm part, LiElm elm) {
  const LiElm end = LiElmGetPartEnd(line, part);
  if (end == kLiNoElm || elm < part || elm > end) return kLiNoElm;
  return elm == part ? end : elm - 1;
}
