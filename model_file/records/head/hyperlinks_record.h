// HYPERLINKSDATA. The model keeps its links as one text of entries
// `name:target` with one blank between them; each entry with a target is one
// line " name:target". The reader joins the lines that start with a blank,
// without the blank of the first, and so gets that text back.
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmHyperlinksFamily;
