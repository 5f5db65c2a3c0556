// ADMDATA. PROJECTINFO and EMPLOYER go through the quoting helper.
// PROJECTDESCR is line-encoded, the one text of the file that keeps its line
// breaks: it stands in double quotes (unless it starts with one), each CR,
// LF or CR LF is written as backslash and n, and the reader turns those back
// into CR LF.
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmAdmDataFamily;
