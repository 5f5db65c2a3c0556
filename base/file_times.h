// File times: 64-bit counts of 100 ns since 1601-01-01 UTC.
#pragma once

#include <cstdint>

// The current time as a file time.
int64_t lFileTimeNow();

// Opens `path` for reading and takes its last write time into *outWriteTime,
// when given. false when the file cannot be opened.
bool boFileGetTime(const char* path, int64_t* outWriteTime);

// -1 when `a` is earlier than `b`, 0 when they are equal, 1 when later.
int iFileTimeCompare(int64_t a, int64_t b);
