#include "vips_import/export/dll_main.h"

#include "base/platform.h"
#include "base/temp_text.h"

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID reserved) {
  switch (reason) {
    case DLL_PROCESS_ATTACH:
      // The module path is the library's own, not the host program's.
      vPlatformSetModuleHandle(module);
      DisableThreadLibraryCalls(module);
      break;
    case DLL_PROCESS_DETACH:
      // Freed when the host unloads the library. When the whole process
      // ends, its other threads are already gone, perhaps holding the ring's
      // lock, and the system takes the memory back anyway.
      if (!reserved) vTempRingRelease();
      break;
    default: break;
  }
  return TRUE;
}
