// Files and folders. Paths are in the local code page, as hosts write them.
#pragma once

#include <string>
#include <string_view>

namespace tovi::platform {

// What stands between the names of a path: "/" or "\\".
extern const char kPathSeparator;

// Appends text with one write, so that records of several threads and processes stay whole. Line
// feeds become the system's line ends. False when the file cannot be opened or written.
bool appendText(const std::string& path, std::string_view text);

// Makes a folder whose parent exists; true when it exists afterwards.
bool makeFolder(const std::string& path);

}  // namespace tovi::platform
