# SPDX-License-Identifier: MIT
# Settings that hold for every target of ours and never reach a host's own code.

set(tovi_warnings_are_errors)
if(TOVISDK_WERROR)
  set(tovi_warnings_are_errors -Werror)
endif()

add_library(tovi_own_code INTERFACE)
target_compile_features(tovi_own_code INTERFACE cxx_std_20)
target_compile_options(tovi_own_code INTERFACE
  ${tovi_warnings_are_errors} -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow
  -Wnon-virtual-dtor -Wold-style-cast -Wcast-qual -Woverloaded-virtual -Wundef
  -Wimplicit-fallthrough -Wunused)
# Once it inlines, g++ 12 finds copies that overlap where a text is put before a std::string, and
# uninitialised members in temporaries like Options{}. There are none of either.
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION MATCHES "^12\\.")
  target_compile_options(tovi_own_code INTERFACE -Wno-restrict -Wno-maybe-uninitialized)
endif()
target_include_directories(tovi_own_code INTERFACE
  ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/src)

if(TOVISDK_SANITIZE)
  target_compile_options(tovi_own_code INTERFACE
    -fsanitize=${TOVISDK_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer
    # What these two report with wants clang's runtime for C++, which a host in C does not link.
    $<$<CXX_COMPILER_ID:Clang>:-fno-sanitize=function,vptr>)
  target_link_options(tovi_own_code INTERFACE -fsanitize=${TOVISDK_SANITIZE})
endif()

# Which half of src/platform is built, and what it links.
if(WIN32)
  enable_language(RC)
  if(PROJECT_IS_TOP_LEVEL)  # a program finds a DLL that lies beside it
    set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
  endif()
  set(tovi_platform_folder win32)
  set(tovi_platform_libraries ws2_32)
else()
  set(tovi_platform_folder posix)
  set(tovi_platform_libraries)
endif()

# Gives a target C++20, hidden symbols and the warnings of our own code. Each file is compiled by
# itself even where a host has its own put together, for files here use the same names.
function(tovi_own target)
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:tovi_own_code>)
  set_target_properties(${target} PROPERTIES
    CXX_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    POSITION_INDEPENDENT_CODE ON
    UNITY_BUILD OFF)
endfunction()

# Has a target compiled as a strict host would: no extensions, and no setting of ours but whether
# warnings are errors.
function(tovi_as_host target)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -pedantic ${tovi_warnings_are_errors})
  set_target_properties(${target} PROPERTIES C_EXTENSIONS OFF CXX_EXTENSIONS OFF)
endfunction()

# What the system shows as a file's properties; nothing where it has none.
function(tovi_describe target type resource_description)
  if(NOT WIN32)
    return()
  endif()
  if(type STREQUAL DLL)
    set(resource_type VFT_DLL)
    set(resource_file ${target}.dll)
  else()
    set(resource_type VFT_APP)
    set(resource_file ${target}.exe)
  endif()
  set(resource ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/version.rc.in ${resource} @ONLY)
  target_sources(${target} PRIVATE ${resource})
endfunction()
