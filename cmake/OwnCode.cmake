# Settings that hold for every target of ours and never reach a host's own code.

add_library(tovi_own_code INTERFACE)
target_compile_features(tovi_own_code INTERFACE cxx_std_20)
target_compile_options(tovi_own_code INTERFACE
  -Werror -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wshadow -Wnon-virtual-dtor
  -Wold-style-cast -Wcast-qual -Woverloaded-virtual -Wundef -Wimplicit-fallthrough
  -Wunused)
target_include_directories(tovi_own_code INTERFACE
  ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/src)

if(TOVISDK_SANITIZE)
  target_compile_options(tovi_own_code INTERFACE
    -fsanitize=${TOVISDK_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tovi_own_code INTERFACE -fsanitize=${TOVISDK_SANITIZE})
endif()

# Which half of src/platform is built, and what it links.
if(WIN32)
  enable_language(RC)
  # A program finds a DLL that lies beside it.
  set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
  set(tovi_platform_folder win32)
  set(tovi_platform_libraries ws2_32)
else()
  set(tovi_platform_folder posix)
  set(tovi_platform_libraries)
endif()

# Gives a target C++20, hidden symbols and the warnings of our own code.
function(tovi_own target)
  target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:tovi_own_code>)
  set_target_properties(${target} PROPERTIES
    CXX_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    POSITION_INDEPENDENT_CODE ON)
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
