# SPDX-License-Identifier: MIT
# How a host finds the library: headers, libraries, the CMake package and the pkg-config file; and
# what people read.
include(CMakePackageConfigHelpers)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/tovisdk)
set(doc_folder ${CMAKE_INSTALL_DATAROOTDIR}/doc/tovisdk)

install(TARGETS tovisdk EXPORT tovisdk-targets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(EXPORT tovisdk-targets NAMESPACE tovisdk:: DESTINATION ${package_folder})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/tovisdk ${PROJECT_BINARY_DIR}/include/tovisdk
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")

# On Windows the library is the DLL: its libcrypto is inside, which a static library would ask every
# host to build for itself.
if(WIN32)
  install(FILES ${TOVISDK_DEF} DESTINATION ${CMAKE_INSTALL_LIBDIR})
else()
  install(TARGETS tovisdk_static EXPORT tovisdk-static-targets
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
  install(EXPORT tovisdk-static-targets NAMESPACE tovisdk:: DESTINATION ${package_folder})
  # CMake strips programs and shared libraries only.
  install(CODE "
    if(CMAKE_INSTALL_DO_STRIP)
      set(folder \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}\")
      execute_process(COMMAND_ERROR_IS_FATAL ANY COMMAND \"${CMAKE_STRIP}\"
        --strip-debug \"\${folder}/$<TARGET_FILE_NAME:tovisdk_static>\")
    endif()")
endif()
if(TOVISDK_TOOLS)
  install(TARGETS tovi tovisim RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()

configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/tovisdk-config.cmake.in
  ${PROJECT_BINARY_DIR}/tovisdk-config.cmake INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/tovisdk-config-version.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/tovisdk-config.cmake
  ${PROJECT_BINARY_DIR}/tovisdk-config-version.cmake
  DESTINATION ${package_folder})

# Debian's library folder is one level deeper than others' when the prefix is /usr.
set(up_to_prefix /prefix)
cmake_path(RELATIVE_PATH up_to_prefix BASE_DIRECTORY /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig)
configure_file(${CMAKE_CURRENT_LIST_DIR}/tovisdk.pc.in ${PROJECT_BINARY_DIR}/tovisdk.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/tovisdk.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# As in the source tree, so that the links from one to another hold.
install(FILES
  ${PROJECT_SOURCE_DIR}/README.md ${PROJECT_SOURCE_DIR}/CHANGELOG.md ${PROJECT_SOURCE_DIR}/LICENSE
  ${PROJECT_SOURCE_DIR}/CONTRIBUTING.md ${PROJECT_SOURCE_DIR}/SECURITY.md DESTINATION ${doc_folder})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs DESTINATION ${doc_folder}
  FILES_MATCHING PATTERN "*.md")
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples DESTINATION ${doc_folder} FILES_MATCHING
  PATTERN "*.c" PATTERN "*.cpp" PATTERN "*.cs" PATTERN "*.py")
include(${CMAKE_CURRENT_LIST_DIR}/Licences.cmake)
