// The sections of the chain range tables, written and read by one writer and
// one reader that a record description drives: which table of the tables
// object the section holds, how a row's range and each of its fields are
// printed, and what a number missing at the end of a row reads as.
//
// A section holds its table lines first ("MINSLOPEBUILD 1.500", each only
// when its value is given), then its rows. Rows are lines that start with a
// blank; a table with sides puts ":LEFTSIDE" or ":RIGHTSIDE" in front of the
// rows of each side that has rows, left first. Rows in keyword form open with
// their keyword and the range, and each field follows on a line of its own
// keyword, only when its value is given.
//
// Reading adds each row by its range start, so that rows out of order come
// in ordered. Rows before a side keyword have no side and are dropped;
// keywords the section does not know are skipped.
#pragma once

#include <cstdint>
#include <span>

#include "road_model/surfaces/surf_gen.h"
#include "road_model/tables/chain_range_kind.h"

struct AsfFile;
struct AsfSection;
struct RecordLine;
struct RmChainRangeTable;
struct RmModel;

// A field as the file holds it.
struct RmChainRangeRecordField {
  int32_t Field;             // the index of the field in the kind (or of the table field)
  const char* Keyword;       // the keyword of the field's line; null in a row of numbers
  const char* Format;        // printf form of the value: "%.3f" or "%d"
  double ReadDefault = 0.0;  // a number missing at the end of its row or line
};

struct RmChainRangeRecord {
  RmSurfGenSlot Slot;
  const RmChainRangeKind* Kind;
  // The printf form of a row's range, " %.4f %.4f", or the line that opens a
  // row in keyword form, "STONEEXCAVATIONSLOPE %.4f %.4f".
  const char* RangeFormat;
  // The keyword that opens a row in keyword form; null for rows of numbers.
  const char* RowKeyword;
  std::span<const RmChainRangeRecordField> Fields;
  std::span<const RmChainRangeRecordField> TableLines;
  // Files of this DATAVERSION and older hold the rows in an older form, read
  // by this reader line by line (the keyword of the line in line->Token).
  int32_t LastOldFormVersion = -1;
  void (*ReadOldRow)(RecordLine* line, RmChainRangeTable* table) = nullptr;
};

bool boRmChainRangeRecordHasContent(const RmChainRangeRecord& record, const RmModel* model);
void vRmChainRangeRecordWrite(const RmChainRangeRecord& record, AsfFile* file, AsfSection* section,
                              const RmModel* model);
// Makes the table, reads the section into it and stores it into the tables
// object, also when it holds no rows.
void vRmChainRangeRecordRead(const RmChainRangeRecord& record, AsfFile* file, AsfSection* section,
                             RmModel* model);
