# SPDX-License-Identifier: MIT
# Where Debian looks for the licences of a package.
if(NOT WIN32)
  install(FILES ${CMAKE_CURRENT_LIST_DIR}/copyright DESTINATION ${doc_folder})
endif()

# The licences of what becomes part of our binaries, as they lie on the machine that builds: Debian
# keeps one beside each of its packages.
function(tovi_install_licence name file)
  if(EXISTS ${file})
    install(FILES ${file} DESTINATION ${doc_folder}/licences RENAME ${name}.txt)
  else()
    message(STATUS "Nothing to install as the licence of ${name}: there is no ${file}")
  endif()
endfunction()

if(TOVISDK_TOOLS)
  tovi_install_licence(cli11 /usr/share/doc/libcli11-dev/copyright)
  tovi_install_licence(nlohmann-json /usr/share/doc/nlohmann-json3-dev/copyright)
endif()
if(WIN32)  # where nothing but Windows' own libraries is linked dynamically
  tovi_install_licence(openssl ${TOVISDK_WINDOWS_PREFIX}/licences/openssl.txt)
  tovi_install_licence(mingw-w64 /usr/share/doc/mingw-w64-common/copyright)
  tovi_install_licence(gcc-runtime /usr/share/doc/gcc-mingw-w64-base/copyright)
  tovi_install_licence(gpl-3 /usr/share/common-licenses/GPL-3)  # which gcc-runtime refers to
endif()
