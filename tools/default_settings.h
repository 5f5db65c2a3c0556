// The factory settings file that is installed with the command-line tool.
#pragma once

#include <string>

// The full path of the default factory settings file: the path that
// KVRVIPS_SETTINGS_FROM_PROGRAM gives, taken from the folder of this
// program. The build tree is laid out like an installation, so the same
// rule finds the build tree's copy. Empty when the program's own path is
// unknown. The file need not exist.
std::string sDefaultSettingsPath();
