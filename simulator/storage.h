// SPDX-License-Identifier: MIT
// Files that hosts have sent, in memory or in a folder.
#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/bytes.h"

namespace tovi::sim {

// A name that means a file of its own and nothing else on any system: at most 255 bytes of UTF-8
// without separators or control characters, and not "." or "..".
bool isPlainName(std::string_view name);

class Incoming;

// Safe to use from several threads. Must outlive what it hands out.
class Storage {
 public:
  struct Options {
    std::string folder;  // of this storage alone; empty: in memory
    std::uint64_t capacity = std::uint64_t{1} << 30;
  };

  // Takes up what the folder holds already, and discards what a former run did not finish.
  explicit Storage(Options options);

  // Why the folder is of no use; empty when all is well.
  const std::string& error() const { return mError; }

  // Room for a new file; nothing when the name is not plain or the storage is full. The file
  // appears under its name, in place of an older one, when it is kept.
  std::unique_ptr<Incoming> begin(const std::string& name);

  std::vector<std::string> names() const;  // sorted
  bool has(const std::string& name) const;
  bool remove(const std::string& name);

  // The file's first bytes; nothing when there is none, or it cannot be read.
  std::optional<Bytes> read(const std::string& name, std::size_t limit = SIZE_MAX) const;

  // Bytes, of unfinished files too.
  std::uint64_t used() const;
  std::uint64_t capacity() const { return mOptions.capacity; }

 private:
  friend class Incoming;
  struct File {
    std::uint64_t size = 0;
    Bytes content;  // in memory only
  };

  bool inMemory() const { return mOptions.folder.empty(); }
  void prepareFolder();
  void takeUp();
  std::filesystem::path pathOf(const std::string& name) const;
  std::filesystem::path unfinishedFolder() const;

  const Options mOptions;
  std::string mError;
  mutable std::mutex mMutex;
  std::map<std::string, File> mFiles;
  std::uint64_t mUsed = 0;
  std::uint64_t mBegun = 0;
};

// A file that is not finished. Unless it is kept, nothing of it stays.
class Incoming {
 public:
  ~Incoming();
  Incoming(const Incoming&) = delete;
  Incoming& operator=(const Incoming&) = delete;

  // False when the storage is full or cannot be written; the file is then lost.
  bool append(View bytes);

  // Once, after the last byte.
  bool keep();

  const std::string& name() const { return mName; }
  std::uint64_t size() const { return mSize; }

 private:
  friend class Storage;
  Incoming(Storage& storage, std::string name, std::filesystem::path path);

  Storage& mStorage;
  const std::string mName;
  const std::filesystem::path mPath;  // of the unfinished file; empty in memory
  std::ofstream mFile;
  Bytes mContent;
  std::uint64_t mSize = 0;
  bool mKept = false;
};

}  // namespace tovi::sim
