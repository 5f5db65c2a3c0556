// SECTPARAMS: how sections are laid out along the main line. Every keyword
// is written, always, in its order.
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmSectParamsFamily;
