#include "base/temp_text.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <mutex>

namespace {

struct TempRing {
  std::mutex lock;
  char* buffer = nullptr;
  size_t capacity = 0;
  size_t position = 0;

  ~TempRing() { release(); }

  void release() {
    std::lock_guard<std::mutex> hold(lock);
    std::free(buffer);
    buffer = nullptr;
    capacity = 0;
    position = 0;
  }
};

TempRing& ring() {
  static TempRing theRing;
  return theRing;
}

thread_local char formatBuffer[kFormatBufferSize];

}  // namespace

void* pTempAlloc(size_t size) {
  TempRing& r = ring();
  std::lock_guard<std::mutex> hold(r.lock);
  if (!r.buffer) {
    r.buffer = static_cast<char*>(std::malloc(kTempRingCapacity));
    if (!r.buffer) return nullptr;
    r.capacity = kTempRingCapacity;
    r.position = 0;
  }
  if (size > r.capacity) {
    char* grown = static_cast<char*>(std::realloc(r.buffer, size + 512));
    if (!grown) return nullptr;
    r.buffer = grown;
    r.capacity = size + 512;
    r.position = 0;
  }
  if (r.position + size >= r.capacity) r.position = 0;
  char* block = r.buffer + r.position;
  r.position += size;
  return block;
}

char* sTempCopy(const char* text) {
  if (!text) text = "";
  size_t size = std::strlen(text) + 1;
  char* copy = static_cast<char*>(pTempAlloc(size));
  if (copy) std::memcpy(copy, text, size);
  return copy;
}

char* sFormat(const char* format, ...) {
  formatBuffer[0] = 0;
  if (!format) return formatBuffer;
  va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(formatBuffer, kFormatBufferSize, format, arguments);
  va_end(arguments);
  formatBuffer[kFormatBufferSize - 1] = 0;
  return formatBuffer;
}

size_t uTempRingCapacity() {
  std::lock_guard<std::mutex> hold(ring().lock);
  return ring().capacity;
}

size_t uTempRingPosition() {
  std::lock_guard<std::mutex> hold(ring().lock);
  return ring().position;
}

void vTempRingRelease() { ring().release(); }
