// The import behind its catch-all: nothing that the import throws passes it.
#pragma once

#include <cstdint>

struct RmModel;

// iVipsImport with the same arguments. When an exception comes out of it,
// the message box says "Unknown error importing file: " with `genFile`
// behind it, and the result is -1; the log keeps what was written so far.
int iVipsImportGuarded(const char* genFile, RmModel* model, uint32_t importFlags,
                       char** logFileOut, uint32_t describeOpenError, uint32_t convertFirst);
