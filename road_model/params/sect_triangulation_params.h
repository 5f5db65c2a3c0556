// SECTTRIANGULATIONPARAMS: how a surface net is made from the sections.
#pragma once

#include <cstdint>

struct RmSectTriangulationParams {
  double ChainDepth;     // CHAINDEPTH
  double MaxEdgeLen;     // MAXEDGELEN
  double MinPointDist;   // MINPOINTDIST
  int32_t Method;        // METHOD
  double SideOffsetCL;   // SIDEOFFSETCL
  double HeightOffsetCL; // HEIGHTOFFSETCL
};

// A new record with the defaults; null when memory ran out.
RmSectTriangulationParams* RmSectTriangulationParamsCreate();
// Frees the record and nulls the pointer; null is accepted.
void vRmSectTriangulationParamsDelete(RmSectTriangulationParams** params);
void vRmSectTriangulationParamsCopy(RmSectTriangulationParams* to,
                                    const RmSectTriangulationParams* from);
