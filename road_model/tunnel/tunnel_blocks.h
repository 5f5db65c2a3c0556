// Tunnel blocks: named pieces of tunnel data made at a template chainage,
// and the places along the road where a block is inserted. A new model has
// the (empty) blocks object.
#pragma once

#include "base/slink.h"
#include "road_model/tunnel/tunnel_data.h"

struct RmTunnelBlock {
  RmTunnelBlock* Next;
  char Name[kRmTunnelNameSize];
  double TemplateChain;
  RmTunnelData* Data;  // owned; null: none
};

struct RmTunnelBlockInsert {
  RmTunnelBlockInsert* Next;
  double Chain;
  char Name[kRmTunnelNameSize];  // the block inserted
};

struct RmTunnelBlocks {
  ListHead Blocks;   // RmTunnelBlock, heap nodes
  ListHead Inserts;  // RmTunnelBlockInsert, heap nodes
};

// Empty blocks; null when memory ran out.
RmTunnelBlocks* RmTunnelBlocksCreate();
// Deletes every block with its data, the inserts and the object, and nulls
// the pointer. Null is accepted.
void vRmTunnelBlocksDelete(RmTunnelBlocks** blocks);
// Makes `to` a deep copy of `from`.
void vRmTunnelBlocksCopy(RmTunnelBlocks* to, const RmTunnelBlocks* from);

// Deletes every block with its data.
void vRmTunnelBlocksClear(RmTunnelBlocks* blocks);
// A new block at the end, without data; null when memory ran out.
RmTunnelBlock* RmTunnelBlockAdd(RmTunnelBlocks* blocks, const char* name);
// Whether a block has data.
bool boRmTunnelBlocksHaveData(const RmTunnelBlocks* blocks);

void vRmTunnelBlockInsertsClear(RmTunnelBlocks* blocks);
RmTunnelBlockInsert* RmTunnelBlockInsertAdd(RmTunnelBlocks* blocks, double chain, const char* name);
