#include "road_model/chain_data/chain_data.h"

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <numbers>

#include "base/text.h"

namespace {

constexpr char kKeys[] = " SEDMZwsedmzCc";
constexpr int kKeyCount = sizeof kKeys - 1;

// Below this turn (in radians, a little under half a circle) the mitre is
// the tangent of half the turn; sharper turns move back by the distance.
constexpr double kMitreLimit = 3.1315926535897933;

int32_t iRowSize(int fieldCount) {
  return static_cast<int32_t>(sizeof(RmChainDataRow)) + fieldCount * kRmChainFieldSize;
}

char* pFields(RmChainDataRow* row) { return reinterpret_cast<char*>(row + 1); }
const char* pFields(const RmChainDataRow* row) { return reinterpret_cast<const char*>(row + 1); }

bool boFieldInRange(const RmChainDataLine* line, int index) {
  return index >= 0 && (!line || index < line->FieldCount);
}

void vClearLines(RmChainData* data) {
  for (auto* line = ListFirst<RmChainDataLine>(&data->Lines); line; line = line->Next) {
    vDLinkClear(&line->Rows);
  }
  vDLinkClear(&data->Lines);
}

double dDirection(const RmChainDataRow* from, const RmChainDataRow* to) {
  return std::atan2(to->Y - from->Y, to->X - from->X);
}

// `angle` brought into -pi..pi.
double dNormalised(double angle) {
  while (angle > std::numbers::pi) angle -= 2 * std::numbers::pi;
  while (angle < -std::numbers::pi) angle += 2 * std::numbers::pi;
  return angle;
}

}  // namespace

int iRmChainKeyIndex(char c) {
  for (int i = 0; i < kKeyCount; ++i) {
    if (kKeys[i] == c) return i;
  }
  return 0;
}

char cRmChainKeyChar(int index) { return index >= 0 && index < kKeyCount ? kKeys[index] : ' '; }

RmChainData* RmChainDataCreate() {
  auto* data = static_cast<RmChainData*>(std::calloc(1, sizeof(RmChainData)));
  if (!data) return nullptr;
  DLinkInit(&data->Lines, sizeof(RmChainDataLine), nullptr);
  data->MaxClDeviation = 0.05;
  return data;
}

void vRmChainDataDelete(RmChainData** data) {
  if (!data || !*data) return;
  vClearLines(*data);
  std::free(*data);
  *data = nullptr;
}

void vRmChainDataCopy(RmChainData* to, const RmChainData* from) {
  if (!to || !from || to == from) return;
  vClearLines(to);
  to->Exact3dMode = from->Exact3dMode;
  to->CorridorWidth = from->CorridorWidth;
  to->MaxClDeviation = from->MaxClDeviation;
  to->ExpandStart = from->ExpandStart;
  to->ExpandEnd = from->ExpandEnd;
  for (auto* line = ListFirst<RmChainDataLine>(&from->Lines); line; line = line->Next) {
    RmChainDataLine* copy = RmChainDataLineAdd(to, nullptr, line->Type, line->FieldCount);
    if (!copy) return;
    copy->InfoType = line->InfoType;
    DLinkCopy(&line->Rows, &copy->Rows, nullptr);
  }
}

RmChainDataLine* RmChainDataLineAdd(RmChainData* data, RmChainDataLine* before, int type,
                                    int fieldCount) {
  if (!data) return nullptr;
  auto* line = DLinkNewObjAs<RmChainDataLine>(&data->Lines, before);
  if (!line) return nullptr;
  line->Type = type;
  line->FieldCount = fieldCount > 0 ? fieldCount : 0;
  DLinkInit(&line->Rows, iRowSize(line->FieldCount), nullptr);
  return line;
}

void vRmChainDataLineRemove(RmChainData* data, RmChainDataLine* line) {
  if (!data || !line) return;
  vDLinkClear(&line->Rows);
  vDLinkDeleteObj(&data->Lines, line);
}

RmChainDataLine* RmChainDataLineFind(const RmChainData* data, int type) {
  if (!data) return nullptr;
  auto* line = ListFirst<RmChainDataLine>(&data->Lines);
  while (line && line->Type != type) line = line->Next;
  return line;
}

RmChainDataLine* RmChainDataLineFindWithInfo(const RmChainData* data) {
  if (!data) return nullptr;
  auto* line = ListFirst<RmChainDataLine>(&data->Lines);
  while (line && line->InfoType == 0) line = line->Next;
  return line;
}

int iRmChainDataLineGetInfoType(const RmChainDataLine* line) { return line ? line->InfoType : 0; }

void vRmChainDataLineSetInfoType(RmChainDataLine* line, int infoType) {
  if (line) line->InfoType = infoType;
}

RmChainDataRow* RmChainDataRowAdd(RmChainDataLine* line) {
  return line ? DLinkNewObjAs<RmChainDataRow>(&line->Rows) : nullptr;
}

const char* sRmChainDataRowGetField(const RmChainDataLine* line, const RmChainDataRow* row,
                                    int index) {
  if (!row || !boFieldInRange(line, index)) return "";
  return pFields(row) + static_cast<size_t>(index) * kRmChainFieldSize;
}

double dRmChainDataRowGetFieldValue(const RmChainDataLine* line, const RmChainDataRow* row,
                                    int index) {
  if (!row || !boFieldInRange(line, index)) return 0.0;
  return std::atof(sRmChainDataRowGetField(line, row, index));
}

void vRmChainDataRowSetField(const RmChainDataLine* line, RmChainDataRow* row, int index,
                             const char* text) {
  if (!row || !boFieldInRange(line, index)) return;
  sCopy(pFields(row) + static_cast<size_t>(index) * kRmChainFieldSize, sOrEmpty(text),
        kRmChainFieldSize);
}

double dRmChainDataRowGetOffsX(const RmChainData* data, const RmChainDataRow* row) {
  if (!row || (data && data->Exact3dMode)) return 0.0;
  return row->OffsLeft;
}

void vRmChainDataRowSetOffsX(const RmChainData* data, RmChainDataRow* row, double value) {
  if (row && !(data && data->Exact3dMode)) row->OffsLeft = static_cast<float>(value);
}

double dRmChainDataRowGetOffsY(const RmChainData* data, const RmChainDataRow* row) {
  if (!row || (data && data->Exact3dMode)) return 0.0;
  return row->OffsRight;
}

void vRmChainDataRowSetOffsY(const RmChainData* data, RmChainDataRow* row, double value) {
  if (row && !(data && data->Exact3dMode)) row->OffsRight = static_cast<float>(value);
}

double dRmChainDataRowPlanX(const RmChainData* data, const RmChainDataRow* row) {
  return row ? row->X + dRmChainDataRowGetOffsX(data, row) : 0.0;
}

double dRmChainDataRowPlanY(const RmChainData* data, const RmChainDataRow* row) {
  return row ? row->Y + dRmChainDataRowGetOffsY(data, row) : 0.0;
}

void vRmChainDataRowPoint(const RmChainData* data, const RmChainDataRow* row, double xyz[3]) {
  xyz[0] = dRmChainDataRowPlanX(data, row);
  xyz[1] = dRmChainDataRowPlanY(data, row);
  xyz[2] = row ? row->Z : 0.0;
}

bool boRmChainDataRowIsVisible(const RmChainDataRow* row) { return row && row->Code[0] != '#'; }

RmChainDataRow* RmChainDataRowNextVisible(const RmChainDataRow* row) {
  RmChainDataRow* next = row ? row->Next : nullptr;
  while (next && !boRmChainDataRowIsVisible(next)) next = next->Next;
  return next;
}

RmChainDataRow* RmChainDataRowPrevVisible(const RmChainDataRow* row) {
  RmChainDataRow* prev = row ? row->Prev : nullptr;
  while (prev && !boRmChainDataRowIsVisible(prev)) prev = prev->Prev;
  return prev;
}

void vRmChainDataRowOffsetVector(double* dx, double* dy, const RmChainDataRow* row, double dist) {
  *dx = 0.0;
  *dy = 0.0;
  if (!boRmChainDataRowIsVisible(row)) return;
  const RmChainDataRow* next = RmChainDataRowNextVisible(row);
  const RmChainDataRow* prev = RmChainDataRowPrevVisible(row);
  constexpr double kQuarter = std::numbers::pi / 2;
  if (!prev && !next) return;
  if (!prev || !next) {
    double side = (prev ? dDirection(prev, row) : dDirection(row, next)) - kQuarter;
    *dx = dist * std::cos(side);
    *dy = dist * std::sin(side);
    return;
  }
  double d1 = dDirection(prev, row);
  double d2 = dDirection(row, next);
  *dx = -dist * std::cos(d1 + kQuarter);
  *dy = -dist * std::sin(d1 + kQuarter);
  double turn = dNormalised(d1 - d2);
  double along = std::fabs(turn) < kMitreLimit ? std::tan(turn / 2) * -dist : -dist;
  *dx += along * std::cos(d1);
  *dy += along * std::sin(d1);
}
