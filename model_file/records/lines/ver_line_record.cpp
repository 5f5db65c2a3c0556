#include "model_file/records/lines/ver_line_record.h"

#include <cstring>

#include "base/numbers.h"
#include "model_file/records/frame/record_line.h"
#include "road_model/lines/line_fields.h"
#include "road_model/lines/vertical_curves.h"
#include "road_model/model/model.h"
#include "road_model/model/model_lines.h"
#include "road_model/lines/vertical_line.h"

namespace {

constexpr const char* kGroupKeyword = ":VERLINE";
// The last DATAVERSION of the older form.
constexpr int kLastOldFormVersion = 2;
constexpr const char* kParabolaWord = "P";
constexpr const char* kFlagWord = "LS";
// The line of the older form, named when it has to be added.
constexpr long kOldLineId = 1;
constexpr const char* kOldLineName = "CL";

void vWritePoint(AsfFile* file, AsfSection* section, const RmVerPoint* point) {
  const char* flag = (point->Flags & kRmVerPointFlagLs) ? kFlagWord : nullptr;
  if (point->CurveType == kRmCurveParabola) {
    if (flag) {
      boRecordWrite(file, section, " %.4lf %.4lf %.3lf P %.1f %s", point->Chain, point->Height,
                    point->Radius, point->Length, flag);
    } else {
      boRecordWrite(file, section, " %.4lf %.4lf %.3lf P %.1f", point->Chain, point->Height,
                    point->Radius, point->Length);
    }
  } else if (flag) {
    boRecordWrite(file, section, " %.4lf %.4lf %.3lf %s", point->Chain, point->Height,
                  point->Radius, flag);
  } else {
    boRecordWrite(file, section, " %.4lf %.4lf %.3lf", point->Chain, point->Height,
                  point->Radius);
  }
}

// A row: chainage (the keyword token), height, radius, then "P" and the
// length, then "LS"; other words are passed over.
void vReadPoint(RecordLine* row, RmVerLine* verLine) {
  double chain = dParseNumber(row->Token, nullptr);
  double height = dRecordNumber(row);
  double radius = dRecordNumber(row);
  RmVerPoint* point = RmVerPointAdd(verLine, chain, height, radius, 0.0);
  if (!point) return;
  const char* word = sRecordToken(row);
  if (std::strcmp(word, kParabolaWord) == 0) {
    point->CurveType = kRmCurveParabola;
    point->Length = dRecordNumber(row);
    word = sRecordToken(row);
  }
  if (std::strcmp(word, kFlagWord) == 0) point->Flags |= kRmVerPointFlagLs;
}

// A new vertical line on `line`, in place of the one it had.
RmVerLine* NewVerLine(RmLines* lines, RmLine* line) {
  if (!line) return nullptr;
  RmVerLine* verLine = RmVerLineCreate();
  vRmLineSetVerLine(lines, line, verLine);
  return verLine;
}

RmLine* OldFormLine(RmLines* lines) {
  RmLine* line = RmLinesFindById(lines, kOldLineId);
  if (line) return line;
  line = RmLinesAddWithId(lines, kOldLineId, false);
  vRmLineSetName(line, kOldLineName);
  return line;
}

void vFinish(RmVerLine** verLine) {
  if (*verLine) iRmVerLineCompute(*verLine);
  *verLine = nullptr;
}

}  // namespace

bool boRmLinesHaveVerLines(const RmLines* lines) {
  for (RmLine* line = RmLinesGetFirst(lines); line; line = RmLinesGetNext(lines, line)) {
    if (RmLineGetVerLine(line)) return true;
  }
  return false;
}

void vRmVerLinesWriteRecords(AsfFile* file, AsfSection* section, const RmLines* lines) {
  for (RmLine* line = RmLinesGetFirst(lines); line; line = RmLinesGetNext(lines, line)) {
    const RmVerLine* verLine = RmLineGetVerLine(line);
    if (!verLine) continue;
    boRecordWrite(file, section, "%s %ld", kGroupKeyword, lRmLineGetId(line));
    for (const RmVerPoint* point = RmVerLineGetFirst(verLine); point; point = point->Next) {
      vWritePoint(file, section, point);
    }
  }
}

void vRmVerLinesReadRecords(AsfFile* file, AsfSection* section, RmLines* lines, int dataVersion) {
  if (!lines) return;
  bool oldForm = dataVersion <= kLastOldFormVersion;
  RmVerLine* verLine = nullptr;
  bool oldLineMade = false;
  RecordLine row;
  while (boRecordNextLine(file, section, &row)) {
    if (!oldForm && std::strcmp(row.Token, kGroupKeyword) == 0) {
      vFinish(&verLine);
      verLine = NewVerLine(lines, RmLinesFindOrAddWithId(lines, iRecordInteger(&row), false));
      continue;
    }
    if (!boRecordIsRow(row.Text)) {
      vFinish(&verLine);
      continue;
    }
    if (oldForm && !oldLineMade) {
      verLine = NewVerLine(lines, OldFormLine(lines));
      oldLineMade = true;
    }
    if (verLine) vReadPoint(&row, verLine);
  }
  vFinish(&verLine);
}

namespace {

bool boPresent(const RmModel* model, const RmRecordFamily&) {
  return boRmLinesHaveVerLines(RmModelGetLines(model));
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model,
            const RmRecordFamily&) {
  vRmVerLinesWriteRecords(file, section, RmModelGetLines(model));
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  vRmVerLinesReadRecords(file, section, RmModelGetOrCreateLines(model), model->DataVersion);
}

}  // namespace

const RmRecordFamily kRmVerLinesFamily = {
    .Keyword = "VERLINE",
    .Letter = 'O',
    .HasContent = boPresent,
    .Write = vWrite,
    .Read = vRead,
};
