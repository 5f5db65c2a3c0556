// kvrvips check: whether a file is a valid design document.
#pragma once

#include <string>

// Validates the design document at `design`. A valid one is named on
// standard output; for any other, standard error gets the JSON pointer of
// the first problem and what was expected there. Returns kExitDone for a
// valid document, kExitFailed otherwise.
int iRunCheck(const std::string& design);
