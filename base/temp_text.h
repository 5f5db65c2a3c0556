// Short-lived results: the temporary text ring and the per-thread format
// buffer.
//
// Many functions hand back texts that live in one of these two places. Such a
// text stands until later requests have run through the ring (or until the
// thread's next sFormat); the caller uses it at once or copies it.
#pragma once

#include <cstddef>

#include "base/printf_format.h"

// The ring's capacity when it is first made.
inline constexpr size_t kTempRingCapacity = 32768;
// The per-thread format buffer's size.
inline constexpr size_t kFormatBufferSize = 2048;

// A block of `size` bytes in the ring. A request above the capacity grows the
// ring to size + 512, which invalidates every earlier result.
void* pTempAlloc(size_t size);

// A copy of `text`, with its terminator, in the ring; null counts as "".
char* sTempCopy(const char* text);

// Formats printf-style into the calling thread's buffer of 2048 bytes and
// returns it. Overflow truncates silently at 2047 characters.
char* sFormat(const char* format, ...) KVRVIPS_PRINTF_FORMAT(1, 2);

// The ring's current capacity and position, for tests and statistics.
size_t uTempRingCapacity();
size_t uTempRingPosition();

// Frees the ring; the next request makes it anew. Runs when the library is
// unloaded.
void vTempRingRelease();
