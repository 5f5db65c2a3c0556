// Writing a road model file: the head keys, then every record family that
// the model has something for, in the order of the family table.
#pragma once

struct AsfFile;
struct RmModel;

// Writes the model into a new container handle (on disk or in memory): file
// type, head keys, the sections that the model has something for, the head
// and the bodies. False when a write failed.
bool boRmModelWriteFile(AsfFile* file, const RmModel* model);

// Writes the complete file at `path`. True only when every write, the end of
// the file included, went through.
bool boRmModelWrite(const RmModel* model, const char* path);
