# SPDX-License-Identifier: MIT
# Windows x64 from Linux, with mingw-w64 and its POSIX threads. What is not the compiler's own
# (libcrypto, GoogleTest, headers) is looked for in TOVISDK_WINDOWS_PREFIX alone, so that nothing of
# the building machine is picked up.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR AMD64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

set(CMAKE_FIND_ROOT_PATH ${TOVISDK_WINDOWS_PREFIX} /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(CMAKE_TRY_COMPILE_PLATFORM_VARIABLES TOVISDK_WINDOWS_PREFIX)

set(CMAKE_CROSSCOMPILING_EMULATOR wine)
set(OPENSSL_USE_STATIC_LIBS ON)

# Programs of ours run where no compiler is installed.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
