#include "model_file/records/tables/special_gradings_record.h"

#include <cstring>

#include "base/numbers.h"
#include "model_file/records/frame/record_line.h"
#include "road_model/model/model_parts.h"
#include "road_model/surfaces/surf_gen.h"
#include "road_model/tables/special_gradings.h"

namespace {

constexpr const char* kChainKeyword = ":SPECIALGRADINGCHAIN";

const RmSpecialGradings* Table(const RmModel* model) {
  return RmSurfGenGet<kRmSpecialGradingsSlot>(RmModelGetSurfGen(model));
}

bool boPresent(const RmModel* model, const RmRecordFamily&) {
  return boRmSpecialGradingsHasRows(Table(model));
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model, const RmRecordFamily&) {
  for (const RmSpecialGradingChain* chain = RmSpecialGradingChainsGetFirst(Table(model)); chain;
       chain = chain->Next) {
    boRecordWrite(file, section, "%s %.3f", kChainKeyword, chain->Chain);
    for (const RmSpecialGradingRow* row = RmSpecialGradingRowsGetFirst(chain); row;
         row = row->Next) {
      boRecordWrite(file, section, " %d %.3f %d %.3f", row->CodeFrom, row->DistFrom, row->CodeTo,
                    row->DistTo);
    }
  }
}

void vReadRow(RecordLine* line, RmSpecialGradingChain* chain) {
  RmSpecialGradingRow* row = RmSpecialGradingRowAdd(chain);
  if (!row) return;
  vRecordLineStart(line, line->Text);
  row->CodeFrom = iRecordInteger(line);
  row->DistFrom = dRecordNumber(line);
  row->CodeTo = iRecordInteger(line);
  row->DistTo = dRecordNumber(line);
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  RmSurfGen* gen = RmModelGetSurfGen(model);
  RmSpecialGradings* table = gen ? RmSpecialGradingsCreate() : nullptr;
  if (!table) return;
  RmSpecialGradingChain* chain = nullptr;
  for (RecordLine line; boRecordNextLine(file, section, &line);) {
    if (boRecordIsRow(line.Text)) {
      if (chain) vReadRow(&line, chain);
    } else if (std::strcmp(line.Token, kChainKeyword) == 0) {
      chain = RmSpecialGradingChainAddSorted(table, dRecordNumber(&line, kNullNumber));
    } else {
      chain = nullptr;
    }
  }
  vRmSurfGenSet<kRmSpecialGradingsSlot>(gen, table);
}

}  // namespace

const RmRecordFamily kRmSpecialGradingsFamily = {
    .Keyword = "SPECIALGRADINGS",
    .Letter = 'O',
    .HasContent = boPresent,
    .Write = vWrite,
    .Read = vRead,
};
