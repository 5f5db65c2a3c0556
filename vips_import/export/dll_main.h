// The entry point of kvrvips.dll, which the system calls when the library is
// loaded into a process and when it leaves it again.
#pragma once

#ifdef _WIN32
#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID reserved);
#endif
