// SUPERSTRUCT: the older form of the pavement, read into the pavement table
// (and the stone excavation slopes) when the file gave no PAVEMENT. It is
// never written: the table goes back as PAVEMENT.
//
// UNDERMEDIAN (three integers) goes to layer positions 0, 3 and 6 of every
// package that follows; STONESLOPESIDE, STONESLOPEINTERMED and
// EXCAVATIONSLOPE are slopes of the whole road. ":SUPERCHAIN from to" with up
// to three slopes opens a range on soil and one on rock, and slopes that are
// given make a row of the stone excavation slopes. ":SURFACESOIL" and
// ":SURFACEROCK" make the package of the open range of their kind, named
// "Soil n" or "Rock n", and the rows behind them ("number thickness
// thickness thickness") are its surfaces, with the thicknesses at positions
// 0, 3 and 6. Packages are numbered from 1 over both kinds.
//
// When a slope of the whole road is not 0, the stretches of the soil ranges
// that the stone excavation slopes leave open get a row with those slopes.
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmSuperstructFamily;
