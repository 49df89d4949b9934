#include "transfer/local_files.h"

#include <tovisdk/files.h>

#include <memory>
#include <new>

namespace tovi::transfer {

FileReader::FileReader(const char* path)
    : mFile(path, std::ios::binary | std::ios::ate), mSize(mFile.tellg()) {
  mFile.seekg(0);
  // Some systems open folders and give them a size; only a read tells.
  if (mSize > 0) mFile.peek();
}

long long FileReader::read(std::span<char> room) {
  if (!mFile.good()) return -1;
  mFile.read(room.data(), static_cast<std::streamsize>(room.size()));
  mPosition += mFile.gcount();
  if (mFile.bad() || (mFile.eof() && mPosition < mSize)) return -1;
  return mFile.gcount();
}

bool appendToFile(const char* path, std::string_view bytes) {
  std::ofstream file(path, std::ios::binary | std::ios::app);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  return file.good();
}

}  // namespace tovi::transfer

bool createEmptyFile(const char* path) {
  return path != nullptr && std::ofstream(path, std::ios::trunc).is_open();
}

void writeFileAppend(const char* path, const char* data, long long length) {
  if (path == nullptr || length < 0 || (data == nullptr && length > 0)) return;
  tovi::transfer::appendToFile(path, {data, static_cast<std::size_t>(length)});
}

char* readFile(const char* path) {
  if (path == nullptr) return nullptr;
  tovi::transfer::FileReader file(path);
  if (!file.canRead()) return nullptr;
  // The byte more is for the closing zero, and makes the read meet the end.
  const std::size_t room = static_cast<std::size_t>(file.size()) + 1;
  std::unique_ptr<char[]> content(new (std::nothrow) char[room]);
  if (content == nullptr || file.read({content.get(), room}) < 0) return nullptr;
  content[room - 1] = '\0';
  return content.release();
}
