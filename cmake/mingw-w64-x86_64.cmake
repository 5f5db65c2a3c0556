# Cross build for 64-bit Windows with Debian's MinGW-w64 (the posix thread
# model, so that std::thread and std::mutex work), tested under Wine.
#
#   cmake -S . -B build-windows -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-w64-x86_64.cmake
#
# The libraries built for Windows by scripts/bootstrap-windows are looked
# for in KVRVIPS_WINDOWS_DEPS (default: deps/prefix in the build folder).
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(kvrvips_mingw x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${kvrvips_mingw}-gcc-posix)
set(CMAKE_CXX_COMPILER ${kvrvips_mingw}-g++-posix)
set(CMAKE_RC_COMPILER ${kvrvips_mingw}-windres)
set(CMAKE_AR ${kvrvips_mingw}-gcc-ar-posix CACHE FILEPATH "Archiver")
set(CMAKE_RANLIB ${kvrvips_mingw}-gcc-ranlib-posix CACHE FILEPATH "Ranlib")

set(KVRVIPS_WINDOWS_DEPS ${CMAKE_BINARY_DIR}/deps/prefix CACHE PATH
    "Prefix of the libraries built for Windows by scripts/bootstrap-windows")

# Headers and libraries come from the MinGW sysroot and the Windows builds of
# the dependencies only, never from the host's /usr; programs from the host.
set(CMAKE_FIND_ROOT_PATH /usr/${kvrvips_mingw} ${KVRVIPS_WINDOWS_DEPS})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# The runtime of the compiler (libgcc, libstdc++, winpthread) is linked into
# every DLL and program, so that they run as they are, under Wine or copied
# onto a Windows machine, with no MinGW DLL to ship beside them.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static")
set(CMAKE_MODULE_LINKER_FLAGS_INIT "-static")

# Test programs and try_run run under Wine, with a Wine prefix of the build
# folder's own and without Wine's diagnostics on standard error.
find_program(KVRVIPS_WINE NAMES wine64 wine PATHS /usr/lib/wine /usr/lib64/wine NO_DEFAULT_PATH)
find_program(KVRVIPS_WINE NAMES wine64 wine)
if(KVRVIPS_WINE)
  set(KVRVIPS_WINEPREFIX ${CMAKE_BINARY_DIR}/wine CACHE PATH "Wine prefix of the tests")
  set(CMAKE_CROSSCOMPILING_EMULATOR
      ${CMAKE_COMMAND} -E env WINEPREFIX=${KVRVIPS_WINEPREFIX} WINEDEBUG=-all ${KVRVIPS_WINE})
endif()
