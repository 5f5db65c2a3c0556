// Loading a road model file: the check of the file, the head keys, the
// sections in the order of the record families, and the steps of the
// DATAVERSION history.
#pragma once

struct AsfFile;
struct RmModel;

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
