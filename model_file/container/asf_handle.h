// The container's handle and section records, for the files of the container
// and its object records. Callers outside use asf_file.h.
#pragma once

#include <cstddef>
#include <cstdint>

#include "model_file/container/asf_file.h"
#include "model_file/container/asf_line_reader.h"
#include "model_file/container/asf_object_callbacks.h"
#include "model_file/container/asf_stream.h"

// The write buffer of a file handle. Small enough that a failing disk shows
// while a section is being written, large enough for few stream writes.
inline constexpr size_t kAsfWriteBufferSize = 65536;

// The value of a field that has none. Every empty field points at this one
// text, which is never freed.
inline constexpr char kAsfEmptyText[] = "";

inline constexpr size_t kAsfGuidSize = 47;   // 46 characters and a terminator
inline constexpr size_t kAsfLabelSize = 512;

// A key and its value, both owned by the list; the value may be null.
struct AsfKey {
  AsfKey* pNext;
  char* sName;
  char* sValue;
};

struct AsfKeyList {
  AsfKey* pFirst;
  AsfKey* pLast;
};

// A field name (owned) and the value of the object read last, which points
// into the handle's field value store or at kAsfEmptyText.
struct AsfField {
  AsfField* pNext;
  char* sName;
  const char* sValue;
};

struct AsfFieldList {
  AsfField* pFirst;
  AsfField* pLast;
};

// A field whose value is copied into a caller's buffer with every object.
struct AsfFieldBinding {
  char* sName;
  char* pBuffer;
  size_t uSize;
};

struct AsfSection {
  AsfSection* pNext;
  char acName[kAsfSectionNameSize];
  AsfExtent extent;
  AsfKeyList keys;
  AsfFieldList fields;
  AsfFieldBinding aBindings[kAsfMaxFieldBindings];
  int iBindingCount;
  int iType;
  // Lines read when the body's head line has just been read; 0 = not known.
  int32_t iLine;
  // Older format: the line of the object being read.
  int32_t iOldObjectLine;
  // Stream offset of the directory's `_EXTENT` placeholder; 0 = none.
  int64_t lPlaceholderOffset;
  bool boHeadWritten;
};

struct AsfFile {
  AsfStream* pOut;           // null on a read handle
  AsfLineReader* pReader;    // null on a write handle; owns its stream
  char acPath[kAsfPathSize];
  char acType[kAsfFileTypeSize];
  int32_t iVersion;
  AsfExtent extent;
  int64_t lExtentOffset;     // the file's `_EXTENT` placeholder; 0 = none

  // Reading filter: the extent, the same rounded outward, and a pointer that
  // is null when no filter is set.
  AsfExtent filterExtent;
  int32_t aiFilter[4];
  const AsfExtent* pFilter;

  AsfKeyList keys;
  AsfSection* pFirstSection;
  AsfSection* pLastSection;

  void* pReadDatum;
  AsfElmReadCallback pfnElmRead;
  AsfFieldCallback pfnField;
  void* pFieldDatum;
  AsfElmDataCallback pfnElmData;
  void* pElmDatum;
  int iFieldIterator;

  bool boOldFormat;
  bool boCurrentFormat;
  bool boBinary;             // no operation sets it

  // The record being read.
  bool boFixedHeight;
  double dFixedHeight;
  bool bo3D;
  bool boAsPolygon;
  double dRotation;          // radians
  int32_t iAlign;
  char acLabel[kAsfLabelSize];
  double adPoint[3];
  bool boOldPolygon;

  // The line buffer and a spare word for the terminator behind a full line.
  char acLine[kAsfLineSize + 4];

  // The joined field values of the record being read.
  char* pFieldStore;
  size_t uFieldStoreCapacity;
  size_t uFieldStoreUsed;

  char acGuid[kAsfGuidSize];

  int32_t iPendingType;
  int32_t iPointCount;
  int32_t iTriangleCount;
  bool boPoints2;
  double dOffsetNorth;
  double dOffsetEast;
  // The reader's line number just behind a ":" or "[" line (or the first
  // element line of an older record) that ended what was read last and waits
  // in the line buffer for the next read; 0 when none waits.
  int32_t iHeldLine;

  // Bytes written to a file handle that wait for the stream, in blocks of
  // kAsfWriteBufferSize: one stream write for many lines. Null on read and
  // memory handles (and when there was no memory for it), which write through.
  unsigned char* pOutBuffer;
  size_t uOutUsed;

  int32_t iWriteFailed;      // sticky
  bool boFinished;           // "[END]" is written
};

// Copies `text` into `out` of `size` bytes, cut and terminated.
void vAsfCopyText(char* out, size_t size, const char* text);
