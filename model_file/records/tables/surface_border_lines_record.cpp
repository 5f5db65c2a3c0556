#include "model_file/records/tables/surface_border_lines_record.h"

#include <cstring>

#include "base/numbers.h"
#include "model_file/records/frame/record_line.h"
#include "road_model/model/model_parts.h"
#include "road_model/tables/surface_border_lines.h"

namespace {

constexpr const char* kEndKeyword = ":GROUPEND";

bool boPresent(const RmModel* model, const RmRecordFamily&) {
  return boRmSurfaceBorderLinesHasRows(RmModelGetSurfaceBorderLines(model));
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model, const RmRecordFamily&) {
  vRmSurfaceBorderLinesWrite(file, section, RmModelGetSurfaceBorderLines(model));
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  RmSurfaceBorderLines* lines = RmSurfaceBorderLinesRead(file, section);
  if (lines) vRmModelSetSurfaceBorderLines(model, lines);
}

}  // namespace

void vRmSurfaceBorderLinesWrite(AsfFile* file, AsfSection* section,
                                const RmSurfaceBorderLines* lines) {
  for (const RmSurfaceBorderLine* row = RmSurfaceBorderLinesGetFirst(lines); row;
       row = row->Next) {
    vRmSurfaceBorderLineRowWrite(file, section, row);
  }
}

RmSurfaceBorderLines* RmSurfaceBorderLinesRead(AsfFile* file, AsfSection* section) {
  RmSurfaceBorderLines* lines = RmSurfaceBorderLinesCreate();
  if (!lines) return nullptr;
  for (RecordLine line; boRecordNextLine(file, section, &line);) {
    if (boRecordIsRow(line.Text)) {
      vRmSurfaceBorderLineRowRead(&line, lines);
    } else if (std::strcmp(line.Token, kEndKeyword) == 0) {
      break;
    }
  }
  return lines;
}

void vRmSurfaceBorderLineRowWrite(AsfFile* file, AsfSection* section,
                                  const RmSurfaceBorderLine* row) {
  if (!row) return;
  boRecordWrite(file, section, " %d %.4f %.4f %d %d %d", row->Surface, row->Range.Low,
                row->Range.High, row->Method, row->LineId, row->FreeSurface);
}

void vRmSurfaceBorderLineRowRead(RecordLine* line, RmSurfaceBorderLines* table) {
  if (!line || !table) return;
  vRecordLineStart(line, line->Text);
  int32_t surface = iRecordInteger(line);
  double from = dRecordNumber(line);
  RmSurfaceBorderLine* row = RmSurfaceBorderLineAdd(table, surface, from);
  if (!row) return;
  row->Range.High = dRecordNumber(line);
  row->Method = iRecordInteger(line);
  row->LineId = iRecordInteger(line, kNullInteger);
  if (row->LineId == 0) row->LineId = kNullInteger;
  row->FreeSurface = iRecordInteger(line, kNullInteger);
}

const RmRecordFamily kRmSurfaceBorderLinesFamily = {
    .Keyword = "SURFACEBORDERLINES",
    .Letter = 'O',
    .HasContent = boPresent,
    .Write = vWrite,
    .Read = vRead,
};
