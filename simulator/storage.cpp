// SPDX-License-Identifier: MIT
#include "simulator/storage.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "platform/paths.h"
#include "tools/printable.h"

namespace tovi::sim {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMaxName = 255;
constexpr std::size_t kMaxFiles = 10'000;

const char* chars(View bytes) { return reinterpret_cast<const char*>(bytes.data()); }

}  // namespace

bool isPlainName(std::string_view name) {
  return !name.empty() && name.size() <= kMaxName && name != "." && name != ".." &&
         name.find_first_of("/\\:") == std::string_view::npos && tools::printable(name) == name;
}

Storage::Storage(Options options) : mOptions(std::move(options)) {
  if (inMemory()) return;
  try {
    prepareFolder();
    takeUp();
  } catch (const fs::filesystem_error& error) {
    mError = "cannot use the folder " + mOptions.folder + ": " + error.code().message();
  }
}

void Storage::prepareFolder() {
  fs::create_directories(pathOf({}));
  // Beside the files and not among them, so that no name that a host gives can meet it; on the same
  // volume, so that a finished file moves in one step.
  fs::create_directories(unfinishedFolder());
  for (const fs::directory_entry& entry : fs::directory_iterator(unfinishedFolder())) {
    const bool ours = platform::utf8Of(entry.path().filename()).find_first_not_of("0123456789") ==
                      std::string::npos;
    if (ours && entry.is_regular_file()) fs::remove(entry.path());
  }
}

void Storage::takeUp() {
  for (const fs::directory_entry& entry : fs::directory_iterator(pathOf({}))) {
    const std::string name = platform::utf8Of(entry.path().filename());
    if (!entry.is_regular_file() || !isPlainName(name)) continue;
    File& file = mFiles[name];
    file.size = entry.file_size();
    mUsed += file.size;
  }
}

fs::path Storage::pathOf(const std::string& name) const {
  return platform::pathOf(mOptions.folder) / "files" / platform::pathOf(name);
}

fs::path Storage::unfinishedFolder() const {
  return platform::pathOf(mOptions.folder) / "unfinished";
}

std::unique_ptr<Incoming> Storage::begin(const std::string& name) {
  fs::path path;
  {
    const std::lock_guard lock(mMutex);
    const bool full = mFiles.size() >= kMaxFiles && !mFiles.contains(name);
    if (!isPlainName(name) || full || mUsed >= mOptions.capacity) return {};
    if (!inMemory()) path = unfinishedFolder() / std::to_string(++mBegun);
  }
  std::unique_ptr<Incoming> incoming(new Incoming(*this, name, path));
  if (!path.empty() && !incoming->mFile) return {};
  return incoming;
}

std::vector<std::string> Storage::names() const {
  const std::lock_guard lock(mMutex);
  std::vector<std::string> names;
  for (const auto& [name, file] : mFiles) names.push_back(name);
  return names;
}

bool Storage::has(const std::string& name) const {
  const std::lock_guard lock(mMutex);
  return mFiles.contains(name);
}

bool Storage::remove(const std::string& name) {
  const std::lock_guard lock(mMutex);
  const auto file = mFiles.find(name);
  if (file == mFiles.end()) return false;
  std::error_code error;
  if (!inMemory()) fs::remove(pathOf(name), error);
  if (error) return false;
  mUsed -= file->second.size;
  mFiles.erase(file);
  return true;
}

std::optional<Bytes> Storage::read(const std::string& name, std::size_t limit) const {
  const std::lock_guard lock(mMutex);
  const auto found = mFiles.find(name);
  if (found == mFiles.end()) return std::nullopt;
  const File& file = found->second;
  const auto size = static_cast<std::size_t>(std::min<std::uint64_t>(file.size, limit));
  Bytes bytes(file.content.begin(),
              file.content.begin() + static_cast<std::ptrdiff_t>(inMemory() ? size : 0));
  if (inMemory()) return bytes;

  bytes.resize(size);
  std::ifstream stream(pathOf(name), std::ios::binary);
  stream.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(size));
  if (!stream && size > 0) return std::nullopt;
  return bytes;
}

std::uint64_t Storage::used() const {
  const std::lock_guard lock(mMutex);
  return mUsed;
}

Incoming::Incoming(Storage& storage, std::string name, fs::path path)
    : mStorage(storage), mName(std::move(name)), mPath(std::move(path)) {
  if (!mPath.empty()) mFile.open(mPath, std::ios::binary | std::ios::trunc);
}

Incoming::~Incoming() {
  if (mKept) return;
  mFile.close();
  std::error_code ignored;
  if (!mPath.empty()) fs::remove(mPath, ignored);
  const std::lock_guard lock(mStorage.mMutex);
  mStorage.mUsed -= mSize;
}

bool Incoming::append(View bytes) {
  {
    const std::lock_guard lock(mStorage.mMutex);
    if (bytes.size() > mStorage.mOptions.capacity - std::min(mStorage.mUsed, mStorage.capacity())) {
      return false;
    }
    mStorage.mUsed += bytes.size();
    mSize += bytes.size();
  }
  if (mPath.empty()) {
    mContent.insert(mContent.end(), bytes.begin(), bytes.end());
    return true;
  }
  return static_cast<bool>(mFile.write(chars(bytes), static_cast<std::streamsize>(bytes.size())));
}

bool Incoming::keep() {
  mFile.close();
  if (!mPath.empty() && !mFile) return false;
  const std::lock_guard lock(mStorage.mMutex);
  std::error_code error;
  if (!mPath.empty()) fs::rename(mPath, mStorage.pathOf(mName), error);
  if (error) return false;
  Storage::File& file = mStorage.mFiles[mName];
  mStorage.mUsed -= file.size;
  file = {mSize, std::move(mContent)};
  mKept = true;
  return true;
}

}  // namespace tovi::sim
