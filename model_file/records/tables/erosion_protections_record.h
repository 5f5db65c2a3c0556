// EROSIONPROTECTIONS: the erosion protections of the surface tables. The
// ranges come first, ":EROSIONPROTECTLEFT from to package" and
// ":EROSIONPROTECTRIGHT from to package", then each package: its head
// ":EROSIONPROTECTPACKAGE number name", the lines HEIGHTTABLERESTRICTION, A,
// B and LOWSOILCUT, and ":EROSIONPROTECTIONHEIGHTENTRY" with the rows of its
// height table, four reals each. Rows that do not follow that line are
// passed over.
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmErosionProtectionsFamily;
