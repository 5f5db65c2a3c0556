// Unique temporary files, made beside a file or in the system's folder for
// them. A save writes such a file first and puts it in the target's place
// only after a complete write.
#pragma once

// Makes a new, empty file with a unique name that begins with "$$$_" and
// returns its full path as a temporary text. With `useSystemFolder` false the
// file lies in the folder of `path` (the current folder for a bare name).
// With it true the file lies in the system's folder for temporary files, but
// only when vTempUseSystemFolder(true) was called; otherwise, and on any
// failure, the result is the empty text.
const char* sTempFileNear(const char* path, bool useSystemFolder);

// Allows sTempFileNear to use the system's folder. Off at start; set at
// start-up.
void vTempUseSystemFolder(bool flag);
