// The byte stream under a container handle: a C stdio file in binary mode or
// a block of memory, never both.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>

// The step and first capacity of a memory block made for writing.
inline constexpr size_t kAsfMemStep = 262144;

// A block of memory. A block over a caller's data has step 0, which makes it
// read-only, and its data is not freed with the stream.
struct AsfMemBlock {
  size_t uStep;
  int64_t lPos;
  size_t uCapacity;
  size_t uLength;
  unsigned char* pData;
};

struct AsfStream {
  AsfMemBlock* pMem;
  FILE* pFile;
};

// Opens a file with a C stdio mode ("rb", "wb"); null on failure.
AsfStream* AsfStreamOpenFile(const char* path, const char* mode);
// An empty, growing memory block for writing.
AsfStream* AsfStreamCreateMem();
// A read-only block over `size` bytes of the caller's data.
AsfStream* AsfStreamOpenMem(const void* data, size_t size);
// A block that takes over `data` (from malloc) with `size` bytes in it and
// frees it with the stream.
AsfStream* AsfStreamAdoptMem(unsigned char* data, size_t size);
// Closes the file or frees the block. False when a file's close fails.
bool boAsfStreamClose(AsfStream* stream);

// Reads up to `size` bytes; returns the count. Reading past the end gives
// what is left.
size_t uAsfStreamRead(AsfStream* stream, void* data, size_t size);
// Writes `size` bytes; returns the count written, less on failure.
size_t uAsfStreamWrite(AsfStream* stream, const void* data, size_t size);
// Moves the position: `origin` 0 from the start, 1 from the position, 2 from
// the end. A memory block takes any position; reading outside gives nothing.
bool boAsfStreamSeek(AsfStream* stream, int64_t offset, int origin);
int64_t lAsfStreamTell(AsfStream* stream);
int64_t lAsfStreamSize(AsfStream* stream);
// Pushes buffered file output to the system. False on failure.
bool boAsfStreamFlush(AsfStream* stream);
