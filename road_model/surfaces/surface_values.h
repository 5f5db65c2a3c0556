// The width and slope of a surface at a chainage, from its rows.
//
// Between two rows of a type the values run straight; a row counts at a
// chainage within half a millimetre of it. Type 1 rows mark breaks: where
// a surface ends and where it starts again.
#pragma once

struct RmSurface;
struct RmSurfaceRow;

// Rows this close to a chainage stand at it.
inline constexpr double kRmSurfaceRowTolerance = 0.0005;

// The width and slope of `surface` at `chain` from its rows of `rowType`:
// the values of a row at the chainage, else those interpolated between the
// rows of that type before and after it. 1 with a value, 0 without (before
// the first row, after the last, next to a row without values). Both
// outputs start unset (-99999.0), and a value that one of the two rows
// lacks stays unset.
int iRmSurfaceValuesAt(const RmSurface* surface, double chain, double* width, double* slope,
                       int rowType);

// Whether the surface is broken off at `chain`: the row found from the
// chainage and the one before it are both break rows.
bool boRmSurfaceIsBreakAt(const RmSurface* surface, double chain);
// The values of the first break row at `chain`; false without one.
bool boRmSurfaceBreakValuesAt(const RmSurface* surface, double chain, double* width,
                              double* slope);

// The row's slope, or, when it has none, the slope of the first row at its
// chainage or later of the next surface inward on the same side that has
// one; -99999.0 when no surface inward has one.
double dRmSurfaceRowInheritSlope(const RmSurface* surface, const RmSurfaceRow* row);
