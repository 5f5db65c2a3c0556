// SPECIALGRADINGS: the special gradings of the surface tables. Each chainage
// opens with ":SPECIALGRADINGCHAIN chain" and holds rows " codeFrom distFrom
// codeTo distTo". Rows before the first chainage, or behind a line that is
// not a row, belong to no chainage and are passed over.
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmSpecialGradingsFamily;
