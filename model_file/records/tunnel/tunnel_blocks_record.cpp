#include "model_file/records/tunnel/tunnel_blocks_record.h"

#include <cstring>

#include "base/fields.h"
#include "model_file/records/tunnel/tunnel_data_lines.h"
#include "road_model/model/model_parts.h"
#include "road_model/tunnel/tunnel_blocks.h"

namespace {

constexpr char kBlock[] = ":TUNNELBLOCK";
constexpr char kTemplateChain[] = "TEMPLATECHAIN";

bool boPresent(const RmModel* model, const RmRecordFamily&) {
  const RmTunnelBlocks* blocks = RmModelGetTunnelBlocks(model);
  return blocks && blocks->Blocks.first;
}

void vWrite(AsfFile* file, AsfSection* section, const RmModel* model, const RmRecordFamily&) {
  vRmTunnelBlocksWrite(file, section, RmModelGetTunnelBlocks(model));
}

void vRead(AsfFile* file, AsfSection* section, RmModel* model, const RmRecordFamily&) {
  if (RmTunnelBlocks* blocks = RmModelGetTunnelBlocks(model)) {
    vRmTunnelBlocksRead(file, section, blocks);
  }
}

}  // namespace

void vRmTunnelBlocksWrite(AsfFile* file, AsfSection* section, const RmTunnelBlocks* blocks) {
  if (!blocks) return;
  char quoted[kRecordQuoteSize];
  for (auto* block = ListFirst<RmTunnelBlock>(&blocks->Blocks); block; block = block->Next) {
    if (!block->Data) continue;
    boRecordWrite(file, section, "%s %s", kBlock, sQuote(quoted, sizeof quoted, block->Name));
    boRecordWrite(file, section, "%s %.4lf", kTemplateChain, block->TemplateChain);
    vRmTunnelDataWrite(file, section, block->Data);
  }
}

void vRmTunnelBlocksRead(AsfFile* file, AsfSection* section, RmTunnelBlocks* blocks) {
  if (!blocks) return;
  vRmTunnelBlocksClear(blocks);
  // Lines before the first block belong to none and are passed over.
  RmTunnelDataReading reading{.Data = nullptr};
  for (RecordLine line; boRecordNextLine(file, section, &line);) {
    if (std::strcmp(line.Token, kBlock) == 0) {
      RmTunnelBlock* block = RmTunnelBlockAdd(blocks, sRecordToken(&line));
      if (block) block->Data = RmTunnelDataCreate();
      reading = RmTunnelDataReading{.Data = block ? block->Data : nullptr,
                                    .TemplateChain = block ? &block->TemplateChain : nullptr};
    } else if (reading.Data) {
      vRmTunnelDataReadLine(&reading, &line);
    }
  }
}

const RmRecordFamily kRmTunnelBlocksFamily = {
    .Keyword = "TUNNELBLOCKS",
    .Letter = 'O',
    .HasContent = boPresent,
    .Write = vWrite,
    .Read = vRead,
};
