# Installs kvrvips into a fresh prefix and uses it from outside, as another
# project would: a C program built with CMake through find_package(kvrvips),
# the same program built with the compiler and pkg-config alone, and the
# installed command-line tool. Each converts the example design.
#
# Expects BUILD_DIR, SOURCE_DIR, WORK_DIR, GENERATOR, C_COMPILER, C_FLAGS
# (may be empty) and the install folders BINDIR, LIBDIR, INCLUDEDIR, DATADIR.
cmake_minimum_required(VERSION 3.25)

set(prefix ${WORK_DIR}/prefix)
set(designs ${WORK_DIR}/designs)
set(settings ${prefix}/${DATADIR}/kvrvips/factory_settings.ini)
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${designs})

# run_step(<what> <command>...): runs the command and stops the test with its
# output when it fails; its standard output is left in step_output.
function(run_step what)
  execute_process(COMMAND ${ARGN}
    RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE errors)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${what} failed (${result}):\n${output}\n${errors}")
  endif()
  set(step_output "${output}" PARENT_SCOPE)
endfunction()

# expect_conversion(<name>): the model file and the log of the copy <name>
# of the example design exist, and the model file is one.
function(expect_conversion name)
  string(HEX "[KVRFILE_ASCII]\r\n" expected)
  string(LENGTH "${expected}" hex_digits)
  math(EXPR bytes "${hex_digits} / 2")
  file(READ ${designs}/${name}.sfi head LIMIT ${bytes} HEX)
  if(NOT head STREQUAL expected)
    message(FATAL_ERROR "${name}.sfi does not begin like a model file: ${head}")
  endif()
  if(NOT EXISTS ${designs}/${name}.log)
    message(FATAL_ERROR "no log ${name}.log beside the design")
  endif()
endfunction()

# The logs go beside the designs, so each conversion gets a copy of its own.
foreach(name cmake_consumer pkgconfig_consumer tool tool_convert_first)
  configure_file(${SOURCE_DIR}/examples/road.json ${designs}/${name}.json COPYONLY)
endforeach()

run_step("cmake --install" ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})
foreach(file ${BINDIR}/kvrvips ${BINDIR}/kvrvips_convert_gen ${LIBDIR}/kvrvips_convert_gen
             ${LIBDIR}/libkvrvips.so ${LIBDIR}/libDesignModelAPIbfildi.so
             ${INCLUDEDIR}/kvrvips/kvrvips.h ${DATADIR}/kvrvips/factory_settings.ini
             ${LIBDIR}/cmake/kvrvips/kvrvipsConfig.cmake
             ${LIBDIR}/cmake/kvrvips/kvrvipsConfigVersion.cmake ${LIBDIR}/pkgconfig/kvrvips.pc)
  if(NOT EXISTS ${prefix}/${file})
    message(FATAL_ERROR "the installation lacks ${file}")
  endif()
endforeach()

# With CMake.
run_step("configuring the CMake consumer" ${CMAKE_COMMAND}
  -S ${SOURCE_DIR}/tests/tools/consumer -B ${WORK_DIR}/cmake_consumer -G ${GENERATOR}
  -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_C_COMPILER=${C_COMPILER}
  -DCMAKE_C_FLAGS=${C_FLAGS} -DCMAKE_EXE_LINKER_FLAGS=${C_FLAGS})
run_step("building the CMake consumer" ${CMAKE_COMMAND} --build ${WORK_DIR}/cmake_consumer)
run_step("converting through the CMake consumer" ${WORK_DIR}/cmake_consumer/convert_example
  ${designs}/cmake_consumer.json ${designs}/cmake_consumer.sfi ${settings})
expect_conversion(cmake_consumer)

# With pkg-config and the compiler alone.
set(pkg_config ${CMAKE_COMMAND} -E env PKG_CONFIG_PATH=${prefix}/${LIBDIR}/pkgconfig pkg-config)
run_step("pkg-config" ${pkg_config} --cflags --libs kvrvips)
separate_arguments(package_flags UNIX_COMMAND "${step_output}")
run_step("pkg-config libdir" ${pkg_config} --variable=libdir kvrvips)
string(STRIP "${step_output}" package_libdir)
separate_arguments(extra_flags UNIX_COMMAND "${C_FLAGS}")
run_step("compiling with pkg-config" ${C_COMPILER} ${extra_flags} -Wall -Wextra -Werror
  ${SOURCE_DIR}/tests/tools/consumer/convert_example.c ${package_flags}
  -Wl,-rpath,${package_libdir} -o ${WORK_DIR}/pkgconfig_consumer)
run_step("converting through the pkg-config consumer" ${WORK_DIR}/pkgconfig_consumer
  ${designs}/pkgconfig_consumer.json ${designs}/pkgconfig_consumer.sfi ${settings})
expect_conversion(pkgconfig_consumer)

# The installed tool finds its libraries and its default settings, and the
# installed library finds the converter beside itself.
run_step("the installed tool" ${prefix}/${BINDIR}/kvrvips convert
  ${designs}/tool.json ${designs}/tool.sfi)
expect_conversion(tool)
run_step("the installed tool with --convert-first" ${prefix}/${BINDIR}/kvrvips convert
  ${designs}/tool_convert_first.json ${designs}/tool_convert_first.sfi --convert-first)
expect_conversion(tool_convert_first)
file(READ ${designs}/tool_convert_first.json rewritten)
if(NOT rewritten MATCHES "\"railwayParams\"")
  message(FATAL_ERROR "the installed converter did not rewrite the design")
endif()

file(REMOVE_RECURSE ${WORK_DIR})
