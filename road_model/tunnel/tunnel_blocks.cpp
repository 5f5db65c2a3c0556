#include "road_model/tunnel/tunnel_blocks.h"

#include <cstdlib>

#include "base/text.h"

RmTunnelBlocks* RmTunnelBlocksCreate() {
  auto* blocks = static_cast<RmTunnelBlocks*>(std::calloc(1, sizeof(RmTunnelBlocks)));
  if (!blocks) return nullptr;
  SLinkInit(&blocks->Blocks, sizeof(RmTunnelBlock), nullptr);
  SLinkInit(&blocks->Inserts, sizeof(RmTunnelBlockInsert), nullptr);
  return blocks;
}

void vRmTunnelBlocksDelete(RmTunnelBlocks** blocks) {
  if (!blocks || !*blocks) return;
  vRmTunnelBlocksClear(*blocks);
  vRmTunnelBlockInsertsClear(*blocks);
  std::free(*blocks);
  *blocks = nullptr;
}

void vRmTunnelBlocksCopy(RmTunnelBlocks* to, const RmTunnelBlocks* from) {
  if (!to || !from || to == from) return;
  vRmTunnelBlocksClear(to);
  vRmTunnelBlockInsertsClear(to);
  for (auto* block = ListFirst<RmTunnelBlock>(&from->Blocks); block; block = block->Next) {
    RmTunnelBlock* copy = RmTunnelBlockAdd(to, block->Name);
    if (!copy) return;
    copy->TemplateChain = block->TemplateChain;
    if (block->Data && (copy->Data = RmTunnelDataCreate())) {
      vRmTunnelDataCopy(copy->Data, block->Data);
    }
  }
  SLinkCopy(&from->Inserts, &to->Inserts, nullptr);
}

void vRmTunnelBlocksClear(RmTunnelBlocks* blocks) {
  if (!blocks) return;
  for (auto* block = ListFirst<RmTunnelBlock>(&blocks->Blocks); block; block = block->Next) {
    vRmTunnelDataDelete(&block->Data);
  }
  vSLinkClear(&blocks->Blocks);
}

RmTunnelBlock* RmTunnelBlockAdd(RmTunnelBlocks* blocks, const char* name) {
  if (!blocks) return nullptr;
  auto* block = SLinkNewObjAs<RmTunnelBlock>(&blocks->Blocks);
  if (block) sCopy(block->Name, sOrEmpty(name), sizeof block->Name);
  return block;
}

bool boRmTunnelBlocksHaveData(const RmTunnelBlocks* blocks) {
  if (!blocks) return false;
  for (auto* block = ListFirst<RmTunnelBlock>(&blocks->Blocks); block; block = block->Next) {
    if (block->Data) return true;
  }
  return false;
}

void vRmTunnelBlockInsertsClear(RmTunnelBlocks* blocks) {
  if (blocks) vSLinkClear(&blocks->Inserts);
}

RmTunnelBlockInsert* RmTunnelBlockInsertAdd(RmTunnelBlocks* blocks, double chain,
                                            const char* name) {
  if (!blocks) return nullptr;
  auto* insert = SLinkNewObjAs<RmTunnelBlockInsert>(&blocks->Inserts);
  if (!insert) return nullptr;
  insert->Chain = chain;
  sCopy(insert->Name, sOrEmpty(name), sizeof insert->Name);
  return insert;
}
