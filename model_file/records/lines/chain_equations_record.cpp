#include "model_file/records/lines/chain_equations_record.h"

#include <cstring>

#include "base/numbers.h"
#include "model_file/records/frame/record_line.h"
#include "road_model/lines/chain_equations.h"
#include "road_model/model/model.h"
#include "road_model/model/model_lines.h"

namespace {

constexpr const char* kGroupKeyword = ":CHAINEQUATIONS";
// The last DATAVERSION of the older form.
constexpr int kLastOldFormVersion = 12;

// The line's equations, made when it has none.
RmChainEquations* LineEquations(RmLine* line) {
  if (!line) return nullptr;
  if (!RmLineGetEquations(line)) vRmLineSetEquations(line, RmChainEquationsCreate());
  return RmLineGetEquations(line);
}

// The text is one token: it comes back whole only when it holds no blank
// (or stands in quotes).
void vReadRow(RecordLine* row, RmChainEquations* equations) {
  double back = dParseNumber(row->Token, nullptr);
  double ahead = dRecordNumber(row);
  RmChainEquationAdd(equations, ahead, back, sRecordToken(row));
}

}  // namespace

namespace {

bool boPresent(const RmModel* model, const RmRecordFamily&) {
  const RmLines* lines = RmModelGetLines(model);
  for (RmLine* line = RmLinesGetFirst(lines); line; line = RmLinesGetNext(lines, line)) {
    if (iRmChainEquationsGetCount(RmLineGetEquations(line)) > 0) return true;
  }
  return false;
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model,
            const RmRecordFamily&) {
  const RmLines* lines = RmModelGetLines(model);
  for (RmLine* line = RmLinesGetFirst(lines); line; line = RmLinesGetNext(lines, line)) {
    const RmChainEquations* equations = RmLineGetEquations(line);
    int count = iRmChainEquationsGetCount(equations);
    if (count == 0) continue;
    boRecordWrite(file, section, "%s %ld", kGroupKeyword, lRmLineGetId(line));
    for (int i = 0; i < count; ++i) {
      const RmChainEquation* equation = RmChainEquationAt(equations, i);
      boRecordWrite(file, section, " %.6f %.6f %s", equation->ChainBack, equation->ChainAhead,
                    sRmChainEquationGetText(equation));
    }
  }
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  RmLines* lines = RmModelGetOrCreateLines(model);
  bool oldForm = model->DataVersion <= kLastOldFormVersion;
  RmChainEquations* equations = nullptr;
  RecordLine row;
  while (boRecordNextLine(file, section, &row)) {
    if (oldForm) {
      // Every row belongs to the centre line, if the model has one.
      if (!boRecordIsRow(row.Text)) continue;
      if (!equations) equations = LineEquations(RmLinesGetCenterLine(lines));
    } else if (std::strcmp(row.Token, kGroupKeyword) == 0) {
      equations = LineEquations(RmLinesFindOrAddWithId(lines, iRecordInteger(&row), false));
      continue;
    } else if (!boRecordIsRow(row.Text)) {
      equations = nullptr;
      continue;
    }
    if (equations) vReadRow(&row, equations);
  }
}

}  // namespace

const RmRecordFamily kRmChainEquationsFamily = {
    .Keyword = "CHAINEQUATIONS",
    .Letter = 'O',
    .HasContent = boPresent,
    .Write = vWrite,
    .Read = vRead,
};
