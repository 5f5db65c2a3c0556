// TUNNELBLOCKINSERTS: one ":BLOCKINSERT chainage name" line per place where
// a tunnel block is inserted. Reading replaces the inserts of the model's
// blocks object.
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmTunnelBlockInsertsFamily;
