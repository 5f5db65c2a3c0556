// kvrvips convert: a design document into a road model file, through the
// library's export.
#pragma once

#include <cstdint>
#include <string>

struct ConvertRequest {
  std::string sDesign;    // the design document
  std::string sModel;     // the road model file, loaded if it exists and written on success
  std::string sSettings;  // the factory settings file; empty: the installed default
  uint32_t uFlags = 65535;
  bool boDescribeOpenError = false;
  bool boConvertFirst = false;
};

// Runs the conversion. Prints "log: <path>" on standard output when the
// import formed a log, and on failure says on standard error what went
// wrong. Returns the exit code: kExitDone when the export returned 0,
// kExitFailed otherwise.
int iRunConvert(const ConvertRequest& request);
