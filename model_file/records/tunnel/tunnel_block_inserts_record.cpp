#include "model_file/records/tunnel/tunnel_block_inserts_record.h"

#include <cstring>

#include "base/fields.h"
#include "model_file/records/frame/record_line.h"
#include "road_model/model/model_parts.h"
#include "road_model/tunnel/tunnel_blocks.h"

namespace {

constexpr char kInsert[] = ":BLOCKINSERT";

bool boPresent(const RmModel* model, const RmRecordFamily&) {
  const RmTunnelBlocks* blocks = RmModelGetTunnelBlocks(model);
  return blocks && blocks->Inserts.first;
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model, const RmRecordFamily&) {
  char quoted[kRecordQuoteSize];
  const RmTunnelBlocks* blocks = RmModelGetTunnelBlocks(model);
  for (auto* insert = ListFirst<RmTunnelBlockInsert>(&blocks->Inserts); insert;
       insert = insert->Next) {
    boRecordWrite(file, section, "%s %.4lf %s", kInsert, insert->Chain,
                  sQuote(quoted, sizeof quoted, insert->Name));
  }
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  RmTunnelBlocks* blocks = RmModelGetTunnelBlocks(model);
  if (!blocks) return;
  vRmTunnelBlockInsertsClear(blocks);
  for (RecordLine line; boRecordNextLine(file, section, &line);) {
    if (std::strcmp(line.Token, kInsert) != 0) continue;
    double chain = dRecordNumber(&line);
    RmTunnelBlockInsertAdd(blocks, chain, sRecordToken(&line));
  }
}

}  // namespace

const RmRecordFamily kRmTunnelBlockInsertsFamily = {
    .Keyword = "TUNNELBLOCKINSERTS",
    .Letter = 'O',
    .HasContent = boPresent,
    .Write = vWrite,
    .Read = vRead,
};
