// SECTPARAMS: how sections are laid out along the main line.
#pragma once

#include <cstdint>

struct RmSectParams {
  double Interval;       // INTERVAL: distance between sections, metres
  double TightenAngle;   // TIGHTENANGLE: radians
  double MaxCircleDevXY; // MAXCIRCLEDEVXY
  double MaxCircleDevZ;  // MAXCIRCLEDEVZ
  double DistLeft;       // DISTLEFT
  double DistRight;      // DISTRIGHT
  int32_t All;           // ALL
  double ChainStart;     // CHAINSTART
  double ChainEnd;       // CHAINEND
  int32_t Flags;         // FLAGS
  char* AppLayer;        // APPLAYER: owned, null when empty
};

// A new record with the defaults (interval 10 m, five degrees, 20 m to each
// side, ALL 1, FLAGS 3); null when memory ran out.
RmSectParams* RmSectParamsCreate();
// Frees the record and nulls the pointer; null is accepted.
void vRmSectParamsDelete(RmSectParams** params);
// Makes `to` a deep copy of `from`.
void vRmSectParamsCopy(RmSectParams* to, const RmSectParams* from);

// APPLAYER, the empty text when there is none.
const char* sRmSectParamsGetAppLayer(const RmSectParams* params);
void vRmSectParamsSetAppLayer(RmSectParams* params, const char* appLayer);
