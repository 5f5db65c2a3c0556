#include "model_file/container/asf_stream.h"

#include <cstdlib>
#include <cstring>

namespace {

// Large files need the 64-bit forms of the stdio seek functions.
int iSeekFile(FILE* file, int64_t offset, int origin) {
#if defined(_WIN32)
  return _fseeki64(file, offset, origin);
#else
  return fseeko(file, static_cast<off_t>(offset), origin);
#endif
}

int64_t lTellFile(FILE* file) {
#if defined(_WIN32)
  return _ftelli64(file);
#else
  return static_cast<int64_t>(ftello(file));
#endif
}

int iStdioOrigin(int origin) {
  if (origin == 1) return SEEK_CUR;
  if (origin == 2) return SEEK_END;
  return SEEK_SET;
}

AsfStream* NewMemStream(unsigned char* data, size_t step, size_t capacity, size_t length) {
  AsfStream* stream = static_cast<AsfStream*>(calloc(1, sizeof(AsfStream)));
  AsfMemBlock* block = static_cast<AsfMemBlock*>(calloc(1, sizeof(AsfMemBlock)));
  if (!stream || !block) {
    free(stream);
    free(block);
    return nullptr;
  }
  block->uStep = step;
  block->uCapacity = capacity;
  block->uLength = length;
  block->pData = data;
  stream->pMem = block;
  return stream;
}

// Grows a writable block until it holds `need` bytes: the step grows by half
// of itself, then is added to the capacity as often as it takes.
bool boGrowMem(AsfMemBlock* block, size_t need) {
  if (need <= block->uCapacity) return true;
  if (block->uStep == 0) return false;
  size_t step = block->uStep + block->uStep / 2;
  size_t capacity = block->uCapacity;
  while (capacity < need) {
    if (capacity > SIZE_MAX - step) return false;
    capacity += step;
  }
  unsigned char* data = static_cast<unsigned char*>(realloc(block->pData, capacity));
  if (!data) return false;
  block->pData = data;
  block->uCapacity = capacity;
  block->uStep = step;
  return true;
}

size_t uMemRead(AsfMemBlock* block, void* data, size_t size) {
  if (block->lPos < 0 || static_cast<uint64_t>(block->lPos) >= block->uLength) return 0;
  size_t pos = static_cast<size_t>(block->lPos);
  size_t count = block->uLength - pos;
  if (count > size) count = size;
  memcpy(data, block->pData + pos, count);
  block->lPos += static_cast<int64_t>(count);
  return count;
}

size_t uMemWrite(AsfMemBlock* block, const void* data, size_t size) {
  if (block->uStep == 0 || block->lPos < 0) return 0;
  size_t pos = static_cast<size_t>(block->lPos);
  if (pos > SIZE_MAX - size) return 0;
  size_t end = pos + size;
  if (!boGrowMem(block, end)) return 0;
  // A write behind the end leaves zeroes in the gap.
  if (pos > block->uLength) memset(block->pData + block->uLength, 0, pos - block->uLength);
  if (size) memcpy(block->pData + pos, data, size);
  block->lPos = static_cast<int64_t>(end);
  if (end > block->uLength) block->uLength = end;
  return size;
}

}  // namespace

AsfStream* AsfStreamOpenFile(const char* path, const char* mode) {
  if (!path || !mode) return nullptr;
  FILE* file = fopen(path, mode);
  if (!file) return nullptr;
  AsfStream* stream = static_cast<AsfStream*>(calloc(1, sizeof(AsfStream)));
  if (!stream) {
    fclose(file);
    return nullptr;
  }
  stream->pFile = file;
  return stream;
}

AsfStream* AsfStreamCreateMem() {
  unsigned char* data = static_cast<unsigned char*>(malloc(kAsfMemStep));
  if (!data) return nullptr;
  AsfStream* stream = NewMemStream(data, kAsfMemStep, kAsfMemStep, 0);
  if (!stream) free(data);
  return stream;
}

AsfStream* AsfStreamOpenMem(const void* data, size_t size) {
  if (!data) size = 0;
  return NewMemStream(static_cast<unsigned char*>(const_cast<void*>(data)), 0, size, size);
}

AsfStream* AsfStreamAdoptMem(unsigned char* data, size_t size) {
  if (!data) return nullptr;
  // A step above 0 makes the block the stream's own.
  return NewMemStream(data, size ? size : 1, size, size);
}

bool boAsfStreamClose(AsfStream* stream) {
  if (!stream) return true;
  bool ok = true;
  if (stream->pFile) ok = fclose(stream->pFile) == 0;
  if (stream->pMem) {
    if (stream->pMem->uStep != 0) free(stream->pMem->pData);
    free(stream->pMem);
  }
  free(stream);
  return ok;
}

size_t uAsfStreamRead(AsfStream* stream, void* data, size_t size) {
  if (!stream || !data || size == 0) return 0;
  if (stream->pMem) return uMemRead(stream->pMem, data, size);
  return fread(data, 1, size, stream->pFile);
}

size_t uAsfStreamWrite(AsfStream* stream, const void* data, size_t size) {
  if (!stream || (!data && size)) return 0;
  if (size == 0) return 0;
  if (stream->pMem) return uMemWrite(stream->pMem, data, size);
  return fwrite(data, 1, size, stream->pFile);
}

bool boAsfStreamSeek(AsfStream* stream, int64_t offset, int origin) {
  if (!stream) return false;
  if (stream->pFile) return iSeekFile(stream->pFile, offset, iStdioOrigin(origin)) == 0;
  AsfMemBlock* block = stream->pMem;
  int64_t base = 0;
  if (origin == 1) base = block->lPos;
  if (origin == 2) base = static_cast<int64_t>(block->uLength);
  int64_t pos = 0;
  if (__builtin_add_overflow(base, offset, &pos)) return false;
  block->lPos = pos;
  return true;
}

int64_t lAsfStreamTell(AsfStream* stream) {
  if (!stream) return -1;
  if (stream->pFile) return lTellFile(stream->pFile);
  return stream->pMem->lPos;
}

int64_t lAsfStreamSize(AsfStream* stream) {
  if (!stream) return -1;
  if (stream->pMem) return static_cast<int64_t>(stream->pMem->uLength);
  int64_t pos = lTellFile(stream->pFile);
  if (pos < 0 || iSeekFile(stream->pFile, 0, SEEK_END) != 0) return -1;
  int64_t size = lTellFile(stream->pFile);
  if (iSeekFile(stream->pFile, pos, SEEK_SET) != 0) return -1;
  return size;
}

bool boAsfStreamFlush(AsfStream* stream) {
  if (!stream || !stream->pFile) return true;
  return fflush(stream->pFile) == 0;
}
