# SPDX-License-Identifier: MIT
# What cpack makes: for Linux a Debian package and an archive, for Windows an archive.
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PACKAGE_NAME tovisdk)
set(CPACK_PACKAGE_CONTACT "ToviSDK developers <maintainers@tovisdk.invalid>")
set(CPACK_PACKAGE_DESCRIPTION
  "Headers, the library (shared and static), the command tovi and tovisim, a simulated controller.")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_MONOLITHIC_INSTALL ON)
set(CPACK_STRIP_FILES ON)

if(WIN32)
  set(CPACK_GENERATOR ZIP)
  set(CPACK_PACKAGE_FILE_NAME tovisdk-${PROJECT_VERSION}-windows-x64)
else()
  set(CPACK_GENERATOR DEB TGZ)
  set(CPACK_PACKAGE_FILE_NAME tovisdk-${PROJECT_VERSION}-linux-${CMAKE_SYSTEM_PROCESSOR})
endif()

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS libssl-dev)  # for hosts that link the static library
# Tells the packages of hosts what to depend on, and has the linker's cache renewed.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

include(CPack)
