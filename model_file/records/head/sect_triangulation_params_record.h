// SECTTRIANGULATIONPARAMS: how a surface net is made from the sections.
// Every keyword is written, always, in its order.
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmSectTriangulationParamsFamily;
