#include "model_file/records/head/chain_data_record.h"

#include <cmath>
#include <cstring>

#include "base/fields.h"
#include "base/text.h"
#include "model_file/records/frame/record_line.h"
#include "road_model/chain_data/chain_data.h"
#include "road_model/model/model.h"
#include "road_model/model/model_parts.h"

namespace {

constexpr char kExact3dMode[] = "EXACT3DMODE";
constexpr char kCorridorWidth[] = "CORRIDORWIDTH";
constexpr char kMaxClDeviation[] = "MAXCLDEVIATION";
constexpr char kExpandStartEnd[] = "EXPANDSTARTEND";
constexpr char kLineKeyword[] = ":CHAINDATALINE";
constexpr char kChain[] = "CHAIN";
constexpr char kOffs[] = "OFFS";
constexpr char kFields[] = "FIELDS";

// A value this close to 0 is not written.
constexpr double kUnset = 0.00001;
// The FIELDS record of a row is cut to this buffer.
constexpr size_t kFieldsLineSize = 616;
// A line with more fields than this in the file is taken with this many; a
// row carries 40 bytes per field.
constexpr int kFieldCountMax = 1000;

bool boSet(double value) { return std::fabs(value) >= kUnset; }

bool boPresent(const RmModel* model, const RmRecordFamily&) {
  const RmChainData* data = RmModelGetChainData(model);
  return data && data->Lines.first;
}

void vWriteFields(AsfFile* file, AsfSection* section, const RmChainDataLine* line,
                  const RmChainDataRow* row) {
  char text[kFieldsLineSize];
  char quoted[kRecordQuoteSize];
  sCopy(text, kFields, sizeof text);
  for (int i = 0; i < line->FieldCount; ++i) {
    sAppend(text, " ", sizeof text);
    sAppend(text, sQuote(quoted, sizeof quoted, sRmChainDataRowGetField(line, row, i)),
            sizeof text);
  }
  boRecordWrite(file, section, "%s", text);
}

void vWriteRow(AsfFile* file, AsfSection* section, const RmChainDataLine* line,
               const RmChainDataRow* row) {
  // At most 11 characters of the code, also when it fills its array.
  char code[kRmChainCodeSize];
  size_t length = strnlen(row->Code, sizeof code - 1);
  std::memcpy(code, row->Code, length);
  code[length] = 0;
  boRecordWrite(file, section, "%s %.4lf %.3lf %.3lf %.3lf \"%s\" %.4lf", kChain, row->Chain,
                row->X, row->Y, row->Z, code, row->Value);
  boRecordWrite(file, section, "%s %.3f %.3f %.3f %.3f %.3f %.3f", kOffs, row->OffsLeft,
                row->OffsRight, row->Offs[0], row->Offs[1], row->Offs[2], row->Offs[3]);
  if (line->FieldCount > 0) vWriteFields(file, section, line, row);
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model, const RmRecordFamily&) {
  const RmChainData* data = RmModelGetChainData(model);
  if (data->Exact3dMode) boRecordWrite(file, section, "%s 1", kExact3dMode);
  if (boSet(data->CorridorWidth)) {
    boRecordWrite(file, section, "%s %.4lf", kCorridorWidth, data->CorridorWidth);
  }
  boRecordWrite(file, section, "%s %.4lf", kMaxClDeviation, data->MaxClDeviation);
  if (boSet(data->ExpandStart) || boSet(data->ExpandEnd)) {
    boRecordWrite(file, section, "%s %.4lf %.4lf", kExpandStartEnd, data->ExpandStart,
                  data->ExpandEnd);
  }
  for (auto* line = ListFirst<RmChainDataLine>(&data->Lines); line; line = line->Next) {
    if (!line->Rows.first) continue;
    boRecordWrite(file, section, "%s %d %d %d", kLineKeyword, line->Type, line->FieldCount,
                  line->InfoType);
    for (auto* row = ListFirst<RmChainDataRow>(&line->Rows); row; row = row->Next) {
      vWriteRow(file, section, line, row);
    }
  }
}

void vReadRow(RecordLine* record, RmChainDataRow* row) {
  row->Chain = dRecordNumber(record);
  row->X = dRecordNumber(record);
  row->Y = dRecordNumber(record);
  row->Z = dRecordNumber(record);
  sCopy(row->Code, sRecordToken(record), sizeof row->Code);
  row->Value = dRecordNumber(record);
}

void vReadOffsets(RecordLine* record, RmChainDataRow* row) {
  row->OffsLeft = static_cast<float>(dRecordNumber(record));
  row->OffsRight = static_cast<float>(dRecordNumber(record));
  for (float& value : row->Offs) value = static_cast<float>(dRecordNumber(record));
}

void vReadFields(RecordLine* record, const RmChainDataLine* line, RmChainDataRow* row) {
  for (int i = 0; i < line->FieldCount && !boRecordAtEnd(record); ++i) {
    vRmChainDataRowSetField(line, row, i, sRecordToken(record));
  }
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  RmChainData* data = RmChainDataCreate();
  if (!data) return;
  RmChainDataLine* line = nullptr;
  RmChainDataRow* row = nullptr;
  for (RecordLine record; boRecordNextLine(file, section, &record);) {
    const char* keyword = record.Token;
    if (boRecordIs(keyword, kExact3dMode)) {
      data->Exact3dMode = static_cast<uint32_t>(iRecordInteger(&record));
    } else if (boRecordIs(keyword, kCorridorWidth)) {
      data->CorridorWidth = dRecordNumber(&record);
    } else if (boRecordIs(keyword, kMaxClDeviation)) {
      data->MaxClDeviation = dRecordNumber(&record);
    } else if (boRecordIs(keyword, kExpandStartEnd)) {
      data->ExpandStart = dRecordNumber(&record);
      data->ExpandEnd = dRecordNumber(&record);
    } else if (boRecordIs(keyword, kLineKeyword)) {
      int type = iRecordInteger(&record);
      int fieldCount = iRecordInteger(&record);
      int infoType = iRecordInteger(&record);
      if (fieldCount > kFieldCountMax) fieldCount = kFieldCountMax;
      line = RmChainDataLineAdd(data, nullptr, type, fieldCount);
      vRmChainDataLineSetInfoType(line, infoType);
      row = nullptr;
    } else if (boRecordIs(keyword, kChain)) {
      row = RmChainDataRowAdd(line);
      if (row) vReadRow(&record, row);
    } else if (boRecordIs(keyword, kOffs) || boRecordIs(keyword, kFields)) {
      // Offsets and fields belong to the row before them; without one the
      // group ends.
      if (!row) {
        line = nullptr;
      } else if (boRecordIs(keyword, kOffs)) {
        vReadOffsets(&record, row);
      } else {
        vReadFields(&record, line, row);
      }
    }
  }
  vRmModelSetChainData(model, data);
}

}  // namespace

const RmRecordFamily kRmChainDataFamily = {
    .Keyword = "CHAINDATA",
    .Letter = 'O',
    .HasContent = boPresent,
    .Write = vWrite,
    .Read = vRead,
};
