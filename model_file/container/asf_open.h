// Opening a handle over a stream, for the ways in which a container is read:
// a file, a caller's block of memory, or the clipboard's bytes.
#pragma once

#include "model_file/container/asf_handle.h"

// Reads the head of the container in `stream`, which the handle takes over
// (it is closed on failure too). `path` is the name that the handle shows.
// With `checkTail` a file in the current format must end in "[END]".
AsfFile* AsfFileOpenStream(AsfStream* stream, const char* path, bool checkTail);
