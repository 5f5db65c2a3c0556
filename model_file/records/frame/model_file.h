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

struct AsfFile;
struct RmModel;

// The file type of a road model file.
inline constexpr const char* kRmModelFileType = "sfi";

// ---- Loading ----

// Opens `path` (made absolute against the current directory) and checks it
// with boRmModelFileAccepted. The open file, or null.
AsfFile* RmModelOpenFile(RmModel* model, const char* path);

// Whether an open container is a model file that this program can read: of
// file type "sfi" (in any case) and of a DATAVERSION below 14. A later
// version is reported with its path in a message box.
bool boRmModelFileAccepted(AsfFile* file, const char* path);

// Empties the model (keeping its GUID) and fills it from the open file, which
// `path` names: the head keys, then every section that the file holds.
void vRmModelRead(AsfFile* file, RmModel* model, const char* path);

// Opens, checks, reads and closes. False, with the model unchanged, when the
// file is missing, cannot be read as a container, is of another type or is
// too new.
bool boRmModelLoad(RmModel* model, const char* path);

// A function that a host may have called with every model that was loaded;
// null (the start) for none.
using RmModelLoadCallback = void (*)(RmModel* model);
void vRmModelSetLoadCallback(RmModelLoadCallback callback);

// ---- Writing ----

// Writes the model into a new container handle (on disk or in memory): file
// type, head keys, the sections that the model has something for, the head
// and the bodies. False when a write failed.
bool boRmModelWriteFile(AsfFile* file, const RmModel* model);

// Writes the complete file at `path`. True only when every write, the end of
// the file included, went through.
bool boRmModelWrite(const RmModel* model, const char* path);

// Saves under `path`, which becomes the model's file name, or under the
// model's file name when `path` is null. On success the model is no longer
// dirty and FileTime is the file's write time.
bool boRmModelSave(RmModel* model, const char* path);
