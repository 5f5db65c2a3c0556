# Shared compile settings and the helpers that make one static library per
# source folder and one test program per test folder.

add_library(kvrvips_options INTERFACE)
target_include_directories(kvrvips_options INTERFACE
  ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/include)
target_compile_options(kvrvips_options INTERFACE
  -Wall -Wextra -Wpedantic -Wno-missing-field-initializers
  $<$<BOOL:${KVRVIPS_WERROR}>:-Werror>)
if(WIN32)
  # MinGW: printf and its kin as in C99 (%zu, and numbers printed as on
  # Linux) whatever header comes first, and M_PI from <cmath>. Our own
  # printf-like functions say so through base/printf_format.h.
  target_compile_definitions(kvrvips_options INTERFACE __USE_MINGW_ANSI_STDIO=1 _USE_MATH_DEFINES)
endif()
# Only the exported function leaves the shared library.
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_C_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

if(KVRVIPS_SANITIZE)
  set(kvrvips_sanitize_flags -fsanitize=address,undefined -fno-sanitize-recover=all
      -fno-omit-frame-pointer)
  target_compile_options(kvrvips_options INTERFACE ${kvrvips_sanitize_flags})
  target_link_options(kvrvips_options INTERFACE ${kvrvips_sanitize_flags})
endif()

# kvrvips_add_folder(<folder>): adds the folder's own CMakeLists.txt when it
# has one.
function(kvrvips_add_folder folder)
  if(EXISTS ${PROJECT_SOURCE_DIR}/${folder}/CMakeLists.txt)
    add_subdirectory(${folder})
  endif()
endfunction()

# kvrvips_folder_library(<target> [DEPENDS <targets>...]): a static library of
# every .cpp file of the calling folder and its subfolders, which split the
# folder by concern.
function(kvrvips_folder_library target)
  cmake_parse_arguments(ARG "" "" "DEPENDS" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  add_library(${target} STATIC ${sources})
  target_link_libraries(${target} PUBLIC kvrvips_options ${ARG_DEPENDS})
endfunction()

# kvrvips_test_suite(<name> [DEPENDS <targets>...]): one GoogleTest program of
# every .cpp file of the calling test folder and its subfolders (which mirror
# the source folders), registered with CTest. Subfolders named tools hold
# helper programs of their own and are left out.
function(kvrvips_test_suite name)
  cmake_parse_arguments(ARG "" "" "DEPENDS" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  list(FILTER sources EXCLUDE REGEX "^${CMAKE_CURRENT_SOURCE_DIR}/tools/")
  if(NOT sources)
    return()
  endif()
  add_executable(${name} ${sources})
  target_link_libraries(${name} PRIVATE kvrvips_options ${ARG_DEPENDS}
    GTest::gtest GTest::gmock GTest::gtest_main)
  target_compile_definitions(${name} PRIVATE
    KVRVIPS_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
    KVRVIPS_TEST_DATA_DIR="${PROJECT_SOURCE_DIR}/tests/data"
    KVRVIPS_BINARY_DIR="${PROJECT_BINARY_DIR}")
  # The list of tests is asked for when CTest runs; under Wine (the Windows
  # build's emulator) the first start of a program can take seconds.
  gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
    WORKING_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR})
endfunction()
