// The pool: the general allocator for long-lived small objects.
//
// A pool is a chain of zeroed chunks that is handed out front to back. It
// never frees a single block; lists that give an element back only count its
// bytes as garbage. The whole pool goes at once with vPoolDelete (or starts
// over with vPoolRelease), which is what makes tearing down a large model
// cheap: one release per chunk, no header per block.
#pragma once

#include <cstdint>
#include <mutex>

// The header in front of each chunk's data.
struct PoolChunk {
  PoolChunk* next;  // next chunk, null at the end
  uint64_t size;    // bytes of data behind the header
};
static_assert(sizeof(PoolChunk) == 16, "the chunk header is two words");

// A plain structure embedded in its owner; vPoolInit makes it ready.
struct Pool {
  PoolChunk* first;    // head of the chunk chain; new chunks go to its end
  uint64_t chunkSize;  // default data size of a new chunk
  uint64_t left;       // bytes not yet handed out in `current`
  PoolChunk* current;  // the chunk being handed out; always the last one
  uint64_t garbage;    // bytes that lists gave back; counted, never reused
  std::mutex* lock;    // made on the first allocation, null until then
};

// Empties the structure and stores the chunk size. Takes no memory.
void vPoolInit(Pool* pool, uint64_t chunkSize);

// A block of `size` bytes (rounded up to 8), zeroed and 8-aligned, or null
// when memory is exhausted. Safe for concurrent callers.
void* pPoolAlloc(Pool* pool, uint64_t size);

// With `from` null: keeps only the first chunk, zeroed, and hands out from
// its beginning again; garbage goes back to 0. With `from` given: gives back
// the tail of the current chunk from that address on. An address outside the
// current chunk is ignored.
void vPoolRelease(Pool* pool, void* from);

// Frees every chunk and the lock. The chunk size stays, so the pool can be
// used again at once.
void vPoolDelete(Pool* pool);

// The bytes that lists gave back to the pool; 0 for a null pool.
uint64_t lPoolGetGarbage(const Pool* pool);
