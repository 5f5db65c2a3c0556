// Reading a container in the older format, which opens with "[HEAD]". It is
// read, never written.
#pragma once

#include "model_file/container/asf_handle.h"

// Reads the head and scans every layer into sections, starting behind the
// first line. False when no section remains.
bool boAsfReadOldHead(AsfFile* file);
