// SPDX-License-Identifier: MIT
// Files on this machine. Paths are in the local code page and therefore stay plain texts: the
// standard library takes a narrow path object for UTF-8 on some systems.
#pragma once

#include <fstream>
#include <span>
#include <string_view>

namespace tovi::transfer {

// A file that is read from its start to its end.
class FileReader {
 public:
  explicit FileReader(const char* path);

  // Fills the room, or what the file still has of it; the number of bytes. -1 when the file cannot
  // be opened or read, or ends before the size that it had when it was opened.
  long long read(std::span<char> room);

  // Whether a read met the end. One that stops exactly there has not met it yet.
  bool atEnd() const { return mAtEnd; }

  // Whether what was read of it is no longer there.
  bool hasShrunk();

  long long position() const { return mPosition; }
  long long size() const { return mSize; }  // when it was opened; -1: not known, as of a pipe

 private:
  std::ifstream mFile;
  bool mAtEnd = false;
  long long mSize = -1;
  long long mPosition = 0;
};

// Makes an empty file, or empties one; false when that cannot be done.
bool makeEmptyFile(const char* path);

// Whether all bytes were taken.
bool appendToFile(const char* path, std::string_view bytes);

}  // namespace tovi::transfer
