// The lines of one tunnel data object, shared by TUNNELDATA and by each
// block of TUNNELBLOCKS. INTERPOLMETHOD and ROADBEDLAYERNO come first, then
// the tunnel sections and rotations, then each package with its standard
// and its surface groups with their rows:
//
//   :TUNNELPACKAGE name
//   :TUNNELSTANARD        the standard's DESCR, widths, heights, radii,
//                         VERTICALSIDE
//   :TUNNELSURFACES id    CLIPLAYER .. STARTYOFFSET, then rows
//    0 1.0000 2.0000 3.0000 0 0
//
// A keyword applies to the object last opened at its level; lines with no
// open object are passed over.
#pragma once

#include "model_file/records/frame/record_line.h"

struct RmTunnelData;
struct RmTunnelPackage;
struct RmTunnelSurfaceGroup;

void vRmTunnelDataWrite(AsfFile* file, AsfSection* section, const RmTunnelData* data);

// What a reader of tunnel data lines has open.
struct RmTunnelDataReading {
  RmTunnelData* Data;
  RmTunnelPackage* Package = nullptr;
  RmTunnelSurfaceGroup* Group = nullptr;
  // Where TEMPLATECHAIN goes: the chainage of the block being read; null
  // outside a block.
  double* TemplateChain = nullptr;
};

// Reads one line (its keyword in line->Token) into the open objects.
void vRmTunnelDataReadLine(RmTunnelDataReading* reading, RecordLine* line);
