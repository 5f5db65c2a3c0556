// Copy and paste of tunnel data and of tunnel blocks on their own, apart
// from a model: a copy puts a container of file type "sfi" with the one
// section (TUNNELDATA or TUNNELBLOCKS) on the clipboard, in the records of
// the model file; a paste reads it back with that section's reader.
#pragma once

struct RmTunnelBlocks;
struct RmTunnelData;

// False, with the clipboard untouched, when nothing could be written.
bool boRmTunnelDataCopy(const RmTunnelData* data);
// New tunnel data from the clipboard; null when it holds no TUNNELDATA.
RmTunnelData* RmTunnelDataPaste();

bool boRmTunnelBlocksCopy(const RmTunnelBlocks* blocks);
// Replaces the blocks of `blocks` by those on the clipboard; false, with
// `blocks` unchanged, when it holds no TUNNELBLOCKS. The inserts stay.
bool boRmTunnelBlocksPaste(RmTunnelBlocks* blocks);
