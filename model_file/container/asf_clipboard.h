// The container over the clipboard: a copy writes a memory handle of file
// type "sfi" and hands its bytes over; a paste opens the clipboard's bytes.
#pragma once

#include "model_file/container/asf_file.h"

// A memory write handle with file type "sfi". The caller adds its sections,
// writes the head and the records, and then commits.
AsfFile* AsfClipboardCreate();

// Finishes the handle, puts its bytes on the clipboard and closes it. False,
// with the clipboard untouched, when a write failed or the handle is not a
// memory write handle; the handle is closed in any case.
bool boAsfClipboardCommit(AsfFile* file);

// Opens a copy of the clipboard's bytes for reading. Null when the clipboard
// is empty, holds 2 GiB or more, or does not hold a container of file type
// "sfi" (in any case).
AsfFile* AsfClipboardOpen();
