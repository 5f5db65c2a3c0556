// The conductor of an import: the log, the external converter, the design,
// and the readers of the design in their fixed order.
#pragma once

#include <cstdint>

struct RmModel;

// What `importFlags` asks for, bit by bit.
inline constexpr uint32_t kVipsImportHorizontal = 1;       // plan geometry of the main alignment
inline constexpr uint32_t kVipsImportVertical = 2;         // its profile, elevation differences
inline constexpr uint32_t kVipsImportTables = 4;           // every table and the sections
inline constexpr uint32_t kVipsImportExtraAlignments = 8;  // the other alignments
// All of it, into a model that is reset first.
inline constexpr uint32_t kVipsImportFull = 65535;

// Imports the design `genFile` into `model`, which is changed in place.
//
// Opens the log beside the design, runs the external converter first when
// `convertFirst` is set, opens the design and reads what `importFlags` asks
// for. An open error is logged with its English text when
// `describeOpenError` is set. Returns 0, or -1 when `model` is null (then no
// log is made), the converter failed or the design could not be opened.
// However the import ends, an exception included, `*logFileOut` receives
// the log's path as a temporary text (empty when no log was made) and the
// log is closed.
int iVipsImport(const char* genFile, RmModel* model, uint32_t importFlags, char** logFileOut,
                uint32_t describeOpenError, uint32_t convertFirst);
