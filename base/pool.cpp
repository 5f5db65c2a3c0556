#include "base/pool.h"

#include <atomic>
#include <cstdlib>
#include <cstring>
#include <new>

#include "base/messages.h"

namespace {

constexpr uint64_t kChunkHeaderSize = sizeof(PoolChunk);

char* pChunkData(PoolChunk* chunk) { return reinterpret_cast<char*>(chunk) + kChunkHeaderSize; }

// Frees `chunk` and every chunk behind it.
void vFreeChunks(PoolChunk* chunk) {
  while (chunk) {
    PoolChunk* next = chunk->next;
    std::free(chunk);
    chunk = next;
  }
}

// The pool's lock, made by the first caller that needs it. Two threads that
// make it at the same moment agree on one through the exchange; the loser
// throws its own away.
std::mutex* pPoolLock(Pool* pool) {
  std::atomic_ref<std::mutex*> lock(pool->lock);
  std::mutex* existing = lock.load(std::memory_order_acquire);
  if (existing) return existing;
  std::mutex* made = new (std::nothrow) std::mutex;
  if (!made) return nullptr;
  if (lock.compare_exchange_strong(existing, made, std::memory_order_acq_rel)) return made;
  delete made;
  return existing;
}

}  // namespace

void vPoolInit(Pool* pool, uint64_t chunkSize) {
  if (!pool) return;
  pool->first = nullptr;
  pool->chunkSize = chunkSize;
  pool->left = 0;
  pool->current = nullptr;
  pool->garbage = 0;
  pool->lock = nullptr;
}

void* pPoolAlloc(Pool* pool, uint64_t size) {
  if (!pool) return nullptr;
  uint64_t rounded = (size + 7) & ~uint64_t{7};
  std::mutex* lock = pPoolLock(pool);
  if (!lock) return nullptr;
  std::lock_guard<std::mutex> hold(*lock);

  // A request of 0 bytes on a pool without a chunk also makes one, so that
  // there is always somewhere to point.
  if (rounded > pool->left || !pool->current) {
    pool->left = 0;  // the rest of the old chunk is abandoned
    uint64_t dataSize = rounded > pool->chunkSize ? rounded : pool->chunkSize;
    auto* chunk = static_cast<PoolChunk*>(std::calloc(1, kChunkHeaderSize + dataSize));
    if (!chunk) return nullptr;
    chunk->size = dataSize;
    // The current chunk is always the last of the chain.
    if (pool->current)
      pool->current->next = chunk;
    else
      pool->first = chunk;
    pool->current = chunk;
    pool->left = dataSize;
  }
  char* block = pChunkData(pool->current) + (pool->current->size - pool->left);
  pool->left -= rounded;
  return block;
}

void vPoolRelease(Pool* pool, void* from) {
  if (!pool) return;
  if (!from) {
    PoolChunk* first = pool->first;
    if (!first) return;
    vFreeChunks(first->next);
    first->next = nullptr;
    std::memset(pChunkData(first), 0, first->size);
    pool->current = first;
    pool->left = first->size;
    pool->garbage = 0;
    return;
  }

  PoolChunk* current = pool->current;
  if (!current) return;
  char* data = pChunkData(current);
  char* end = data + current->size;
  char* tail = static_cast<char*>(from);
  // Only the current chunk's tail can be given back; an address in an
  // earlier chunk or elsewhere is ignored.
  if (tail < data || tail > end) return;
  if (tail == end) {
    // The address stands just behind the data: no chunk holds it.
    vMessageError("Free too much of pool tail?");
    return;
  }
  pool->left = static_cast<uint64_t>(end - tail);
  std::memset(tail, 0, pool->left);
}

void vPoolDelete(Pool* pool) {
  if (!pool) return;
  vFreeChunks(pool->first);
  pool->first = nullptr;
  pool->left = 0;
  pool->current = nullptr;
  pool->garbage = 0;
  delete pool->lock;
  pool->lock = nullptr;
}

uint64_t lPoolGetGarbage(const Pool* pool) { return pool ? pool->garbage : 0; }
