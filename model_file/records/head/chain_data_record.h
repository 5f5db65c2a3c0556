// CHAINDATA: the chain data of the model. The settings come first
// (EXACT3DMODE and CORRIDORWIDTH only when set, MAXCLDEVIATION always,
// EXPANDSTARTEND when either end is set); then each line that has rows opens
// with ":CHAINDATALINE type fields infotype", and each row is a CHAIN record
// (chainage, position, code, value), an OFFS record of its six offsets and,
// for a line with fields, a FIELDS record of the quoted field values.
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmChainDataFamily;
