// Tells a person what is wrong with a design document.
#pragma once

#include "design_model/document.h"

// Writes to standard error why the design document at `path` cannot be
// used: that it cannot be read, or the JSON pointer of the first bad member
// and what was expected there. `program` begins each message. Nothing for a
// problem whose error is 0.
void vPrintDesignProblem(const char* program, const char* path,
                         const NpDesignModel::DocumentProblem& problem);
