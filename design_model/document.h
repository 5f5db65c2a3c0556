// The design document: reading, checking and writing the JSON form of a
// design.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "design_model/design_model.h"
#include "design_model/export.h"
#include "design_model/records_design.h"

namespace NpDesignModel {

// Error codes of CDesignModel::Open.
enum : int32_t {
  kOpenDone = 0,
  kOpenNotReadable = -2,    // the file cannot be opened or read
  kOpenIllegal = -3,        // not a valid design document
  kOpenVersionTooNew = -4,  // a format version newer than this library reads
};

// The format version that this library reads and writes.
inline constexpr int64_t kDocumentFormatVersion = 1;
// Larger documents are refused as illegal.
inline constexpr uint64_t kMaxDocumentBytes = uint64_t{1} << 30;
// Deeper nesting of arrays and objects is refused as illegal.
inline constexpr size_t kMaxDocumentNesting = 256;

// What is wrong with a design document: the open error code, the JSON
// pointer of the first bad member ("" for the whole document) and what was
// expected there. iError 0: nothing is wrong.
struct DocumentProblem {
  int32_t iError = kOpenDone;
  std::string sPointer;
  std::string sExpected;
};

// Reads the design document at `path` (a path of the platform). Null on
// failure; `problem`, when given, tells why.
NP_DESIGN_MODEL_API std::unique_ptr<DesignModelRecord> ReadDocumentFile(const char* path,
                                                                        DocumentProblem* problem);

// Reads a design document held in memory.
NP_DESIGN_MODEL_API std::unique_ptr<DesignModelRecord> ReadDocumentText(std::string_view text,
                                                                        DocumentProblem* problem);

// Checks the design document at `path`.
NP_DESIGN_MODEL_API DocumentProblem ValidateDocument(const char* path);

// The document of a design in the current format version, ending in a line
// feed. `indented` lays it out one member per line, two blanks per level.
NP_DESIGN_MODEL_API std::string sDocumentText(const CDesignModel& design, bool indented);

// Writes the document of a design to `path`, through a temporary file
// beside it that takes its place only once it is complete.
NP_DESIGN_MODEL_API bool boWriteDocument(const CDesignModel& design, const char* path,
                                         bool indented);

}  // namespace NpDesignModel
