#include "road_model/surfaces/surface_values.h"

#include <cmath>

#include "base/numbers.h"
#include "road_model/surfaces/surfaces.h"

namespace {

// a + (b - a)·t when both are given, else unset.
double dBetween(double a, double b, double t) {
  return boIsPresent(a) && boIsPresent(b) ? a + (b - a) * t : kNullNumber;
}

void vTakeRow(const RmSurfaceRow* row, double* width, double* slope) {
  *width = row->Width;
  *slope = row->Slope;
}

}  // namespace

int iRmSurfaceValuesAt(const RmSurface* surface, double chain, double* width, double* slope,
                       int rowType) {
  double unusedWidth;
  double unusedSlope;
  if (!width) width = &unusedWidth;
  if (!slope) slope = &unusedSlope;
  *width = kNullNumber;
  *slope = kNullNumber;

  // The first row of the type at the chainage or after it, and the last
  // one of the type in front of that.
  const auto reaches = [chain](double rowChain) {
    return rowChain >= chain || boEqual(rowChain, chain);
  };
  const RmSurfaceRow* at = RmSurfaceRowsSearchStart(surface, reaches);
  while (at && !(at->RowType == rowType && reaches(at->Chain))) at = at->Next;
  if (!at) return 0;
  const RmSurfaceRow* before = at->Prev;
  while (before && before->RowType != rowType) before = before->Prev;
  if (!before && std::fabs(at->Chain - chain) >= kRmSurfaceRowTolerance) return 0;
  if (at->Chain - chain < kRmSurfaceRowTolerance) {
    if (!boRmSurfaceRowHasValue(at)) return 0;
    vTakeRow(at, width, slope);
    return 1;
  }
  if (!before || !boRmSurfaceRowHasValue(before)) return 0;
  if (chain - before->Chain >= kRmSurfaceRowTolerance) {
    const double span = at->Chain - before->Chain;
    if (boEqual(span, 0.0)) return 0;
    const double t = (chain - before->Chain) / span;
    *width = dBetween(before->Width, at->Width, t);
    *slope = dBetween(before->Slope, at->Slope, t);
    return 1;
  }
  // The chainage stands at the row before.
  if (rowType != 0 && rowType != 1) return 0;
  vTakeRow(before, width, slope);
  return 1;
}

bool boRmSurfaceIsBreakAt(const RmSurface* surface, double chain) {
  const RmSurfaceRow* row = RmSurfaceRowFindFrom(surface, chain);
  return row && row->Prev && row->RowType == 1 && row->Prev->RowType == 1;
}

bool boRmSurfaceBreakValuesAt(const RmSurface* surface, double chain, double* width,
                              double* slope) {
  for (const RmSurfaceRow* row = RmSurfaceRowFindFrom(surface, chain - 1e-5);
       row && boEqual(row->Chain, chain); row = row->Next) {
    if (row->RowType != 1) continue;
    if (width) *width = row->Width;
    if (slope) *slope = row->Slope;
    return true;
  }
  return false;
}

double dRmSurfaceRowInheritSlope(const RmSurface* surface, const RmSurfaceRow* row) {
  if (!surface || !row) return kNullNumber;
  if (boIsPresent(row->Slope)) return row->Slope;
  const int side = surface->Number < 0 ? 1 : 2;
  for (const RmSurface* inward = RmSurfaceGetInward(surface, side); inward;
       inward = RmSurfaceGetInward(inward, side)) {
    if (side == 1 ? inward->Number > 0 : inward->Number < 0) break;  // across the centre
    for (const RmSurfaceRow* other = RmSurfaceRowFindFrom(inward, row->Chain); other;
         other = other->Next) {
      if (boIsPresent(other->Slope)) return other->Slope;
    }
  }
  return kNullNumber;
}
