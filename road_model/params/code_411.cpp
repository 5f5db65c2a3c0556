#include "road_model/params/code_411.h"

#include "road_model/params/nrm_params.h"

// The parameters along the road already read code 411 in just this way (the
// conversion of older files needs it too); the section builder's name for it
// shares that one walk rather than a second copy of it.
bool boRmCode411At(const RmNrmParams* codes, int32_t side, double chain, double* value) {
  return boNrmParamsValueAt(codes, side, chain, value);
}
