#include "model_file/records/tables/chain_range_records.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

#include "base/numbers.h"
#include "model_file/records/frame/record_line.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"
#include "road_model/tables/chain_range_table.h"

namespace {

constexpr const char* kSideKeywords[] = {nullptr, ":LEFTSIDE", ":RIGHTSIDE"};

// A line under construction: the values of one record, printed one by one.
struct LineText {
  LineText() { Text[0] = '\0'; }
  char Text[kRecordLineSize];
  size_t Length = 0;
};

void vAppendText(LineText* line, const char* text) {
  size_t length = std::strlen(text);
  size_t room = sizeof line->Text - 1 - line->Length;
  if (length > room) length = room;
  std::memcpy(line->Text + line->Length, text, length);
  line->Length += length;
  line->Text[line->Length] = '\0';
}

void vAppendValue(LineText* line, const char* format, RmChainFieldType type, double value) {
  char* at = line->Text + line->Length;
  size_t room = sizeof line->Text - line->Length;
  int written = type == RmChainFieldType::kInteger
                    ? std::snprintf(at, room, format, static_cast<int>(value))
                    : std::snprintf(at, room, format, value);
  if (written > 0) line->Length += std::min(static_cast<size_t>(written), room - 1);
}

// "KEYWORD value", for a value that is given.
void vWriteKeywordLine(AsfFile* file, AsfSection* section, const RmChainRangeRecordField& line,
                       RmChainFieldType type, double value) {
  if (!boIsPresent(value)) return;
  LineText text;
  vAppendText(&text, line.Keyword);
  vAppendText(&text, " ");
  vAppendValue(&text, line.Format, type, value);
  boRecordWrite(file, section, "%s", text.Text);
}

// A row of numbers, or in keyword form the line that opens the row and a
// line for each field that is given.
void vWriteRow(const RmChainRangeRecord& record, AsfFile* file, AsfSection* section,
               const RmChainRangeRow* row) {
  LineText text;
  int written = std::snprintf(text.Text, sizeof text.Text, record.RangeFormat, row->Range.Low,
                              row->Range.High);
  if (written > 0) text.Length = std::min(static_cast<size_t>(written), sizeof text.Text - 1);
  if (record.RowKeyword) {
    boRecordWrite(file, section, "%s", text.Text);
    for (const RmChainRangeRecordField& entry : record.Fields) {
      const RmChainRangeField& field = record.Kind->Fields[entry.Field];
      vWriteKeywordLine(file, section, entry, field.Type, dRmChainRangeRowGetField(row, field));
    }
    return;
  }
  for (const RmChainRangeRecordField& entry : record.Fields) {
    const RmChainRangeField& field = record.Kind->Fields[entry.Field];
    vAppendText(&text, " ");
    vAppendValue(&text, entry.Format, field.Type, dRmChainRangeRowGetField(row, field));
  }
  boRecordWrite(file, section, "%s", text.Text);
}

void vWriteRows(const RmChainRangeRecord& record, AsfFile* file, AsfSection* section,
                const RmChainRangeList* list) {
  for (const RmChainRangeRow* row = RmChainRangeGetFirst(list); row;
       row = RmChainRangeGetNext(row)) {
    vWriteRow(record, file, section, row);
  }
}

RmChainRangeTable* StoredTable(const RmChainRangeRecord& record, const RmModel* model) {
  return static_cast<RmChainRangeTable*>(pRmSurfGenGetTable(RmModelGetSurfGen(model), record.Slot));
}

// The value of a field read from the rest of the line.
double dReadValue(RecordLine* line, RmChainFieldType type, double defaultValue) {
  if (type == RmChainFieldType::kInteger) {
    return iRecordInteger(line, static_cast<int>(defaultValue));
  }
  return dRecordNumber(line, defaultValue);
}

const RmChainRangeRecordField* FindKeyword(std::span<const RmChainRangeRecordField> lines,
                                           const char* keyword) {
  for (const RmChainRangeRecordField& line : lines) {
    if (line.Keyword && std::strcmp(line.Keyword, keyword) == 0) return &line;
  }
  return nullptr;
}

// A row of numbers: the range, then the fields of the record in order.
void vReadNumberRow(const RmChainRangeRecord& record, RecordLine* line, RmChainRangeList* list) {
  double from = dParseNumber(line->Token, nullptr);
  double to = dRecordNumber(line);
  RmChainRangeRow* row = RmChainRangeAdd(list, from);
  if (!row) return;
  vRmChainRangeSetRange(row, from, to);
  for (const RmChainRangeRecordField& entry : record.Fields) {
    const RmChainRangeField& field = record.Kind->Fields[entry.Field];
    vRmChainRangeRowSetField(row, field, dReadValue(line, field.Type, entry.ReadDefault));
  }
}

// The line that opens a row in keyword form; its fields stand at their
// defaults until their own lines come.
RmChainRangeRow* OpenKeywordRow(const RmChainRangeRecord& record, RecordLine* line,
                                RmChainRangeList* list) {
  double from = dRecordNumber(line);
  double to = dRecordNumber(line);
  RmChainRangeRow* row = RmChainRangeAdd(list, from);
  if (!row) return nullptr;
  vRmChainRangeSetRange(row, from, to);
  for (const RmChainRangeRecordField& entry : record.Fields) {
    vRmChainRangeRowSetField(row, record.Kind->Fields[entry.Field], entry.ReadDefault);
  }
  return row;
}

void vReadLines(const RmChainRangeRecord& record, AsfFile* file, AsfSection* section,
                RmChainRangeTable* table) {
  bool sided = record.Kind->Sides == 2;
  RmChainRangeList* list = sided ? nullptr : RmChainRangeTableGetRows(table);
  RmChainRangeRow* keywordRow = nullptr;
  RecordLine line;
  while (boRecordNextLine(file, section, &line)) {
    if (boRecordIsRow(line.Text)) {
      if (list && !record.RowKeyword) vReadNumberRow(record, &line, list);
      continue;
    }
    if (sided && std::strcmp(line.Token, kSideKeywords[1]) == 0) {
      list = RmChainRangeTableGetLeft(table);
    } else if (sided && std::strcmp(line.Token, kSideKeywords[2]) == 0) {
      list = RmChainRangeTableGetRight(table);
    } else if (record.RowKeyword && std::strcmp(line.Token, record.RowKeyword) == 0) {
      keywordRow = list ? OpenKeywordRow(record, &line, list) : nullptr;
    } else if (const RmChainRangeRecordField* entry = FindKeyword(record.TableLines, line.Token)) {
      vRmChainRangeTableSetValue(table, entry->Field, dRecordNumber(&line));
    } else if (const RmChainRangeRecordField* entry = FindKeyword(record.Fields, line.Token)) {
      // A field line with no row open before it has nowhere to go.
      if (!keywordRow) continue;
      const RmChainRangeField& field = record.Kind->Fields[entry->Field];
      vRmChainRangeRowSetField(keywordRow, field, dReadValue(&line, field.Type, 0.0));
    }
  }
}

void vReadOldLines(const RmChainRangeRecord& record, AsfFile* file, AsfSection* section,
                   RmChainRangeTable* table) {
  RecordLine line;
  while (boRecordNextLine(file, section, &line)) {
    if (boRecordIsRow(line.Text)) record.ReadOldRow(&line, table);
  }
}

}  // namespace

bool boRmChainRangeRecordHasContent(const RmChainRangeRecord& record, const RmModel* model) {
  return boRmChainRangeTableHasRows(StoredTable(record, model));
}

void vRmChainRangeRecordWrite(const RmChainRangeRecord& record, AsfFile* file, AsfSection* section,
                              const RmModel* model) {
  const RmChainRangeTable* table = StoredTable(record, model);
  if (!table) return;
  for (const RmChainRangeRecordField& line : record.TableLines) {
    vWriteKeywordLine(file, section, line, RmChainFieldType::kReal,
                      dRmChainRangeTableGetValue(table, line.Field));
  }
  if (record.Kind->Sides != 2) {
    vWriteRows(record, file, section, RmChainRangeTableGetRows(table));
    return;
  }
  for (int side = 1; side <= 2; ++side) {
    const RmChainRangeList* list = RmChainRangeTableGetSide(table, side);
    if (!RmChainRangeGetFirst(list)) continue;
    boRecordWrite(file, section, "%s", kSideKeywords[side]);
    vWriteRows(record, file, section, list);
  }
}

void vRmChainRangeRecordRead(const RmChainRangeRecord& record, AsfFile* file, AsfSection* section,
                             RmModel* model) {
  RmSurfGen* gen = RmModelGetSurfGen(model);
  if (!gen) return;
  RmChainRangeTable* table = RmChainRangeTableCreate(record.Kind);
  if (!table) return;
  if (record.ReadOldRow && model->DataVersion <= record.LastOldFormVersion) {
    vReadOldLines(record, file, section, table);
  } else {
    vReadLines(record, file, section, table);
  }
  vRmSurfGenSetTable(gen, record.Slot, table);
}
