// TUNNELPARAMDATA: per layer (":TUNNELPARAMLAYERS id") its ranges
// (":TUNNELPARAMRANGE from to") with NAME, TYPE, ATTRIBUTE and
// ROADCONPCODES, and, for a range with a profile, ":TUNNELPARAMINFO"
// followed by every value of the profile. A line applies to the object last
// opened at its level.
#pragma once

#include "model_file/records/frame/record_family.h"

extern const RmRecordFamily kRmTunnelParamDataFamily;
