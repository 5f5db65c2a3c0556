// Exit codes of the command-line tool kvrvips.
#pragma once

enum : int {
  kExitDone = 0,    // the command did what was asked
  kExitFailed = 1,  // the conversion failed, or the design document is not valid
  kExitUsage = 2,   // the command line cannot be understood
};
