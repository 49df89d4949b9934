# How a host finds the library: headers, both libraries, the CMake package and the pkg-config file.
include(CMakePackageConfigHelpers)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/tovisdk)

install(TARGETS tovisdk tovisdk_static EXPORT tovisdk-targets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/tovisdk ${PROJECT_BINARY_DIR}/include/tovisdk
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")
if(TOVISDK_TOOLS)
  install(TARGETS tovi tovisim RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()

install(EXPORT tovisdk-targets NAMESPACE tovisdk:: DESTINATION ${package_folder})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/tovisdk-config.cmake.in
  ${PROJECT_BINARY_DIR}/tovisdk-config.cmake INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/tovisdk-config-version.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES
  ${PROJECT_BINARY_DIR}/tovisdk-config.cmake
  ${PROJECT_BINARY_DIR}/tovisdk-config-version.cmake
  DESTINATION ${package_folder})

configure_file(${CMAKE_CURRENT_LIST_DIR}/tovisdk.pc.in ${PROJECT_BINARY_DIR}/tovisdk.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/tovisdk.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
