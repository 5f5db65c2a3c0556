#include "model_file/container/asf_line_reader.h"

#include <cstdlib>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace {

bool boRefill(AsfLineReader* reader) {
  reader->uReadPos = 0;
  reader->uLeft = uAsfStreamRead(reader->pStream, reader->acBuffer, kAsfReadBufferSize);
  return reader->uLeft > 0;
}

// The next byte, pending bytes first; -1 at the end of the file.
int iNextByte(AsfLineReader* reader) {
  if (reader->iPending > 0) {
    int byte = reader->acPending[0];
    reader->acPending[0] = reader->acPending[1];
    --reader->iPending;
    return byte;
  }
  if (reader->uLeft == 0 && !boRefill(reader)) return -1;
  --reader->uLeft;
  return reader->acBuffer[reader->uReadPos++];
}

void vPushPending(AsfLineReader* reader, int byte) {
  if (byte >= 0 && reader->iPending < 2) {
    reader->acPending[reader->iPending++] = static_cast<unsigned char>(byte);
  }
}

// After LF: a CR is part of the terminator, anything else is kept.
void vEndAfterLf(AsfLineReader* reader) {
  int next = iNextByte(reader);
  if (next != '\r') vPushPending(reader, next);
}

// After CR: LF and CR LF are part of the terminator. CR and anything else
// both stay pending.
void vEndAfterCr(AsfLineReader* reader) {
  int next = iNextByte(reader);
  if (next == '\n') return;
  if (next != '\r') {
    vPushPending(reader, next);
    return;
  }
  int after = iNextByte(reader);
  if (after == '\n') return;
  vPushPending(reader, '\r');
  vPushPending(reader, after);
}

// Copies bytes of the buffer up to a terminator, the end of the buffer or the
// capacity, whichever comes first.
void vCopyRun(AsfLineReader* reader, char* dest, size_t capacity, size_t* length) {
  const unsigned char* source = reader->acBuffer + reader->uReadPos;
  size_t room = capacity - *length;
  size_t available = reader->uLeft < room ? reader->uLeft : room;
  size_t count = 0;
  while (count < available && source[count] != '\r' && source[count] != '\n') ++count;
  memcpy(dest + *length, source, count);
  *length += count;
  reader->uReadPos += count;
  reader->uLeft -= count;
}

// The index of the first CR or LF among the `count` bytes at `data`, or
// `count` when there is none. Blocks of 16 bytes may read up to 15 bytes
// behind the count, which the buffer's slack holds.
size_t uFindLineEnd(const unsigned char* data, size_t count) {
#if defined(__SSE2__)
  const __m128i cr = _mm_set1_epi8('\r');
  const __m128i lf = _mm_set1_epi8('\n');
  for (size_t at = 0; at < count; at += 16) {
    __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(data + at));
    __m128i ends = _mm_or_si128(_mm_cmpeq_epi8(block, cr), _mm_cmpeq_epi8(block, lf));
    unsigned mask = static_cast<unsigned>(_mm_movemask_epi8(ends));
    if (mask != 0) {
      size_t found = at + static_cast<size_t>(__builtin_ctz(mask));
      return found < count ? found : count;
    }
  }
  return count;
#else
  size_t at = 0;
  while (at < count && data[at] != '\r' && data[at] != '\n') ++at;
  return at;
#endif
}

// The length of the terminator whose first byte is at `end`, with at least
// two bytes behind it in the buffer; 0 for CR CR without LF, which leaves
// bytes pending and is left to the byte-wise reading.
size_t uTerminatorLength(const unsigned char* end) {
  if (end[0] == '\n') return end[1] == '\r' ? 2 : 1;
  if (end[1] == '\n') return 2;
  if (end[1] != '\r') return 1;
  return end[2] == '\n' ? 3 : 0;
}

}  // namespace

AsfLineReader* AsfLineReaderCreate(AsfStream* stream) {
  if (!stream) return nullptr;
  AsfLineReader* reader = static_cast<AsfLineReader*>(calloc(1, sizeof(AsfLineReader)));
  if (reader) reader->pStream = stream;
  return reader;
}

void vAsfLineReaderDelete(AsfLineReader* reader) { free(reader); }

int iAsfLineRead(AsfLineReader* reader, char* dest, size_t capacity, size_t* outLength) {
  size_t length = 0;
  if (outLength) *outLength = 0;
  if (!reader || !dest) return kAsfLineEnd;
  if (reader->iPending > 0 && reader->acPending[0] == '\r') {
    // The CR of a CR CR pair that was not followed by LF: an empty line that
    // does not count.
    iNextByte(reader);
    vEndAfterCr(reader);
    dest[0] = 0;
    return kAsfLineComplete;
  }
  for (;;) {
    if (reader->iPending == 0 && reader->uLeft > 0) vCopyRun(reader, dest, capacity, &length);
    if (outLength) *outLength = length;
    if (length == capacity) return kAsfLineFilled;
    int byte = iNextByte(reader);
    if (byte < 0) {
      dest[length] = 0;
      // A last line without terminator is complete, but not counted.
      return length == 0 ? kAsfLineEnd : kAsfLineComplete;
    }
    if (byte == '\n' || byte == '\r') {
      dest[length] = 0;
      if (byte == '\n') {
        vEndAfterLf(reader);
      } else {
        vEndAfterCr(reader);
      }
      ++reader->iLine;
      return kAsfLineComplete;
    }
    dest[length++] = static_cast<char>(byte);
  }
}

bool boAsfLineReadBounded(AsfLineReader* reader, char* dest, size_t size) {
  if (!reader || !dest || size == 0) return false;
  int result = iAsfLineRead(reader, dest, size - 1, nullptr);
  if (result == kAsfLineComplete) return true;
  if (result == kAsfLineEnd) return false;
  dest[size - 1] = 0;
  ++reader->iLine;
  // The rest of the line is lost, up to and with the next LF.
  while (reader->iPending > 0) {
    if (iNextByte(reader) == '\n') return true;
  }
  for (;;) {
    if (reader->uLeft == 0 && !boRefill(reader)) return true;
    const unsigned char* source = reader->acBuffer + reader->uReadPos;
    const void* lf = memchr(source, '\n', reader->uLeft);
    if (lf) {
      size_t skipped = static_cast<size_t>(static_cast<const unsigned char*>(lf) - source) + 1;
      reader->uReadPos += skipped;
      reader->uLeft -= skipped;
      return true;
    }
    reader->uReadPos += reader->uLeft;
    reader->uLeft = 0;
  }
}

const char* sAsfLineReadInPlace(AsfLineReader* reader, char* fallback, size_t size) {
  if (reader && fallback && size >= 2 && reader->iPending == 0) {
    unsigned char* start = reader->acBuffer + reader->uReadPos;
    size_t left = reader->uLeft;
    size_t at = uFindLineEnd(start, left < size ? left : size);
    size_t ending = at + 2 < left && at < size - 1 ? uTerminatorLength(start + at) : 0;
    if (ending > 0) {
      start[at] = 0;
      reader->uReadPos += at + ending;
      reader->uLeft -= at + ending;
      ++reader->iLine;
      return reinterpret_cast<const char*>(start);
    }
  }
  return boAsfLineReadBounded(reader, fallback, size) ? fallback : nullptr;
}

bool boAsfLineRewind(AsfLineReader* reader) {
  if (!reader || !boAsfStreamSeek(reader->pStream, 0, 0)) return false;
  reader->uLeft = 0;
  reader->uReadPos = 0;
  reader->iPending = 0;
  reader->iLine = 0;
  return true;
}

bool boAsfLineGoTo(AsfLineReader* reader, int32_t line) {
  if (!reader || line < 0) return false;
  if (line == reader->iLine) return true;
  if (line < reader->iLine && !boAsfLineRewind(reader)) return false;
  char scratch[10];
  while (reader->iLine < line) {
    if (iAsfLineRead(reader, scratch, sizeof scratch - 1, nullptr) == kAsfLineEnd) return false;
  }
  return true;
}
