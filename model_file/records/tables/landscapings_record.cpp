#include "model_file/records/tables/landscapings_record.h"

#include <cstring>

#include "base/numbers.h"
#include "model_file/records/frame/record_line.h"
#include "road_model/model/model_parts.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/tables/landscapings.h"

namespace {

constexpr const char* kSideKeywords[] = {nullptr, ":LEFTSIDE", ":RIGHTSIDE"};
constexpr const char* kLandscapingKeyword = ":LANDSCAPING";

RmLandscapings* StoredTable(const RmModel* model) {
  return RmSurfGenGet<kRmLandscapingsSlot>(RmModelGetSurfGen(model));
}

bool boHasContent(const RmModel* model, const RmRecordFamily&) {
  return boRmLandscapingsHasRows(StoredTable(model));
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model, const RmRecordFamily&) {
  const RmLandscapings* table = StoredTable(model);
  for (int side = 1; side <= 2; ++side) {
    const ListHead* list = RmLandscapingsGetSide(table, side);
    if (!RmLandscapingsGetFirst(list)) continue;
    boRecordWrite(file, section, "%s", kSideKeywords[side]);
    for (const RmLandscaping* item = RmLandscapingsGetFirst(list); item;
         item = RmLandscapingGetNext(item)) {
      boRecordWrite(file, section, "%s %.4f %d %d %.3f", kLandscapingKeyword, item->Chain,
                    item->Integers[0], item->Integers[1], item->Real);
      for (const RmLandscapingRow* row = RmLandscapingRowsGetFirst(item); row;
           row = RmLandscapingRowGetNext(row)) {
        boRecordWrite(file, section, " %.3f %.3f %.3f", row->Values[0], row->Values[1],
                      row->Values[2]);
      }
    }
  }
}

void vReadRow(RecordLine* line, RmLandscaping* item) {
  RmLandscapingRow* row = RmLandscapingRowAdd(item);
  if (!row) return;
  row->Values[0] = dParseNumber(line->Token, nullptr);
  row->Values[1] = dRecordNumber(line);
  row->Values[2] = dRecordNumber(line);
}

// The landscaping that a ":LANDSCAPING" line opens; null when its rows are
// to be skipped.
RmLandscaping* OpenLandscaping(RecordLine* line, ListHead* list) {
  double chain = dRecordNumber(line);
  RmLandscaping* item = RmLandscapingAdd(list, chain);
  if (!item) return nullptr;
  item->Integers[0] = iRecordInteger(line);
  item->Integers[1] = iRecordInteger(line);
  item->Real = dRecordNumber(line);
  return boIsPresent(chain) ? item : nullptr;
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  RmSurfGen* gen = RmModelGetSurfGen(model);
  if (!gen) return;
  RmLandscapings* table = RmLandscapingsCreate();
  if (!table) return;
  ListHead* list = nullptr;
  RmLandscaping* item = nullptr;
  RecordLine line;
  while (boRecordNextLine(file, section, &line)) {
    if (boRecordIsRow(line.Text)) {
      if (item) vReadRow(&line, item);
      continue;
    }
    item = nullptr;
    if (std::strcmp(line.Token, kSideKeywords[1]) == 0) {
      list = RmLandscapingsGetLeft(table);
    } else if (std::strcmp(line.Token, kSideKeywords[2]) == 0) {
      list = RmLandscapingsGetRight(table);
    } else if (list && std::strcmp(line.Token, kLandscapingKeyword) == 0) {
      item = OpenLandscaping(&line, list);
    }
  }
  vRmSurfGenSet<kRmLandscapingsSlot>(gen, table);
}

}  // namespace

const RmRecordFamily kRmLandscapingsFamily = {
    .Keyword = "LANDSCAPINGS",
    .Letter = 'O',
    .HasContent = boHasContent,
    .Write = vWrite,
    .Read = vRead,
};
