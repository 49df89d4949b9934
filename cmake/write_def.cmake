# SPDX-License-Identifier: MIT
# Writes the module definition from which other compilers make an import library: the DLL's plain C
# functions, without the linker's ordinals, which differ from one version to the next.
#   cmake -DEXPORTS=<what the linker wrote> -DDLL=<its name> -DDEF=<to write> -P write_def.cmake
file(STRINGS ${EXPORTS} exports)
set(definition "LIBRARY ${DLL}\nEXPORTS\n")
foreach(line IN LISTS exports)
  if(line MATCHES "^ +([A-Za-z][A-Za-z0-9_]*) @[0-9]+$")  # C++ names begin with an underscore
    string(APPEND definition "    ${CMAKE_MATCH_1}\n")
  endif()
endforeach()
file(WRITE ${DEF} "${definition}")
