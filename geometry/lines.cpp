#include "geometry/lines.h"

#include <algorithm>
#include <cstring>

namespace {

bool boOwns(const LiLines* lines, const LiLine* line) {
  return lines != nullptr && line != nullptr && line->pOwner == lines;
}

void vRenumberFrom(LiLines* lines, size_t first) {
  for (size_t i = first; i < lines->lines.size(); ++i)
    lines->lines[i]->iIndex = static_cast<int>(i);
}

LiLine* MakeLine(LiLines* lines, long id, bool bo3d, size_t position) {
  LiLine* line = LiLineCreate(bo3d);
  line->lId = id;
  line->pOwner = lines;
  line->boPolygon = lines->boPolygons;
  const size_t blocks = (static_cast<size_t>(lines->iUserDataSize) + sizeof(std::max_align_t) - 1) /
                        sizeof(std::max_align_t);
  // max_align_t{} leaves its padding undefined; the user data must be zero.
  line->userData.resize(blocks);
  if (blocks) {
    std::memset(static_cast<void*>(line->userData.data()), 0, blocks * sizeof(std::max_align_t));
  }
  lines->lines.insert(lines->lines.begin() + static_cast<std::ptrdiff_t>(position), line);
  vRenumberFrom(lines, position);
  return line;
}

LiLine* CreateWithId(LiLines* lines, long id, bool bo3d) {
  if (lines == nullptr || LiLinesFindID(lines, id) != nullptr) return nullptr;
  size_t position = 0;
  while (position < lines->lines.size() && lines->lines[position]->lId <= id) ++position;
  return MakeLine(lines, id, bo3d, position);
}

LiLine* CreateBefore(LiLines* lines, LiLine* before, bool bo3d) {
  if (lines == nullptr) return nullptr;
  const size_t position =
      boOwns(lines, before) ? static_cast<size_t>(before->iIndex) : lines->lines.size();
  return MakeLine(lines, lLiLinesGetNextId(lines), bo3d, position);
}

}  // namespace

LiLines* LiLinesCreate(int userDataSize, int fieldCapacity) {
  LiLines* lines = new LiLines;
  lines->iUserDataSize = std::max(0, userDataSize);
  lines->fieldNames.reserve(static_cast<size_t>(std::max(0, fieldCapacity)));
  return lines;
}

void vLiLinesDelete(LiLines** lines) {
  if (lines == nullptr || *lines == nullptr) return;
  vLiLinesClear(*lines);
  delete *lines;
  *lines = nullptr;
}

void vLiLinesClear(LiLines* lines) {
  if (lines == nullptr) return;
  for (LiLine* line : lines->lines) delete line;
  lines->lines.clear();
}

int iLiLinesGetCount(const LiLines* lines) {
  return lines != nullptr ? static_cast<int>(lines->lines.size()) : 0;
}

LiLine* LiLinesGetFirst(const LiLines* lines) {
  return lines != nullptr && !lines->lines.empty() ? lines->lines.front() : nullptr;
}

LiLine* LiLinesGetLast(const LiLines* lines) {
  return lines != nullptr && !lines->lines.empty() ? lines->lines.back() : nullptr;
}

LiLine* LiLinesGetNext(const LiLines* lines, const LiLine* line) {
  if (!boOwns(lines, line)) return nullptr;
  const size_t next = static_cast<size_t>(line->iIndex) + 1;
  return next < lines->lines.size() ? lines->lines[next] : nullptr;
}

LiLine* LiLinesGetPrev(const LiLines* lines, const LiLine* line) {
  if (!boOwns(lines, line) || line->iIndex == 0) return nullptr;
  return lines->lines[static_cast<size_t>(line->iIndex) - 1];
}

LiLine* LiLinesFindID(const LiLines* lines, long id) {
  if (lines == nullptr) return nullptr;
  for (LiLine* line : lines->lines) {
    if (line->lId == id) return line;
  }
  return nullptr;
}

long lLiLinesGetNextId(const LiLines* lines) {
  long highest = 0;
  if (lines != nullptr) {
    for (const LiLine* line : lines->lines) highest = std::max(highest, line->lId);
  }
  return highest + 1;
}

LiLine* LiLinesCreate2dLine(LiLines* lines, long id) { return CreateWithId(lines, id, false); }

LiLine* LiLinesCreate3dLine(LiLines* lines, long id) { return CreateWithId(lines, id, true); }

LiLine* LiLinesCreate2dLineBefore(LiLines* lines, LiLine* before) {
  return CreateBefore(lines, before, false);
}

LiLine* LiLinesCreate3dLineBefore(LiLines* lines, LiLine* before) {
  return CreateBefore(lines, before, true);
}

bool boLiLineSetID(LiLine* line, long id) {
  if (line == nullptr) return false;
  if (line->pOwner != nullptr) {
    const LiLine* holder = LiLinesFindID(line->pOwner, id);
    if (holder != nullptr && holder != line) return false;
  }
  line->lId = id;
  return true;
}

void vLiLinesDeleteLine(LiLines* lines, LiLine* line) {
  if (!boOwns(lines, line)) return;
  const size_t position = static_cast<size_t>(line->iIndex);
  lines->lines.erase(lines->lines.begin() + static_cast<std::ptrdiff_t>(position));
  vRenumberFrom(lines, position);
  delete line;
}

bool boLiLinesMoveLine(LiLines* lines, LiLine* line, LiLine* before) {
  if (!boOwns(lines, line) || line == before) return false;
  if (before != nullptr && !boOwns(lines, before)) return false;
  lines->lines.erase(lines->lines.begin() + line->iIndex);
  vRenumberFrom(lines, static_cast<size_t>(line->iIndex));
  const size_t position =
      before != nullptr ? static_cast<size_t>(before->iIndex) : lines->lines.size();
  lines->lines.insert(lines->lines.begin() + static_cast<std::ptrdiff_t>(position), line);
  vRenumberFrom(lines, 0);
  return true;
}

long lLiLinesGetMemPoolGarbage(const LiLines* lines) {
  if (lines == nullptr) return 0;
  size_t garbage = 0;
  for (const LiLine* line : lines->lines) {
    garbage += (line->elements.capacity() - line->elements.size()) * sizeof(LiElement);
    garbage += line->uDeadTextBytes;
  }
  return static_cast<long>(garbage);
}

// ---- User data -----------------------------------------------------------------

void* pLiLineGetUserData(LiLine* line) {
  if (line == nullptr || line->userData.empty()) return nullptr;
  return line->userData.data();
}

// ---- Fields ---------------------------------------------------------------------

int iLiLinesGetFieldCount(const LiLines* lines) {
  return lines != nullptr ? static_cast<int>(lines->fieldNames.size()) : 0;
}

int iLiLinesGetFixedFieldCount(const LiLines*) { return 0; }

const char* sLiLinesGetFieldName(const LiLines* lines, int index) {
  if (lines == nullptr || index < 0 || index >= iLiLinesGetFieldCount(lines)) return nullptr;
  return lines->fieldNames[static_cast<size_t>(index)].c_str();
}

int iLiLinesFindField(const LiLines* lines, const char* name) {
  if (lines == nullptr || name == nullptr) return -1;
  for (size_t i = 0; i < lines->fieldNames.size(); ++i) {
    if (lines->fieldNames[i] == name) return static_cast<int>(i);
  }
  return -1;
}

int iLiLinesAddField(LiLines* lines, const char* name) {
  if (lines == nullptr || name == nullptr || name[0] == '\0') return -1;
  const int existing = iLiLinesFindField(lines, name);
  if (existing >= 0) return existing;
  lines->fieldNames.emplace_back(name);
  return static_cast<int>(lines->fieldNames.size() - 1);
}

const char* sLiLineGetField(const LiLine* line, int index) {
  if (line == nullptr || index < 0 || static_cast<size_t>(index) >= line->fieldValues.size())
    return "";
  return line->fieldValues[static_cast<size_t>(index)].c_str();
}

bool boLiLineSetField(LiLine* line, int index, const char* value) {
  if (line == nullptr || line->pOwner == nullptr || index < 0 ||
      index >= iLiLinesGetFieldCount(line->pOwner)) {
    return false;
  }
  if (line->fieldValues.size() <= static_cast<size_t>(index)) {
    line->fieldValues.resize(static_cast<size_t>(index) + 1);
  }
  line->fieldValues[static_cast<size_t>(index)] = value != nullptr ? value : "";
  return true;
}

const char* sLiLineGetFieldByName(const LiLine* line, const char* name) {
  if (line == nullptr) return "";
  return sLiLineGetField(line, iLiLinesFindField(line->pOwner, name));
}

bool boLiLineSetFieldByName(LiLine* line, const char* name, const char* value) {
  if (line == nullptr) return false;
  return boLiLineSetField(line, iLiLinesAddField(line->pOwner, name), value);
}

void vLiLineClearFields(LiLine* line, int first) {
  if (line == nullptr) return;
  for (size_t i = static_cast<size_t>(std::max(0, first)); i < line->fieldValues.size(); ++i) {
    line->fieldValues[i].clear();
  }
}
