// CHAINEQUATIONS: the chain equations of the plan lines. Each line with
// equations has a group ":CHAINEQUATIONS id" and one row per equation: the
// back chainage, the ahead chainage and the text. A file of the older form
// holds the rows of the centre line alone, without a group line.
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmChainEquationsFamily;
