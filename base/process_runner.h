// Running a child program and waiting for it.
#pragma once

// The result of a program that could not be started.
inline constexpr int kRunProcessNotStarted = -9999;

// Runs `commandLine` (the program and its arguments, separated by blanks; at
// most 2000 characters are used) and waits without a limit. Returns the
// program's exit code, or kRunProcessNotStarted.
int iRunProcess(const char* commandLine);
