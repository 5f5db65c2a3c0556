// The writer of the container: lines with CR LF, key lines with their
// escapes, the head and directory, section bodies and the finishing step.
#pragma once

#include <cstddef>
#include <cstdint>

#include "model_file/container/asf_handle.h"

// The size of the buffer in which a head key's line is put together.
inline constexpr size_t kAsfHeadKeyLineSize = 256;

// Writes bytes as they stand, through the handle's write buffer when it has
// one. A short write sets the sticky failure flag and gives false; with the
// buffer, the write that hands the buffer to the stream does.
bool boAsfWriteBytes(AsfFile* file, const void* data, size_t size);

// Hands what waits in the write buffer to the stream. A short write sets the
// failure flag, drops the bytes and gives false.
bool boAsfWriteFlush(AsfFile* file);

// The position of the next byte written: the stream's and what waits.
int64_t lAsfWritePos(const AsfFile* file);

// Writes `length` bytes of `text` (0: up to its terminator), then CR LF.
bool boAsfWriteLine(AsfFile* file, const char* text, size_t length);

// Puts "NAME value" together in `out` of `size` bytes. The name is copied
// while at least 3 bytes are left, a blank always follows, and the value is
// copied while at least 2 bytes are left; what does not fit is lost. LF in
// the value becomes backslash and n, CR is dropped. Returns the length.
size_t uAsfKeyLineFormat(char* out, size_t size, const char* name, const char* value);

// Writes the unpadded `_EXTENT` line of an extent.
bool boAsfWriteExtentLine(AsfFile* file, const AsfExtent& extent);

// Starts the section's body if that has not been done: every section in
// front of it that has not been started gets its "[+X_NAME]" head (and so an
// empty body), then the section itself. False when the section's type has no
// letter or a write fails.
bool boAsfSectionStart(AsfFile* file, AsfSection* section);
