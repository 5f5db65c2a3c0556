// TUNNELDATA: the model's tunnel data in the lines of tunnel_data_lines.h.
// Written when the data has a tunnel section or a rotation row.
#pragma once

#include "model_file/records/frame/record_family.h"

struct RmTunnelData;

extern const RmRecordFamily kRmTunnelDataFamily;

// Reads the section's lines into new tunnel data; null only when no object
// could be made.
RmTunnelData* RmTunnelDataRead(AsfFile* file, AsfSection* section);
