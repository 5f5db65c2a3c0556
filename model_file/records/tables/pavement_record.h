// PAVEMENT: the pavement table of the surface tables object.
//
// First the cut settings that are set (CUTANTIFREEZEFILLING,
// CUTANTIFREEZEMINFILLHEIGHT, CUTANTIFREEZEDEEPROCKBLAST), then the ranges
// ":PAVEMENTSECTIONSOIL from to package" and ":PAVEMENTSECTIONROCK ...", each
// kind ordered by its start. Then every package, ascending by number:
// ":PAVEMENTPACKAGE number name" with UNDERMEDIAN (ten values),
// OUTEREDGETOTERRAIN, OUTEREDGETOTERRAINSLOPE, USESURFACEEDGE,
// OUTEREDGETODEEPROCKBLAST and EXCAVATIONSLOPE (left, right); its surfaces
// ":PAVEMENTSURFACE number" with MINTHICKNESS, THICKNESS and MAXTHICKNESS (ten
// values each); its gradually changing layers
// ":PAVEMENTGRADUALLYCHANGINGLAYER number" with EXTRAWIDTH, GRADIENT,
// TRANSITIONGRADIENT and THINNEREXTENSION; its surface edges
// ":PAVEMENT_SURFACEEDGE number" with CODE, WIDTH and SLOPE (ten values each).
// Last ":PAVEMENTAPPEARINGS" with rows " from to number" when the table has
// appearing rows.
//
// Reading: a value line applies to the last group of its kind and is
// skipped before one; appearing rows are taken while lines are rows. In
// files of version 6 and older a THICKNESS that is not given reads as
// 999999.0. A paste from the clipboard reads the current form.
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmPavementFamily;
