// TUNNELBLOCKS: each block that has data, as ":TUNNELBLOCK name",
// "TEMPLATECHAIN chainage" and the block's tunnel data in the lines of
// tunnel_data_lines.h. Reading replaces the model's blocks; it needs the
// blocks object, which every model has from its start.
#pragma once

#include "model_file/records/frame/record_family.h"

struct RmTunnelBlocks;

extern const RmRecordFamily kRmTunnelBlocksFamily;

// Writes the blocks that have data, and reads the section into `blocks`
// after deleting the blocks it had.
void vRmTunnelBlocksWrite(AsfFile* file, AsfSection* section, const RmTunnelBlocks* blocks);
void vRmTunnelBlocksRead(AsfFile* file, AsfSection* section, RmTunnelBlocks* blocks);
