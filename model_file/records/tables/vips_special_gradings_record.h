// VIPSSPECIALGRADINGS: the VIPS special gradings of the surface tables. Each
// entry opens with ":VIPSSPECIALGRADINGS layer"; the entry of layer number 2
// then holds "MINTHICKLEFTPCODE code" and "MINTHICKRIGHTPCODE code" where its
// codes are not the defaults. ":LEFTSIDE" and ":RIGHTSIDE" (each only with
// surfaces) select a side, ":VIPSSPECIALGRADINGSURFACE number" opens a
// surface of it, and rows of twelve values follow. A value missing at the
// end of a row keeps the row's default. Surfaces before a side, rows before
// a surface or behind another line, and everything of an entry whose layer
// is none are passed over.
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmVipsSpecialGradingsFamily;
