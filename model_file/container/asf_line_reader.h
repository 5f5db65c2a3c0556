// Line reading over an AsfStream, through one 262,144-byte buffer. Lines
// that the buffer holds whole are handed out in place, without a copy.
//
// A line ends at CR or LF. The terminators taken are LF, LF CR, CR, CR LF and
// CR CR LF. After CR CR and another byte the two bytes stay pending, and the
// line that the pending CR ends reads as empty without counting: files in
// the wild read that way, and line numbers stored by earlier reads rely on
// the same count.
//
// Line numbers count completed lines: 0 at the start of the file.
#pragma once

#include <cstddef>
#include <cstdint>

#include "model_file/container/asf_stream.h"

inline constexpr size_t kAsfReadBufferSize = 262144;
// Bytes behind the buffer that the search for a line end may read in blocks.
inline constexpr size_t kAsfReadBufferSlack = 16;

struct AsfLineReader {
  AsfStream* pStream;
  int iPending;
  unsigned char acPending[2];
  size_t uLeft;
  size_t uReadPos;
  int32_t iLine;
  unsigned char acBuffer[kAsfReadBufferSize + kAsfReadBufferSlack];
};

// Results of iAsfLineRead.
enum : int {
  kAsfLineComplete = 0,  // a whole line, terminated
  kAsfLineFilled = 1,    // `capacity` bytes, no terminator, the line goes on
  kAsfLineEnd = 2,       // end of the file, nothing read
};

// A reader at the start of `stream`, which it does not own; null when out of
// memory.
AsfLineReader* AsfLineReaderCreate(AsfStream* stream);
void vAsfLineReaderDelete(AsfLineReader* reader);

// Reads up to `capacity` bytes of a line into `dest`, which must hold
// capacity + 1 bytes. With kAsfLineComplete the text is terminated and the
// line counted, except a line cut by the end of the file, which is complete
// but not counted, and the empty line ended by a pending CR. With
// kAsfLineFilled `dest` holds `capacity` bytes without a terminator and the
// next call goes on with the same line. `outLength`, when given, receives the
// bytes stored.
int iAsfLineRead(AsfLineReader* reader, char* dest, size_t capacity, size_t* outLength);

// Reads a line into `dest` of `size` bytes. A longer line is cut to size - 1
// bytes, and the rest of it is skipped up to and with the next LF. False at
// the end of the file.
bool boAsfLineReadBounded(AsfLineReader* reader, char* dest, size_t size);

// Reads the same line as boAsfLineReadBounded, with `fallback` of `size`
// bytes, and returns it; null at the end of the file. When the buffer holds
// the whole line, shorter than size - 1, and the bytes that decide its
// terminator, the line is left where it stands: its first terminator byte
// becomes 0 and the result points into the buffer, valid until the next read
// or move. Any other line is read into `fallback`, which the result then is.
const char* sAsfLineReadInPlace(AsfLineReader* reader, char* fallback, size_t size);

// Moves to the point where `line` lines have been read: forward by reading,
// backward by starting again from the top. False if the file ends first.
bool boAsfLineGoTo(AsfLineReader* reader, int32_t line);

// Starts again at the top of the stream.
bool boAsfLineRewind(AsfLineReader* reader);
