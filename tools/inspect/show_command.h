// kvrvips show: the summary of a road model file, or one of its cross
// sections, as text or JSON on standard output.
#pragma once

#include "tools/inspect/inspect_requests.h"

// Reads the model and prints what is asked. Returns kExitDone, or
// kExitFailed (with the reason on standard error) when the file cannot be
// read or no cross section stands at the chainage asked for.
int iRunShow(const ShowRequest& request);
