#include "model_file/records/lines/diff_altitudes_record.h"

#include <cstring>

#include "base/numbers.h"
#include "model_file/records/frame/record_line.h"
#include "road_model/lines/diff_altitudes.h"
#include "road_model/model/model.h"
#include "road_model/model/model_lines.h"
#include "road_model/lines/vertical_line.h"

namespace {

constexpr const char* kGroupKeyword = ":DIFFALTITUDES";
// The last DATAVERSION of the older form.
constexpr int kLastOldFormVersion = 2;

const RmDiffAltitudes* LineRows(const RmLine* line) {
  const RmVerLine* verLine = RmLineGetVerLine(line);
  return verLine && iRmDiffAltitudesGetCount(verLine->DiffAltitudes) > 0 ? verLine->DiffAltitudes
                                                                         : nullptr;
}

// A new, empty table on the line's vertical line, which is made when the
// line has none; the old table goes.
RmDiffAltitudes* NewTable(RmLines* lines, RmLine* line) {
  if (!line) return nullptr;
  RmVerLine* verLine = RmLineGetVerLine(line);
  if (!verLine) {
    verLine = RmVerLineCreate();
    vRmLineSetVerLine(lines, line, verLine);
  }
  if (!verLine) return nullptr;
  vRmVerLineSetDiffAltitudes(verLine, RmDiffAltitudesCreate());
  return verLine->DiffAltitudes;
}

void vReadRow(RecordLine* row, RmDiffAltitudes* table) {
  double from = dParseNumber(row->Token, nullptr);
  double to = dRecordNumber(row);
  double height = dRecordNumber(row);
  RmDiffAltitude* entry = RmDiffAltitudeAdd(table, from);
  vRmDiffAltitudeSetRange(entry, from, to);
  vRmDiffAltitudeSetHeight(entry, height);
}

}  // namespace

namespace {

bool boPresent(const RmModel* model, const RmRecordFamily&) {
  const RmLines* lines = RmModelGetLines(model);
  for (RmLine* line = RmLinesGetFirst(lines); line; line = RmLinesGetNext(lines, line)) {
    if (LineRows(line)) return true;
  }
  return false;
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model,
            const RmRecordFamily&) {
  const RmLines* lines = RmModelGetLines(model);
  for (RmLine* line = RmLinesGetFirst(lines); line; line = RmLinesGetNext(lines, line)) {
    const RmDiffAltitudes* table = LineRows(line);
    if (!table) continue;
    boRecordWrite(file, section, "%s %ld", kGroupKeyword, lRmLineGetId(line));
    for (const RmDiffAltitude* entry = RmDiffAltitudesGetFirst(table); entry;
         entry = entry->Next) {
      boRecordWrite(file, section, " %.4lf %.4lf %.3lf", entry->FromChain, entry->ToChain,
                    entry->Height);
    }
  }
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  RmLines* lines = RmModelGetOrCreateLines(model);
  bool oldForm = model->DataVersion <= kLastOldFormVersion;
  RmDiffAltitudes* table = nullptr;
  bool oldTableMade = false;
  RecordLine row;
  while (boRecordNextLine(file, section, &row)) {
    if (oldForm) {
      // The older form ends at the first line that is not a row.
      if (!boRecordIsRow(row.Text)) break;
      if (!oldTableMade) {
        table = NewTable(lines, RmLinesGetFirst(lines));
        oldTableMade = true;
      }
    } else if (std::strcmp(row.Token, kGroupKeyword) == 0) {
      table = NewTable(lines, RmLinesFindOrAddWithId(lines, iRecordInteger(&row), false));
      continue;
    } else if (!boRecordIsRow(row.Text)) {
      table = nullptr;
      continue;
    }
    if (table) vReadRow(&row, table);
  }
}

}  // namespace

const RmRecordFamily kRmDiffAltitudesFamily = {
    .Keyword = "DIFFALTITUDES",
    .Letter = 'O',
    .HasContent = boPresent,
    .Write = vWrite,
    .Read = vRead,
};
