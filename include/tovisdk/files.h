// SPDX-License-Identifier: MIT
/// @file
/// Local files, as transfers use them. Paths are in the local code page.
#ifndef TOVISDK_FILES_H
#define TOVISDK_FILES_H

#include <tovisdk/export.h>

/// Makes an empty file, or empties an existing one. False when it cannot be opened, or for null.
TOVISDK_API bool createEmptyFile(const char* path);

/// Appends `length` bytes of `data` to a file, which is made when it is missing. Nothing happens
/// when it cannot be opened, for null and for a negative length.
TOVISDK_API void writeFileAppend(const char* path, const char* data, long long length);

/// The whole file, with a zero byte behind it, in a new array that the caller releases with
/// deleteArry. Null when it cannot be opened or read, and for null.
TOVISDK_API char* readFile(const char* path);

#endif
