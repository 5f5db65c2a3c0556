// Surface numbers of the design as point codes of the model. The design
// writes a surface number as a decimal whose digits behind the point are the
// group and the number; how many digits each takes depends on the model
// version of the design.
#pragma once

// The PCODE of the design's surface number `decimal`, read by the model
// version of the design being imported (VipsModelVersion).
//
// Up to version 8.2 (within 0.00001) the decimal is F.GGN or F.GNN: four
// digits, the last of which is dropped, so that 2.305 is family 2, group 3,
// number 5, and 9.9999 is family 9, group 99, number 99. From then on it is
// F.GGNNx: 2.0305 is the same code. The fraction is scaled in single
// precision and rounded half away from zero. Negative decimals give codes on
// the left; a family outside -9..9 gives 0.
int iVipsSurfaceCode(double decimal);
