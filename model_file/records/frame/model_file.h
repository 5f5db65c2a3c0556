// The road model file: one container of file type "sfi" with a head of keys
// (DATAVERSION, MARKET, GUID) and one section per record family.
//
// A load empties the model and fills it from the file; a file of a later
// DATAVERSION than this program writes is refused. A save writes a complete
// file under a temporary name beside the target, flushes it to the disk and
// puts it in the target's place only when every write and the flush went
// through, so a failed save leaves the old file as it was, and after a crash
// the target is the old file or the new one, whole.
#pragma once

// The file type of a road model file.
inline constexpr const char* kRmModelFileType = "sfi";
