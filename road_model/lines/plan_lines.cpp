#include "road_model/lines/plan_lines.h"

#include <cstdlib>

#include "base/text.h"
#include "road_model/lines/chain_equations.h"
#include "road_model/lines/line_fields.h"
#include "road_model/lines/vertical_line.h"

namespace {

// Bytes of line data per line, and the room made for field names at first.
constexpr int kLineDataSize = sizeof(RmLineData);
constexpr int kFieldCapacity = 4;

LiLines* Handle(const RmLines* lines) { return lines ? lines->Handle : nullptr; }

void vDeleteLineData(RmLine* line) {
  vRmLineDeleteVerLine(line);
  vRmLineDeleteEquations(line);
}

// Starts a new line's data block empty. The container promises zeroed user
// data, but it copies the block from a value whose padding it does not
// clear, so the model clears its own block.
RmLine* WithEmptyData(RmLine* line) {
  if (RmLineData* data = RmLineGetData(line)) *data = RmLineData{0.0, nullptr, nullptr};
  return line;
}

template <typename Matches>
RmLine* FindFirst(const RmLines* lines, Matches matches) {
  for (RmLine* line = RmLinesGetFirst(lines); line; line = RmLinesGetNext(lines, line)) {
    if (matches(line)) return line;
  }
  return nullptr;
}

}  // namespace

// ---- Life cycle ----

RmLines* RmLinesCreate() {
  auto* lines = static_cast<RmLines*>(std::calloc(1, sizeof(RmLines)));
  if (!lines) return nullptr;
  lines->Handle = LiLinesCreate(kLineDataSize, kFieldCapacity);
  return lines;
}

RmLines* RmLinesCreateDefault() {
  RmLines* lines = RmLinesCreate();
  RmLinesAddDefault(lines);
  return lines;
}

void vRmLinesDelete(RmLines** lines) {
  if (!lines || !*lines) return;
  vRmLinesClear(*lines);
  vLiLinesDelete(&(*lines)->Handle);
  std::free(*lines);
  *lines = nullptr;
}

void vRmLinesClear(RmLines* lines) {
  for (RmLine* line = RmLinesGetFirst(lines); line; line = RmLinesGetNext(lines, line)) {
    vDeleteLineData(line);
  }
  if (Handle(lines)) vLiLinesClear(lines->Handle);
}

void vRmLinesCopy(RmLines* to, const RmLines* from, RmModel* model) {
  if (!to || !from || to == from) return;
  vRmLinesClear(to);
  // The field table first, so that the copy keeps the order of the fields.
  for (int i = 0; i < iLiLinesGetFieldCount(from->Handle); ++i) {
    iLiLinesAddField(to->Handle, sLiLinesGetFieldName(from->Handle, i));
  }
  for (RmLine* source = RmLinesGetFirst(from); source; source = RmLinesGetNext(from, source)) {
    // Made at the end and given the source's id, so that the copy keeps the
    // order of the source also where it is not the order of the ids.
    RmLine* line = RmLinesAddBefore(to, nullptr, boLiLineIs3d(source));
    if (line && boLiLineSetID(line, lLiLineGetID(source))) {
      RmLineCopyInto(to, line, from, source);
    } else {
      vRmLinesRemove(to, line);
    }
  }
  to->Model = model;
}

RmLine* RmLineCopyInto(RmLines* toLines, RmLine* to, const RmLines* fromLines,
                       const RmLine* from) {
  if (!to || !from || to == from) return to;
  RmVerLine* verLine = nullptr;
  if (const RmVerLine* sourceVerLine = RmLineGetVerLine(from)) {
    verLine = RmVerLineCreate();
    vRmVerLineCopy(verLine, sourceVerLine);
  }
  vRmLineSetVerLine(toLines, to, verLine);
  RmChainEquations* equations = nullptr;
  if (const RmChainEquations* sourceEquations = RmLineGetEquations(from)) {
    equations = RmChainEquationsCreate();
    vRmChainEquationsCopy(equations, sourceEquations);
  }
  vRmLineSetEquations(to, equations);
  boLiLineCopy(to, from);
  vRmLineSetStartChain(to, dRmLineGetStartChain(from));
  LiLines* toHandle = Handle(toLines);
  vLiLineClearFields(to, iLiLinesGetFixedFieldCount(toHandle));
  const LiLines* fromHandle = Handle(fromLines);
  for (int i = 0; i < iLiLinesGetFieldCount(fromHandle); ++i) {
    const char* value = sLiLineGetField(from, i);
    if (value[0]) boLiLineSetFieldByName(to, sLiLinesGetFieldName(fromHandle, i), value);
  }
  return to;
}

// ---- Adding and removing lines ----

int iRmLinesNextId(const RmLines* lines) {
  long highest = 0;
  for (RmLine* line = RmLinesGetFirst(lines); line; line = RmLinesGetNext(lines, line)) {
    if (lLiLineGetID(line) > highest) highest = lLiLineGetID(line);
  }
  return highest >= 1 ? static_cast<int>(highest + 1) : 1;
}

RmLine* RmLinesAddWithId(RmLines* lines, long id, bool is3d) {
  if (!Handle(lines)) return nullptr;
  return WithEmptyData(is3d ? LiLinesCreate3dLine(lines->Handle, id)
                            : LiLinesCreate2dLine(lines->Handle, id));
}

RmLine* RmLinesFindOrAddWithId(RmLines* lines, long id, bool is3d) {
  RmLine* line = RmLinesFindById(lines, id);
  return line ? line : RmLinesAddWithId(lines, id, is3d);
}

RmLine* RmLinesAddBefore(RmLines* lines, RmLine* before, bool is3d) {
  if (!Handle(lines)) return nullptr;
  return WithEmptyData(is3d ? LiLinesCreate3dLineBefore(lines->Handle, before)
                            : LiLinesCreate2dLineBefore(lines->Handle, before));
}

RmLine* RmLinesAddDefault(RmLines* lines) {
  RmLine* line = RmLinesAddWithId(lines, iRmLinesNextId(lines), false);
  if (!line) return nullptr;
  vRmLineSetCenterLine(line, true);
  vRmLineSetName(line, kRmDefaultCenterLineName);
  return line;
}

void vRmLinesRemove(RmLines* lines, RmLine* line) {
  if (!Handle(lines) || !line) return;
  vDeleteLineData(line);
  vLiLinesDeleteLine(lines->Handle, line);
}

void vRmLinesRemoveById(RmLines* lines, long id) {
  vRmLinesRemove(lines, RmLinesFindById(lines, id));
}

void vRmLinesRemoveNonCenter(RmLines* lines) {
  RmLine* line = RmLinesGetFirst(lines);
  while (line) {
    RmLine* next = RmLinesGetNext(lines, line);
    if (!boRmLineIsCenterLine(line)) vRmLinesRemove(lines, line);
    line = next;
  }
}

// ---- Walking and looking up ----

int iRmLinesGetCount(const RmLines* lines) { return iLiLinesGetCount(Handle(lines)); }

RmLine* RmLinesGetFirst(const RmLines* lines) {
  return Handle(lines) ? LiLinesGetFirst(lines->Handle) : nullptr;
}

RmLine* RmLinesGetNext(const RmLines* lines, const RmLine* line) {
  return Handle(lines) && line ? LiLinesGetNext(lines->Handle, line) : nullptr;
}

long lRmLineGetId(const RmLine* line) { return lLiLineGetID(line); }

RmLine* RmLinesFindById(const RmLines* lines, long id) {
  return Handle(lines) ? LiLinesFindID(lines->Handle, id) : nullptr;
}

RmLine* RmLinesFindByName(const RmLines* lines, const char* name) {
  return FindFirst(lines, [name](const RmLine* line) {
    return iCompareNoCase(sRmLineGetName(line), name) == 0;
  });
}

RmLine* RmLinesFindByGuid(const RmLines* lines, const char* guid) {
  return FindFirst(lines, [guid](const RmLine* line) {
    return iCompareNoCase(sRmLineGetGuid(line), guid) == 0;
  });
}

RmLine* RmLinesFindByPcode(const RmLines* lines, int pcode) {
  return FindFirst(lines, [pcode](const RmLine* line) { return iRmLineGetPcode(line) == pcode; });
}

RmLine* RmLinesGetCenterLine(const RmLines* lines) {
  return FindFirst(lines, [](const RmLine* line) { return boRmLineIsCenterLine(line); });
}

// ---- Order and marks ----

void vRmLinesSortByPcode(RmLines* lines) {
  if (!Handle(lines)) return;
  bool moved = true;
  while (moved) {
    moved = false;
    RmLine* line = RmLinesGetFirst(lines);
    RmLine* next = RmLinesGetNext(lines, line);
    while (next) {
      if (iRmLineGetPcode(next) < iRmLineGetPcode(line)) {
        boLiLinesMoveLine(lines->Handle, next, line);
        moved = true;
      } else {
        line = next;
      }
      next = RmLinesGetNext(lines, line);
    }
  }
}

void vRmLinesMarkLimitations(RmLines* lines) {
  for (RmLine* line = RmLinesGetFirst(lines); line; line = RmLinesGetNext(lines, line)) {
    if (!boRmLineIsCenterLine(line)) vRmLineSetLimitation(line);
  }
}

// ---- Line data ----

RmLineData* RmLineGetData(const RmLine* line) {
  return static_cast<RmLineData*>(pLiLineGetUserData(const_cast<RmLine*>(line)));
}

double dRmLineGetStartChain(const RmLine* line) {
  const RmLineData* data = RmLineGetData(line);
  return data ? data->StartChain : 0.0;
}

void vRmLineSetStartChain(RmLine* line, double chain) {
  if (RmLineData* data = RmLineGetData(line)) data->StartChain = chain;
}

RmVerLine* RmLineGetVerLine(const RmLine* line) {
  const RmLineData* data = RmLineGetData(line);
  return data ? data->VerLine : nullptr;
}

void vRmLineSetVerLine(RmLines* lines, RmLine* line, RmVerLine* verLine) {
  RmLineData* data = RmLineGetData(line);
  if (!data) return;
  if (data->VerLine != verLine) vRmVerLineDelete(&data->VerLine);
  data->VerLine = verLine;
  if (verLine) verLine->Lines = lines;
}

void vRmLineDeleteVerLine(RmLine* line) {
  if (RmLineData* data = RmLineGetData(line)) vRmVerLineDelete(&data->VerLine);
}

RmChainEquations* RmLineGetEquations(const RmLine* line) {
  const RmLineData* data = RmLineGetData(line);
  return data ? data->ChainEquations : nullptr;
}

void vRmLineSetEquations(RmLine* line, RmChainEquations* equations) {
  RmLineData* data = RmLineGetData(line);
  if (!data) return;
  if (data->ChainEquations != equations) vRmChainEquationsDelete(&data->ChainEquations);
  data->ChainEquations = equations;
}

void vRmLineDeleteEquations(RmLine* line) {
  if (RmLineData* data = RmLineGetData(line)) vRmChainEquationsDelete(&data->ChainEquations);
}
