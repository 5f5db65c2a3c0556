#include "model_file/container/asf_file.h"

#include <cstdlib>
#include <cstring>

#include "base/messages.h"
#include "base/temp_text.h"
#include "model_file/container/asf_extent.h"
#include "model_file/container/asf_handle.h"
#include "model_file/container/asf_head_reader.h"
#include "model_file/container/asf_keys_fields.h"
#include "model_file/container/asf_old_reader.h"
#include "model_file/container/asf_open.h"
#include "model_file/container/asf_sections.h"
#include "model_file/container/asf_writer.h"

namespace {

// The first line of a file is read into a buffer of this size.
constexpr size_t kFirstLineSize = 512;

AsfFile* NewHandle(const char* path) {
  AsfFile* file = static_cast<AsfFile*>(calloc(1, sizeof(AsfFile)));
  if (!file) return nullptr;
  vAsfCopyText(file->acPath, sizeof file->acPath, path);
  vAsfExtentSetEmpty(&file->extent);
  return file;
}

void vFreeHandle(AsfFile* file) {
  if (file->pReader) {
    boAsfStreamClose(file->pReader->pStream);
    vAsfLineReaderDelete(file->pReader);
  }
  // Bytes written after the finish still go out, as they did unbuffered.
  if (file->pOut) boAsfWriteFlush(file);
  if (file->pOut && !boAsfStreamClose(file->pOut)) file->iWriteFailed = 1;
  free(file->pOutBuffer);
  vAsfKeyListClear(&file->keys);
  vAsfSectionsClear(file);
  free(file->pFieldStore);
  free(file);
}

// Reads the first line and, after it, the head of the format that it names.
bool boReadHead(AsfFile* file, bool checkTail) {
  char first[kFirstLineSize];
  if (!boAsfLineReadBounded(file->pReader, first, sizeof first)) return false;
  if (strncmp(first, "[HEAD]", 6) == 0) {
    file->boOldFormat = true;
    return boAsfReadOldHead(file);
  }
  if (strncmp(first, "[KVRFILE_ASCII]", 15) != 0) return false;
  file->boCurrentFormat = true;
  if (!boAsfReadCurrentHead(file)) return false;
  // A file that does not end in "[END]" was cut short.
  return !checkTail || boAsfTailIsEnd(file);
}

// The stream that a handle writes to or reads from.
AsfStream* StreamOf(const AsfFile* file) {
  if (!file) return nullptr;
  if (file->pOut) return file->pOut;
  return file->pReader ? file->pReader->pStream : nullptr;
}

}  // namespace

AsfFile* AsfFileOpenStream(AsfStream* stream, const char* path, bool checkTail) {
  if (!stream) return nullptr;
  AsfFile* file = NewHandle(path);
  AsfLineReader* reader = AsfLineReaderCreate(stream);
  if (!file || !reader) {
    free(file);
    vAsfLineReaderDelete(reader);
    boAsfStreamClose(stream);
    return nullptr;
  }
  file->pReader = reader;
  if (!boReadHead(file, checkTail)) {
    vFreeHandle(file);
    return nullptr;
  }
  return file;
}

AsfFile* AsfFileCreate(const char* path) {
  AsfStream* stream = path ? AsfStreamOpenFile(path, "wb") : AsfStreamCreateMem();
  AsfFile* file = stream ? NewHandle(path ? path : "ClipBoard") : nullptr;
  if (!file) {
    boAsfStreamClose(stream);
    vMessageWarn(sFormat("Error creating:\n%s", path ? path : "ClipBoard"));
    return nullptr;
  }
  file->pOut = stream;
  // A file gets its lines in blocks; without memory for the block it gets
  // them one by one.
  if (stream->pFile) {
    file->pOutBuffer = static_cast<unsigned char*>(malloc(kAsfWriteBufferSize));
  }
  file->iVersion = 2;
  file->boCurrentFormat = true;
  return file;
}

AsfFile* AsfFileOpen(const char* path) {
  return AsfFileOpenStream(AsfStreamOpenFile(path, "rb"), path, true);
}

AsfFile* AsfFileOpenMem(const void* data, size_t size) {
  return AsfFileOpenStream(AsfStreamOpenMem(data, size), "mem", false);
}

void vAsfFileClose(AsfFile* file) {
  if (!file) return;
  if (file->pOut) boAsfFileFinish(file);
  vFreeHandle(file);
}

void vAsfFileSetType(AsfFile* file, const char* type) {
  if (file) vAsfCopyText(file->acType, sizeof file->acType, type);
}

const char* sAsfFileGetType(const AsfFile* file) { return file ? file->acType : kAsfEmptyText; }

int iAsfFileGetVersion(const AsfFile* file) { return file ? file->iVersion : 0; }

bool boAsfFileWriteFailed(const AsfFile* file) { return file && file->iWriteFailed != 0; }

bool boAsfMemGet(const AsfFile* file, const char** outData, size_t* outSize) {
  if (outData) *outData = nullptr;
  if (outSize) *outSize = 0;
  if (!file || !file->pOut || !file->pOut->pMem) return false;
  if (outData) *outData = reinterpret_cast<const char*>(file->pOut->pMem->pData);
  if (outSize) *outSize = file->pOut->pMem->uLength;
  return true;
}

int64_t lAsfStreamLength(const AsfFile* file) {
  int64_t size = lAsfStreamSize(StreamOf(file));
  // A writer appends at the end, where the waiting bytes go.
  if (size >= 0 && file->pOut) size += static_cast<int64_t>(file->uOutUsed);
  return size;
}

int64_t lAsfStreamPos(const AsfFile* file) {
  if (file && file->pOut) return lAsfWritePos(file);
  return lAsfStreamTell(StreamOf(file));
}

void vAsfExtentSet(AsfFile* file, AsfSection* section, const AsfExtent* extent) {
  if (!file) return;
  AsfExtent* target = section ? &section->extent : &file->extent;
  if (extent) {
    *target = *extent;
  } else {
    vAsfExtentSetEmpty(target);
  }
}

const AsfExtent* AsfExtentGet(const AsfFile* file, const AsfSection* section) {
  if (section) return &section->extent;
  return file ? &file->extent : nullptr;
}

void vAsfFilterSet(AsfFile* file, const AsfExtent* extent) {
  if (!file) return;
  if (!extent) {
    file->pFilter = nullptr;
    return;
  }
  file->filterExtent = *extent;
  vAsfExtentRoundOut(*extent, file->aiFilter);
  file->pFilter = &file->filterExtent;
}
