# Installation of the product: the two shared libraries, the public header,
# the tools, the default factory settings, a CMake package that gives the
# imported target kvrvips::kvrvips, and the pkg-config file kvrvips.pc.
#
#   <prefix>/bin/kvrvips, kvrvips_convert_gen
#   <prefix>/lib/libkvrvips.so, libDesignModelAPIbfildi.so
#   <prefix>/lib/kvrvips_convert_gen       the export runs the converter from
#                                          its own folder, so a copy lies there
#   <prefix>/include/kvrvips/kvrvips.h
#   <prefix>/share/kvrvips/factory_settings.ini
#   <prefix>/lib/cmake/kvrvips/kvrvipsConfig.cmake, kvrvipsConfigVersion.cmake
#   <prefix>/lib/pkgconfig/kvrvips.pc
#
# Everything is relocatable: the programs find the libraries through an
# RPATH relative to themselves, the CMake package and the pkg-config file
# find the prefix from their own place.
include(CMakePackageConfigHelpers)

foreach(dir CMAKE_INSTALL_BINDIR CMAKE_INSTALL_LIBDIR CMAKE_INSTALL_INCLUDEDIR
            CMAKE_INSTALL_DATADIR)
  if(IS_ABSOLUTE "${${dir}}")
    message(FATAL_ERROR "${dir} must be relative to the prefix: the installation is relocatable")
  endif()
endforeach()

# Windows: the host loads kvrvips.dll from its folder, and the DLL finds the
# design-model DLL and the converter beside itself, so everything lies in
# bin/ (the tool finds the settings there too). CPack packs the installed
# tree into one archive for an integrator: `cpack -G ZIP` in the build folder.
#
#   <prefix>/bin/kvrvips.dll, DesignModelAPIbfildi.dll
#   <prefix>/bin/kvrvips.exe, kvrvips_convert_gen.exe
#   <prefix>/bin/factory_settings.ini
#   <prefix>/include/kvrvips/kvrvips.h, <prefix>/lib/libkvrvips.dll.a
if(WIN32)
  install(TARGETS kvrvips DesignModelAPIbfildi kvrvips_cli kvrvips_convert_gen
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
  install(FILES ${PROJECT_SOURCE_DIR}/include/kvrvips/kvrvips.h
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kvrvips)
  install(FILES ${PROJECT_SOURCE_DIR}/examples/${KVRVIPS_SETTINGS_NAME}
    DESTINATION ${KVRVIPS_SETTINGS_DIR})
  set(CPACK_GENERATOR ZIP)
  set(CPACK_PACKAGE_VENDOR kvrvips)
  set(CPACK_SYSTEM_NAME windows-x86_64)
  include(CPack)
  return()
endif()

file(RELATIVE_PATH bin_to_lib /root/${CMAKE_INSTALL_BINDIR} /root/${CMAKE_INSTALL_LIBDIR})
# One RPATH serves both copies of the converter: the one in bin/ finds the
# libraries through the first entry, the one in lib/ through the second.
set_target_properties(kvrvips_cli kvrvips_convert_gen PROPERTIES
  INSTALL_RPATH "\$ORIGIN/${bin_to_lib};\$ORIGIN")

install(TARGETS kvrvips DesignModelAPIbfildi
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS kvrvips_cli kvrvips_convert_gen RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS kvrvips_convert_gen RUNTIME DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES ${PROJECT_SOURCE_DIR}/include/kvrvips/kvrvips.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kvrvips)
install(FILES ${PROJECT_SOURCE_DIR}/examples/${KVRVIPS_SETTINGS_NAME}
  DESTINATION ${KVRVIPS_SETTINGS_DIR})

# The CMake package. The imported target is written by hand rather than
# exported, so that it carries only what a user of the C header needs: the
# library and the include folder. The file names come from the built
# library through file(GENERATE).
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/kvrvips)
set(package_build_dir ${CMAKE_CURRENT_BINARY_DIR}/package)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/kvrvipsConfig.cmake.in
  ${package_build_dir}/kvrvipsConfig.cmake.in
  INSTALL_DESTINATION ${package_dir}
  PATH_VARS CMAKE_INSTALL_LIBDIR CMAKE_INSTALL_INCLUDEDIR)
file(GENERATE OUTPUT ${package_build_dir}/kvrvipsConfig.cmake
  INPUT ${package_build_dir}/kvrvipsConfig.cmake.in)
# Version 0.x: a minor version may change the interface.
write_basic_package_version_file(${package_build_dir}/kvrvipsConfigVersion.cmake
  VERSION ${PROJECT_VERSION} COMPATIBILITY SameMinorVersion)
install(FILES ${package_build_dir}/kvrvipsConfig.cmake
              ${package_build_dir}/kvrvipsConfigVersion.cmake
  DESTINATION ${package_dir})

# The pkg-config file finds the prefix from its own folder.
set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH pkgconfig_to_prefix /root/${pkgconfig_dir} /root)
string(REGEX REPLACE "/$" "" pkgconfig_to_prefix "${pkgconfig_to_prefix}")
configure_file(${PROJECT_SOURCE_DIR}/cmake/kvrvips.pc.in ${package_build_dir}/kvrvips.pc @ONLY)
install(FILES ${package_build_dir}/kvrvips.pc DESTINATION ${pkgconfig_dir})
