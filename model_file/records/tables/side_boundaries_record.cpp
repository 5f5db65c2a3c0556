#include "model_file/records/tables/side_boundaries_record.h"

#include <cstring>

#include "base/numbers.h"
#include "model_file/records/frame/record_line.h"
#include "road_model/codes/pcode.h"
#include "road_model/model/model_parts.h"
#include "road_model/tables/side_boundaries.h"

namespace {

constexpr const char* kLeftKeyword = ":LEFTSIDE";
constexpr const char* kRightKeyword = ":RIGHTSIDE";

// The file's 0 of a code or an alignment is no value.
int32_t iCodeOrAbsent(RecordLine* line) {
  int32_t value = iRecordInteger(line, kNullInteger);
  return value == 0 ? kNullInteger : value;
}

bool boPresent(const RmModel* model, const RmRecordFamily&) {
  return boRmSideBoundariesHasRows(RmModelGetSideBoundaries(model));
}

void vWriteSide(AsfFile* file, AsfSection* section, const char* keyword,
                const RmSideBoundaryList* list) {
  if (!RmSideBoundariesGetFirst(list)) return;
  boRecordWrite(file, section, "%s", keyword);
  for (const RmSideBoundary* row = RmSideBoundariesGetFirst(list); row; row = row->Next) {
    boRecordWrite(file, section, " %.3f %d %.3f %d", row->Chain, row->Code, row->Distance,
                  row->LineId);
  }
}

void vReadRow(RecordLine* line, RmSideBoundaryList* list) {
  vRecordLineStart(line, line->Text);
  RmSideBoundary* row = RmSideBoundaryAdd(list, dRecordNumber(line));
  if (!row) return;
  row->Code = iCodeOrAbsent(line);
  row->Distance = dRecordNumber(line);
  row->LineId = iCodeOrAbsent(line);
}

}  // namespace

void vRmSideBoundariesWrite(AsfFile* file, AsfSection* section,
                            const RmSideBoundaries* boundaries) {
  vWriteSide(file, section, kLeftKeyword, RmSideBoundariesGetSide(boundaries, kRmSideLeft));
  vWriteSide(file, section, kRightKeyword, RmSideBoundariesGetSide(boundaries, kRmSideRight));
}

RmSideBoundaries* RmSideBoundariesRead(AsfFile* file, AsfSection* section) {
  RmSideBoundaries* boundaries = RmSideBoundariesCreate();
  if (!boundaries) return nullptr;
  RmSideBoundaryList* side = nullptr;
  for (RecordLine line; boRecordNextLine(file, section, &line);) {
    if (boRecordIsRow(line.Text)) {
      if (side) vReadRow(&line, side);
    } else if (std::strcmp(line.Token, kLeftKeyword) == 0) {
      side = RmSideBoundariesGetLeft(boundaries);
    } else if (std::strcmp(line.Token, kRightKeyword) == 0) {
      side = RmSideBoundariesGetRight(boundaries);
    } else {
      side = nullptr;
    }
  }
  return boundaries;
}

namespace {

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model, const RmRecordFamily&) {
  vRmSideBoundariesWrite(file, section, RmModelGetSideBoundaries(model));
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  RmSideBoundaries* boundaries = RmSideBoundariesRead(file, section);
  if (boundaries) vRmModelSetSideBoundaries(model, boundaries);
}

}  // namespace

const RmRecordFamily kRmSideBoundariesFamily = {
    .Keyword = "SIDEBOUNDARIES",
    .Letter = 'O',
    .HasContent = boPresent,
    .Write = vWrite,
    .Read = vRead,
};
