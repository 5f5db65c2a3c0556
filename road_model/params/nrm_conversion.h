// The parameters of older model files brought to the codes and forms of
// today. The steps run in this order, each for the data versions that the
// model file's history gives it.
#pragma once

struct RmNrmParams;

// Data version 3 and older: general values of the codes 20 to 25 that hold
// nothing are dropped, a lone 20 stands for both 24 and 25, and every code
// is mapped to its new number; a code without one is dropped.
void vNrmParamsConvertOldCodes(RmNrmParams* params);
// Data version 4 and older: the slopes and cross falls that changed sign.
void vNrmParamsChangeOldSigns(RmNrmParams* params);
// Data version 8 and older: percentages with a sign become a magnitude and
// a direction, the old relative 412 becomes 410, 421 joins 420, and the
// codes 510, 610 and 710 change places with their twins.
void vNrmParamsSplitOldParams(RmNrmParams* params);
