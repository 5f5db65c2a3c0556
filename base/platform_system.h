// What the part of the platform layer that is the same on every system
// (platform_common.cpp) asks of the system's own part (platform_posix.cpp or
// platform_windows.cpp). Only the platform layer includes this header.
#pragma once

#include <cstddef>
#include <string>

// The system's own message box, behind the process-wide message handler.
// `text` and `title` are never null.
int iPlatformSystemMessageBox(const char* text, const char* title, unsigned int type);

// The system's own flush of a file or, when `directory` holds, of the names
// in a folder (the empty text: the current folder), behind the flush handler.
bool boPlatformSystemFlush(const char* path, bool directory);

// Copies `text` with its terminator into `out` of `size` bytes. False, with
// `out` empty, when it does not fit.
bool boPlatformCopyOut(const std::string& text, char* out, size_t size);
