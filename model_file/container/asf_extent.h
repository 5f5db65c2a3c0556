// Extents of the container: four doubles, the empty one with minima
// 99999999.9 and maxima -99999999.9, and their text in `_EXTENT` lines.
#pragma once

#include <cstddef>
#include <cstdint>

#include "model_file/container/asf_file.h"

// The width of an `_EXTENT` placeholder line without its line end.
inline constexpr size_t kAsfPlaceholderWidth = 70;

void vAsfExtentSetEmpty(AsfExtent* extent);
// True when the maximum x lies below the minimum x.
bool boAsfExtentIsEmpty(const AsfExtent& extent);
// Takes the smaller minima and the larger maxima.
void vAsfExtentUnion(AsfExtent* extent, const AsfExtent& other);
void vAsfExtentAddPoint(AsfExtent* extent, double x, double y);

// A double cut to a signed 32-bit integer as the processor's conversion does
// it: toward zero, and the lowest integer for a value that does not fit.
int32_t iAsfTruncate32(double value);

// The four integers of an extent rounded outward: floor of the minima,
// ceiling of the maxima.
void vAsfExtentRoundOut(const AsfExtent& extent, int32_t out[4]);

// "_EXTENT %ld %ld %ld %ld " with the extent rounded outward. The padded form
// fills the line with "!" to 70 characters. `out` needs 71 bytes.
void vAsfExtentLineFormat(const AsfExtent& extent, bool padded, char* out, size_t size);

// Scans "%lf %lf %lf %lf" from `text` into `extent`. False when fewer than
// four numbers are read; the numbers that were read stay in `extent`.
bool boAsfExtentScan(const char* text, AsfExtent* extent);
