// SPDX-License-Identifier: MIT
#include "transfer/local_files.h"

#include <tovisdk/files.h>

#include <algorithm>
#include <array>
#include <memory>
#include <string>

#include "foundation/bytes.h"
#include "foundation/memory.h"

namespace tovi::transfer {

FileReader::FileReader(const char* path) : mFile(path, std::ios::binary) {
  mFile.seekg(0, std::ios::end);
  if (mFile.good()) mSize = mFile.tellg();
  // What cannot be positioned, as a pipe, is read all the same.
  mFile.clear(mFile.is_open() ? std::ios::goodbit : std::ios::badbit);
  if (mSize < 0) return;
  mFile.seekg(0);
  // Some systems open folders and give them a size; only a read tells.
  if (mSize > 0) mFile.peek();
  if (!mFile.good()) mSize = 0;
}

long long FileReader::read(std::span<char> room) {
  if (!mFile.good()) return -1;
  mFile.read(room.data(), static_cast<std::streamsize>(room.size()));
  mPosition += mFile.gcount();
  mAtEnd = mFile.eof();
  if (mFile.bad() || (mAtEnd && mPosition < mSize)) return -1;
  return mFile.gcount();
}

bool FileReader::hasShrunk() {
  if (mSize < 0) return false;
  mFile.clear();
  mFile.seekg(0, std::ios::end);
  const bool shrunk = mFile.tellg() < std::min(mPosition, mSize);
  mFile.seekg(mPosition);
  return shrunk;
}

bool makeEmptyFile(const char* path) { return std::ofstream(path, std::ios::trunc).is_open(); }

bool appendToFile(const char* path, std::string_view bytes) {
  std::ofstream file(path, std::ios::binary | std::ios::app);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  return file.good();
}

}  // namespace tovi::transfer

bool createEmptyFile(const char* path) {
  return tovi::whereMemoryAllows(
      false, [&] { return path != nullptr && std::ofstream(path, std::ios::trunc).is_open(); });
}

void writeFileAppend(const char* path, const char* data, long long length) {
  if (path == nullptr || length < 0 || (data == nullptr && length > 0)) return;
  const std::string_view bytes(data, static_cast<std::size_t>(length));
  tovi::whereMemoryAllows(false, [&] { return tovi::transfer::appendToFile(path, bytes); });
}

namespace {

char* newContent(tovi::transfer::FileReader& file, std::size_t size) {
  // The byte more is for the closing zero, and makes the read meet the end.
  std::unique_ptr<char[]> content(new char[size + 1]);
  if (file.read({content.get(), size + 1}) < 0) return nullptr;
  content[size] = '\0';
  return content.release();
}

// Of a file whose size nobody knows before its end.
char* newContent(tovi::transfer::FileReader& file) {
  std::string content;
  std::array<char, 65536> piece;
  do {
    const long long count = file.read(piece);
    if (count < 0) return nullptr;
    content.append(piece.data(), static_cast<std::size_t>(count));
  } while (!file.atEnd());
  return tovi::newArray(content);
}

}  // namespace

char* readFile(const char* path) {
  char* const none = nullptr;
  if (path == nullptr) return none;
  return tovi::whereMemoryAllows(none, [&] {
    tovi::transfer::FileReader file(path);
    return file.size() < 0 ? newContent(file)
                           : newContent(file, static_cast<std::size_t>(file.size()));
  });
}
