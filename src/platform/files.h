// SPDX-License-Identifier: MIT
// Files and folders. Paths are in the local code page, as hosts write them.
#pragma once

#include <string_view>

namespace tovi::platform {

// What stands between the names of a path: "/" or "\\".
extern const char kPathSeparator;

// Whether a folder's path ends with a separator, and not with half a character that looks like one.
bool endsWithSeparator(const char* path);

// Appends text with one write, so that records of several threads and processes stay whole. Line
// feeds become the system's line ends. A new file is its owner's alone, where the system knows of
// such. False when the file cannot be opened or written.
bool appendText(const char* path, std::string_view text);

// Makes a folder whose parent exists; true when it exists afterwards.
bool makeFolder(const char* path);

// In bytes; 0 when there is no such file.
long long fileSize(const char* path);

// Gives a file another name, in place of what had that name before.
bool renameFile(const char* from, const char* to);

}  // namespace tovi::platform
