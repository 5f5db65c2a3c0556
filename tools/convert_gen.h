// kvrvips_convert_gen: brings a design document up to the current format
// version, in place. The export runs it before it opens a design when asked
// to, and judges it by its exit code alone.
#pragma once

// Exit codes of the converter. On a platform whose exit status has eight
// bits only the low byte of these reaches the program that waits.
enum : int {
  kConvertGenDone = 1001,    // the document is valid and was written again
  kConvertGenUsage = 1,      // the command line is not a single design path
  kConvertGenMissing = 1000, // no file at the path
  kConvertGenBad = 999,      // not a valid design document, or it cannot be written
};

// Validates the design document at `path` and writes it again in the
// current format version, through a temporary file that replaces it only
// when complete. Failures are told on standard error. Returns one of the
// exit codes above.
int iConvertGenRun(const char* path);
