// Saving a road model file without ever putting a partly written file in
// the place of a good one: the model is written under a temporary "$$$_"
// name, and only a complete file, flushed to the disk, takes the target's
// place. After a crash or a power cut the target is the old file or the new
// one, whole.
#pragma once

struct AsfFile;
struct RmModel;

// Saves under `path`, which becomes the model's file name, or under the
// model's file name when `path` is null. On success the model is no longer
// dirty and FileTime is the file's write time.
bool boRmModelSave(RmModel* model, const char* path);
