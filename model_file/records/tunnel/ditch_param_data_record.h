// DITCHPARAMDATA: one ":DITCHPARAMS" group with every ditch parameter as a
// keyword line, the centre-line offset when the parameters have one, and one
// line per entry of the pipe space and pipe foundation tables. Older files
// hold one wall distance per side (DISTLEFTWALL, DISTRIGHTWALL) and one
// foundation thickness (THICKNESSFOUNDATION) instead of the tables.
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmDitchParamDataFamily;
